#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "lib/platform/linux/proc_link.h"
#include "lib/platform/platform.h"
#include "lib/platform/unique_fd.h"

namespace {

// Where /proc names the file that the process was started from.
constexpr const char* kOwnExecutable = "/proc/self/exe";

using PathBuffer = std::array<char, kStoredPathCapacity>;

// Whether the kernel's name of an object is its path. It also names what has no path, such as a pipe,
// and marks what was removed meanwhile. Those, and a file whose name looks like the mark, are left to
// the C library.
bool IsPath(const std::string& name) {
    static const std::string removed = " (deleted)";
    const bool is_marked = name.size() > removed.size() &&
                           name.compare(name.size() - removed.size(), removed.size(), removed) == 0;
    return name[0] == '/' && !is_marked;
}

// The kernel's own name of an object costs one open and one read, whatever the depth of the path.
int StoredPathFromKernel(const std::string& path, bool follow_final_link, std::string& stored) {
    const int flags = O_PATH | O_CLOEXEC | (follow_final_link ? 0 : O_NOFOLLOW);
    const UniqueFd object(open(path.c_str(), flags));
    if (!object.IsOpen()) {
        return -1;
    }
    std::array<char, 32> link;
    static_cast<void>(  // The buffer holds any number.
        std::snprintf(link.data(), link.size(), "/proc/self/fd/%d", object.Get()));
    std::string name;
    if (ReadProcLink(link.data(), name) != 0 || !IsPath(name)) {
        return -1;
    }
    stored = std::move(name);
    return 0;
}

int RealPath(const std::string& path, std::string& stored) {
    static_assert(kStoredPathCapacity >= PATH_MAX, "realpath writes up to PATH_MAX bytes");
    PathBuffer buffer;
    if (realpath(path.c_str(), buffer.data()) == nullptr) {
        return -1;
    }
    stored = buffer.data();
    return 0;
}

// Without /proc: the parent resolved by the C library, and the final component under it.
int StoredPathFromParent(const std::string& path, std::string& stored) {
    const std::size_t separator = path.rfind('/');
    const bool has_folder = separator != std::string::npos;
    const std::string folder = has_folder ? path.substr(0, separator + 1) : ".";
    const std::string name = has_folder ? path.substr(separator + 1) : path;
    if (name.empty() || name == "." || name == "..") {
        return RealPath(path, stored);  // These name a folder, never a link.
    }
    std::string parent;
    struct stat status;
    if (RealPath(folder, parent) != 0 || lstat(path.c_str(), &status) != 0) {
        return -1;
    }
    const std::string joined = (parent == "/" ? parent : parent + "/") + name;
    if (joined.size() >= kStoredPathCapacity) {
        errno = ENAMETOOLONG;
        return -1;
    }
    stored = joined;
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
    if (StoredPathFromKernel(path, follow_final_link, stored) == 0) {
        return 0;
    }
    // No /proc, or no descriptor left: the slower way needs neither.
    const int result =
        follow_final_link ? RealPath(path, stored) : StoredPathFromParent(path, stored);
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
