// What the sources of the file operations share. It is not installed.
#pragma once

#include <dirent.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "lib/file/file-op.h"
#include "lib/log.h"

#define LOG_SOURCE "file-op"

namespace file_op {

inline const std::string kLogComponent = "file_op_debug";

/// The sources that log. All of them use the same source name, so each one adds its own thousand to
/// its line numbers: "file-op(3042)" is line 42 of folders.cpp. Append new sources at the end.
inline constexpr std::string_view kSources[] = {
    "objects.cpp",             // 1000
    "copy-move.cpp",           // 2000
    "folders.cpp",             // 3000
    "listing.cpp",             // 4000
    "links-owners-times.cpp",  // 5000
    "remove.cpp",              // 6000
    "volumes.cpp",             // 7000
};
constexpr int kLinesPerSource = 1000;

/// Returns the number that stands for a line in records. Returns 0 if the source is not in the
/// table, or if it is too long for the numbers of its lines to be its own.
constexpr int RecordLine(std::string_view file, int line) {
    const std::string_view name = file.substr(file.rfind('/') + 1);
    int base = 0;
    for (const std::string_view source : kSources) {
        base += kLinesPerSource;
        if (source == name) {
            return line < kLinesPerSource ? base + line : 0;
        }
    }
    return 0;
}

static_assert(RecordLine("lib/file/folders.cpp", 42) == 3042);

/// Returns whether the path by which an object was inspected is its stored path. Composed and
/// decomposed characters are equal.
bool IsStoredPath(const std::string& path, const _FILE_INFO_tag& info);

/// Returns whether the name of a directory entry means its folder itself or the parent folder.
bool IsDotOrDotDot(const char* name);

struct CloseFolder {
    void operator()(DIR* stream) const { closedir(stream); }
};
using UniqueDir = std::unique_ptr<DIR, CloseFolder>;

/// Opens a folder as a stream, and tries again when a signal interrupts that. Returns null with
/// errno set on failure.
UniqueDir OpenFolder(const std::string& path);

/// The same for an entry of an open folder, or for a path relative to AT_FDCWD. Does not follow a
/// final symbolic link.
UniqueDir OpenFolderAt(int parent, const char* name);

/// Appends the names of the entries of a folder, without "." and "..", in the system's order.
/// Returns false for a null stream. A read error ends the names early and is not reported.
///
/// All names are read before the caller touches an entry, for two reasons. Some file systems skip
/// entries of a folder that changes during its listing. And a caller that descends thousands of
/// levels keeps no descriptor open.
bool ReadNames(UniqueDir folder, std::vector<std::string>& names);

}  // namespace file_op

/// Writes a record like LOG_MSG, with the number that file_op::RecordLine gives to the line.
#define LOG_FILE_OP(level, ...)                                                                  \
    do {                                                                                         \
        using file_op::kLogComponent;                                                            \
        constexpr int kRecordLine = file_op::RecordLine(__FILE__, __LINE__);                     \
        static_assert(kRecordLine > 0, "kSources lacks this source, or the source is too long"); \
        LOG_RECORD(kRecordLine, Logger::LEVEL_##level, #level, __VA_ARGS__, "");                 \
    } while (false)
