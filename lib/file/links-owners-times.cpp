#include <fcntl.h>
#include <sys/time.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "lib/file/file-op-internal.h"
#include "lib/file/file-op.h"
#include "lib/platform/platform.h"
#include "lib/tmp_name_gen.h"

namespace {

constexpr std::size_t kTemplateCapacity = 4096;
constexpr std::size_t kLinkCapacity = 1024;
constexpr mode_t kTemporaryFileMode = 0644;

// Whether the system refuses this use of the path, as opposed to anything else that can go wrong.
bool IsRefused(const std::string& path, int mode) {
    return access(path.c_str(), mode) != 0 && (errno == EACCES || errno == EPERM);
}

}  // namespace

int FSFsync(const std::string& path) {
    const UniqueFd file = OpenFile(path, O_RDONLY);
    if (!file.IsOpen()) {
        const int error = errno;
        if (error == ENOENT) {
            return 1;
        }
        LOG_MSG(ERROR, "FSFsync: open(%s): %s (%d)", path.c_str(), ErrorText(error).c_str(), error);
        return -1;
    }
    if (PlatformFlushFile(file.Get()) != 0) {
        const int error = errno;
        LOG_MSG(ERROR, "FSFsync: fsync(%s): %s (%d)", path.c_str(), ErrorText(error).c_str(),
                error);
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
    // A folder too long is cut, which leaves no template and so fails below.
    static_cast<void>(std::snprintf(name.data(), name.size(), "%s/XXXXXX", folder.c_str()));
    UniqueFd file(mkostemp(name.data(), O_CLOEXEC));
    if (!file.IsOpen()) {
        const int error = errno;
        LOG_MSG(ERROR, "mkstemp(%s): %s", name.data(), ErrorText(error).c_str());
        return -1;
    }
    file.Close();
    path = name.data();
    // A file that keeps its narrower mode serves the caller as well.
    static_cast<void>(chmod(path.c_str(), kTemporaryFileMode));
    return 0;
}

int FSCreateTempPath(const std::string& folder, std::string& path) {
    try {
        path = TmpNameGen::getInstance()->getTmpPath(folder);
    } catch (const std::exception&) {
        path.clear();  // The generator could not read the system's random device.
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
    LOG_MSG(DEBUG, " org path [%s]", path.c_str());
    if (PlatformStoredPath(path, true, path) != 0) {
        return -1;
    }
    LOG_MSG(DEBUG, " get full path [%s]", path.c_str());
    return 0;
}

int FSCreateSymbolicLink(const std::string& target, const std::string& link) {
    if (symlink(target.c_str(), link.c_str()) != 0) {
        const int error = errno;
        LOG_MSG(ERROR,
                "FSCreateSymbolicLink: Failed to create symbolic link '%s' -> '%s' (code: %d, msg: "
                "%s)",
                target.c_str(), link.c_str(), error, ErrorText(error).c_str());
        return -1;
    }
    return 0;
}

int FSReadSymbolicLink(const std::string& link, std::string& target) {
    std::array<char, kLinkCapacity> content;
    const ssize_t length = readlink(link.c_str(), content.data(), content.size());
    if (length < 0) {
        const int error = errno;
        LOG_MSG(ERROR, "FSReadSymbolicLink: Failed to read symbolic link '%s' (code: %d, msg: %s)",
                link.c_str(), error, ErrorText(error).c_str());
        return -1;
    }
    if (static_cast<std::size_t>(length) >= content.size()) {
        LOG_MSG(ERROR, "FSReadSymbolicLink: path of '%s' is more than %d", link.c_str(),
                static_cast<int>(content.size()));
        return -1;
    }
    target.assign(content.data(), static_cast<std::size_t>(length));
    return 0;
}

int FSChown(const std::string& path, uint32_t uid, uint32_t gid) {
    if (lchown(path.c_str(), uid, gid) != 0) {
        const int error = errno;
        LOG_MSG(ERROR, "FSChown: Failed to chown '%s' (code: %d, msg: %s)", path.c_str(), error,
                ErrorText(error).c_str());
        return -1;
    }
    return 0;
}

int FSChmod(const std::string& path, uint16_t mode) {
    if (chmod(path.c_str(), mode) != 0) {
        const int error = errno;
        LOG_MSG(ERROR, "FSChmod: Failed to chmod '%s' (code: %d, msg: %s)", path.c_str(), error,
                ErrorText(error).c_str());
        return -1;
    }
    return 0;
}
