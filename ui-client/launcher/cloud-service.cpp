#include "cloud-service.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <array>
#include <cerrno>
#include <cstdio>
#include <optional>
#include <vector>

#include "client_backups.h"
#include "client_bundle.h"
#include "extractor.h"
#include "lib/file/file-op.h"
#include "lib/log.h"
#include "registered_path.h"
#include "version_file.h"

#define LOG_SOURCE "cloud-service"

namespace {

const std::string kLogComponent = "service_debug";

// Leftovers of earlier runs may take some of the names, so there are several.
constexpr int kBackupNames = 10;

std::string NativePath(const QString& path) {
    return QDir::toNativeSeparators(path).toStdString();
}

// The version fields of one side.
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

// Returns the paths of the per-user bundle and of its backups.
ClientPaths PathsOfClient(const std::string& app) {
    const auto prefix = RegisteredPath("user_corvimo_app_path").size();
    const QString executable = RegisteredPath("user_corvimo_ui_path").mid(prefix);
    const QString resources = RegisteredPath("user_corvimo_resource_path").mid(prefix);
    ClientPaths paths;
    paths.app = app;
    for (int index = 0; index < kBackupNames; ++index) {
        paths.backups.push_back(GetAppBackupDir(app, index));
    }
    paths.parts = {executable.toStdString(), (resources + QLatin1String("/INFO")).toStdString()};
    return paths;
}

// Returns whether there is an old bundle to back up. A bundle that cannot be inspected counts as
// one: otherwise the package would be unpacked over it.
bool HasOldApp(const std::string& app) {
    constexpr int kAttempts = 2;  // The system may refuse one inspection for want of memory.
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        if (IsSurelyMissing(app)) {
            return false;
        }
    }
    return true;
}

// Renames the bundle to the first backup name that is free. Returns the index of that name, or
// nothing if no renaming succeeded.
std::optional<std::size_t> BackUp(const ClientPaths& paths) {
    const std::string& app = paths.app;
    for (std::size_t index = 0; index < paths.backups.size(); ++index) {
        const std::string& backup = paths.backups[index];
        if (FSRename(app, backup, false) == 0) {
            return index;
        }
        LOG_MSG(ERROR, "failed to backup app from '%s' -> '%s'", app.c_str(), backup.c_str());
    }
    LOG_MSG(ERROR, "failed to backup app from '%s' -> '%s' at max retries, exiting", app.c_str(),
            paths.backups.back().c_str());
    return std::nullopt;
}

void RemoveBackups(const ClientPaths& paths, std::size_t last_index) {
    LOG_MSG(INFO, "user installation is ready, removing backup app");
    for (std::size_t index = 0; index <= last_index; ++index) {
        // The next installation removes a backup that stays.
        static_cast<void>(RemoveBundle(paths.backups[index], paths.parts));
    }
}

void RollBack(const ClientPaths& paths, const std::string& backup) {
    LOG_MSG(ERROR, "Failed to extract package, rollback to old installation");
    // If either step fails, the old bundle stays unchanged under its backup name, and
    // EnsureWholeClient tries again.
    static_cast<void>(FreeAppPath(paths));
    static_cast<void>(FSRename(backup, paths.app, false));
}

// Renames the best backup to the path of a bundle that is not whole. Returns whether that
// succeeded.
bool PutBackBestBackup(const ClientPaths& paths) {
    const std::vector<Backup> backups = InspectBackups(paths);
    const Backup* const best = FindBestBackup(backups);
    if (best == nullptr) {
        return false;
    }
    static_cast<void>(FreeAppPath(paths));  // If this fails, the renaming fails as well.
    if (FSRename(best->path, paths.app, false) != 0) {
        LOG_MSG(ERROR, "failed to put back client from '%s' -> '%s'", best->path.c_str(),
                paths.app.c_str());
        return false;
    }
    LOG_MSG(NOTE, "client was not whole, put back build %s from '%s'",
            std::to_string(best->bundle.build).c_str(), best->path.c_str());
    RemoveIncompleteBackups(backups, paths.parts);
    return true;
}

bool IsDotOrDotDot(const std::string& name) {
    return name == "." || name == "..";
}

// Appends the entries of a folder without "." and "..". Returns false if the folder cannot be
// opened.
//
// FSCopyPath gets all entries before it copies the first one. So only one folder is open at a time,
// however deep the tree is.
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

// Returns the path of an empty folder, which exists while a move of the older product's data is
// unfinished. Without that folder, the new data folder belongs to the client.
std::string UnfinishedMoveMark() {
    return NativePath(RegisteredPath("user_lumaport_path") +
                      QLatin1String("/.corvimo_moving_data"));
}

// Returns whether data may move to a path, because nothing or an empty folder is there. Removes the
// empty folder if it can.
//
// rmdir is the safe test, because it fails if the folder is not empty. A listing is not as safe:
// FSReadDir does not tell a read error from the end of the listing. It is used only for the root of
// a volume, which rmdir cannot remove (EBUSY).
bool IsFree(const std::string& path) {
    std::vector<DIR_ENTRY> entries;
    return IsSurelyMissing(path) || rmdir(path.c_str()) == 0 ||
           (errno == EBUSY && ReadEntries(path, entries) && entries.empty());
}

// Returns whether a path is a symbolic link or leads through one. The second comparison accepts a
// path that differs from the stored one only in composed and decomposed characters.
bool IsReachedThroughLink(const std::string& path, const _FILE_INFO_tag& info) {
    return info.type == FILE_TYPE_LINK || (info.path != path && !IsFileExist(path, true));
}

// Moves the older product's data. Returns false if data stays in the old folder.
bool MoveData(const std::string& old_data, const std::string& new_data) {
    if (!IsFileExist(old_data, true)) {
        return IsSurelyMissing(old_data);
    }
    const std::string mark = UnfinishedMoveMark();
    if (!IsFree(new_data) && !IsFileExist(mark, true)) {
        return false;
    }
    // Without the mark, an interrupted move to another volume is not resumed. No data is lost.
    static_cast<void>(FSMKDir(mark, false));
    return FSRename(old_data, new_data, true) >= 0;
}

}  // namespace

void Service::SetTimeout(int milliseconds) {
    timeout = milliseconds;
}

int Service::ExtractPackage() {
    const std::string package = RegisteredPathUtf8("root_resource_path") + "/package/lumaport.cpk";
    const std::string destination = RegisteredPathUtf8("user_corvimo_app_path");
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
    const ClientPaths paths = PathsOfClient(user_app_path);
    const bool has_old_app = HasOldApp(paths.app);
    const auto backup_index = has_old_app ? BackUp(paths) : std::optional<std::size_t>(0);
    if (!backup_index.has_value()) {
        return -1;
    }
    if (ExtractPackage() == 0) {
        RemoveBackups(paths, *backup_index);
        return 0;
    }
    if (has_old_app) {
        RollBack(paths, paths.backups[*backup_index]);
    } else {
        LOG_MSG(ERROR, "Failed to extract package, and no old installation to rollback");
    }
    return -1;
}

void Service::EnsureWholeClient() {
    const ClientPaths paths = PathsOfClient(user_app_path);
    const ClientBundle::State state = InspectBundle(paths.app, paths.parts).state;
    if (state == ClientBundle::kWhole ||
        (state != ClientBundle::kUnknown && PutBackBestBackup(paths))) {
        ForgetUnfinishedMove();
    }
}

void Service::RemoveLeftovers() {
    FreeBackupNames(PathsOfClient(user_app_path));
}

void Service::ForgetUnfinishedMove() {
    // The mark rarely exists. If it cannot be removed, the next start tries again.
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
        return;  // Other programs may use the folder that a symbolic link leads to.
    }
    if (!is_known || (old.type == FILE_TYPE_DIR && !MoveData(old_data, new_data))) {
        LOG_MSG(ERROR, "Failed to move data to Corvimo folder");
        return;  // The old folder still holds data, so it must not be removed.
    }
    if (FSRemove(old_folder, false) < 0) {
        LOG_MSG(ERROR, "Failed to remove old .Lumaport folder");
    }
}

void Service::RemoveAgedFolders() {
    const std::string path = RegisteredPathUtf8("user_lumaport_path") + "/app";
    LOG_MSG(INFO, "removing aged app folder %s", path.c_str());
    static_cast<void>(FSRemove(path, false));  // The next start removes what stays.
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
