#include <fcntl.h>
#include <sys/stat.h>

#include "lib/platform/open_file.h"
#include "lib/platform/platform.h"

UniqueFd PlatformOpenForSearch(const std::string& folder) {
    return PlatformOpenFile(folder, O_PATH | O_DIRECTORY);
}

// A folder of the same volume may be mounted elsewhere ("bind mount"). Its device number is that of
// the volume, so the kernel is asked. It answers since version 5.8.
bool PlatformIsMountRoot(int folder) {
    struct statx status;
    return statx(folder, "", AT_EMPTY_PATH, 0, &status) == 0 &&
           (status.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0;
}
