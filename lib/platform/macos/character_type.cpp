#include <langinfo.h>

#include <clocale>
#include <cstring>

#include "lib/platform/platform.h"

void PlatformUseUtf8CharacterType() {
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) {
        static_cast<void>(std::setlocale(LC_CTYPE, "UTF-8"));
    }
}
