// Runs a program and, after all that it prints, prints the seconds that it took and the kibibytes of
// memory that it had at most:
//
//   measure PROGRAM ARGUMENTS...
//
// A process counts the memory of the one that it was forked from as its own, so a small one is
// needed here.

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: measure PROGRAM ARGUMENTS...\n");
        return 2;
    }
    const auto begin = std::chrono::steady_clock::now();
    pid_t child = 0;
    const int error = posix_spawnp(&child, argv[1], nullptr, nullptr, argv + 1, environ);
    int status = 0;
    struct rusage usage = {};
    if (error != 0 || wait4(child, &status, 0, &usage) != child) {
        std::fprintf(stderr, "%s: %s\n", argv[1], std::strerror(error != 0 ? error : errno));
        return 2;
    }
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
    std::printf("%.6f %ld\n", seconds.count(), usage.ru_maxrss);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}
