// The whole program on a stage of its own: a copy of the bundle, a package, a home folder, real clients.
#pragma once

#include <sys/types.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "tests/support/archive_builder.h"
#include "tests/support/captured_log.h"
#include "tests/support/temp_dir.h"

/// One person's machine. Ends every client that was started on it.
///
/// The client is a script that keeps its pid file, notes each start with its build number, and ends on
/// SIGTERM. The bundle logs everything.
class Scene {
public:
    /// `home_name` is the name of the home folder; `home_link`, where given, a link by which the
    /// launcher is told of it.
    explicit Scene(const std::string& home_name = "home", const std::string& home_link = "");
    ~Scene();
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    /// The path of a name in the home folder.
    std::string operator/(const std::string& name) const { return home_ + "/" + name; }

    /// The path of a name in the launcher's bundle.
    std::string Bundle(const std::string& name) const { return bundle_ + "/Contents/" + name; }
    std::string Package() const { return Bundle("Resources/package/lumaport.cpk"); }

    /// Puts a client of the build into the launcher's package, with what `add` adds to it before the
    /// INFO, which comes last.
    void CarryClient(const std::string& build,
                     const std::function<void(ArchiveBuilder&)>& add = nullptr) const;

    /// Installs a client of the build in the home folder, as an earlier run has left it.
    void InstallClient(const std::string& build) const;

    /// Starts an executable as a client whose pid file is in `folder`, and gives its process id once it
    /// has written that file.
    pid_t StartClient(const std::string& executable, const std::string& folder);

    /// Runs the launcher to its end and gives its exit status; -1 when it crashed. Everything that ends
    /// meanwhile is reaped, as the system's first process does it.
    int Run();

    /// The two halves of `Run`, for launchers that run side by side.
    pid_t Start();
    int WaitFor(pid_t launcher);

    /// The builds of the clients that were started, once there are `count` of them or much time has
    /// passed.
    std::vector<std::string> StartedBuilds(std::size_t count) const;

    /// Whether the log holds a record of exactly this level, source and message.
    bool Logged(const std::string& record) const;

    Records Log() const;

    /// Set before a run: what its environment adds, and whether it runs without the rights of root.
    std::map<std::string, std::string> environment;
    bool as_ordinary_user = false;

private:
    pid_t Spawn(const std::string& program) const;

    TempDir folder_;
    std::string home_;
    std::string told_home_;
    std::string bundle_;
};
