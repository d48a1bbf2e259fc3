// Preloaded into the launcher by tests: makes one call of one kind fail, or ends the process in its
// place.
//
// Calls count from the first look at the folder ~/.Corvimo on. What comes before is the start of Qt, which
// aborts where its window system plug-in cannot be read and has touched nothing then. Reads and writes
// count for files alone: a pipe and a wake-up of another thread know no errors of a disk.
//
// Its environment sets all of these:
//
//   FAULT_CALL    the kind, as the wrappers below name it; "change" is every call that changes a disk
//   FAULT_NUMBER  the number of that call among its kind; 0 for none
//   FAULT_ERROR   the error that it fails with; 0 sends SIGKILL to the process
//   FAULT_REPORT  a file that gets how many calls of the kind there were, at an orderly end
//
// Nothing that the process starts is touched. A process that takes longer than stopping a client may
// take is ended by SIGALRM.
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr unsigned kLongestRun = 20;  // Seconds: the stop's 15 and a margin.

const char* kind = "";
long number = 0;
int error = 0;
std::atomic<bool> has_begun{false};
std::atomic<long> calls{0};

__attribute__((constructor)) void Begin() {
    kind = std::getenv("FAULT_CALL");
    number = std::atol(std::getenv("FAULT_NUMBER"));
    error = std::atoi(std::getenv("FAULT_ERROR"));
    unsetenv("LD_PRELOAD");
    alarm(kLongestRun);
}

__attribute__((destructor)) void Report() {
    has_begun = false;
    FILE* const file = std::fopen(std::getenv("FAULT_REPORT"), "w");
    if (file != nullptr) {
        std::fprintf(file, "%ld", calls.load());
        std::fclose(file);
    }
}

// Whether this call is the one, with errno set.
bool Strikes(const char* call, bool changes_disk) {
    const bool counts =
        std::strcmp(kind, call) == 0 || (changes_disk && std::strcmp(kind, "change") == 0);
    if (!has_begun || !counts || ++calls != number) {
        return false;
    }
    if (error == 0) {
        kill(getpid(), SIGKILL);
    }
    errno = error;
    return true;
}

bool IsFile(int fd) {
    struct stat status = {};
    return fstat(fd, &status) == 0 && S_ISREG(status.st_mode);
}

// Whether this look at a folder is the first that counts, or comes after it.
bool BeginsAt(const char* folder) {
    const char* const name = std::strrchr(folder, '/');
    has_begun = has_begun || (name != nullptr && std::strcmp(name, "/.Corvimo") == 0);
    return has_begun;
}

}  // namespace

#define NEXT(name)                                         \
    reinterpret_cast<decltype(&name)>([] {                 \
        static void* const next = dlsym(RTLD_NEXT, #name); \
        return next;                                       \
    }())

#define WRAP_WHERE(condition, result, name, call, changes_disk, failure, parameters, arguments) \
    extern "C" result name parameters {                                                         \
        return (condition) && Strikes(call, changes_disk) ? failure : NEXT(name) arguments;     \
    }
#define WRAP(...) WRAP_WHERE(true, __VA_ARGS__)

#define WRAP_OPEN(name)                                                            \
    extern "C" int name(const char* path, int flags, ...) {                        \
        va_list args;                                                              \
        va_start(args, flags);                                                     \
        const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(args, mode_t) : 0;     \
        va_end(args);                                                              \
        const bool changes_disk = (flags & (O_CREAT | O_TRUNC)) != 0;              \
        return Strikes("open", changes_disk) ? -1 : NEXT(name)(path, flags, mode); \
    }

WRAP_OPEN(open)
WRAP_OPEN(open64)
WRAP_WHERE(IsFile(fd), ssize_t, read, "read", false, -1, (int fd, void* data, size_t size),
           (fd, data, size))
WRAP_WHERE(IsFile(fd), ssize_t, write, "write", true, -1, (int fd, const void* data, size_t size),
           (fd, data, size))
WRAP(int, fsync, "fsync", false, -1, (int fd), (fd))
WRAP(int, rename, "rename", true, -1, (const char* from, const char* to), (from, to))
WRAP_WHERE(BeginsAt(path), int, mkdir, "mkdir", true, -1, (const char* path, mode_t mode),
           (path, mode))
WRAP(int, symlink, "symlink", true, -1, (const char* target, const char* path), (target, path))
WRAP(int, unlink, "unlink", true, -1, (const char* path), (path))
WRAP(int, rmdir, "unlink", true, -1, (const char* path), (path))
WRAP(int, remove, "unlink", true, -1, (const char* path), (path))
WRAP(DIR*, opendir, "opendir", false, nullptr, (const char* path), (path))
WRAP(dirent*, readdir, "readdir", false, nullptr, (DIR * stream), (stream))
WRAP(int, lstat, "lstat", false, -1, (const char* path, struct stat* status), (path, status))
WRAP(int, posix_spawn, "fork", false, errno,
     (pid_t * child, const char* path, const posix_spawn_file_actions_t* actions,
      const posix_spawnattr_t* attributes, char* const* argv, char* const* variables),
     (child, path, actions, attributes, argv, variables))
