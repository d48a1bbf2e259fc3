#include <fcntl.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "lib/file/file-op-internal.h"
#include "lib/file/file-op.h"
#include "lib/platform/error_text.h"
#include "lib/platform/open_file.h"
#include "lib/platform/platform.h"
#include "lib/tmp_name_gen.h"

namespace {

constexpr std::size_t kTemplateCapacity = 4096;
constexpr std::size_t kLinkCapacity = 1024;
constexpr mode_t kTemporaryFileMode = 0644;

// Returns whether the system refuses this use of the path. Any other failure is not a refusal.
bool IsRefused(const std::string& path, int mode) {
    return access(path.c_str(), mode) != 0 && (errno == EACCES || errno == EPERM);
}

}  // namespace

int FSFsync(const std::string& path) {
    const UniqueFd file = PlatformOpenFile(path, O_RDONLY);
    if (!file.IsOpen()) {
        const int error = errno;
        if (error == ENOENT) {
            return 1;
        }
        LOG_FILE_OP(ERROR, "FSFsync: open(%s): %s (%d)", path.c_str(),
                    PlatformErrorText(error).c_str(), error);
        return -1;
    }
    if (PlatformFlushFile(file.Get()) != 0) {
        const int error = errno;
        LOG_FILE_OP(ERROR, "FSFsync: fsync(%s): %s (%d)", path.c_str(),
                    PlatformErrorText(error).c_str(), error);
        return -1;
    }
    return 0;
}

int FSUTime(const std::string& path, long access_time, long modification_time) {
    const std::array<timeval, 2> times = {{{access_time, 0}, {modification_time, 0}}};
    return lutimes(path.c_str(), times.data()) == 0 ? 0 : -1;
}

bool FSTimeEqual(long a, long b) {
    return a == b;
}

int FSMktemp(const std::string& folder, std::string& path) {
    std::array<char, kTemplateCapacity> name;
    // A path that is too long is cut. It then rarely ends in six X, and so mkostemp fails.
    static_cast<void>(std::snprintf(name.data(), name.size(), "%s/XXXXXX", folder.c_str()));
    const UniqueFd file(mkostemp(name.data(), O_CLOEXEC));
    if (!file.IsOpen()) {
        const int error = errno;
        LOG_FILE_OP(ERROR, "mkstemp(%s): %s", name.data(), PlatformErrorText(error).c_str());
        return -1;
    }
    // Ignored because a file that keeps its narrower mode also serves the caller.
    static_cast<void>(fchmod(file.Get(), kTemporaryFileMode));
    path = name.data();
    return 0;
}

int FSCreateTempPath(const std::string& folder, std::string& path) {
    try {
        path = TmpNameGen::getInstance()->getTmpPath(folder);
    } catch (const std::exception&) {
        path.clear();  // The generator could not read random bytes.
    }
    return path.empty() ? -1 : 0;
}

bool isFileLocked(const std::string& path, int mode) {
    return IsRefused(path, mode);
}

bool hasFilePermission(const std::string& path, int mode) {
    return !IsRefused(path, mode);
}

int FSGetRealPath(std::string& path) {
    LOG_FILE_OP(DEBUG, " org path [%s]", path.c_str());
    if (PlatformStoredPath(path, true, path) != 0) {
        return -1;
    }
    LOG_FILE_OP(DEBUG, " get full path [%s]", path.c_str());
    return 0;
}

int FSCreateSymbolicLink(const std::string& target, const std::string& link) {
    if (symlink(target.c_str(), link.c_str()) != 0) {
        const int error = errno;
        LOG_FILE_OP(
            ERROR,
            "FSCreateSymbolicLink: Failed to create symbolic link '%s' -> '%s' (code: %d, msg: "
            "%s)",
            target.c_str(), link.c_str(), error, PlatformErrorText(error).c_str());
        return -1;
    }
    return 0;
}

int FSReadSymbolicLink(const std::string& link, std::string& target) {
    std::array<char, kLinkCapacity> content;
    const ssize_t length = readlink(link.c_str(), content.data(), content.size());
    if (length < 0) {
        const int error = errno;
        LOG_FILE_OP(ERROR,
                    "FSReadSymbolicLink: Failed to read symbolic link '%s' (code: %d, msg: %s)",
                    link.c_str(), error, PlatformErrorText(error).c_str());
        return -1;
    }
    if (static_cast<std::size_t>(length) >= content.size()) {
        LOG_FILE_OP(ERROR, "FSReadSymbolicLink: path of '%s' is more than %d", link.c_str(),
                    static_cast<int>(content.size()));
        return -1;
    }
    target.assign(content.data(), static_cast<std::size_t>(length));
    return 0;
}

int FSChown(const std::string& path, uint32_t uid, uint32_t gid) {
    if (lchown(path.c_str(), uid, gid) != 0) {
        const int error = errno;
        LOG_FILE_OP(ERROR, "FSChown: Failed to chown '%s' (code: %d, msg: %s)", path.c_str(), error,
                    PlatformErrorText(error).c_str());
        return -1;
    }
    return 0;
}

int FSChmod(const std::string& path, uint16_t mode) {
    if (chmod(path.c_str(), mode) != 0) {
        const int error = errno;
        LOG_FILE_OP(ERROR, "FSChmod: Failed to chmod '%s' (code: %d, msg: %s)", path.c_str(), error,
                    PlatformErrorText(error).c_str());
        return -1;
    }
    return 0;
}
