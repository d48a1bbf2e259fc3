#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <memory>
#include <new>

#include "lib/file/file-op-internal.h"
#include "lib/file/file-op.h"
#include "lib/platform/platform.h"
#include "lib/platform/retry.h"

namespace {

constexpr std::size_t kCopyBufferSize = 8192;
constexpr mode_t kDefaultFileMode = 0644;

// The end of a copy that failed for want of room, so that a caller can tell it apart.
int WriteFailureCode(int error) {
    return error == ENOSPC || error == EDQUOT ? -2 : -1;
}

ssize_t ReadBlock(int fd, char* buffer) {
    return RetryInterrupted([&] { return read(fd, buffer, kCopyBufferSize); });
}

// Writes all of a block. Returns 0 or the code of the copy's failure.
int WriteBlock(int fd, const char* data, std::size_t size) {
    while (size > 0) {
        const ssize_t written = RetryInterrupted([&] { return write(fd, data, size); });
        if (written <= 0) {
            const int error = errno;
            LOG_MSG(ERROR, "CopyFile: write: %s (%d)", ErrorText(error).c_str(), error);
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
        LOG_MSG(ERROR, "FSCopy: malloc(%d): %s (%d)", static_cast<int>(kCopyBufferSize),
                ErrorText(error).c_str(), error);
        return -1;
    }
    for (;;) {
        const ssize_t count = ReadBlock(source, buffer.get());
        if (count < 0) {
            const int error = errno;
            LOG_MSG(ERROR, "CopyFile: read: %s (%d)", ErrorText(error).c_str(), error);
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
    UniqueFd file = OpenFile(path, flags, mode);
    if (!file.IsOpen()) {
        const int error = errno;
        LOG_MSG(ERROR, "CopyFile: open(%s): %s (%d)", path.c_str(), ErrorText(error).c_str(),
                error);
    }
    return file;
}

int Move(const _FILE_INFO_tag& info, const std::string& source, const std::string& destination);

int MoveFolderAcrossVolumes(const _FILE_INFO_tag& info, const std::string& source,
                            const std::string& destination) {
    if (FSMKDir(destination, true) != 0) {
        return -3;
    }
    std::vector<std::string> names;
    if (!ReadNames(source, names)) {
        return -3;
    }
    for (const std::string& name : names) {
        const std::string entry = source + "/" + name;
        _FILE_INFO_tag entry_info;
        if (GetEntryInfo(entry, info.path, entry_info) != 0 || !entry_info.exists ||
            Move(entry_info, entry, destination + "/" + name) != 0) {
            return -3;
        }
    }
    return rmdir(source.c_str()) == 0 ? 0 : -3;
}

int MoveAcrossVolumes(const _FILE_INFO_tag& info, const std::string& source,
                      const std::string& destination) {
    switch (info.type) {
        case FILE_TYPE_DIR:
            return MoveFolderAcrossVolumes(info, source, destination);
        case FILE_TYPE_REGULAR:
            return FSCopy(source, destination, true, false) < 0 ? -3 : 0;
        default:
            return -3;
    }
}

// FSRename of an object that has been inspected. Where the path of a folder is the stored one, that of
// each entry is, too: a listing gives names as they are stored.
int Move(const _FILE_INFO_tag& info, const std::string& source, const std::string& destination) {
    if (std::rename(source.c_str(), destination.c_str()) == 0) {
        return 0;
    }
    switch (errno) {
        case ENAMETOOLONG:
            return -100;
        case EXDEV:
            return MoveAcrossVolumes(info, source, destination);
        default:
            return -3;
    }
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
            LOG_MSG(ERROR, "FSStat: check state (%s) failed", source.c_str());
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
    // A flush that fails changes nothing: the source is gone by now, or the result says enough.
    static_cast<void>(PlatformFlushFile(to.Get()));
    return result;
}

int FSRename(const std::string& source, const std::string& destination, bool exact) {
    if (source.empty() || destination.empty()) {
        return -1;
    }
    _FILE_INFO_tag info;
    if (!IsFileExist(source, exact) || GetFileInfo(source, info) < 0 || !info.exists) {
        return -2;
    }
    return Move(info, source, destination);
}
