#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <utility>

#include "lib/file/file-op-internal.h"
#include "lib/file/file-op.h"
#include "lib/platform/retry.h"

namespace {

// How many folders of a tree are open at a time. The folder above the tree, and a folder that is about to
// be entered or to be opened again, come on top. A process has 256 descriptors by default on macOS.
constexpr std::size_t kMaxOpenFolders = 16;

// How often a folder is listed at most. Some file systems skip entries while others are removed, so a
// folder that is not empty after its listing is listed again. The limit ends the removal of a folder in
// which another program keeps creating files.
constexpr int kMaxListings = 20;

// Tells a folder from every other one, whatever its path.
struct FolderId {
    dev_t device;
    ino_t inode;
};

bool operator==(const FolderId& a, const FolderId& b) {
    return a.device == b.device && a.inode == b.inode;
}

struct OpenedFolder {
    UniqueDir stream;
    FolderId id{};
};

// Opens a folder without following a link. The stream is null on failure.
OpenedFolder OpenFolderAt(int parent, const char* name) {
    OpenedFolder folder;
    const int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    UniqueFd descriptor(RetryInterrupted([&] { return openat(parent, name, flags); }));
    struct stat status;
    if (descriptor.IsOpen() && fstat(descriptor.Get(), &status) == 0) {
        folder.id = {status.st_dev, status.st_ino};
        folder.stream.reset(fdopendir(descriptor.Get()));
    }
    if (folder.stream != nullptr) {
        descriptor.Release();  // The stream closes it.
    }
    return folder;
}

// The folder that holds an object, and the object's name there.
struct Location {
    std::string folder;
    std::string name;
};

// Splits a path. Separators at its end stay with the name, because they ask for a link to be followed.
Location LocationOf(const std::string& path) {
    const std::size_t end = path.find_last_not_of('/');
    const std::size_t separator = end == std::string::npos ? end : path.rfind('/', end);
    if (separator == std::string::npos) {
        return {".", path};
    }
    return {path.substr(0, separator + 1), path.substr(separator + 1)};
}

// Removes one folder and everything below it.
//
// Each folder is opened without following a link, and its entries are removed through its descriptor. So
// a folder that another program replaces by a link meanwhile leads nowhere, and paths may be longer than
// the system takes them.
class TreeRemoval {
public:
    // The stored path serves the log records only.
    TreeRemoval(const std::string& path, const std::string& stored_path)
        : path_(path), stored_path_(stored_path) {}

    // Returns 0, also when the folder cannot be opened, and -3 after the first failure.
    int Run() {
        Location location = LocationOf(path_);
        const int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
        above_ = OpenFile(location.folder, flags);
        if (!above_.IsOpen()) {
            location.name = path_;  // A folder may allow to be searched but not to be read.
        }
        if (!Enter(location.name.c_str())) {
            return -3;
        }
        while (!levels_.empty()) {
            const dirent* const entry = readdir(levels_.back().stream.get());
            if (!(entry != nullptr ? RemoveEntry(*entry) : FinishListing())) {
                return -3;
            }
        }
        return 0;
    }

private:
    // A folder between the top of the tree and the folder that is being listed.
    struct Level {
        std::string name;
        FolderId id;
        UniqueDir stream;  // Null while the folder is closed to save a descriptor.
        int listings = 1;
        bool has_removed = false;  // In the current listing.
    };

    int DescriptorOf(std::size_t level) const { return dirfd(levels_[level].stream.get()); }

    // The descriptor of the folder that holds a level.
    int DescriptorAbove(std::size_t level) const {
        if (level > 0) {
            return DescriptorOf(level - 1);
        }
        return above_.IsOpen() ? above_.Get() : AT_FDCWD;
    }

    // Makes a folder the innermost level. Leaves it in place when it cannot be opened; the folder that
    // holds it is then not empty. Returns false for a folder on another volume.
    bool Enter(const char* name) {
        OpenedFolder folder = OpenFolderAt(DescriptorAbove(levels_.size()), name);
        if (folder.stream == nullptr) {
            return true;
        }
        if (!levels_.empty() && folder.id.device != levels_.front().id.device) {
            return false;
        }
        levels_.push_back({name, folder.id, std::move(folder.stream)});
        if (levels_.size() > kMaxOpenFolders) {
            levels_[levels_.size() - 1 - kMaxOpenFolders].stream.reset();
        }
        return true;
    }

    bool RemoveEntry(const dirent& entry) {
        if (IsDotOrDotDot(entry.d_name)) {
            return true;
        }
        LogInspection(entry.d_name);
        const int folder = DescriptorOf(levels_.size() - 1);
        if (IsFolderAt(folder, entry)) {
            return Enter(entry.d_name);
        }
        if (unlinkat(folder, entry.d_name, 0) != 0) {
            return errno == ENOENT;  // Another program was faster.
        }
        levels_.back().has_removed = true;
        return true;
    }

    // Not every volume tells the type in a listing.
    static bool IsFolderAt(int folder, const dirent& entry) {
        struct stat status;
        return entry.d_type == DT_DIR ||
               (entry.d_type == DT_UNKNOWN &&
                fstatat(folder, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
                S_ISDIR(status.st_mode));
    }

    // Removes the innermost folder after its listing, or lists it once more.
    bool FinishListing() {
        Level& level = levels_.back();
        if (!OpenParentAgain()) {
            return false;
        }
        const int parent = DescriptorAbove(levels_.size() - 1);
        if (unlinkat(parent, level.name.c_str(), AT_REMOVEDIR) != 0) {
            const bool is_not_empty = errno == ENOTEMPTY || errno == EEXIST;
            return is_not_empty && ListAgain(level);
        }
        levels_.pop_back();
        if (!levels_.empty()) {
            levels_.back().has_removed = true;
        }
        return true;
    }

    static bool ListAgain(Level& level) {
        if (!level.has_removed || level.listings >= kMaxListings) {
            return false;
        }
        rewinddir(level.stream.get());
        level.has_removed = false;
        ++level.listings;
        return true;
    }

    // Opens the parent of the innermost folder, if it was closed, from below. Its listing begins anew.
    // Returns false when the folder has been moved to another parent meanwhile.
    bool OpenParentAgain() {
        if (levels_.size() < 2 || levels_[levels_.size() - 2].stream != nullptr) {
            return true;
        }
        Level& parent = levels_[levels_.size() - 2];
        OpenedFolder folder = OpenFolderAt(DescriptorOf(levels_.size() - 1), "..");
        if (folder.stream == nullptr || !(folder.id == parent.id)) {
            return false;
        }
        parent.stream = std::move(folder.stream);
        return true;
    }

    // Writes the records of GetFileInfo for an entry of the innermost folder.
    void LogInspection(const char* name) const {
        LOG_MSG(DEBUG, "Input file path = [%s].", (path_ + PathBelowTop(name)).c_str());
        LOG_MSG(DEBUG, "FSRefMakePath outTargetPath path = [%s].",
                (stored_path_ + PathBelowTop(name)).c_str());
    }

    std::string PathBelowTop(const char* name) const {
        std::string path;
        for (std::size_t i = 1; i < levels_.size(); ++i) {
            path += "/" + levels_[i].name;
        }
        return path + "/" + name;
    }

    const std::string& path_;
    const std::string& stored_path_;
    UniqueFd above_;
    std::vector<Level> levels_;  // The top of the tree first.
};

}  // namespace

int FSRemove(const std::string& path, bool /*unused*/) {
    _FILE_INFO_tag info;
    if (path.empty() || GetFileInfo(path, info) != 0) {
        return -1;
    }
    if (!info.exists) {
        return 0;
    }
    if (info.type == FILE_TYPE_DIR) {
        return TreeRemoval(path, info.path).Run();
    }
    return unlink(path.c_str()) == 0 ? 0 : -3;
}
