// Processes: the tools that this program starts, and processes of others that it inspects and waits
// for.
//
// Nothing here throws or logs, and every function may be called from any thread.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "lib/platform/unique_fd.h"

/// Starts a program with the given arguments, which do not include its own name. Does not wait for it.
///
/// The program has the environment of this process, an empty standard input where the system has one to
/// give, and the default handling of every signal that this process ignores. With `in_own_session` it
/// also outlives the session of this process. Returns its process id, to be passed to
/// PlatformWaitForTool once or never, or -1 when it could not be started.
pid_t PlatformStartTool(const std::string& tool, const std::vector<std::string>& arguments,
                        bool in_own_session);

/// Waits without a limit until a started program has ended. Returns its exit status, or -1 when a signal
/// has ended it or when it cannot be waited for.
int PlatformWaitForTool(pid_t tool);

/// What the system tells about a process.
struct PlatformProcess {
    /// When it was started; none when unknown. A later setting of the clock moves it along on Linux,
    /// and not on macOS.
    std::optional<std::chrono::system_clock::time_point> start_time;
    /// The stored path of the file that it runs; empty when unknown. For a script that is the
    /// interpreter. After the file's removal the path may have a suffix.
    std::string executable;
};

/// Inspects a process. What cannot be found out is left unknown: there is no such process, it belongs to
/// another user, or the system does not tell.
PlatformProcess PlatformInspectProcess(pid_t pid);

/// Tells when a process ends, also when another process takes over its number afterwards.
class ProcessWatch {
public:
    /// Begins to watch the process that has this number now.
    explicit ProcessWatch(pid_t pid);

    /// False when there is no such process, when the system cannot watch one, or after a wait that
    /// failed.
    bool IsWatching() const { return fd_.IsOpen(); }

    /// Waits until the process has ended, at most for `limit`. Returns whether it has ended; it may be
    /// a zombie that its parent has not waited for. Returns false at once when nothing is watched.
    bool WaitForEnd(std::chrono::milliseconds limit);

    /// Whether a watched process has ended.
    bool HasEnded() { return WaitForEnd(std::chrono::milliseconds(0)); }

private:
    /// Waits once. Returns 1 when the process has ended, 0 at the limit, -1 with errno set on failure.
    int AwaitEvent(std::chrono::milliseconds limit) const;

    UniqueFd fd_;
    bool has_ended_ = false;  // Some systems tell it once only.
};
