#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "lib/file/file-op-internal.h"
#include "lib/file/file-op.h"
#include "lib/platform/error_text.h"
#include "lib/platform/open_file.h"
#include "lib/platform/platform.h"
#include "lib/platform/retry.h"

namespace {

constexpr std::size_t kCopyBufferSize = 8192;
constexpr mode_t kDefaultFileMode = 0644;

// Returns the result of a copy whose destination cannot be written: -2 if no room is left there.
int WriteFailureCode(int error) {
    return error == ENOSPC || error == EDQUOT ? -2 : -1;
}

ssize_t ReadBlock(int fd, char* buffer) {
    return RetryInterrupted([&] { return read(fd, buffer, kCopyBufferSize); });
}

// Writes a whole block. Returns 0 or the result of the failed copy.
int WriteBlock(int fd, const char* data, std::size_t size) {
    while (size > 0) {
        const ssize_t written = RetryInterrupted([&] { return write(fd, data, size); });
        if (written <= 0) {
            const int error = errno;
            LOG_FILE_OP(ERROR, "CopyFile: write: %s (%d)", PlatformErrorText(error).c_str(), error);
            return written < 0 ? WriteFailureCode(error) : -1;
        }
        data += written;
        size -= static_cast<std::size_t>(written);
    }
    return 0;
}

int CopyContent(int source, int destination) {
    const std::unique_ptr<char[]> buffer(new (std::nothrow) char[kCopyBufferSize]);
    if (buffer == nullptr) {
        const int error = errno;
        LOG_FILE_OP(ERROR, "FSCopy: malloc(%d): %s (%d)", static_cast<int>(kCopyBufferSize),
                    PlatformErrorText(error).c_str(), error);
        return -1;
    }
    for (;;) {
        const ssize_t count = ReadBlock(source, buffer.get());
        if (count < 0) {
            const int error = errno;
            LOG_FILE_OP(ERROR, "CopyFile: read: %s (%d)", PlatformErrorText(error).c_str(), error);
            return -1;
        }
        if (count == 0) {
            return 0;
        }
        const int result = WriteBlock(destination, buffer.get(), static_cast<std::size_t>(count));
        if (result != 0) {
            return result;
        }
    }
}

UniqueFd OpenForCopy(const std::string& path, int flags, mode_t mode = 0) {
    UniqueFd file = PlatformOpenFile(path, flags, mode);
    if (!file.IsOpen()) {
        const int error = errno;
        LOG_FILE_OP(ERROR, "CopyFile: open(%s): %s (%d)", path.c_str(),
                    PlatformErrorText(error).c_str(), error);
    }
    return file;
}

int MoveFolderAcrossVolumes(const std::string& source, const std::string& destination, bool exact) {
    std::vector<std::string> names;
    if (FSMKDir(destination, true) != 0 ||
        !file_op::ReadNames(file_op::OpenFolder(source), names)) {
        return -3;
    }
    for (const std::string& name : names) {
        if (FSRename(source + "/" + name, destination + "/" + name, exact) != 0) {
            return -3;
        }
    }
    return rmdir(source.c_str()) == 0 ? 0 : -3;
}

}  // namespace

int FSCopy(const std::string& source, const std::string& destination, bool remove_source,
           bool keep_mode) {
    UniqueFd from = OpenForCopy(source, O_RDONLY);
    if (!from.IsOpen()) {
        return -1;
    }
    mode_t mode = kDefaultFileMode;
    if (keep_mode) {
        _FILE_INFO_tag info;
        if (FSStat(source, info, true) < 0) {
            LOG_FILE_OP(ERROR, "FSStat: check state (%s) failed", source.c_str());
            return -1;
        }
        mode = static_cast<uint16_t>(info.mode);
    }
    const UniqueFd to = OpenForCopy(destination, O_WRONLY | O_CREAT | O_TRUNC, mode);
    if (!to.IsOpen()) {
        return -1;
    }
    int result = CopyContent(from.Get(), to.Get());
    from.Close();
    if (result == 0 && remove_source && std::remove(source.c_str()) != 0) {
        result = -1;
    }
    // Ignored because no result is defined for a flush that fails, and the source may be gone.
    static_cast<void>(PlatformFlushFile(to.Get()));
    return result;
}

int FSRename(const std::string& source, const std::string& destination, bool exact) {
    if (source.empty() || destination.empty()) {
        return -1;
    }
    _FILE_INFO_tag info;
    // One inspection answers for IsFileExist, too.
    if (GetFileInfo(source, info) < 0 || !info.exists ||
        (exact && !file_op::IsStoredPath(source, info))) {
        return -2;
    }
    if (std::rename(source.c_str(), destination.c_str()) == 0) {
        return 0;
    }
    if (errno != EXDEV) {
        return errno == ENAMETOOLONG ? -100 : -3;
    }
    switch (info.type) {
        case FILE_TYPE_DIR:
            return MoveFolderAcrossVolumes(source, destination, exact);
        case FILE_TYPE_REGULAR:
            return FSCopy(source, destination, true, false) < 0 ? -3 : 0;
        default:
            return -3;
    }
}
