#include <langinfo.h>

#include <clocale>
#include <cstring>

#include "lib/platform/platform.h"

void PlatformUseUtf8CharacterType() {
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) {
        // Built into the C library, so it is there even where no locale is installed.
        static_cast<void>(std::setlocale(LC_CTYPE, "C.UTF-8"));
    }
}
