#include "tests/support/ordinary_user.h"

#include <sys/wait.h>
#include <unistd.h>

constexpr unsigned kNobody = 65534;

int RunAsOrdinaryUser(const std::function<int()>& body) {
    const pid_t child = fork();
    if (child == 0) {
        const bool is_root = getuid() == 0;
        _exit(is_root && (setgid(kNobody) != 0 || setuid(kNobody) != 0) ? 126 : body());
    }
    int status = 0;
    const bool exited = child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status);
    return exited ? WEXITSTATUS(status) : 127;
}
