#pragma once

#include <cerrno>

/// Makes a system call that returns -1 on failure, and repeats it while a signal interrupts it.
///
/// Returns the last call's result, with errno as that call left it.
template <class Call>
auto RetryInterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}
