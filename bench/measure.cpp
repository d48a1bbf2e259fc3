// Runs a program and, after all that it prints, prints the seconds that it took and the kibibytes
// of memory that it had at most:
//
//   measure [--quiet] PROGRAM ARGUMENTS...
//
// With --quiet, what the program prints goes to /dev/null.
//
// A process counts the memory of the one that it was forked from as its own, so a small one is
// needed here.

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>

namespace {

/// Starts a program, which is looked for in PATH. Returns 0 or an error number.
int Start(char** arguments, bool is_quiet, pid_t* child) {
    posix_spawn_file_actions_t actions;
    int error = posix_spawn_file_actions_init(&actions);
    if (error != 0) {
        return error;
    }
    if (is_quiet) {
        error = posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    }
    if (error == 0) {
        error = posix_spawnp(child, arguments[0], &actions, nullptr, arguments, environ);
    }
    posix_spawn_file_actions_destroy(&actions);
    return error;
}

}  // namespace

int main(int argc, char** argv) {
    const bool is_quiet = argc > 1 && std::strcmp(argv[1], "--quiet") == 0;
    char** const arguments = argv + (is_quiet ? 2 : 1);
    if (argc < (is_quiet ? 3 : 2)) {
        static_cast<void>(std::fprintf(stderr, "usage: measure [--quiet] PROGRAM ARGUMENTS...\n"));
        return 2;
    }
    const auto begin = std::chrono::steady_clock::now();
    pid_t child = 0;
    const int error = Start(arguments, is_quiet, &child);
    int status = 0;
    struct rusage usage = {};
    if (error != 0 || wait4(child, &status, 0, &usage) != child) {
        static_cast<void>(std::fprintf(stderr, "%s: %s\n", arguments[0],
                                       std::strerror(error != 0 ? error : errno)));
        return 2;
    }
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
    static_cast<void>(std::printf("%.6f %ld\n", seconds.count(), usage.ru_maxrss));
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}
