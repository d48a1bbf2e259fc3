// Unpacks a package archive under a folder and reports progress through Notify_Adapter.
#pragma once

#include <string>

struct archive;
struct archive_entry;

/// Both fields are assigned before an operation is called; nothing else is kept between calls.
/// Failures are logged on the component extractor_debug; nothing is thrown.
///
/// Any format and compression that libarchive reads will do. Entry names are converted by way of
/// the C library's character type, which must be UTF-8 for names outside ASCII; an entry whose name
/// cannot be converted is a failure.
class Extractor {
public:
    /// Counts the entries that can be read. An entry that cannot be read ends the count without a
    /// failure. Returns -1 when a field is empty or the archive cannot be opened.
    int Count() const;

    /// Writes the name of every entry to standard output, one a line. Returns 0, or -1 as `Count`.
    int List() const;

    /// Unpacks every entry under `destination` and reports (total, n) after the nth.
    ///
    /// Returns 0 when every entry was unpacked, otherwise -1 with the entries before the failure
    /// left on disk. No entry is written outside `destination` by its own name or by the name that
    /// a hard link gives. A symbolic link that the archive itself holds is followed on the way to an
    /// entry and removed on the way to a hard link's target.
    int Extract();

    /// Copies the data of the reader's current entry to the writer, block by block. The caller owns
    /// both. Returns 0 at the end of the data, -1 on failure.
    int copy_data(struct archive* reader, struct archive* writer);

    std::string destination;   ///< The folder, UTF-8, without "..".
    std::string archive_path;  ///< The archive, UTF-8.

private:
    int ExtractEntries(archive* reader, archive* writer, int total) const;
    int ExtractEntry(archive* reader, archive* writer, archive_entry* entry, int total,
                     int index) const;
};
