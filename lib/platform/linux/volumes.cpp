#include <sys/vfs.h>

#include <algorithm>
#include <iterator>

#include "lib/platform/platform.h"
#include "lib/platform/retry.h"

namespace {

// The numbers are part of the kernel's interface. Its headers define only some of them.
struct FileSystemType {
    unsigned long magic;
    const char* name;
};

constexpr FileSystemType kFileSystemTypes[] = {
    {0x6969, "nfs"},       {0x517B, "smbfs"},  // The first SMB client.
    {0xFF534D42, "smbfs"},                     // CIFS.
    {0xFE534D42, "smbfs"},                     // SMB 2 and later.
    {0x4D44, "msdos"},
};

const char* FileSystemTypeName(unsigned long magic) {
    const auto* const found =
        std::find_if(std::begin(kFileSystemTypes), std::end(kFileSystemTypes),
                     [magic](const FileSystemType& type) { return type.magic == magic; });
    return found == std::end(kFileSystemTypes) ? "other" : found->name;
}

}  // namespace

int PlatformFileSystemType(const std::string& path, std::string& type) {
    struct statfs status;
    if (RetryInterrupted([&] { return statfs(path.c_str(), &status); }) != 0) {
        return -1;
    }
    // The cast keeps 0xFF534D42 positive on architectures where the field is signed.
    type = FileSystemTypeName(static_cast<unsigned int>(status.f_type));
    return 0;
}
