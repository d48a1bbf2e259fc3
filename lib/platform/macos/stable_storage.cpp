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
    // Not every file system has that call. After a fault of the drive, fsync could report success, since
    // a fault may be reported only once.
    return errno == EIO ? -1 : RetryInterrupted([fd] { return fsync(fd); });
}
