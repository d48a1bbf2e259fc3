#include "client_backups.h"

#include <algorithm>

#include "lib/file/file-op.h"

namespace {

bool MoveToFreeBackupName(const ClientPaths& paths) {
    return std::any_of(paths.backups.begin(), paths.backups.end(), [&](const std::string& backup) {
        return IsSurelyMissing(backup) && FSRename(paths.app, backup, false) == 0;
    });
}

bool MoveToRandomName(const std::string& path) {
    std::string name;
    return FSCreateTempPath(FSParentPath(path), name) == 0 && FSRename(path, name, false) == 0;
}

}  // namespace

std::vector<Backup> InspectBackups(const ClientPaths& paths) {
    std::vector<Backup> backups;
    for (const std::string& path : paths.backups) {
        backups.push_back({path, InspectBundle(path, paths.parts)});
    }
    return backups;
}

const Backup* FindBestBackup(const std::vector<Backup>& backups) {
    const Backup* best = nullptr;
    for (const Backup& backup : backups) {
        if (backup.bundle.state == ClientBundle::kWhole &&
            (best == nullptr || backup.bundle.build >= best->bundle.build)) {
            best = &backup;
        }
    }
    return best;
}

void RemoveIncompleteBackups(const std::vector<Backup>& backups, const BundleParts& parts) {
    for (const Backup& backup : backups) {
        if (backup.bundle.state == ClientBundle::kIncomplete) {
            // A backup that stays only takes room.
            static_cast<void>(RemoveBundle(backup.path, parts));
        }
    }
}

void FreeBackupNames(const ClientPaths& paths) {
    const bool is_app_whole = InspectBundle(paths.app, paths.parts).state == ClientBundle::kWhole;
    for (const Backup& backup : InspectBackups(paths)) {
        const bool may_go = is_app_whole || backup.bundle.state == ClientBundle::kIncomplete;
        if (may_go && !RemoveBundle(backup.path, paths.parts)) {
            // If the renaming fails, one backup name stays taken. The next start tries again.
            static_cast<void>(MoveToRandomName(backup.path));
        }
    }
}

bool FreeAppPath(const ClientPaths& paths) {
    return RemoveBundle(paths.app, paths.parts) || MoveToFreeBackupName(paths) ||
           MoveToRandomName(paths.app);
}
