#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "lib/platform/linux/proc_link.h"
#include "lib/platform/platform.h"

namespace {

// Where /proc names the file that the process was started from.
constexpr const char* kOwnExecutable = "/proc/self/exe";

using PathBuffer = std::array<char, kStoredPathCapacity>;

int RealPath(const std::string& path, std::string& stored) {
    static_assert(kStoredPathCapacity >= PATH_MAX, "realpath writes up to PATH_MAX bytes");
    PathBuffer buffer;
    if (realpath(path.c_str(), buffer.data()) == nullptr) {
        return -1;
    }
    stored = buffer.data();
    return 0;
}

// The path of the folder that holds the object. It ends in no separator: realpath would look at it
// twice.
std::string FolderOf(const std::string& path, std::size_t separator) {
    if (separator == std::string::npos) {
        return ".";
    }
    return separator == 0 ? "/" : path.substr(0, separator);
}

// Resolves the folder, and appends the final component, which may be a symbolic link.
int StoredPathOfLink(const std::string& path, std::string& stored) {
    const std::size_t separator = path.rfind('/');
    const std::string_view name(path.c_str() + separator + 1);  // npos + 1 is 0: the whole path.
    if (name.empty() || name == "." || name == "..") {
        return RealPath(path, stored);  // These name a folder, never a link.
    }
    std::string folder;
    if (RealPath(FolderOf(path, separator), folder) != 0) {
        return -1;
    }
    if (folder.size() > 1) {
        folder += '/';
    }
    folder += name;
    if (folder.size() >= kStoredPathCapacity) {
        errno = ENAMETOOLONG;
        return -1;
    }
    stored = std::move(folder);
    return 0;
}

}  // namespace

int ReadProcLink(const char* link, std::string& content) {
    PathBuffer buffer;
    const ssize_t length = readlink(link, buffer.data(), buffer.size());
    if (length < 0) {
        return -1;
    }
    if (static_cast<std::size_t>(length) == buffer.size()) {
        errno = ENAMETOOLONG;  // The content may have been cut.
        return -1;
    }
    content.assign(buffer.data(), static_cast<std::size_t>(length));
    return 0;
}

int PlatformStoredPath(const std::string& path, bool follow_final_link, std::string& stored) {
    const int result = follow_final_link ? RealPath(path, stored) : StoredPathOfLink(path, stored);
    return result == 0 ? 0 : errno;
}

std::string PlatformToolPath(const std::string& tool) {
    std::string executable;
    if (ReadProcLink(kOwnExecutable, executable) != 0) {
        return tool;
    }
    const std::string folder = executable.substr(0, executable.rfind('/'));
    const std::string stand_in = folder + "/../PlatformTools" + tool;
    struct stat status;
    const bool usable = stat(stand_in.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
                        access(stand_in.c_str(), X_OK) == 0;
    return usable ? stand_in : tool;
}
