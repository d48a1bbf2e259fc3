#include <sys/stat.h>

#include <cerrno>
#include <tuple>
#include <utility>

#include "lib/file/file-op-internal.h"
#include "lib/file/file-op.h"
#include "lib/platform/platform.h"
#include "lib/utils/StringHelper.h"

using corvimo::utils::StringHelper;

namespace {

uint32_t TypeOfMode(mode_t mode) {
    switch (mode & S_IFMT) {
        case S_IFREG:
            return FILE_TYPE_REGULAR;
        case S_IFDIR:
            return FILE_TYPE_DIR;
        case S_IFLNK:
            return FILE_TYPE_LINK;
        case S_IFCHR:
        case S_IFBLK:
            return FILE_TYPE_DEVICE;
        case S_IFIFO:
            return FILE_TYPE_FIFO;
        case S_IFSOCK:
            return FILE_TYPE_SOCKET;
        default:
            return FILE_TYPE_UNKNOWN;
    }
}

void SetPath(const std::string& path, _FILE_INFO_tag& info) {
    info.path = path;
    info.name = FSBaseName(path);
}

void FillFromStatus(const struct stat& status, _FILE_INFO_tag& info) {
    info.exists = true;
    info.mtime = static_cast<int32_t>(status.st_mtime);
    info.size = status.st_size;
    info.uid = status.st_uid;
    info.gid = status.st_gid;
    info.mode = static_cast<uint16_t>(status.st_mode);
    info.dev = static_cast<int32_t>(status.st_dev);
}

std::string Composed(const std::string& path) {
    return StringHelper::Normalize(path, StringHelper::NFC);
}

}  // namespace

bool file_op::IsStoredPath(const std::string& path, const _FILE_INFO_tag& info) {
    return info.path == path || Composed(info.path) == Composed(path);
}

bool operator==(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b) {
    return std::tie(a.exists, a.size, a.mtime, a.type, a.path, a.name) ==
           std::tie(b.exists, b.size, b.mtime, b.type, b.path, b.name);
}

bool operator!=(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b) {
    return !(a == b);
}

int GetFileInfo(const std::string& path, _FILE_INFO_tag& info) {
    struct stat status;
    if (lstat(path.c_str(), &status) != 0) {
        if (errno != ENOENT) {
            return -1;
        }
        _FILE_INFO_tag missing;
        SetPath(path, missing);  // `path` may be a field of `info`.
        info = std::move(missing);
        return 0;
    }
    FillFromStatus(status, info);
    const uint32_t type = TypeOfMode(status.st_mode);
    if (type == FILE_TYPE_UNKNOWN) {
        SetPath(path, info);
        return -1;
    }
    info.type = type;

    LOG_FILE_OP(DEBUG, "Input file path = [%s].", path.c_str());
    std::string stored;
    const int error = PlatformStoredPath(path, false, stored);
    if (error != 0) {
        LOG_FILE_OP(ERROR, "FSPathMakeRef: %d", error);
        SetPath(path, info);
        return -1;
    }
    LOG_FILE_OP(DEBUG, "FSRefMakePath outTargetPath path = [%s].", stored.c_str());
    SetPath(stored, info);
    return 0;
}

bool IsFileExist(const std::string& path, bool exact) {
    if (path.empty()) {
        return false;
    }
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) < 0 || !info.exists) {
        return false;
    }
    return !exact || file_op::IsStoredPath(path, info);
}

int FSStat(const std::string& path, _FILE_INFO_tag& info, bool exact) {
    if (path.empty()) {
        return -1;
    }
    if (!IsFileExist(path, exact)) {
        info.exists = false;
        return 0;
    }
    return GetFileInfo(path, info) < 0 ? -2 : 0;
}

bool FSIsParentFolder(const std::string& parent, const std::string& child) {
    if (child.size() < parent.size()) {
        return false;
    }
    if (child.size() > parent.size() && child[parent.size()] != '/') {
        return false;
    }
    return child.compare(0, parent.size(), parent) == 0;
}

std::string FSParentPath(const std::string& path) {
    const std::size_t separator = path.rfind('/');
    if (separator == std::string::npos || separator == 0) {
        return "/";
    }
    return path.substr(0, separator);
}

std::string FSBaseName(const std::string& path) {
    const std::size_t separator = path.rfind('/');
    return separator == std::string::npos ? path : path.substr(separator + 1);
}
