#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "lib/platform/platform.h"
#include "lib/platform/retry.h"

int PlatformFlushFile(int fd) {
    // fsync alone leaves the content in the cache of the drive.
    if (RetryInterrupted([fd] { return fcntl(fd, F_FULLFSYNC); }) != -1) {
        return 0;
    }
    // Some file systems do not support F_FULLFSYNC. After EIO, fsync is not tried: the system may
    // report an error of the drive only once, so fsync could return success.
    return errno == EIO ? -1 : RetryInterrupted([fd] { return fsync(fd); });
}
