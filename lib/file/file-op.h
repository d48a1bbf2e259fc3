// File operations on UTF-8 paths: inspect, list, create, copy, move and remove.
//
// An int result is 0 for success and negative for failure, unless a function says otherwise. A
// boolean test is false on every failure, unless a function says otherwise. A function that
// inspects an object does not treat a missing object as a failure. Nothing is thrown.
//
// Failures are logged here, on the component file_op_debug. A function that does not log a failure
// says so.
//
// Nothing is rolled back: what was done before a failure stays, as each function describes. Times
// are whole seconds since the epoch, sizes are bytes.
//
// The functions keep no state and may be called from any thread. They are not atomic if other
// processes change the same paths.
#pragma once

#include <dirent.h>

#include <cstdint>
#include <string>

/// The type of an object. Other programs store and compare the values; 4 is not assigned.
enum FILE_TYPE : uint32_t {
    FILE_TYPE_UNKNOWN = 0,  ///< Only from a listing.
    FILE_TYPE_REGULAR = 1,
    FILE_TYPE_DIR = 2,
    FILE_TYPE_LINK = 3,  ///< A symbolic link, whatever it points to.
    FILE_TYPE_DEVICE = 5,
    FILE_TYPE_FIFO = 6,
    FILE_TYPE_SOCKET = 7
};

/// Describes one object. A record of a symbolic link describes the link, not its target.
struct _FILE_INFO_tag {
    std::string path;  ///< The stored path, or the given path if the object is missing.
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

/// Compare existence, size, mtime, type, path and name, but not owner, mode and device.
bool operator==(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b);
bool operator!=(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b);

// --- Objects ------------------------------------------------------------------------------------

/// Inspects an object. If it is missing, succeeds with `exists` false and every number 0.
///
/// Returns 0; or -1 in one of three cases. If the object cannot be inspected, the record is
/// unchanged and nothing is logged. If the object has no known type, all fields but `type` are set,
/// and nothing is logged. If its stored path cannot be found, all fields are set, `path` as given.
int GetFileInfo(const std::string& path, _FILE_INFO_tag& info);

/// Returns whether an object exists. Returns false for an empty path, or if the object cannot be
/// inspected.
///
/// With `exact`, `path` must also be the stored path: absolute, with the stored letter case, and
/// without symbolic links among its folders. Composed and decomposed characters count as equal. For
/// a path that is not UTF-8, `exact` has no effect. The only records are those of GetFileInfo.
bool IsFileExist(const std::string& path, bool exact);

/// Inspects an object that `IsFileExist` accepts. For any other path, sets `exists` to false and
/// leaves the other fields unchanged.
///
/// Returns 0; -1 for an empty path; -2 if the object could be inspected at first, but not a second
/// time. The only records are those of GetFileInfo.
int FSStat(const std::string& path, _FILE_INFO_tag& info, bool exact);

/// Returns whether `child` is `parent` or is below it. Compares the text of the paths only. The
/// root "/" does not count as the parent of "/a".
bool FSIsParentFolder(const std::string& parent, const std::string& child);

/// Returns everything before the last "/", or "/" if that is empty or if there is no "/".
std::string FSParentPath(const std::string& path);

/// Returns everything after the last "/", or the whole path if there is no "/".
std::string FSBaseName(const std::string& path);

// --- Copy, move, remove -------------------------------------------------------------------------

/// Copies the content of one file, but not its times and its owner. Overwrites an existing
/// destination.
///
/// Symbolic links are followed: if `destination` is one, the file that it leads to is overwritten.
/// The two paths must not lead to the same file, neither directly nor by a symbolic or hard link:
/// that file would be emptied, with the result 0. If a path leads to a FIFO, the function waits
/// until another process opens the FIFO. If `source` is a folder, the result is -1, and an empty
/// destination is left.
///
/// A new destination gets mode 644 or, with `keep_mode`, the mode of the source, less the umask.
/// With `keep_mode`, a source whose path is not its stored path counts as mode 0. An existing
/// destination keeps its mode. The content is flushed to stable storage; a failure of that is not
/// reported. With `remove_source`, a complete copy removes `source` before the flush.
///
/// Returns 0; -2 if the destination's volume or quota is full; -1 otherwise, also if `source`
/// cannot be removed, which is not logged. After a failure, `source` is still there, and so is a
/// destination that was created, with the content written so far.
int FSCopy(const std::string& source, const std::string& destination, bool remove_source,
           bool keep_mode);

/// Moves an object. On one volume this is the system's rename, with its rules for an existing
/// destination.
///
/// To another volume, a regular file is moved by FSCopy with `remove_source` and without
/// `keep_mode`. A folder is created by FSMKDir, or an existing folder is kept, and the entries are
/// moved one by one. Objects of other types, symbolic links included, cannot be moved to another
/// volume.
///
/// `source` must exist in the sense of IsFileExist with `exact`. Returns 0; -1 for an empty path;
/// -2 if `source` does not exist; -100 if `destination` is too long; -3 otherwise, also if a folder
/// would be moved into itself. If a move to another volume fails, the objects that were moved stay
/// at the destination, and the others stay at the source. The only records are those of the
/// functions named here and of GetFileInfo.
int FSRename(const std::string& source, const std::string& destination, bool exact);

/// Removes an object and, for a folder, everything below it. The flag has no effect.
///
/// Symbolic links are removed and not followed, except that the system follows a link if `path`
/// ends in "/". The tree is what is below the folder that was inspected: nothing else is removed,
/// even if another program replaces folders of the tree by symbolic links at the same time. A
/// folder that another program moves out of the tree while it is being removed may still be
/// emptied, up to what its listing gives. The depth of the tree is not limited. At most 18
/// descriptors are open at a time.
///
/// Returns 0, also if the object is missing, or if it is a folder that cannot be opened, which then
/// stays; -1 for an empty path or an object that cannot be inspected; -3 if something cannot be
/// removed. A removal with the result -3 stops early, and the rest of the tree stays. The causes
/// are:
/// - A folder below `path` cannot be opened. The other entries of its parent are removed first.
/// - A volume is mounted on a folder below `path`. Nothing on it is removed.
/// - The system refuses the removal of an entry.
///
/// The only records are those of GetFileInfo, and its DEBUG records for each entry.
int FSRemove(const std::string& path, bool unused);

/// Gives the owner of a folder the rights to read, to change and to search it, and does the same
/// for every folder below it on the same volume. Does not change other objects, and does not follow
/// symbolic links.
///
/// Returns 0, also for a file. Returns -1 if an object cannot be inspected, or if a folder cannot
/// be changed or opened. Then the folders below that folder are not changed, but all others are. A
/// read error in a folder is not reported. Logs nothing.
int FSMakeFoldersWritable(const std::string& path);

// --- Folders ------------------------------------------------------------------------------------

/// Creates a folder with mode 777 less the umask. With `recursive`, also creates every missing
/// folder above it.
///
/// Returns 0, also if the folder exists; -1 for an empty path, if `path` is anything but a folder
/// (a symbolic link to a folder included), or if it cannot be inspected; -2 with errno set if a
/// folder cannot be created. Folders that were created before a failure stay.
int FSMKDir(const std::string& path, bool recursive);

/// Creates each missing folder below an existing folder `root`, down to `target`. Returns 0, or -1
/// if `root` is not a parent folder of `target`, or if a folder cannot be created. Folders that
/// were created before a failure stay.
int FSMKDirFromRoot(const std::string& target, const std::string& root);

// --- Listing ------------------------------------------------------------------------------------

/// A listing of a folder. It is open from a successful `FSOpenDir` until `FSCloseDir`. The caller
/// owns it and uses it from one thread at a time.
struct DIR_HANDLE {
    std::string path;
    int32_t options = 0;  ///< Bit 0: entries carry their times and sizes.
    DIR* dir = nullptr;   ///< Null while closed.
};

/// One listed entry.
struct DIR_ENTRY {
    std::string name;                   ///< Without the folder's path.
    uint32_t type = FILE_TYPE_UNKNOWN;  ///< From the listing; some file systems do not give it.
    int32_t mtime = 0;                  ///< 0 unless option bit 0 is set.
    int64_t size = 0;                   ///< 0 unless option bit 0 is set.
};

/// Opens a folder for listing. The handle must be closed. Returns 0, or -1 with the handle
/// unchanged.
int FSOpenDir(const std::string& path, int options, DIR_HANDLE& handle);

/// Reads the next entry, in the system's order, "." and ".." included. The time and the size are 0
/// for an entry whose path, made of the handle's path and the name, is not its stored path.
///
/// Returns 1 with the entry filled; 0 at the end or after a read error, which is not logged; -1 if
/// the entry cannot be inspected or the handle is closed. The entry is filled only with the result
/// 1. The handle stays open in every case.
int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry);

/// Closes a listing and empties its path. A closed handle stays closed.
void FSCloseDir(DIR_HANDLE& handle);

// --- Links, owners, times -----------------------------------------------------------------------

/// Flushes a file to stable storage. Returns 0; 1 if the file is missing, which is not logged; -1
/// on failure.
int FSFsync(const std::string& path);

/// Sets both times, in seconds, of the object itself, a symbolic link included. Returns 0 or -1.
/// Logs nothing.
int FSUTime(const std::string& path, long access_time, long modification_time);

/// Returns whether two times are equal. There is no tolerance.
bool FSTimeEqual(long a, long b);

/// Creates an empty file with a random name of six characters in a folder. The caller owns the
/// file.
///
/// The mode is 644 whatever the umask, or 600 if the system refuses that. The mode is set before
/// the file is closed, so another object that takes the same name is never changed. Returns 0 with
/// the path of the file in `path`, or -1 with `path` unchanged.
int FSMktemp(const std::string& folder, std::string& path);

/// Makes a path with a random name of eight characters in a folder. Creates nothing, and does not
/// check whether the path is free. Returns 0, or -1 with `path` empty if there are no random bytes.
/// Logs nothing.
int FSCreateTempPath(const std::string& folder, std::string& path);

/// Returns whether the system refuses this process the given use of a path: 0 existence, 1 execute,
/// 2 write, 4 read, or a sum of these. Returns false if the object is missing. Logs nothing.
bool isFileLocked(const std::string& path, int mode);

/// Returns the opposite of `isFileLocked`. So the result is true for a missing object.
bool hasFilePermission(const std::string& path, int mode);

/// Replaces a path by the stored path of the object that it leads to. Follows symbolic links.
/// Returns 0, or -1 with `path` unchanged, which is not logged.
int FSGetRealPath(std::string& path);

/// Creates a symbolic link at `link` with the content `target`. Returns 0 or -1.
int FSCreateSymbolicLink(const std::string& target, const std::string& link);

/// Reads the content of a symbolic link, at most 1023 bytes. Returns 0, or -1 with `target`
/// unchanged if the content cannot be read or is longer.
int FSReadSymbolicLink(const std::string& link, std::string& target);

/// Changes the owner of the object itself, a symbolic link included. Returns 0 or -1.
int FSChown(const std::string& path, uint32_t uid, uint32_t gid);

/// Changes the permission bits of an object. Follows symbolic links. Returns 0 or -1.
int FSChmod(const std::string& path, uint16_t mode);

// --- Volumes ------------------------------------------------------------------------------------

/// Returns whether a path is on a network volume. The name is older than this meaning.
bool isMountPoint(const std::string& path);

/// Returns whether a path is on a FAT volume.
bool IsMSDOS(const std::string& path);
