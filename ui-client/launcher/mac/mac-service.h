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
    /// to 15 seconds for it to go, then kills it. Returns in any case, also when the client is
    /// still there.
    ///
    /// The pid file is only read. A pid of 0 or below does not name one process: nothing is
    /// signalled then, since the launcher's own process group would be hit.
    void StopServiceByPath(const QString& folder);

    /// Whether the per-user client's executable exists.
    bool PerUserBinPathExist();

    /// Unregisters the per-user bundle and opens it as a new instance, without waiting for it.
    /// Returns 0, or -1 when the opening program could not be started.
    int LaunchPerUserBin();

    void LoadSourceVerInfo();
    void LoadTargetVerInfo();
};
