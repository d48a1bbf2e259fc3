#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <utility>

#include "lib/file/file-op-internal.h"
#include "lib/file/file-op.h"
#include "lib/platform/error_text.h"

namespace {

constexpr mode_t kFolderMode = 0777;

bool IsFolder(const std::string& path) {
    struct stat status;
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// Creates one folder. Returns true also if another program has created the folder first. Returns
// false with errno set on failure.
bool CreateFolder(const std::string& path) {
    if (mkdir(path.c_str(), kFolderMode) == 0) {
        return true;
    }
    const int error = errno;
    if (error == EEXIST && IsFolder(path)) {
        return true;
    }
    errno = error;
    return false;
}

int ReportUncreatedFolder(const std::string& path, int error) {
    LOG_FILE_OP(ERROR, "path = %s errno : %s", path.c_str(), PlatformErrorText(error).c_str());
    errno = error;
    return -2;
}

// Creates one level of a path if it is missing. Returns false with errno set if it cannot be
// created, or if the last level is not a folder.
bool EnsureLevel(const std::string& prefix, bool is_last) {
    struct stat status;
    if (stat(prefix.c_str(), &status) != 0) {
        return CreateFolder(prefix);
    }
    if (S_ISDIR(status.st_mode)) {
        return true;
    }
    if (is_last) {
        LOG_FILE_OP(INFO, "FSMKDirP: path: %s is existing file or symbolic link pointed to file",
                    prefix.c_str());
        errno = EEXIST;
        return false;
    }
    // Not an error yet: creating the next level fails, and with the error number to report.
    LOG_FILE_OP(INFO, "FSMKDirP: path: %s is symbolic link pointed to folder", prefix.c_str());
    return true;
}

int FSMKDirP(const std::string& path) {
    // Usually only the last level is missing. The loop handles every other case.
    if (mkdir(path.c_str(), kFolderMode) == 0) {
        return 0;
    }
    std::size_t end = path[0] == '/' ? 1 : 0;
    bool is_last = false;
    while (!is_last) {
        end = path.find('/', end);
        is_last = end == std::string::npos || end + 1 == path.size();
        if (!EnsureLevel(path.substr(0, end), is_last)) {
            return ReportUncreatedFolder(path, errno);
        }
        ++end;
    }
    return 0;
}

// Gives the owner of a folder all rights, and appends the paths of the folder's entries to
// `entries`. Does nothing to any other object, or on another volume. Returns 0 or -1.
int MakeFolderWritable(const std::string& path, dev_t volume, std::vector<std::string>& entries) {
    struct stat status;
    if (lstat(path.c_str(), &status) != 0) {
        return -1;
    }
    if (!S_ISDIR(status.st_mode) || status.st_dev != volume) {
        return 0;
    }
    const bool is_writable = (status.st_mode & S_IRWXU) == S_IRWXU;
    if (!is_writable && fchmodat(AT_FDCWD, path.c_str(), (status.st_mode & 07777) | S_IRWXU,
                                 AT_SYMLINK_NOFOLLOW) != 0) {
        return -1;
    }
    std::vector<std::string> names;
    if (!file_op::ReadNames(file_op::OpenFolderAt(AT_FDCWD, path.c_str()), names)) {
        return -1;
    }
    for (const std::string& name : names) {
        entries.push_back(path + "/" + name);
    }
    return 0;
}

}  // namespace

int FSMKDir(const std::string& path, bool recursive) {
    if (path.empty()) {
        return -1;
    }
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != 0) {
        LOG_FILE_OP(ERROR, "FSMKDir: Failed to to file info '%s'", path.c_str());
        return -1;
    }
    if (info.exists) {
        if (info.type == FILE_TYPE_DIR) {
            return 0;
        }
        LOG_FILE_OP(ERROR,
                    "FSMKDir: Create a folder but local file system is not directory '%s' (%d)",
                    path.c_str(), static_cast<int>(info.type));
        return -1;
    }
    if (recursive) {
        return FSMKDirP(path);
    }
    return CreateFolder(path) ? 0 : ReportUncreatedFolder(path, errno);
}

int FSMKDirFromRoot(const std::string& target, const std::string& root) {
    if (root.size() > target.size()) {
        LOG_FILE_OP(ERROR, "Giving a root '%s' whose length is larger then target's '%s'.",
                    root.c_str(), target.c_str());
        return -1;
    }
    if (!FSIsParentFolder(root, target)) {
        LOG_FILE_OP(ERROR, "root '%s' is not a parent folder of target '%s'", root.c_str(),
                    target.c_str());
        return -1;
    }
    const std::string rest = target.substr(root.size());
    std::string done;
    while (done != rest) {
        done = rest.substr(0, rest.find('/', done.size() + 1));
        LOG_FILE_OP(DEBUG, "FSMKDirFromRoot: create %s", done.c_str());
        if (FSMKDir(root + done, false) < 0) {
            return -1;
        }
    }
    return 0;
}

int FSMakeFoldersWritable(const std::string& path) {
    struct stat status;
    if (lstat(path.c_str(), &status) != 0) {
        return -1;
    }
    int result = 0;
    std::vector<std::string> remaining = {path};
    while (!remaining.empty()) {
        const std::string object = std::move(remaining.back());
        remaining.pop_back();
        if (MakeFolderWritable(object, status.st_dev, remaining) != 0) {
            result = -1;
        }
    }
    return result;
}
