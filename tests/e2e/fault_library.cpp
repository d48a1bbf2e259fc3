// Tests preload this library into the launcher. It makes calls of one kind fail, or sends a signal
// to the process.
//
// Calls count from the first mkdir of ~/.Corvimo on. Before that, Qt starts: it changes nothing,
// and it aborts when it cannot read its window system plug-in. Reads and writes count only for
// files, because pipes and wake-ups of other threads have no errors of a disk.
//
// All of these environment variables have to be set:
//
//   FAULT_CALL    the kind, as the wrappers below name it; "change" is every call that changes a
//                 disk
//   FAULT_NUMBER  the number of that call among its kind; 0 for none
//   FAULT_ERROR   the error that it fails with; a negative number is a signal that the process
//                 gets before the call
//   FAULT_REPORT  a file to which an orderly end writes how many calls of the kind there were
//
// Two kinds of faults last. "full" is every call that needs room on a disk, and all of them fail
// from that number on. "place" is lstat of the installed bundle, and two in a row fail.
//
// The programs that the process starts are not affected.
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <pthread.h>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace {

enum Effect { kNone, kChange, kGrowth };  // What a call does to a disk.

std::string_view kind;
long number = 0;
int error = 0;
std::atomic<bool> has_begun{false};
std::atomic<long> calls{0};

__attribute__((constructor)) void Begin() {
    kind = std::getenv("FAULT_CALL");
    number = std::atol(std::getenv("FAULT_NUMBER"));
    error = std::atoi(std::getenv("FAULT_ERROR"));
    unsetenv("LD_PRELOAD");
}

__attribute__((destructor)) void Report() {
    has_begun = false;
    FILE* const file = std::fopen(std::getenv("FAULT_REPORT"), "w");
    if (file != nullptr) {
        std::fprintf(file, "%ld", calls.load());
        std::fclose(file);
    }
}

bool Counts(const char* call, Effect effect) {
    return kind == call || (kind == "change" && effect != kNone) ||
           (kind == "full" && effect == kGrowth);
}

// Counts a call. Returns true with errno set if it must fail.
bool Strikes(const char* call, Effect effect) {
    if (!has_begun || !Counts(call, effect)) {
        return false;
    }
    const long count = ++calls;
    const long last = kind == "full" ? LONG_MAX : kind == "place" ? number + 1 : number;
    if (number == 0 || count < number || count > last) {
        return false;
    }
    if (error < 0) {
        kill(getpid(), -error);
        return false;
    }
    errno = error;
    return true;
}

bool IsFile(int fd) {
    struct stat status = {};
    return fstat(fd, &status) == 0 && S_ISREG(status.st_mode);
}

bool IsCalled(const char* path, const char* name) {
    const char* const end = std::strrchr(path, '/');
    return end != nullptr && std::strcmp(end + 1, name) == 0;
}

// Returns whether calls count: from the first mkdir of ~/.Corvimo on.
bool BeginsAt(const char* folder) {
    has_begun = has_begun || IsCalled(folder, ".Corvimo");
    return has_begun;
}

const char* Inspection(const char* path) {
    return kind == "place" && IsCalled(path, "Corvimo.app") ? "place" : "lstat";
}

}  // namespace

#define NEXT(name)                                         \
    reinterpret_cast<decltype(&name)>([] {                 \
        static void* const next = dlsym(RTLD_NEXT, #name); \
        return next;                                       \
    }())

#define WRAP_WHERE(condition, result, name, call, effect, failure, parameters, arguments) \
    extern "C" result name parameters {                                                   \
        return (condition) && Strikes(call, effect) ? failure : NEXT(name) arguments;     \
    }
#define WRAP(...) WRAP_WHERE(true, __VA_ARGS__)

#define WRAP_OPEN(name)                                                             \
    extern "C" int name(const char* path, int flags, ...) {                         \
        va_list args;                                                               \
        va_start(args, flags);                                                      \
        const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(args, mode_t) : 0;      \
        va_end(args);                                                               \
        const Effect effect = (flags & (O_CREAT | O_TRUNC)) != 0 ? kGrowth : kNone; \
        return Strikes("open", effect) ? -1 : NEXT(name)(path, flags, mode);        \
    }

// The removal of a tree opens folders with it.
extern "C" int openat(int folder, const char* path, int flags, ...) {
    return Strikes("opendir", kNone) ? -1 : NEXT(openat)(folder, path, flags);
}

WRAP_OPEN(open)
WRAP_OPEN(open64)
WRAP_WHERE(IsFile(fd), ssize_t, read, "read", kNone, -1, (int fd, void* data, size_t size),
           (fd, data, size))
WRAP_WHERE(IsFile(fd), ssize_t, write, "write", kGrowth, -1,
           (int fd, const void* data, size_t size), (fd, data, size))
WRAP(int, fsync, "fsync", kNone, -1, (int fd), (fd))
WRAP(int, rename, "rename", kChange, -1, (const char* from, const char* to), (from, to))
WRAP_WHERE(BeginsAt(path), int, mkdir, "mkdir", kGrowth, -1, (const char* path, mode_t mode),
           (path, mode))
WRAP(int, symlink, "symlink", kGrowth, -1, (const char* target, const char* path), (target, path))
WRAP(int, unlink, "unlink", kChange, -1, (const char* path), (path))
WRAP(int, rmdir, "unlink", kChange, -1, (const char* path), (path))
WRAP(int, remove, "unlink", kChange, -1, (const char* path), (path))
WRAP(int, unlinkat, "unlink", kChange, -1, (int folder, const char* path, int flags),
     (folder, path, flags))
WRAP(DIR*, opendir, "opendir", kNone, nullptr, (const char* path), (path))
WRAP(dirent*, readdir, "readdir", kNone, nullptr, (DIR * stream), (stream))
WRAP(int, chmod, "chmod", kChange, -1, (const char* path, mode_t mode), (path, mode))
WRAP(int, fchmodat, "chmod", kChange, -1, (int folder, const char* path, mode_t mode, int flags),
     (folder, path, mode, flags))
WRAP(int, lstat, Inspection(path), kNone, -1, (const char* path, struct stat* status),
     (path, status))
WRAP(int, stat, "lstat", kNone, -1, (const char* path, struct stat* status), (path, status))
WRAP(int, access, "lstat", kNone, -1, (const char* path, int mode), (path, mode))
WRAP(int, pthread_create, "thread", kNone, errno,
     (pthread_t * thread, const pthread_attr_t* attributes, void* (*run)(void*), void* argument),
     (thread, attributes, run, argument))
WRAP(int, posix_spawn, "fork", kNone, errno,
     (pid_t * child, const char* path, const posix_spawn_file_actions_t* actions,
      const posix_spawnattr_t* attributes, char* const* argv, char* const* variables),
     (child, path, actions, attributes, argv, variables))
