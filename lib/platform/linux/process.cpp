#include "lib/platform/process.h"

#include <poll.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

#include "lib/platform/linux/proc_link.h"
#include "lib/platform/open_file.h"
#include "lib/platform/retry.h"

namespace {

using std::chrono::nanoseconds;
using std::chrono::system_clock;

// The place of the start time among the fields of /proc/PID/stat that follow the program's name.
constexpr int kStartTimeField = 20;

std::string ProcPath(pid_t pid, const char* name) {
    return "/proc/" + std::to_string(pid) + "/" + name;
}

// The beginning of a file of /proc; empty when it cannot be read.
std::string ReadProcFile(const std::string& path) {
    const UniqueFd file = PlatformOpenFile(path, O_RDONLY);
    std::array<char, 1024> text;  // The fields up to the start time are shorter.
    const ssize_t length =
        RetryInterrupted([&] { return read(file.Get(), text.data(), text.size()); });
    return std::string(text.data(), static_cast<std::size_t>(length < 0 ? 0 : length));
}

// Nanoseconds from the start of the system to that of the process, or nothing.
std::optional<nanoseconds> StartAfterBoot(pid_t pid) {
    const std::string text = ReadProcFile(ProcPath(pid, "stat"));
    // The program's name stands in parentheses and may itself hold some, and blanks.
    std::size_t at = text.rfind(')');
    for (int field = 0; field < kStartTimeField && at != std::string::npos; ++field) {
        at = text.find(' ', at + 1);
    }
    const long ticks_per_second = sysconf(_SC_CLK_TCK);
    if (at == std::string::npos || ticks_per_second <= 0) {
        return std::nullopt;
    }
    const long long ticks = std::strtoll(text.c_str() + at, nullptr, 10);
    return nanoseconds(ticks * (nanoseconds(std::chrono::seconds(1)).count() / ticks_per_second));
}

// How long ago the system was started.
std::optional<nanoseconds> TimeSinceBoot() {
    struct timespec time;
    if (clock_gettime(CLOCK_BOOTTIME, &time) != 0) {
        return std::nullopt;
    }
    return std::chrono::seconds(time.tv_sec) + nanoseconds(time.tv_nsec);
}

}  // namespace

PlatformProcess PlatformInspectProcess(pid_t pid) {
    PlatformProcess process;
    const auto start = StartAfterBoot(pid);
    const auto since_boot = TimeSinceBoot();
    if (start.has_value() && since_boot.has_value()) {
        process.start_time =
            system_clock::now() -
            std::chrono::duration_cast<system_clock::duration>(*since_boot - *start);
    }
    // A link that cannot be read leaves the executable unknown.
    static_cast<void>(ReadProcLink(ProcPath(pid, "exe").c_str(), process.executable));
    return process;
}

// The C library has a function for it only since 2.36.
ProcessWatch::ProcessWatch(pid_t pid) : fd_(static_cast<int>(syscall(SYS_pidfd_open, pid, 0))) {}

int ProcessWatch::AwaitEvent(std::chrono::milliseconds limit) const {
    struct pollfd request = {fd_.Get(), POLLIN, 0};
    return poll(&request, 1, static_cast<int>(limit.count()));
}
