#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "lib/file/file-op-internal.h"
#include "lib/file/file-op.h"
#include "lib/platform/platform.h"
#include "lib/platform/unique_fd.h"

using file_op::UniqueDir;

namespace {

// The largest number of listed folders that are open at a time. Two more descriptors are open at
// most: for the folder above the tree, and for a folder that is being entered. On macOS a process
// has 256 descriptors by default.
constexpr std::size_t kMaxOpenFolders = 16;

// The largest number of listings of one folder. Some file systems skip entries while others are
// removed, so a folder that is not empty after its listing is listed again. The limit is for a
// folder in which another program keeps creating files.
constexpr int kMaxListings = 20;

// Identifies a folder independently of its path.
struct FolderId {
    dev_t device;
    ino_t inode;
};

bool operator==(const FolderId& a, const FolderId& b) {
    return a.device == b.device && a.inode == b.inode;
}

FolderId IdOf(const struct stat& status) {
    return {status.st_dev, status.st_ino};
}

struct OpenedFolder {
    UniqueDir stream;
    FolderId id{};
};

// Opens a folder without following a symbolic link. The stream is null on failure.
OpenedFolder OpenFolderAt(int parent, const char* name) {
    OpenedFolder folder;
    folder.stream = file_op::OpenFolderAt(parent, name);
    struct stat status;
    if (folder.stream != nullptr && fstat(dirfd(folder.stream.get()), &status) == 0) {
        folder.id = IdOf(status);
    } else {
        folder.stream.reset();
    }
    return folder;
}

// Removes one folder and everything below it.
//
// Opens each folder without following a symbolic link, and removes its entries relative to its
// descriptor. So if another program replaces a folder by a symbolic link, nothing behind that link
// is removed. And the tree may be so deep that its paths are longer than the system accepts.
class TreeRemoval {
public:
    // Refers to both paths. The stored path has no symbolic links in it.
    TreeRemoval(const std::string& path, const std::string& stored_path)
        : path_(path), stored_path_(stored_path) {}

    // Returns 0 on success, also if the folder cannot be opened, and -3 after the first failure.
    int Run() {
        above_ = PlatformOpenForSearch(FSParentPath(stored_path_));
        const std::string name = above_.IsOpen() ? FSBaseName(stored_path_) : path_;
        if (!EnterOrLeave(name.c_str())) {
            return -3;
        }
        while (!levels_.empty()) {
            const dirent* const entry = readdir(levels_.back().stream.get());
            const bool can_go_on = entry != nullptr ? RemoveEntry(*entry) : FinishListing();
            if (!can_go_on) {
                return -3;
            }
        }
        return 0;
    }

private:
    // The folder that is being listed, or a folder above it in the tree.
    struct Level {
        std::string name;
        FolderId id;
        UniqueDir stream;  // Null while the folder is closed to save a descriptor.
        int listings = 1;
        bool has_removed = false;  // Whether the current listing has removed an entry.
    };

    int DescriptorOf(std::size_t level) const { return dirfd(levels_[level].stream.get()); }

    // The descriptor of the folder that holds a level.
    int DescriptorAbove(std::size_t level) const {
        if (level > 0) {
            return DescriptorOf(level - 1);
        }
        return above_.IsOpen() ? above_.Get() : AT_FDCWD;
    }

    // Makes a folder the innermost level, or leaves it alone if it cannot be opened; its parent
    // then cannot be removed either. Returns false if a volume is mounted there.
    bool EnterOrLeave(const char* name) {
        OpenedFolder folder = OpenFolderAt(DescriptorAbove(levels_.size()), name);
        if (folder.stream == nullptr) {
            return true;
        }
        if (!levels_.empty() && (folder.id.device != levels_.front().id.device ||
                                 PlatformIsMountRoot(dirfd(folder.stream.get())))) {
            return false;
        }
        levels_.push_back({name, folder.id, std::move(folder.stream)});
        if (levels_.size() > kMaxOpenFolders) {
            levels_[levels_.size() - 1 - kMaxOpenFolders].stream.reset();
        }
        return true;
    }

    // Removes an entry of the innermost folder, or enters it if it is a folder. Returns false on
    // failure.
    bool RemoveEntry(const dirent& entry) {
        if (file_op::IsDotOrDotDot(entry.d_name)) {
            return true;
        }
        LogInspection(entry.d_name);
        const int folder = DescriptorOf(levels_.size() - 1);
        if (IsFolderAt(folder, entry)) {
            return EnterOrLeave(entry.d_name);
        }
        if (unlinkat(folder, entry.d_name, 0) != 0) {
            return errno == ENOENT;  // Another program has removed it.
        }
        levels_.back().has_removed = true;
        return true;
    }

    // Returns whether an entry is a folder. Some file systems do not give the type in a listing.
    static bool IsFolderAt(int folder, const dirent& entry) {
        struct stat status;
        return entry.d_type == DT_DIR ||
               (entry.d_type == DT_UNKNOWN &&
                fstatat(folder, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
                S_ISDIR(status.st_mode));
    }

    // Removes the innermost folder after its listing, or begins to list it again. Returns false on
    // failure.
    bool FinishListing() {
        if (!OpenParentAgain()) {
            return false;
        }
        levels_.back().stream.reset();
        if (!RemoveInnermost()) {
            return (errno == ENOTEMPTY || errno == EEXIST) && ListAgain();
        }
        levels_.pop_back();
        if (!levels_.empty()) {
            levels_.back().has_removed = true;
        }
        return true;
    }

    bool RemoveInnermost() const {
        const std::size_t level = levels_.size() - 1;
        // A path such as "tree/" or "." says more than the folder's name, so the system judges it.
        if (level == 0 && FSBaseName(path_) != levels_[0].name) {
            return rmdir(path_.c_str()) == 0;
        }
        return unlinkat(DescriptorAbove(level), levels_[level].name.c_str(), AT_REMOVEDIR) == 0;
    }

    // Begins to list the innermost folder again. Returns false if that would not help, or if
    // another program has put something else in the folder's place.
    bool ListAgain() {
        Level& level = levels_.back();
        if (!level.has_removed || level.listings >= kMaxListings) {
            return false;
        }
        OpenedFolder folder = OpenFolderAt(DescriptorAbove(levels_.size() - 1), level.name.c_str());
        if (folder.stream == nullptr || !(folder.id == level.id)) {
            return false;
        }
        level.stream = std::move(folder.stream);
        level.has_removed = false;
        ++level.listings;
        return true;
    }

    // Opens the parent of the innermost folder again if it was closed, by the entry "..". The
    // listing of the parent then begins anew. Returns false if another program has moved one of the
    // two folders to another parent, or if the parent cannot be opened.
    bool OpenParentAgain() {
        const std::size_t innermost = levels_.size() - 1;
        if (innermost == 0 || levels_[innermost - 1].stream != nullptr) {
            return true;
        }
        Level& parent = levels_[innermost - 1];
        OpenedFolder folder = OpenFolderAt(DescriptorOf(innermost), "..");
        if (folder.stream == nullptr || !(folder.id == parent.id)) {
            return false;
        }
        struct stat status;
        if (innermost > 1 && (fstatat(dirfd(folder.stream.get()), "..", &status, 0) != 0 ||
                              !(IdOf(status) == levels_[innermost - 2].id))) {
            return false;
        }
        parent.stream = std::move(folder.stream);
        return true;
    }

    // Writes the two records that GetFileInfo would write about an entry of the innermost folder.
    void LogInspection(const char* name) const {
        LOG_FILE_OP(DEBUG, "Input file path = [%s].", (path_ + PathBelowTop(name)).c_str());
        LOG_FILE_OP(DEBUG, "FSRefMakePath outTargetPath path = [%s].",
                    (stored_path_ + PathBelowTop(name)).c_str());
    }

    // Returns the path of an entry of the innermost folder, relative to the top of the tree.
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
