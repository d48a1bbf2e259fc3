#include <cerrno>
#include <cstring>

#include "lib/file/file-op-internal.h"

namespace file_op {

bool IsDotOrDotDot(const char* name) {
    return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

UniqueDir OpenFolder(const std::string& path) {
    DIR* stream;
    do {
        stream = opendir(path.c_str());
    } while (stream == nullptr && errno == EINTR);
    return UniqueDir(stream);
}

bool ReadNames(const std::string& folder, std::vector<std::string>& names) {
    const UniqueDir stream = OpenFolder(folder);
    if (stream == nullptr) {
        return false;
    }
    while (const dirent* const entry = readdir(stream.get())) {
        if (!IsDotOrDotDot(entry->d_name)) {
            names.emplace_back(entry->d_name);
        }
    }
    return true;
}

}  // namespace file_op
