// Makes a tree to measure with, in a folder that it creates:
//
//   make_tree foldered FOLDER COUNT   files of 8 bytes, 100 in each folder
//   make_tree flat FOLDER COUNT       files of 8 bytes, all in one folder
//   make_tree empty FOLDER COUNT      empty files, all in one folder
//   make_tree nested FOLDER COUNT     10 times COUNT folders, each in the one before

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "lib/platform/unique_fd.h"

namespace {

constexpr long kFilesPerFolder = 100;
constexpr int kChains = 10;
constexpr mode_t kFileMode = 0644;
constexpr mode_t kFolderMode = 0755;
const std::string kContent = "content\n";

using Name = std::array<char, 32>;

Name Numbered(const char* kind, long number) {
    Name name;
    static_cast<void>(std::snprintf(name.data(), name.size(), "%s-%07ld", kind, number));
    return name;
}

/// Creates a folder and gives it opened; none after a failure.
UniqueFd MakeFolder(int parent, const char* name) {
    if (mkdirat(parent, name, kFolderMode) != 0) {
        return UniqueFd();
    }
    return UniqueFd(openat(parent, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

bool MakeFile(int folder, long number, const std::string& content) {
    const Name name = Numbered("file", number);
    const UniqueFd file(
        openat(folder, name.data(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kFileMode));
    return file.IsOpen() && (content.empty() || write(file.Get(), content.data(), content.size()) ==
                                                    static_cast<ssize_t>(content.size()));
}

bool MakeFlat(int top, long count, const std::string& content) {
    for (long number = 0; number < count; ++number) {
        if (!MakeFile(top, number, content)) {
            return false;
        }
    }
    return true;
}

bool MakeFoldered(int top, long count) {
    UniqueFd folder;
    for (long number = 0; number < count; ++number) {
        if (number % kFilesPerFolder == 0) {
            folder = MakeFolder(top, Numbered("folder", number / kFilesPerFolder).data());
        }
        if (!folder.IsOpen() || !MakeFile(folder.Get(), number, kContent)) {
            return false;
        }
    }
    return true;
}

bool MakeNested(int top, long depth) {
    for (int chain = 0; chain < kChains; ++chain) {
        // One letter for each: a path of 1900 of them is shorter than what the system takes.
        const std::string first(1, static_cast<char>('a' + chain));
        UniqueFd folder = MakeFolder(top, first.c_str());
        for (long level = 1; level < depth && folder.IsOpen(); ++level) {
            folder = MakeFolder(folder.Get(), "d");
        }
        if (!folder.IsOpen()) {
            return false;
        }
    }
    return true;
}

bool Make(const std::string& shape, int top, long count) {
    if (shape == "foldered") {
        return MakeFoldered(top, count);
    }
    if (shape == "nested") {
        return MakeNested(top, count);
    }
    return MakeFlat(top, count, shape == "flat" ? kContent : "");
}

}  // namespace

int main(int argc, char** argv) {
    const std::string shape = argc == 4 ? argv[1] : "";
    const long count = argc == 4 ? std::strtol(argv[3], nullptr, 10) : 0;
    if (count < 1 ||
        (shape != "foldered" && shape != "flat" && shape != "empty" && shape != "nested")) {
        static_cast<void>(
            std::fprintf(stderr, "usage: make_tree foldered|flat|empty|nested FOLDER COUNT\n"));
        return 2;
    }
    const UniqueFd top = MakeFolder(AT_FDCWD, argv[2]);
    if (!top.IsOpen() || !Make(shape, top.Get(), count)) {
        std::perror(argv[2]);
        return 1;
    }
    return 0;
}
