#include <cerrno>

#include "lib/file/file-op-internal.h"
#include "lib/file/file-op.h"
#include "lib/platform/platform.h"

namespace {

// The type of the volume that holds the path, or nothing after a failure, which is logged under the
// name that the test goes by in the log.
std::string TypeOfVolume(const std::string& path, const char* test) {
    std::string type;
    if (PlatformFileSystemType(path, type) != 0) {
        const int error = errno;
        LOG_MSG(ERROR, "%s: Failed to get file system info '%s'. %s", test, path.c_str(),
                ErrorText(error).c_str());
    }
    return type;
}

}  // namespace

bool isMountPoint(const std::string& path) {
    const std::string type = TypeOfVolume(path, "isMountPoint");
    return type == "nfs" || type == "smbfs" || type == "afpfs";
}

bool IsMSDOS(const std::string& path) {
    if (TypeOfVolume(path, "IsSupportLargeFile") != "msdos") {
        return false;
    }
    LOG_MSG(WARNING, "Detect a MSDOS platform for path '%s'.", path.c_str());
    return true;
}
