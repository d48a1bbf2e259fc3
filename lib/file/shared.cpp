#include <fcntl.h>

#include <cerrno>
#include <cstring>

#include "lib/file/file-op-internal.h"
#include "lib/platform/retry.h"
#include "lib/platform/unique_fd.h"

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

UniqueDir OpenFolderAt(int parent, const char* name) {
    const int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    UniqueFd descriptor(RetryInterrupted([&] { return openat(parent, name, flags); }));
    UniqueDir stream(descriptor.IsOpen() ? fdopendir(descriptor.Get()) : nullptr);
    if (stream != nullptr) {
        descriptor.Release();  // The stream closes it.
    }
    return stream;
}

bool ReadNames(UniqueDir folder, std::vector<std::string>& names) {
    if (folder == nullptr) {
        return false;
    }
    while (const dirent* const entry = readdir(folder.get())) {
        if (!IsDotOrDotDot(entry->d_name)) {
            names.emplace_back(entry->d_name);
        }
    }
    return true;
}

}  // namespace file_op
