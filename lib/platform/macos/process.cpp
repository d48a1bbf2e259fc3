#include "lib/platform/process.h"

#include <libproc.h>
#include <sys/event.h>
#include <sys/sysctl.h>
#include <sys/time.h>

#include <array>
#include <utility>

namespace {

using std::chrono::milliseconds;
using std::chrono::system_clock;

// Returns a queue whose only event is the end of the process, or an invalid descriptor on failure.
UniqueFd WatchEnd(pid_t pid) {
    UniqueFd queue(kqueue());
    struct kevent change = {};
    EV_SET(&change, static_cast<uintptr_t>(pid), EVFILT_PROC, EV_ADD, NOTE_EXIT, 0, nullptr);
    const bool is_watching =
        queue.IsOpen() && kevent(queue.Get(), &change, 1, nullptr, 0, nullptr) == 0;
    return is_watching ? std::move(queue) : UniqueFd();
}

}  // namespace

PlatformProcess PlatformInspectProcess(pid_t pid) {
    PlatformProcess process;
    std::array<int, 4> name = {CTL_KERN, KERN_PROC, KERN_PROC_PID, pid};
    struct kinfo_proc info = {};
    std::size_t size = sizeof(info);
    // If the process does not exist, sysctl succeeds and sets the size to 0.
    if (sysctl(name.data(), name.size(), &info, &size, nullptr, 0) == 0 && size == sizeof(info)) {
        const struct timeval& start = info.kp_proc.p_starttime;
        process.start_time = system_clock::time_point(std::chrono::seconds(start.tv_sec) +
                                                      std::chrono::microseconds(start.tv_usec));
    }
    std::array<char, PROC_PIDPATHINFO_MAXSIZE> path;
    const int length = proc_pidpath(pid, path.data(), static_cast<uint32_t>(path.size()));
    if (length > 0) {
        process.executable.assign(path.data(), static_cast<std::size_t>(length));
    }
    return process;
}

ProcessWatch::ProcessWatch(pid_t pid) : fd_(WatchEnd(pid)) {}

int ProcessWatch::AwaitEvent(milliseconds limit) const {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(limit);
    const std::chrono::nanoseconds rest = limit - seconds;
    const struct timespec timeout = {static_cast<time_t>(seconds.count()),
                                     static_cast<long>(rest.count())};
    struct kevent event = {};
    return kevent(fd_.Get(), nullptr, 0, &event, 1, &timeout);
}
