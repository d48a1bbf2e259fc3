// File operations on UTF-8 paths: inspect, list, create, copy, move and remove.
//
// Results: an int result is 0 for success and negative for failure unless a function says
// otherwise; a boolean test is false on every failure. "Missing" is not a failure where an object
// is inspected. Failures are logged here, on the component file_op_debug; nothing is thrown.
// Nothing is rolled back: what was done before a failure stays, as each function describes. Times
// are whole seconds since the epoch, sizes are bytes.
//
// The functions keep no state and may be called from any thread. They are not atomic against other
// processes that change the same paths.
#pragma once

#include <dirent.h>

#include <cstdint>
#include <string>

/// What an object is. The values are stored and compared by others; 4 is not assigned.
enum FILE_TYPE : uint32_t {
    FILE_TYPE_UNKNOWN = 0,  ///< Only from a listing.
    FILE_TYPE_REGULAR = 1,
    FILE_TYPE_DIR = 2,
    FILE_TYPE_LINK = 3,  ///< A symbolic link, whatever it points to.
    FILE_TYPE_DEVICE = 5,
    FILE_TYPE_FIFO = 6,
    FILE_TYPE_SOCKET = 7
};

/// What is known of one object. It describes a symbolic link itself, never what it points to.
struct _FILE_INFO_tag {
    std::string path;  ///< The stored path; as given while the object does not exist.
    std::string name;  ///< The last component of `path`.
    uint32_t type = FILE_TYPE_UNKNOWN;
    int32_t mtime = 0;
    int64_t size = 0;
    bool exists = false;
    uint32_t uid = 0;
    uint32_t gid = 0;
    uint32_t mode = 0;  ///< Format and permission bits.
    int64_t dev = 0;
};

/// Compare existence, size, mtime, type, path and name; owner, mode and device take no part.
bool operator==(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b);
bool operator!=(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b);

// --- Objects ------------------------------------------------------------------------------------

/// Inspects an object. A missing one is a success with `exists` false and every number 0.
///
/// Returns 0; or -1 when the object cannot be inspected (the record is as it was), when it is of no
/// known type, or when its stored path cannot be found (the record is filled but for what is
/// missing).
int GetFileInfo(const std::string& path, _FILE_INFO_tag& info);

/// Whether an object exists. With `exact`, the path must also be the one that the file system
/// stores: absolute, no link among its folders, letter case alike; only composed and decomposed
/// characters are taken as equal. False for an empty path and when the object cannot be inspected. Of a
/// path that is not UTF-8 only the existence is asked.
bool IsFileExist(const std::string& path, bool exact);

/// Inspects an object that `IsFileExist` accepts; for any other sets `exists` to false and leaves
/// the other fields. Returns 0, -1 for an empty path, -2 when the object could not be inspected
/// after all.
int FSStat(const std::string& path, _FILE_INFO_tag& info, bool exact);

/// Whether `child` is `parent` or lies below it, by their text alone. "/" is nobody's parent.
bool FSIsParentFolder(const std::string& parent, const std::string& child);

/// Everything before the last "/"; "/" where that is nothing.
std::string FSParentPath(const std::string& path);

/// Everything after the last "/".
std::string FSBaseName(const std::string& path);

// --- Copy, move, remove -------------------------------------------------------------------------

/// Copies the content of one file; neither times nor owners. An existing destination is
/// overwritten.
///
/// The destination gets mode 644, or with `keep_mode` the mode of the source (none at all when
/// `source` is not its stored path), less the umask. The content is flushed to stable storage; a flush
/// that fails is not reported. With `remove_source` a complete copy removes the source
/// before that flush. Returns 0, -2 when the destination's volume or quota is full, -1 otherwise. A
/// destination that was created stays, with what had been written; the source stays.
int FSCopy(const std::string& source, const std::string& destination, bool remove_source,
           bool keep_mode);

/// Moves an object. On one volume this is the system's rename, with its rules for an existing
/// destination. Across volumes a regular file is copied and removed, and a folder is created (or
/// merged into) and its entries moved one by one; other types, links included, cannot cross.
///
/// `exact` is asked of the source as `IsFileExist` has it. Returns 0; -1 for an empty path; -2 when
/// there is no such source; -100 when a name is too long; -3 otherwise. A move across volumes that
/// fails leaves at the destination what had arrived there, and the rest at the source.
int FSRename(const std::string& source, const std::string& destination, bool exact);

/// Removes an object and, for a folder, everything below it. Symbolic links are removed, not followed; but
/// a path that ends in "/" names what a link leads to. The flag has no meaning.
///
/// Nothing outside the tree is removed, also when another program replaces folders of the tree by links
/// meanwhile. A folder inside the tree that lies on another volume (a mount) is left alone. The depth
/// of the tree is not limited; at most 20 descriptors are open at a time.
///
/// Returns 0, also when nothing was there and when the folder `path` could not be opened (it stays
/// then); -1 for an empty path or an object that cannot be inspected; -3 when something could not
/// be removed: the removal stops there and the rest of the tree stays. A folder below `path` that cannot
/// be opened stays, too, with the folders that lead to it; the removal goes on beside it, and the result
/// is -3.
int FSRemove(const std::string& path, bool unused);

/// Gives the owner of a folder the right to list and to change it, and every folder below it the
/// same. Files and symbolic links stay as they are; links are not followed.
///
/// Returns 0, also for a file; -1 when an object cannot be inspected or a folder cannot be changed or
/// listed. The other folders are changed all the same, but for those below such a folder. Nothing is
/// logged.
int FSMakeFoldersWritable(const std::string& path);

// --- Folders ------------------------------------------------------------------------------------

/// Creates a folder with mode 777 less the umask; with `recursive`, also every missing folder
/// above.
///
/// Returns 0, also when the folder is there; -1 for an empty path, for something else in its place
/// (a symbolic link to a folder included) or when the path cannot be inspected; -2 when a folder
/// cannot be created, with errno telling why. Folders created before a failure stay.
int FSMKDir(const std::string& path, bool recursive);

/// Creates each folder between an existing root and the target, the target included and the root
/// not. Returns 0, or -1 when the root is no parent folder of the target or a folder cannot be
/// created.
int FSMKDirFromRoot(const std::string& target, const std::string& root);

// --- Listing ------------------------------------------------------------------------------------

/// A listing in progress: closed until `FSOpenDir` succeeds, closed again by `FSCloseDir`. The
/// caller owns it and uses it from one thread at a time.
struct DIR_HANDLE {
    std::string path;
    int32_t options = 0;  ///< Bit 0: entries carry their times and sizes.
    DIR* dir = nullptr;   ///< Null while closed.
};

/// One listed entry.
struct DIR_ENTRY {
    std::string name;                   ///< Without the folder's path.
    uint32_t type = FILE_TYPE_UNKNOWN;  ///< As the listing tells it; not every volume does.
    int32_t mtime = 0;                  ///< 0 unless option bit 0 is set.
    int64_t size = 0;                   ///< 0 unless option bit 0 is set.
};

/// Opens a folder for listing; the handle must be closed. Returns 0, or -1 with the handle as it was.
int FSOpenDir(const std::string& path, int options, DIR_HANDLE& handle);

/// Reads the next entry, in the system's order, "." and ".." included. Times and sizes are 0 for
/// entries whose path through the handle is not their stored path.
///
/// Returns 1 with the entry filled; 0 at the end, -1 on failure and for a closed handle, both with the
/// entry as it was. The
/// handle stays open in every case.
int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry);

/// Closes a listing and empties its path. Harmless on a closed one.
void FSCloseDir(DIR_HANDLE& handle);

// --- Links, owners, times -----------------------------------------------------------------------

/// Flushes a file to stable storage. Returns 0, 1 when there is no such file, -1 on failure.
int FSFsync(const std::string& path);

/// Sets both times, in seconds, of the object itself, a symbolic link included. Returns 0 or -1.
int FSUTime(const std::string& path, long access_time, long modification_time);

/// Whether two times are the same second; there is no tolerance.
bool FSTimeEqual(long a, long b);

/// Creates an empty file of mode 644 with a random name in the folder; the caller owns it. Returns
/// 0 and its path in `path`, or -1 with `path` as it was.
int FSMktemp(const std::string& folder, std::string& path);

/// Makes up a random path in the folder; creates nothing and does not look whether it is free.
/// Returns 0, or -1 when there is none.
int FSCreateTempPath(const std::string& folder, std::string& path);

/// Ask the system whether this process may use the path in the given way (0 existence, 1 execute,
/// 2 write, 4 read, combinable). Only a refusal counts as locked or as not permitted: a missing
/// object is not locked, and permitted.
bool isFileLocked(const std::string& path, int mode);
bool hasFilePermission(const std::string& path, int mode);

/// Replaces the path by the stored path of what it leads to, links followed. Returns 0, or -1 with
/// the path as it was.
int FSGetRealPath(std::string& path);

/// Creates a symbolic link at `link` with the content `target`. Returns 0 or -1.
int FSCreateSymbolicLink(const std::string& target, const std::string& link);

/// Reads the content of a symbolic link, at most 1023 bytes. Returns 0, or -1 with `target` as it
/// was when it cannot be read or is longer.
int FSReadSymbolicLink(const std::string& link, std::string& target);

/// Changes the owner of the object itself, a symbolic link included. Returns 0 or -1.
int FSChown(const std::string& path, uint32_t uid, uint32_t gid);

/// Changes the permission bits of what the path leads to, links followed. Returns 0 or -1.
int FSChmod(const std::string& path, uint16_t mode);

// --- Volumes ------------------------------------------------------------------------------------

/// Whether the path lies on a network volume. (The name is older than this meaning.)
bool isMountPoint(const std::string& path);

/// Whether the path lies on a FAT volume.
bool IsMSDOS(const std::string& path);
