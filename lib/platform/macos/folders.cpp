#include <fcntl.h>

#include "lib/platform/open_file.h"
#include "lib/platform/platform.h"

UniqueFd PlatformOpenForSearch(const std::string& folder) {
    return PlatformOpenFile(folder, O_RDONLY | O_DIRECTORY);
}

bool PlatformIsMountRoot(int /*folder*/) {
    return false;  // Each mounted volume has its own device number.
}
