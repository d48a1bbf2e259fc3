#include <sys/mount.h>
#include <sys/param.h>

#include "lib/platform/platform.h"
#include "lib/platform/retry.h"

int PlatformFileSystemType(const std::string& path, std::string& type) {
    struct statfs status;
    if (RetryInterrupted([&] { return statfs(path.c_str(), &status); }) != 0) {
        return -1;
    }
    type = status.f_fstypename;
    return 0;
}
