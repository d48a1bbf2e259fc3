// The least that copies or moves a tree as the product does, by whole paths and in blocks of 8 KiB:
//
//   plain_tree copy SOURCE DESTINATION | plain_tree move SOURCE DESTINATION
//
// Each file is flushed before it is closed; a moved one loses its source before that. A failure
// ends the work.

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <cstdio>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "bench/stopwatch.h"
#include "lib/platform/unique_fd.h"

namespace {

constexpr std::size_t kBlockSize = 8192;
constexpr mode_t kFileMode = 0644;
constexpr mode_t kFolderMode = 0777;

enum class Source { kStays, kGoes };

bool WriteAll(int file, const char* data, std::size_t size) {
    while (size > 0) {
        const ssize_t written = write(file, data, size);
        if (written <= 0) {
            return false;
        }
        data += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

bool CopyContent(int from, int to) {
    std::array<char, kBlockSize> block;
    for (;;) {
        const ssize_t count = read(from, block.data(), block.size());
        if (count <= 0) {
            return count == 0;
        }
        if (!WriteAll(to, block.data(), static_cast<std::size_t>(count))) {
            return false;
        }
    }
}

bool TakeFile(const std::string& source, const std::string& destination, Source then) {
    UniqueFd from(open(source.c_str(), O_RDONLY | O_CLOEXEC));
    const UniqueFd to(
        open(destination.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kFileMode));
    if (!from.IsOpen() || !to.IsOpen() || !CopyContent(from.Get(), to.Get())) {
        return false;
    }
    from.Close();
    if (then == Source::kGoes && unlink(source.c_str()) != 0) {
        return false;
    }
    return fsync(to.Get()) == 0;
}

bool TakeLink(const std::string& source, const std::string& destination, Source then) {
    std::array<char, PATH_MAX> target;
    const ssize_t length = readlink(source.c_str(), target.data(), target.size());
    if (length < 0) {
        return false;
    }
    const std::string text(target.data(), static_cast<std::size_t>(length));
    return symlink(text.c_str(), destination.c_str()) == 0 &&
           (then == Source::kStays || unlink(source.c_str()) == 0);
}

using Entry = std::pair<std::string, unsigned char>;

/// Reads all names before any of them goes: some systems skip entries of a folder that changes.
bool ReadEntries(const std::string& folder, std::vector<Entry>& entries) {
    DIR* const stream = opendir(folder.c_str());
    if (stream == nullptr) {
        return false;
    }
    while (const dirent* const entry = readdir(stream)) {
        if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0) {
            entries.emplace_back(entry->d_name, entry->d_type);
        }
    }
    return closedir(stream) == 0;
}

bool TakeFolder(const std::string& source, const std::string& destination, Source then);

bool TakeEntry(unsigned char type, const std::string& source, const std::string& destination,
               Source then) {
    switch (type) {
        case DT_DIR:
            return TakeFolder(source, destination, then);
        case DT_LNK:
            return TakeLink(source, destination, then);
        case DT_REG:
            return TakeFile(source, destination, then);
        default:
            return false;
    }
}

bool TakeFolder(const std::string& source, const std::string& destination, Source then) {
    std::vector<Entry> entries;
    if (mkdir(destination.c_str(), kFolderMode) != 0 || !ReadEntries(source, entries)) {
        return false;
    }
    for (const auto& [name, type] : entries) {
        std::string from = source;
        std::string to = destination;
        from.append("/").append(name);
        to.append("/").append(name);
        if (!TakeEntry(type, from, to, then)) {
            std::perror(from.c_str());
            return false;
        }
    }
    return then == Source::kStays || rmdir(source.c_str()) == 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string operation = argc == 4 ? argv[1] : "";
    if (operation != "copy" && operation != "move") {
        static_cast<void>(std::fprintf(stderr, "usage: plain_tree copy|move SOURCE DESTINATION\n"));
        return 2;
    }
    const Source then = operation == "move" ? Source::kGoes : Source::kStays;
    return Measured([argv, then] { return TakeFolder(argv[2], argv[3], then) ? 0 : -1; });
}
