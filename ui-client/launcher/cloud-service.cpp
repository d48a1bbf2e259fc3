#include "cloud-service.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <array>
#include <cerrno>
#include <cstdio>
#include <vector>

#include "UIPathManager.h"
#include "client_bundle.h"
#include "extractor.h"
#include "lib/file/file-op.h"
#include "lib/log.h"
#include "version_file.h"

#define LOG_SOURCE "cloud-service"

namespace {

const std::string kLogComponent = "service_debug";

// Backups that earlier, interrupted runs may have left take the lower names.
constexpr int kBackupNames = 10;

std::string NativePath(const QString& path) {
    return QDir::toNativeSeparators(path).toStdString();
}

// The fields of one side's version, to be filled from its INFO file.
struct VersionFields {
    std::string& major;
    std::string& minor;
    std::string& build;
    std::string& icon_overlay;
};

void LoadValue(const VersionFile& info, const char* key, std::string& field) {
    if (const auto value = info.Value(key)) {
        field = *value;
    }
}

void LoadVersion(const QString& path, const char* side, const VersionFields& fields) {
    const VersionFile info(path);
    LoadValue(info, "major_version", fields.major);
    LoadValue(info, "minor_version", fields.minor);
    LoadValue(info, "build_version", fields.build);
    LoadValue(info, "icon_overlay_version", fields.icon_overlay);
    LOG_MSG(INFO, "%s = (%s, %s, %s, %s)", side, fields.major.c_str(), fields.minor.c_str(),
            fields.build.c_str(), fields.icon_overlay.c_str());
}

std::string GetAppBackupDir(const std::string& path, int index) {
    std::string base = path + "_tmp";
    if (index == 0) {
        return base;
    }
    std::array<char, 8> suffix;
    if (std::snprintf(suffix.data(), suffix.size(), "%d", index) < 0) {
        LOG_MSG(ERROR, "snprintf failed (continuing without postfix)");
        return base;
    }
    return base + suffix.data();
}

// Whether there is an old bundle to keep. A bundle that cannot be inspected counts as one: if it were
// taken for missing, the package would be unpacked over it.
bool HasOldApp(const std::string& app) {
    constexpr int kAttempts = 2;  // The system may refuse the first answer only.
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        if (IsSurelyMissing(app)) {
            return false;
        }
    }
    return true;
}

// Moves the bundle aside. Returns the index of the backup's name, or -1 when no name was free.
int BackUp(const std::string& app) {
    for (int index = 0; index < kBackupNames; ++index) {
        const std::string backup = GetAppBackupDir(app, index);
        if (FSRename(app, backup, false) == 0) {
            return index;
        }
        LOG_MSG(ERROR, "failed to backup app from '%s' -> '%s'", app.c_str(), backup.c_str());
    }
    LOG_MSG(ERROR, "failed to backup app from '%s' -> '%s' at max retries, exiting", app.c_str(),
            GetAppBackupDir(app, kBackupNames - 1).c_str());
    return -1;
}

// The registered paths of the per-user bundle, relative to it.
BundleParts PartsOfBundle() {
    const auto prefix = Service::RegisteredPath("user_corvimo_app_path").size();
    const QString resources = Service::RegisteredPath("user_corvimo_resource_path").mid(prefix);
    return {Service::RegisteredPath("user_corvimo_ui_path").mid(prefix).toStdString(),
            (resources + QLatin1String("/INFO")).toStdString()};
}

void RemoveBackups(const std::string& app, int last_index) {
    LOG_MSG(INFO, "user installation is ready, removing backup app");
    for (int index = 0; index <= last_index; ++index) {
        // Whatever stays is removed before the next installation.
        static_cast<void>(RemoveBundle(GetAppBackupDir(app, index), PartsOfBundle()));
    }
}

// Renames what cannot be removed to a random name, so that it takes no name that is needed.
bool MoveToRandomName(const std::string& path) {
    std::string name;
    return FSCreateTempPath(FSParentPath(path), name) == 0 && FSRename(path, name, false) == 0;
}

bool MoveToFreeBackupName(const std::string& app) {
    for (int index = 0; index < kBackupNames; ++index) {
        const std::string backup = GetAppBackupDir(app, index);
        if (IsSurelyMissing(backup) && FSRename(app, backup, false) == 0) {
            return true;
        }
    }
    return false;
}

// Sees to it that nothing is at the bundle's path.
bool ClearPlace(const std::string& app) {
    return RemoveBundle(app, PartsOfBundle()) || MoveToFreeBackupName(app) || MoveToRandomName(app);
}

void RollBack(const std::string& app, const std::string& backup) {
    LOG_MSG(ERROR, "Failed to extract package, rollback to old installation");
    // When either fails, the old bundle is whole under the backup's name, and EnsureWholeClient tries
    // again.
    static_cast<void>(ClearPlace(app));
    static_cast<void>(FSRename(backup, app, false));
}

struct Backup {
    std::string path;
    ClientBundle bundle;
};

std::vector<Backup> InspectBackups(const std::string& app) {
    const BundleParts parts = PartsOfBundle();
    std::vector<Backup> backups;
    for (int index = 0; index < kBackupNames; ++index) {
        const std::string path = GetAppBackupDir(app, index);
        backups.push_back({path, InspectBundle(path, parts)});
    }
    return backups;
}

// The whole backup with the greatest build; of equals the one with the highest index, which is
// usually the newest. Null when none is whole.
const Backup* BestBackup(const std::vector<Backup>& backups) {
    const Backup* best = nullptr;
    for (const Backup& backup : backups) {
        if (backup.bundle.state == ClientBundle::kWhole &&
            (best == nullptr || backup.bundle.build >= best->bundle.build)) {
            best = &backup;
        }
    }
    return best;
}

void RemoveTorsos(const std::vector<Backup>& backups) {
    for (const Backup& backup : backups) {
        if (backup.bundle.state == ClientBundle::kTorso) {
            // One that stays costs nothing but room.
            static_cast<void>(RemoveBundle(backup.path, PartsOfBundle()));
        }
    }
}

// Puts the best backup in the place of a bundle that is not whole. Returns whether it has.
bool PutBackBestBackup(const std::string& app) {
    const std::vector<Backup> backups = InspectBackups(app);
    const Backup* const best = BestBackup(backups);
    if (best == nullptr) {
        return false;
    }
    static_cast<void>(ClearPlace(app));  // Where something stays there, the rename fails.
    if (FSRename(best->path, app, false) != 0) {
        LOG_MSG(ERROR, "failed to put back client from '%s' -> '%s'", best->path.c_str(),
                app.c_str());
        return false;
    }
    LOG_MSG(NOTE, "client was not whole, put back build %s from '%s'",
            std::to_string(best->bundle.build).c_str(), best->path.c_str());
    RemoveTorsos(backups);
    return true;
}

bool IsDotOrDotDot(const std::string& name) {
    return name == "." || name == "..";
}

// Appends the entries of a folder, "." and ".." left out. False when it cannot be opened. All are
// read before one is copied, so that a tree thousands of levels deep takes one descriptor.
bool ReadEntries(const std::string& folder, std::vector<DIR_ENTRY>& entries) {
    DIR_HANDLE handle;
    if (FSOpenDir(folder, 0, handle) < 0) {
        return false;
    }
    DIR_ENTRY entry;
    while (FSReadDir(handle, entry) > 0) {
        if (!IsDotOrDotDot(entry.name)) {
            entries.push_back(entry);
        }
    }
    FSCloseDir(handle);
    return true;
}

// The path of an empty folder that marks an unfinished move of the older product's data. While it is
// missing, whatever is in the new data folder is the client's.
std::string UnfinishedMoveMark() {
    return NativePath(Service::RegisteredPath("user_lumaport_path") +
                      QLatin1String("/.corvimo_moving_data"));
}

// Whether data may move to the path: nothing is there, or an empty folder. rmdir is the reliable test:
// a listing that fails half-way looks like an empty one. It cannot remove a volume of its own.
bool IsFree(const std::string& path) {
    std::vector<DIR_ENTRY> entries;
    return IsSurelyMissing(path) || rmdir(path.c_str()) == 0 ||
           (errno == EBUSY && ReadEntries(path, entries) && entries.empty());
}

// Whether the path is a symbolic link or leads through one. Most stored paths are the given path byte
// for byte; the second test is for the others.
bool IsReachedThroughLink(const std::string& path, const _FILE_INFO_tag& info) {
    return info.type == FILE_TYPE_LINK || (info.path != path && !IsFileExist(path, true));
}

// Moves the older product's data. False when data is left behind.
bool MoveData(const std::string& old_data, const std::string& new_data) {
    if (!IsFileExist(old_data, true)) {
        return IsSurelyMissing(old_data);
    }
    const std::string mark = UnfinishedMoveMark();
    if (!IsFree(new_data) && !IsFileExist(mark, true)) {
        return false;
    }
    // Without the mark an interrupted move to another volume is not resumed, but nothing is lost.
    static_cast<void>(FSMKDir(mark, false));
    return FSRename(old_data, new_data, true) >= 0;
}

}  // namespace

void Service::SetTimeout(int milliseconds) {
    timeout = milliseconds;
}

int Service::ExtractPackage() {
    const std::string package =
        (RegisteredPath("root_resource_path") + QLatin1String("/package/lumaport.cpk"))
            .toStdString();
    const std::string destination = RegisteredPath("user_corvimo_app_path").toStdString();
    if (FSMKDir(destination, true) < 0) {
        LOG_MSG(ERROR, "failed to create folder: '%s'", destination.c_str());
        return -1;
    }
    LOG_MSG(INFO, "extract package: '%s' -> '%s'", package.c_str(), destination.c_str());
    Extractor extractor;
    extractor.destination = destination;
    extractor.archive_path = package;
    return extractor.Extract();
}

void Service::LoadSourceVersion() {
    const QString path = RegisteredPath("user_corvimo_resource_path") + QLatin1String("/INFO");
    if (!IsFileExist(path.toStdString(), false)) {
        LOG_MSG(INFO, "source does not exist");
        return;
    }
    LoadVersion(path, "source_version",
                {source_major_version, source_minor_version, source_build_version,
                 source_icon_overlay_version});
}

void Service::LoadTargetVersion() {
    const QString path = RegisteredPath("root_resource_path") + QLatin1String("/INFO");
    LoadVersion(path, "target_version",
                {target_major_version, target_minor_version, target_build_version,
                 target_icon_overlay_version});
}

int Service::PrepareUserEnv() {
    const std::string app = user_app_path;
    const bool has_old_app = HasOldApp(app);
    const int backup_index = has_old_app ? BackUp(app) : 0;
    if (backup_index < 0) {
        return -1;
    }
    if (ExtractPackage() == 0) {
        RemoveBackups(app, backup_index);
        return 0;
    }
    if (has_old_app) {
        RollBack(app, GetAppBackupDir(app, backup_index));
    } else {
        LOG_MSG(ERROR, "Failed to extract package, and no old installation to rollback");
    }
    return -1;
}

void Service::EnsureWholeClient() {
    const ClientBundle::State state = InspectBundle(user_app_path, PartsOfBundle()).state;
    if (state == ClientBundle::kWhole ||
        (state != ClientBundle::kUnknown && PutBackBestBackup(user_app_path))) {
        ForgetUnfinishedMove();
    }
}

void Service::RemoveLeftovers() {
    const BundleParts parts = PartsOfBundle();
    const bool is_whole = InspectBundle(user_app_path, parts).state == ClientBundle::kWhole;
    for (const Backup& backup : InspectBackups(user_app_path)) {
        const ClientBundle::State state = backup.bundle.state;
        const bool may_go = is_whole || state == ClientBundle::kTorso;
        if (may_go && !RemoveBundle(backup.path, parts)) {
            // Where this fails, it is in the way of one backup, and the next start tries again.
            static_cast<void>(MoveToRandomName(backup.path));
        }
    }
}

void Service::ForgetUnfinishedMove() {
    // Mostly there is none. One that stays is removed by the next start.
    static_cast<void>(rmdir(UnfinishedMoveMark().c_str()));
}

void Service::MigrateService() {
    const QString old_root = RegisteredPath("user_lumaport_path");
    const QString new_root = RegisteredPath("user_corvimo_path");
    const std::string old_folder = NativePath(old_root);
    const std::string old_data = NativePath(old_root + QLatin1String("/data"));
    const std::string new_folder = NativePath(new_root);
    const std::string new_data = NativePath(new_root + QLatin1String("/data"));

    if (!IsFileExist(new_folder, true) && FSMKDir(new_folder, true) < 0) {
        LOG_MSG(ERROR, "Failed to create Corvimo folder");
        return;
    }
    _FILE_INFO_tag old;
    const bool is_known = GetFileInfo(old_folder, old) == 0;
    if (is_known && (!old.exists || IsReachedThroughLink(old_folder, old))) {
        return;  // What lies behind a symbolic link may be used by others, too.
    }
    if (!is_known || (old.type == FILE_TYPE_DIR && !MoveData(old_data, new_data))) {
        LOG_MSG(ERROR, "Failed to move data to Corvimo folder");
        return;  // Removing the old folder now would destroy the data that is still in it.
    }
    if (FSRemove(old_folder, false) < 0) {
        LOG_MSG(ERROR, "Failed to remove old .Lumaport folder");
    }
}

void Service::RemoveAgedFolders() {
    const std::string path =
        (RegisteredPath("user_lumaport_path") + QLatin1String("/app")).toStdString();
    LOG_MSG(INFO, "removing aged app folder %s", path.c_str());
    // What cannot be removed is tried again on the next start.
    static_cast<void>(FSRemove(path, false));
}

int Service::FSCopyPath(const std::string& src, const std::string& dst) {
    LOG_MSG(DEBUG, "copy from '%s' to '%s'", src.c_str(), dst.c_str());
    _FILE_INFO_tag info;
    if (FSStat(src, info, false) < 0) {
        LOG_MSG(ERROR, "FSCopyPath: failed to stat source '%s'", src.c_str());
        return -1;
    }
    if (!info.exists) {
        LOG_MSG(ERROR, "FSCopyPath: source path '%s' does not exist", src.c_str());
        return -1;
    }
    if (info.type == FILE_TYPE_DIR) {
        return CopyFolder(src, dst);
    }
    if (FSCopy(src, dst, false, false) < 0) {
        LOG_MSG(ERROR, "FSCopyPath: failed to copy from '%s' to '%s'", src.c_str(), dst.c_str());
        return -1;
    }
    return 0;
}

int Service::CopyFolder(const std::string& src, const std::string& dst) {
    if (FSMKDir(dst, true) < 0) {
        LOG_MSG(ERROR, "FSCopyPath: failed to create dest folder '%s'", dst.c_str());
        return -1;
    }
    std::vector<DIR_ENTRY> entries;
    if (!ReadEntries(src, entries)) {
        LOG_MSG(WARNING, "FSCopyPath: failed to create handle  for src '%s' failed", src.c_str());
        return 0;
    }
    for (const DIR_ENTRY& entry : entries) {
        const std::string from = src + "/" + entry.name;
        const std::string to = dst + "/" + entry.name;
        const int result =
            entry.type == FILE_TYPE_DIR ? FSCopyPath(from, to) : FSCopy(from, to, false, false);
        if (result < 0) {
            LOG_MSG(ERROR, "FSCopyPath: failed to copy from '%s' to '%s'", from.c_str(),
                    to.c_str());
            return -1;
        }
    }
    return 0;
}

QString Service::RegisteredPath(const char* key) {
    return UIPathManager::getInstance()->getPath(QLatin1String(key));
}

QString Service::GetUserInstallPath() {
    return QDir::homePath();
}

PackageInfo::PackageInfo() {
    const QString application = QCoreApplication::applicationDirPath();
    images_path = (application + QLatin1String("/images")).toStdString();
    log_path = (QDir::homePath() + QLatin1String("/.Corvimo_log")).toStdString();
    debug_config_path = (application + QLatin1String("/log/launcher.debug")).toStdString();
    package_path = (application + QLatin1String("/package/lumaport.cpk")).toStdString();
    conf_path = (application + QLatin1String("/conf")).toStdString();
}
