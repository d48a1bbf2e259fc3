// The installation service with the steps that are specific to macOS.
#pragma once

#include <QString>

#include "cloud-service.h"

/// Decides whether to install, stops the running client, installs, and starts the client.
class MacService : public Service {
public:
    /// Needs a filled path registry.
    MacService();

    /// Returns the instance of the process, which is made on first use. The caller does not own it.
    /// The launcher does not use it: the worker makes an instance of its own.
    static MacService* GetInstace();

    /// Stops the client whose pid file lies in the per-user folder; see `StopServiceByPath`.
    void StopService() override;

    /// Stops the running client and installs the package. If the client is not installed yet, also
    /// stops the older product's client and moves the older product's data. Returns the result of
    /// `PrepareUserEnv`.
    int HandlePackageUpgrade() override;

    void PostUpgrade() override;
    void PreUpgrade() override;

    /// Returns true if the package has the greater build number, or if the per-user client's
    /// executable is missing. A build that does not begin with a number counts as 0.
    bool IsNeedUpgrade() override;

    /// Stops the client whose pid file `ui.pid` lies in the folder: sends SIGTERM, waits at most 15
    /// seconds until the process is gone, then sends SIGKILL and does not wait for that. Returns as
    /// soon as the process is gone.
    ///
    /// Only reads the pid file. Sends no signal when its process id is missing, 0 or negative, when
    /// it is the launcher's own, or when that process cannot have written the file. The latter is
    /// so when the process was started more than two seconds after the file was last changed, and
    /// its executable lies outside the folder.
    void StopServiceByPath(const QString& folder);

    /// Returns whether the per-user client's executable exists.
    bool PerUserBinPathExist();

    /// Unregisters the per-user bundle and waits for that; then opens it as a new instance, without
    /// waiting. Returns 0, or -1 if the tool that opens it could not be started.
    int LaunchPerUserBin();

    /// Call `LoadSourceVersion` and `LoadTargetVersion` of `Service`.
    void LoadSourceVerInfo();
    void LoadTargetVerInfo();
};
