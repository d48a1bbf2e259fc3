#include "lib/platform/platform.h"

int PlatformDesignDpi() {
    return 96;
}
