#pragma once

#include <cerrno>

/// Makes a system call that gives -1 on failure, again for as long as a signal interrupts it. errno
/// stays as the last call left it.
template <class Call>
auto RetryInterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}
