// What differs between operating systems, stated once. The build picks the folder that implements
// it; no other code asks which system it runs on.
//
// Paths are UTF-8. Nothing here throws, keeps state or logs; every function may be called from any
// thread unless it says otherwise.
#pragma once

#include <cstddef>
#include <string>

/// The size of a buffer for a stored path, its terminating zero included.
constexpr std::size_t kStoredPathCapacity = 4096;

/// Finds the path under which the file system knows an existing object: absolute, the links among its
/// parent folders resolved, every component spelled as it is stored.
///
/// A final symbolic link is followed only when `follow_final_link` is set or the path ends in "/". On a
/// case-insensitive volume of Linux the letter case stays as asked for. `stored` may be `path` itself.
///
/// Returns 0 and the path in `stored`, or the system's own error number (never 0) with `stored` as it
/// was: no access, a stored path that does not fit kStoredPathCapacity, or no such object. A final
/// component that is missing and is not to be followed is an error on macOS alone.
int PlatformStoredPath(const std::string& path, bool follow_final_link, std::string& stored);

/// Names the type of the file system that holds the path: "nfs", "smbfs" or "afpfs" for a network
/// volume, "msdos" for a FAT volume, any other text for any other.
///
/// Follows symbolic links. Returns 0 and the name in `type`, or -1 with errno set and `type` as it
/// was.
int PlatformFileSystemType(const std::string& path, std::string& type);

/// Flushes what was written to an open file to stable storage, again after an interruption.
///
/// On macOS this also empties the cache of the drive, where the file system supports that. Returns 0, or
/// -1 with errno set.
int PlatformFlushFile(int fd);

/// Finds the program to run for a system tool, which is named by its absolute path on macOS.
///
/// Elsewhere a bundle may carry a stand-in for it: an executable file at the tool's path below the
/// folder PlatformTools beside the folder of the running executable. Without one the result is
/// `tool`.
std::string PlatformToolPath(const std::string& tool);

/// Makes the C library read and write file names as UTF-8, when the locale taken from the
/// environment has another character type or none. Every other part of the locale stays as it is.
///
/// Archive names are converted by way of this character type. Changes the whole process: to be
/// called while it has one thread, and again after anything that calls setlocale.
void PlatformUseUtf8CharacterType();

/// The logical resolution, in dots per inch, at which windows of this system have their design
/// size.
int PlatformDesignDpi();
