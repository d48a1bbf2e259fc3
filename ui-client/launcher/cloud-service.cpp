#include "cloud-service.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <array>
#include <cstdio>
#include <vector>

#include "UIPathManager.h"
#include "extractor.h"
#include "lib/file/file-op.h"
#include "lib/log.h"

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

void LoadValue(const QSettings& info, const char* key, std::string& field) {
    const QString name = QLatin1String(key);
    if (info.contains(name)) {
        field = info.value(name).toString().toStdString();
    }
}

void LoadVersion(const QString& path, const char* side, const VersionFields& fields) {
    QSettings info(path, QSettings::IniFormat);
    info.beginGroup(QStringLiteral("Version"));
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

// Whether there is an old bundle to keep. A no is asked again: were one that cannot be inspected just
// then taken for missing, the package would be unpacked over it.
bool HasOldApp(const std::string& app) {
    return IsFileExist(app, false) || IsFileExist(app, false);
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

void RemoveBackups(const std::string& app, int last_index) {
    LOG_MSG(INFO, "user installation is ready, removing backup app");
    for (int index = 0; index <= last_index; ++index) {
        // One that stays is tried again by the next upgrade that finds its name taken.
        static_cast<void>(FSRemove(GetAppBackupDir(app, index), false));
    }
}

void RollBack(const std::string& app, const std::string& backup) {
    LOG_MSG(ERROR, "Failed to extract package, rollback to old installation");
    // Nothing is left to try when either fails: the old bundle is whole under the backup's name.
    static_cast<void>(FSRemove(app, false));
    static_cast<void>(FSRename(backup, app, false));
}

// Whether there certainly is no such object, as opposed to one that is spelled otherwise or that
// cannot be inspected.
bool IsSurelyMissing(const std::string& path) {
    _FILE_INFO_tag info;
    return GetFileInfo(path, info) == 0 && !info.exists;
}

// Moves the older product's data. False when data is left behind.
bool MoveData(const std::string& old_data, const std::string& new_data) {
    if (IsFileExist(old_data, true)) {
        return FSRename(old_data, new_data, true) >= 0;
    }
    return IsSurelyMissing(old_data);
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
    if (!MoveData(old_data, new_data)) {
        LOG_MSG(ERROR, "Failed to move data to Corvimo folder");
        return;  // Removing the old folder now would destroy the data that is still in it.
    }
    if (IsFileExist(old_folder, true) && FSRemove(old_folder, false) < 0) {
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
