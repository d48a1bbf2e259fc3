// The installation service on macOS.
#pragma once

#include <QString>

#include "cloud-service.h"

/// Decides whether to install, stops the running client, installs, and starts the client.
class MacService : public Service {
public:
    /// Reads the path registry.
    MacService();

    /// The instance of the process, made on first use. The launcher makes one of its own instead.
    static MacService* GetInstace();

    /// Ends the client whose pid file lies in the per-user folder; see `StopServiceByPath`.
    void StopService() override;

    /// Stops the running client, moves the older product's data over when the client was never
    /// installed, and installs the package. Returns what `PrepareUserEnv` returned.
    int HandlePackageUpgrade() override;

    void PostUpgrade() override;
    void PreUpgrade() override;

    /// True when the package has the greater build number, or when the per-user client's executable
    /// is missing. A build number that is missing or no number counts as 0.
    bool IsNeedUpgrade() override;

    /// Ends the client whose pid file `ui.pid` lies in the folder: asks it with SIGTERM, waits up
    /// to 15 seconds for it to end, then kills it. Returns as soon as it has ended, and in any case
    /// after that, also when the client is still there.
    ///
    /// The pid file is only read. Nothing is signalled when its pid is 0 or below, which would reach
    /// the launcher's own process group, when it is the launcher's own, or when the process cannot
    /// have written the file: it was started more than two seconds
    /// after the file was last changed, and it runs a program
    /// from outside the folder.
    void StopServiceByPath(const QString& folder);

    /// Whether the per-user client's executable exists.
    bool PerUserBinPathExist();

    /// Unregisters the per-user bundle and opens it as a new instance, without waiting for it.
    /// Returns 0, or -1 when the opening program could not be started.
    int LaunchPerUserBin();

    void LoadSourceVerInfo();
    void LoadTargetVerInfo();
};
