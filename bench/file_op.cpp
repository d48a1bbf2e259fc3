// One file operation as a program:
//
//   file_op remove PATH | file_op move SOURCE DESTINATION | file_op list FOLDER

#include <cstdio>
#include <string>

#include "bench/stopwatch.h"
#include "lib/file/file-op.h"

namespace {

/// Lists a folder and every folder below it.
int List(const std::string& folder) {
    constexpr int kNamesAndTypesOnly = 0;
    DIR_HANDLE handle;
    if (FSOpenDir(folder, kNamesAndTypesOnly, handle) != 0) {
        return -1;
    }
    DIR_ENTRY entry;
    int result;
    do {
        result = FSReadDir(handle, entry);
        if (result > 0 && entry.type == FILE_TYPE_DIR && entry.name != "." && entry.name != ".." &&
            List(folder + "/" + entry.name) != 0) {
            result = -1;
        }
    } while (result > 0);
    FSCloseDir(handle);
    return result;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string operation = argc > 1 ? argv[1] : "";
    if (operation == "remove" && argc == 3) {
        return Measured([argv] { return FSRemove(argv[2], false); });
    }
    if (operation == "move" && argc == 4) {
        return Measured([argv] { return FSRename(argv[2], argv[3], false); });
    }
    if (operation == "list" && argc == 3) {
        return Measured([argv] { return List(argv[2]); });
    }
    static_cast<void>(std::fprintf(
        stderr, "usage: file_op remove PATH | move SOURCE DESTINATION | list FOLDER\n"));
    return 2;
}
