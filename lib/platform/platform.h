// The functions that differ between operating systems. CMake chooses the folder that implements
// them. No other code asks which system it runs on.
//
// Paths are UTF-8. No function throws, keeps state or logs. Any thread may call a function unless
// its comment says otherwise.
#pragma once

#include <cstddef>
#include <string>

#include "lib/platform/unique_fd.h"

/// The size of a buffer for a stored path, in bytes, its final NUL included.
constexpr std::size_t kStoredPathCapacity = 4096;

/// Finds the path under which the file system stores an existing object. It is absolute, symbolic
/// links among its parent folders are resolved, and every component is spelled as it is stored.
///
/// Follows a final symbolic link only if `follow_final_link` is set or the path ends in "/". On a
/// case-insensitive volume of Linux, the letter case is that of `path`. `stored` may be `path`
/// itself.
///
/// Returns 0 and sets `stored` on success. Otherwise leaves `stored` unchanged and returns the
/// system's error number, which is never 0: the object is not accessible, a folder of its path is
/// missing, or its stored path does not fit kStoredPathCapacity. Without `follow_final_link`, only
/// macOS reports that the object itself is missing.
int PlatformStoredPath(const std::string& path, bool follow_final_link, std::string& stored);

/// Opens a folder in order to reach its entries by their names. On Linux this needs no permission
/// to read the folder. The result is not open on failure, and errno tells why.
UniqueFd PlatformOpenForSearch(const std::string& folder);

/// Returns whether an open folder is the root of a mounted volume. Returns false if the system does
/// not tell; a volume of its own then still has its own device number.
bool PlatformIsMountRoot(int folder);

/// Finds the type of the file system that holds a path: "nfs", "smbfs" or "afpfs" for a network
/// volume, "msdos" for a FAT volume, and any other text for all others.
///
/// Follows symbolic links. Returns 0 and sets `type` on success. Otherwise returns -1 with errno
/// set, and leaves `type` unchanged.
int PlatformFileSystemType(const std::string& path, std::string& type);

/// Flushes the content of an open file to stable storage, and tries again after an interruption.
///
/// On macOS this also empties the cache of the drive, if the file system supports that. Returns 0,
/// or -1 with errno set.
int PlatformFlushFile(int fd);

/// Returns the path of the program to run for a system tool.
///
/// `tool` is the tool's absolute path on macOS, and there it is the result. On other systems a
/// bundle may carry a replacement at "../PlatformTools" + `tool`, relative to the folder of the
/// running executable. The result is the replacement if it is an executable file, else `tool`.
std::string PlatformToolPath(const std::string& tool);

/// Sets the character type of the C library's locale to UTF-8, unless it is UTF-8 already. The
/// other parts of the locale do not change.
///
/// libarchive converts the names in an archive by this character type. Since the whole process is
/// affected, call this while the process has one thread. Call it again after a call of setlocale.
void PlatformUseUtf8CharacterType();

/// Returns the logical resolution, in dots per inch, at which windows of this system have the size
/// for which they are designed.
int PlatformDesignDpi();
