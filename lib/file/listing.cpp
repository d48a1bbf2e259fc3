#include <cerrno>

#include "lib/file/file-op-internal.h"
#include "lib/file/file-op.h"
#include "lib/platform/error_text.h"

namespace {

constexpr int32_t kWithTimesAndSizes = 1;

uint32_t TypeOfEntry(unsigned char type) {
    switch (type) {
        case DT_FIFO:
            return FILE_TYPE_FIFO;
        case DT_CHR:
        case DT_BLK:
            return FILE_TYPE_DEVICE;
        case DT_DIR:
            return FILE_TYPE_DIR;
        case DT_REG:
            return FILE_TYPE_REGULAR;
        case DT_LNK:
            return FILE_TYPE_LINK;
        case DT_SOCK:
            return FILE_TYPE_SOCKET;
        default:
            return FILE_TYPE_UNKNOWN;
    }
}

}  // namespace

int FSOpenDir(const std::string& path, int options, DIR_HANDLE& handle) {
    file_op::UniqueDir stream = file_op::OpenFolder(path);
    if (stream == nullptr) {
        const int error = errno;
        LOG_FILE_OP(ERROR, "FSOpenDir: Failed to open directory '%s'. %s", path.c_str(),
                    PlatformErrorText(error).c_str());
        return -1;
    }
    handle.dir = stream.release();
    handle.path = path;
    handle.options = options;
    return 0;
}

int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry) {
    if (handle.dir == nullptr) {
        return -1;
    }
    const dirent* const listed = readdir(handle.dir);
    if (listed == nullptr) {
        return 0;
    }
    _FILE_INFO_tag info;
    if ((handle.options & kWithTimesAndSizes) != 0) {
        const std::string path = handle.path + "/" + listed->d_name;
        if (IsFileExist(path, true) && GetFileInfo(path, info) < 0) {
            LOG_FILE_OP(ERROR, "FSOpenDir: Failed to get info for '%s'", path.c_str());
            return -1;
        }
    }
    entry.mtime = info.mtime;
    entry.size = info.size;
    entry.name = listed->d_name;
    entry.type = TypeOfEntry(listed->d_type);
    return 1;
}

void FSCloseDir(DIR_HANDLE& handle) {
    if (handle.dir != nullptr) {
        closedir(handle.dir);
        handle.dir = nullptr;
    }
    handle.path.clear();
}
