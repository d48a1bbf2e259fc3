// What the sources of the file operations share.
#pragma once

#include <dirent.h>
#include <sys/stat.h>

#include <memory>
#include <string>
#include <vector>

#include "lib/file/file-op.h"
#include "lib/log.h"
#include "lib/platform/unique_fd.h"

#define LOG_SOURCE "file-op"

inline const std::string kLogComponent = "file_op_debug";

/// The system's text for an errno value.
std::string ErrorText(int error);

/// `GetFileInfo` for an entry of a folder whose stored path is known. That gives the entry's, with its
/// name as the folder lists it, without another question to the system.
int GetEntryInfo(const std::string& path, const std::string& stored_folder, _FILE_INFO_tag& info);

/// Opens a file, close-on-exec, again after an interruption. None with errno set on failure.
UniqueFd OpenFile(const std::string& path, int flags, mode_t mode = 0);

/// Whether the path leads to a folder, links followed.
bool IsFolder(const std::string& path);

/// Whether the name of an entry means its folder itself or the folder above.
bool IsDotOrDotDot(const char* name);

struct CloseFolder {
    void operator()(DIR* stream) const { closedir(stream); }
};
using UniqueDir = std::unique_ptr<DIR, CloseFolder>;

/// Opens a folder as a stream, again after an interruption. Null with errno set on failure.
UniqueDir OpenFolder(const std::string& path);

/// Appends the names in a folder, "." and ".." left out, in the system's order. False when it cannot be
/// opened. A read error ends the names early; the system does not tell it apart.
///
/// All names are read before the caller touches an entry: some systems skip entries of a folder that
/// changes under the reader, and a caller that descends thousands of levels keeps no descriptor open.
bool ReadNames(const std::string& folder, std::vector<std::string>& names);
