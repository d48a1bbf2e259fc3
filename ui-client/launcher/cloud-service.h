// The service that brings the per-user copy of the client up to the version which the launcher
// carries.
//
// Two sides are compared. The *source* is the installed per-user copy, the *target* the package in
// the launcher's own resources. Every path comes from the path registry (UIPathManager), which must
// be filled before the first call. Paths are UTF-8.
#pragma once

#include <QString>
#include <cstdint>
#include <string>

/// The state and the steps that do not depend on the system. A derived class supplies the others.
///
/// Constructed on any thread, then used from one thread at a time. Failures are logged where they
/// happen, on the component service_debug, and told by results; nothing is thrown.
class Service {
public:
    Service() = default;
    virtual ~Service() = default;
    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;

    /// Ends the running client of the per-user copy, if there is one.
    virtual void StopService() = 0;

    /// Kept for derived classes; nothing reads it.
    virtual void SetTimeout(int milliseconds);

    /// Runs the installation. Returns 0 when the per-user copy is in place, anything else
    /// otherwise.
    virtual int HandlePackageUpgrade() = 0;

    /// Starts the client of the per-user copy.
    virtual void PostUpgrade() = 0;

    /// Loads and logs both versions. To be called before `IsNeedUpgrade`.
    virtual void PreUpgrade() = 0;

    /// Whether the package must be installed.
    virtual bool IsNeedUpgrade() = 0;

    /// Unpacks the package into the per-user bundle, which is created if it is missing. Returns 0,
    /// or -1 with whatever was written left in the bundle.
    virtual int ExtractPackage();

    /// Fill the version fields of one side from its INFO file. A key that the file does not have
    /// leaves its field as it was; so does a file that is missing or cannot be read.
    virtual void LoadSourceVersion();
    virtual void LoadTargetVersion();

    /// Puts the best whole backup in the place of the per-user bundle when the bundle is not whole:
    /// it is missing, it has no executable file, or no INFO that names a whole number as its build.
    ///
    /// The best backup is the one with the greatest build. Backups that are not whole are removed
    /// afterwards. Nothing whole is removed before another whole bundle is in its place; killed or
    /// failing half-way, the next call begins anew. Without a whole backup everything stays as it is.
    /// To be called first in a run, and after an installation that has failed.
    void EnsureWholeClient();

    /// Removes what interruptions have left under the backup names, so that it takes neither the names
    /// nor the room that an installation needs. Whole backups go only when the installed client is
    /// whole. What cannot be removed gets a random name. To be called before an installation.
    void RemoveLeftovers();

    /// Moves the per-user bundle aside, unpacks the package in its place, and then removes the copy
    /// that was moved aside, or moves it back when the package could not be unpacked.
    ///
    /// Returns 0 with the package installed and the backups up to the name that was used removed, as
    /// far as they could be; or -1 with the old bundle in its place again (where moving it back
    /// fails, it is whole under a backup name). Without an old bundle a failure leaves what was
    /// unpacked. What was unpacked and cannot be removed goes to a free backup name. Killed
    /// half-way, it leaves the old bundle under a backup name, and `EnsureWholeClient` puts it back.
    virtual int PrepareUserEnv();

    /// Moves the data of the older product into the per-user folder and removes the older product's
    /// folder.
    ///
    /// Where the new data folder already holds something, nothing is moved and nothing removed. When
    /// the data cannot be moved, nothing in the old folder is removed; a move to another volume that
    /// stops half-way leaves there what had arrived. A move that was interrupted is resumed by the
    /// next call, unless `ForgetUnfinishedMove` was called meanwhile. An old folder that is a symbolic
    /// link or is reached through one is left alone.
    virtual void MigrateService();

    /// Lets nothing of the older product's data move any more into the new data folder when that holds
    /// something. To be called once a client is installed, because the folder is the client's then.
    void ForgetUnfinishedMove();

    /// Removes the application folder of the older product, if there is one.
    void RemoveAgedFolders();

    /// Copies a file, or a folder with everything below it; times, owners and modes are not copied.
    ///
    /// Returns 0, or -1 at the first object that cannot be copied, with what was copied before left
    /// in place. A folder that cannot be listed counts as copied, and its copy is empty.
    int FSCopyPath(const std::string& src, const std::string& dst);

    /// The folder below which everything of the user's is installed: the home folder.
    static QString GetUserInstallPath();

    /// What the path registry holds under a key.
    static QString RegisteredPath(const char* key);

protected:
    int32_t timeout = 0;        ///< Milliseconds.
    std::string user_app_path;  ///< The per-user bundle.

    // The texts of the INFO files as they were read; empty while unknown.
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

/// Where an application keeps its parts beside its executable. The installation does not use it.
struct PackageInfo {
    PackageInfo();

    std::string images_path;
    std::string log_path;
    std::string debug_config_path;
    std::string package_path;
    std::string conf_path;
};
