// One operation of the installation service as a program:
//
//   service_op copy SOURCE DESTINATION | service_op extract ARCHIVE FOLDER
//
// or, of the libraries that it runs with, their versions:
//
//   service_op versions

#include <archive.h>

#include <QtGlobal>
#include <clocale>
#include <cstdio>
#include <string>

#include "bench/stopwatch.h"
#include "extractor.h"
#include "lib/platform/platform.h"
#include "mac/mac-service.h"
#include "strtable.h"

namespace {

int Copy(const std::string& source, const std::string& destination) {
    MacService service;
    return service.FSCopyPath(source, destination);
}

int Extract(const std::string& archive, const std::string& folder) {
    Extractor extractor;
    extractor.archive_path = archive;
    extractor.destination = folder;
    return extractor.Extract();
}

}  // namespace

int main(int argc, char** argv) {
    static_cast<void>(std::setlocale(LC_ALL, ""));
    PlatformUseUtf8CharacterType();
    StrTable::InitStrTable();
    const std::string operation = argc > 1 ? argv[1] : "";
    if (operation == "copy" && argc == 4) {
        return Measured([argv] { return Copy(argv[2], argv[3]); });
    }
    if (operation == "extract" && argc == 4) {
        return Measured([argv] { return Extract(argv[2], argv[3]); });
    }
    if (operation == "versions" && argc == 2) {
        static_cast<void>(std::printf("Qt %s, %s\n", qVersion(), archive_version_string()));
        return 0;
    }
    static_cast<void>(std::fprintf(
        stderr, "usage: service_op copy SOURCE DESTINATION | extract ARCHIVE FOLDER | versions\n"));
    return 2;
}
