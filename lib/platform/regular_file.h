#pragma once

#include <sys/stat.h>

#include <cerrno>
#include <string>

#include "lib/platform/open_file.h"

/// Opens a regular file like PlatformOpenFile, and never waits for another process.
///
/// Follows symbolic links unless `flags` holds O_NOFOLLOW. Creates a missing file with `mode` when
/// `flags` holds O_CREAT. On failure the result is not open, and errno tells why: EINVAL when the
/// path leads to anything but a regular file.
inline UniqueFd OpenRegularFile(const std::string& path, int flags, mode_t mode = 0) {
    // Without O_NONBLOCK, opening a FIFO waits until another process opens its other end.
    UniqueFd file = PlatformOpenFile(path, flags | O_NONBLOCK, mode);
    struct stat status = {};
    if (!file.IsOpen() || ::fstat(file.Get(), &status) != 0) {
        return UniqueFd();
    }
    if (!S_ISREG(status.st_mode)) {
        errno = EINVAL;
        return UniqueFd();
    }
    return file;
}
