#include <langinfo.h>

#include <clocale>
#include <cstring>

#include "lib/platform/platform.h"

void PlatformUseUtf8CharacterType() {
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) {
        // This locale is built into the C library, so it exists even if no locale is installed.
        static_cast<void>(std::setlocale(LC_CTYPE, "C.UTF-8"));
    }
}
