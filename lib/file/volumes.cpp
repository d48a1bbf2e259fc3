#include <cerrno>

#include "lib/file/file-op-internal.h"
#include "lib/file/file-op.h"
#include "lib/platform/error_text.h"
#include "lib/platform/platform.h"

namespace {

// Returns the type of the volume that holds a path, or "" after a failure. `test` is the name of
// the calling function in the record of the failure.
std::string TypeOfVolume(const std::string& path, const char* test) {
    std::string type;
    if (PlatformFileSystemType(path, type) != 0) {
        const int error = errno;
        LOG_FILE_OP(ERROR, "%s: Failed to get file system info '%s'. %s", test, path.c_str(),
                    PlatformErrorText(error).c_str());
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
    LOG_FILE_OP(WARNING, "Detect a MSDOS platform for path '%s'.", path.c_str());
    return true;
}
