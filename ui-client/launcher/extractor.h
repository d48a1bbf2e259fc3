// Unpacks a package archive under a folder and reports progress through Notify_Adapter.
#pragma once

#include <string>

struct archive;
struct archive_entry;

/// Reads one archive, in any format and compression that libarchive supports.
///
/// Both fields must be set before a member function is called. Nothing else is kept between calls.
/// Failures are logged on the component extractor_debug, and nothing is thrown.
///
/// libarchive converts entry names by the C library's character type, which must be UTF-8 if names
/// are not ASCII (see PlatformUseUtf8CharacterType). An entry whose name cannot be converted is a
/// failure.
class Extractor {
public:
    /// Counts the entries up to the first one that cannot be read, which is no failure. Returns -1
    /// if a field is empty or the archive cannot be opened.
    int Count() const;

    /// Writes the name of each entry that `Count` counts to standard output, one name a line.
    /// Returns 0, or -1 in the same cases as `Count`.
    int List() const;

    /// Unpacks all entries under `destination`. Reports (total, n) to Notify_Adapter after the nth.
    ///
    /// Returns 0 if all entries were unpacked, otherwise -1. The entries before the failure stay on
    /// disk.
    ///
    /// The name of an entry, or of a hard link's target, cannot lead outside `destination`. But the
    /// archive may contain a symbolic link to another folder. It is followed if it is a parent
    /// folder of a later entry, and removed if it is a parent folder of a hard link's target.
    int Extract();

    /// Copies the data of the reader's current entry to the writer, block by block. The caller owns
    /// both. Returns 0 at the end of the data, or -1 after a failure.
    int copy_data(struct archive* reader, struct archive* writer);

    std::string destination;   ///< The folder to unpack into, in UTF-8, without "..".
    std::string archive_path;  ///< The archive, in UTF-8.

private:
    int ExtractEntries(archive* reader, archive* writer, int total) const;
    int ExtractEntry(archive* reader, archive* writer, archive_entry* entry, int total,
                     int index) const;
};
