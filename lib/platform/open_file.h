#pragma once

#include <fcntl.h>

#include <string>

#include "lib/platform/retry.h"
#include "lib/platform/unique_fd.h"

/// Opens a file like open(2), and tries again when a signal interrupts that.
///
/// A program that this process starts does not inherit the descriptor. On failure the result is not
/// open, and errno tells why.
inline UniqueFd PlatformOpenFile(const std::string& path, int flags, mode_t mode = 0) {
    return UniqueFd(
        RetryInterrupted([&] { return ::open(path.c_str(), flags | O_CLOEXEC, mode); }));
}
