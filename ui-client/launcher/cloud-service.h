// The service that upgrades the per-user copy of the client to the version that the launcher
// carries.
//
// The service compares two sides. The *source* is the installed per-user copy, and the *target* is
// the package in the launcher's own resources. All paths come from the path registry
// (UIPathManager), which must be filled before a service is constructed. Paths are UTF-8.
#pragma once

#include <QString>
#include <cstdint>
#include <string>

/// The state of an installation, and the steps that are the same on every system. A derived class
/// supplies the other steps.
///
/// A service may be constructed on any thread, and is then used by one thread at a time. A failure
/// is logged where it happens, on the component service_debug, and reported by the result. Nothing
/// is thrown.
class Service {
public:
    Service() = default;
    virtual ~Service() = default;
    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;

    /// Stops the running client of the per-user copy, if there is one.
    virtual void StopService() = 0;

    /// Sets the field `timeout`, which the launcher does not use.
    virtual void SetTimeout(int milliseconds);

    /// Runs the installation. Returns 0 if the per-user copy is in place, otherwise another value.
    virtual int HandlePackageUpgrade() = 0;

    /// Starts the client of the per-user copy.
    virtual void PostUpgrade() = 0;

    /// Loads and logs both versions. Must be called before `IsNeedUpgrade`.
    virtual void PreUpgrade() = 0;

    /// Returns whether the package must be installed.
    virtual bool IsNeedUpgrade() = 0;

    /// Unpacks the package into the per-user bundle, and creates the bundle's folder if it is
    /// missing. Returns 0, or -1 if something failed. The entries before the failure stay in the
    /// bundle.
    virtual int ExtractPackage();

    /// Fill the version fields of one side from its INFO file. A field keeps its value if the file
    /// does not have its key, is missing or cannot be read.
    virtual void LoadSourceVersion();
    virtual void LoadTargetVersion();

    /// Replaces a per-user bundle that is not whole by the best whole backup. A bundle is whole if
    /// it has an executable file, and an INFO with a whole number as its build. The best backup is
    /// the one with the greatest build.
    ///
    /// Does nothing if the bundle cannot be inspected. If no backup is whole, everything stays as
    /// it is. Otherwise the incomplete backups are removed after the replacement. No whole bundle
    /// is removed before another whole one is in place. Calls `ForgetUnfinishedMove` if the bundle
    /// is whole in the end.
    ///
    /// If this is interrupted or fails, the next call starts again. Must be called first in a run,
    /// and after a failed installation.
    void EnsureWholeClient();

    /// Frees the backup names, and the disk space, that interrupted installations have left taken.
    /// Must be called before an installation.
    ///
    /// Removes whole backups only if the installed client is whole. What cannot be removed is
    /// renamed to a random name.
    void RemoveLeftovers();

    /// Renames the per-user bundle to a backup name and unpacks the package in its place. Then
    /// removes the backup, or puts it back if the package could not be unpacked.
    ///
    /// Returns 0 with the package installed. The backups up to the name that was used are removed
    /// then, as far as possible.
    ///
    /// Returns -1 after a failure, with the old bundle in its place again. What was unpacked is
    /// removed, or renamed to a free backup name or a random name. If the old bundle cannot be put
    /// back, it stays unchanged under its backup name. If there was no old bundle, what was
    /// unpacked stays.
    ///
    /// If the old bundle was whole and this is interrupted, the bundle or a backup is whole. The
    /// next call of `EnsureWholeClient` puts the backup back if the bundle is not whole.
    virtual int PrepareUserEnv();

    /// Moves the data of the older product into the per-user folder, and removes the older
    /// product's folder.
    ///
    /// Moves and removes nothing if the new data folder is not empty, or if the old folder is a
    /// symbolic link or its path leads through one. If the data cannot be moved, nothing else in
    /// the old folder is removed. If a move to another volume stops half-way, the data that has
    /// arrived stays there.
    ///
    /// The next call resumes an interrupted move, unless `ForgetUnfinishedMove` was called
    /// meanwhile.
    virtual void MigrateService();

    /// Ends the right to resume an interrupted move of the older product's data. Must be called
    /// when a client is installed: what is in the new data folder belongs to that client from then
    /// on.
    void ForgetUnfinishedMove();

    /// Removes the application folder of the older product, if there is one.
    void RemoveAgedFolders();

    /// Copies a file, or a folder with everything below it. Does not copy times, owners and modes.
    ///
    /// Returns 0, or -1 at the first object that cannot be copied. What was copied before stays. A
    /// folder that cannot be listed counts as copied, and its copy is empty.
    int FSCopyPath(const std::string& src, const std::string& dst);

    /// Returns the user's home folder, below which the client is installed.
    static QString GetUserInstallPath();

protected:
    int32_t timeout = 0;        ///< Milliseconds.
    std::string user_app_path;  ///< The per-user bundle.

    // The texts of the INFO files as they were read. A field is empty until its key was read.
    std::string target_major_version;
    std::string target_minor_version;
    std::string target_build_version;
    std::string target_icon_overlay_version;
    std::string source_major_version;
    std::string source_minor_version;
    std::string source_build_version;
    std::string source_icon_overlay_version;

private:
    int CopyFolder(const std::string& src, const std::string& dst);
};

/// The paths of an application's folders and files. The installation does not use them.
struct PackageInfo {
    /// Fills all fields from the folder of the executable and the home folder.
    PackageInfo();

    std::string images_path;
    std::string log_path;
    std::string debug_config_path;
    std::string package_path;
    std::string conf_path;
};
