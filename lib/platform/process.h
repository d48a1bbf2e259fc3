// Starts tools, and inspects and watches other processes.
//
// No function throws or logs, and any thread may call any function.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "lib/platform/unique_fd.h"

/// Starts a program and does not wait for it. `arguments` do not include the program's own name.
///
/// The program inherits the environment. Its standard input is empty, if this process can read
/// /dev/null. All signals have their default handling. With `in_own_session` the program does not
/// end together with the session of this process. Returns the process id, which may be passed to
/// PlatformWaitForTool once. Returns -1 if the program could not be started.
pid_t PlatformStartTool(const std::string& tool, const std::vector<std::string>& arguments,
                        bool in_own_session);

/// Waits without a time limit until a started program has ended. Returns its exit status, or -1 if
/// a signal has ended it or the waiting fails.
int PlatformWaitForTool(pid_t tool);

/// Describes a process.
struct PlatformProcess {
    /// The time of its start; empty if unknown. If the clock is set later, this time changes with
    /// the clock on Linux, but not on macOS.
    std::optional<std::chrono::system_clock::time_point> start_time;
    /// The stored path of its executable file; empty if unknown. For a script, this is the
    /// interpreter's path. After the file's removal, the path may have a suffix.
    std::string executable;
};

/// Inspects a process. A field is left unknown if the process does not exist, or if this user may
/// not read it.
PlatformProcess PlatformInspectProcess(pid_t pid);

/// Notices the end of a process, also if another process gets the same process id afterwards.
class ProcessWatch {
public:
    /// Begins to watch the process that has this id now.
    explicit ProcessWatch(pid_t pid);

    /// Returns false if the process did not exist, if the system could not watch it, or if a wait
    /// failed.
    bool IsWatching() const { return fd_.IsOpen(); }

    /// Waits until the process has ended, at most for `limit`. Returns whether it has ended; it may
    /// still be a zombie. Returns false at once if no process is watched.
    bool WaitForEnd(std::chrono::milliseconds limit);

    /// Returns whether the watched process has ended.
    bool HasEnded() { return WaitForEnd(std::chrono::milliseconds(0)); }

private:
    /// Waits once. Returns 1 if the process has ended, 0 at the limit, or -1 with errno set.
    int AwaitEvent(std::chrono::milliseconds limit) const;

    UniqueFd fd_;
    bool has_ended_ = false;  // Some systems report the end only once.
};
