#include <fcntl.h>

#include <cerrno>
#include <cstring>
#include <system_error>

#include "lib/file/file-op-internal.h"
#include "lib/platform/retry.h"

std::string ErrorText(int error) {
    return std::generic_category().message(error);
}

UniqueFd OpenFile(const std::string& path, int flags, mode_t mode) {
    return UniqueFd(RetryInterrupted([&] { return open(path.c_str(), flags | O_CLOEXEC, mode); }));
}

bool IsFolder(const std::string& path) {
    struct stat status;
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

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
