#include <unistd.h>

#include "lib/platform/platform.h"
#include "lib/platform/retry.h"

int PlatformFlushFile(int fd) {
    return RetryInterrupted([fd] { return fsync(fd); });
}
