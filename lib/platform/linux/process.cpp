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

// The number of the start time among the fields of /proc/PID/stat after the program's name.
constexpr int kStartTimeField = 20;

std::string ProcPath(pid_t pid, const char* name) {
    return "/proc/" + std::to_string(pid) + "/" + name;
}

// Returns the first 1024 bytes of a file in /proc, or an empty text if it cannot be read.
std::string ReadProcFile(const std::string& path) {
    const UniqueFd file = PlatformOpenFile(path, O_RDONLY);
    std::array<char, 1024> text;  // Enough for the fields up to the start time.
    const ssize_t length =
        RetryInterrupted([&] { return read(file.Get(), text.data(), text.size()); });
    return std::string(text.data(), static_cast<std::size_t>(length < 0 ? 0 : length));
}

// Returns the time from the start of the system to the start of the process.
std::optional<nanoseconds> StartAfterBoot(pid_t pid) {
    const std::string text = ReadProcFile(ProcPath(pid, "stat"));
    // The program's name is in parentheses, and may itself contain parentheses and blanks.
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

// Returns the time since the start of the system.
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
    // Ignored because the executable is unknown then.
    static_cast<void>(ReadProcLink(ProcPath(pid, "exe").c_str(), process.executable));
    return process;
}

// A system call, because glibc has a function for it only since 2.36.
ProcessWatch::ProcessWatch(pid_t pid) : fd_(static_cast<int>(syscall(SYS_pidfd_open, pid, 0))) {}

int ProcessWatch::AwaitEvent(std::chrono::milliseconds limit) const {
    struct pollfd request = {fd_.Get(), POLLIN, 0};
    return poll(&request, 1, static_cast<int>(limit.count()));
}
