// Emulates the calls of macOS that lib/platform/macos makes, checks their arguments, and tests the
// handling of their errors. The tests in tests/lib/platform run on this emulation, too.
#include <CoreServices/CoreServices.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <libproc.h>
#include <poll.h>
#include <sys/event.h>
#include <sys/eventfd.h>
#include <sys/mount.h>
#include <sys/syscall.h>
#include <sys/sysctl.h>

#include <filesystem>
#include <map>

#include "lib/platform/platform.h"
#include "lib/platform/process.h"

namespace {

std::map<std::string, int> errors;  // For the next call of each name.
struct timespec last_limit;         // Of a wait for an event.

int TakeError(const std::string& call) {
    return std::exchange(errors[call], 0);
}

bool Fails(const std::string& call) {
    return (errno = TakeError(call)) != 0;
}

// The object is an open descriptor until its path is asked for.
OSStatus MakeRef(const UInt8* path, int flags, FSRef* ref, const UInt8* folder) {
    EXPECT_EQ(nullptr, folder);
    ref->fd = open(reinterpret_cast<const char*>(path), O_PATH | O_CLOEXEC | flags);
    return ref->fd < 0 ? -43 : TakeError("MakeRef");
}

}  // namespace

OSStatus FSPathMakeRef(const UInt8* path, FSRef* ref, UInt8* folder) {
    return MakeRef(path, 0, ref, folder);
}

OSStatus FSPathMakeRefWithOptions(const UInt8* path, UInt32 options, FSRef* ref, UInt8* folder) {
    EXPECT_EQ(kFSPathMakeRefDoNotFollowLeafSymlink, options);
    return MakeRef(path, O_NOFOLLOW, ref, folder);
}

OSStatus FSRefMakePath(const FSRef* ref, UInt8* path, UInt32 size) {
    EXPECT_EQ(4096U, size);
    EXPECT_EQ(std::string(size, 0), std::string(path, path + size));
    const UniqueFd object(ref->fd);
    const std::string link = "/proc/self/fd/" + std::to_string(ref->fd);
    const bool is_read = readlink(link.c_str(), reinterpret_cast<char*>(path), size) > 0;
    return is_read ? TakeError("MakePath") : -2110;
}

int statfs(const char* path, struct statfs* status) {
    *status = {"other"};
    return Fails("statfs") ? -1 : access(path, F_OK);
}

int fcntl(int fd, int command, ...) {
    EXPECT_EQ(F_FULLFSYNC, command);
    return Fails("fcntl") ? -1 : static_cast<int>(syscall(SYS_fsync, fd));
}

int fsync(int fd) {
    return Fails("fsync") ? -1 : static_cast<int>(syscall(SYS_fsync, fd));
}

char* setlocale(int category, const char* name) noexcept {
    static const auto real = reinterpret_cast<decltype(&setlocale)>(dlsym(RTLD_NEXT, "setlocale"));
    return real(category, name != nullptr && name == std::string("UTF-8") ? "C.UTF-8" : name);
}

int sysctl(int* name, unsigned length, void* value, std::size_t* size, void* change, std::size_t) {
    EXPECT_EQ(std::tuple(CTL_KERN, KERN_PROC, KERN_PROC_PID),
              std::tuple(name[0], name[1], name[2]));
    EXPECT_EQ(std::tuple(4U, sizeof(kinfo_proc), nullptr), std::tuple(length, *size, change));
    static_cast<kinfo_proc*>(value)->kp_proc.p_starttime = {1000, 250000};
    *size *= std::filesystem::exists("/proc/" + std::to_string(name[3])) ? 1 : 0;
    return Fails("sysctl") ? -1 : 0;
}

int proc_pidpath(int pid, void* path, uint32_t size) {
    EXPECT_EQ(4096U, size);
    const std::string link = "/proc/" + std::to_string(pid) + "/exe";
    const ssize_t length = readlink(link.c_str(), static_cast<char*>(path), size);
    return length < 0 ? 0 : static_cast<int>(length);
}

int kqueue() {
    return Fails("kqueue") ? -1 : eventfd(0, EFD_CLOEXEC);
}

// A process that is added takes the place of the queue, until its end has been told.
int kevent(int queue, const struct kevent* changes, int change_count, struct kevent* events,
           int event_count, const struct timespec* timeout) {
    EXPECT_EQ(std::pair(changes != nullptr, events != nullptr),
              std::pair(change_count == 1, event_count == 1));
    if (changes != nullptr) {
        EXPECT_EQ(std::tuple(EVFILT_PROC, EV_ADD, NOTE_EXIT),
                  std::tuple(changes->filter, changes->flags, changes->fflags));
        const UniqueFd process(static_cast<int>(syscall(SYS_pidfd_open, changes->ident, 0)));
        return dup2(process.Get(), queue) < 0 ? -1 : 0;
    }
    last_limit = *timeout;
    struct pollfd request = {queue, POLLIN, 0};
    const int count = Fails("kevent") ? -1 : ppoll(&request, 1, timeout, nullptr);
    return count == 1 && dup2(UniqueFd(kqueue()).Get(), queue) < 0 ? -1 : count;
}

TEST(MacosStoredPath, GivesTheStatusOfTheFailedCall) {
    for (const char* const call : {"MakeRef", "MakePath"}) {
        errors = {{call, -5000}};
        std::string stored = "/proc";
        EXPECT_EQ(-5000, PlatformStoredPath("/", false, stored)) << call;
        EXPECT_EQ("/proc", stored);
    }
}

TEST(MacosFlushFile, AsksForLessOnlyWhereTheFullFlushIsRefused) {
    // clang-format off
    const int rows[][3] = {
        {0, EROFS, 0}, {EINTR, EROFS, 0}, {ENOTSUP, EINTR, 0}, {ENOTTY, EROFS, EROFS}, {EIO, 0, EIO}};
    // clang-format on
    const UniqueFd folder(open("/tmp", O_RDONLY | O_CLOEXEC));
    for (const auto& [full_error, plain_error, error] : rows) {
        errors = {{"fcntl", full_error}, {"fsync", plain_error}};
        EXPECT_EQ(error == 0 ? 0 : -1, PlatformFlushFile(folder.Get()));
        EXPECT_EQ(error, errno);
    }
}

TEST(MacosProcess, IsInspectedAndWatchedInTheUnitsOfTheSystem) {
    const std::chrono::milliseconds time(1000250);
    EXPECT_EQ(std::chrono::system_clock::time_point(time),
              PlatformInspectProcess(getpid()).start_time);
    errors = {{"sysctl", EPERM}, {"kqueue", EMFILE}, {"statfs", EINTR}};
    EXPECT_FALSE(PlatformInspectProcess(getpid()).start_time.has_value());
    EXPECT_FALSE(ProcessWatch(getpid()).IsWatching());
    std::string type;
    EXPECT_EQ(0, PlatformFileSystemType("/", type));
    EXPECT_EQ("other", type);
    const pid_t tool = PlatformStartTool("/bin/true", {}, false);
    EXPECT_TRUE(ProcessWatch(tool).WaitForEnd(time));
    EXPECT_EQ(0, PlatformWaitForTool(tool));
    EXPECT_EQ(std::pair(1000L, 250000000L), std::pair(last_limit.tv_sec, last_limit.tv_nsec));
    errors = {{"kevent", ENOMEM}};
    ProcessWatch failed(getpid());
    EXPECT_FALSE(failed.WaitForEnd(time));
    EXPECT_FALSE(failed.IsWatching());
    EXPECT_EQ("/usr/bin/open", PlatformToolPath("/usr/bin/open"));
    EXPECT_EQ(72, PlatformDesignDpi());
}
