// Loads libarchive when a package is read for the first time. Most starts read no package, and
// libarchive needs six libraries that nothing else needs.
#pragma once

#include <archive.h>
#include <archive_entry.h>

/// Calls USE with the name of each function of libarchive that the extractor calls.
#define ARCHIVE_LIBRARY_FUNCTIONS(USE)        \
    USE(archive_entry_hardlink)               \
    USE(archive_entry_pathname)               \
    USE(archive_entry_set_hardlink)           \
    USE(archive_entry_set_pathname)           \
    USE(archive_error_string)                 \
    USE(archive_read_close)                   \
    USE(archive_read_data_block)              \
    USE(archive_read_data_skip)               \
    USE(archive_read_extract2)                \
    USE(archive_read_free)                    \
    USE(archive_read_new)                     \
    USE(archive_read_next_header)             \
    USE(archive_read_open_filename)           \
    USE(archive_read_support_compression_all) \
    USE(archive_read_support_filter_all)      \
    USE(archive_read_support_format_all)      \
    USE(archive_set_error)                    \
    USE(archive_write_data_block)             \
    USE(archive_write_disk_new)               \
    USE(archive_write_disk_set_options)       \
    USE(archive_write_finish_entry)           \
    USE(archive_write_free)

/// Pointers to these functions, by the same names. Their types come from libarchive's own headers,
/// so that the compiler checks every call.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"  // archive_read_support_compression_all
struct ArchiveLibrary {
// NOLINTNEXTLINE(bugprone-macro-parentheses): the name of a member cannot stand in parentheses.
#define ARCHIVE_LIBRARY_MEMBER(name) decltype(&::name) name = nullptr;
    ARCHIVE_LIBRARY_FUNCTIONS(ARCHIVE_LIBRARY_MEMBER)
#undef ARCHIVE_LIBRARY_MEMBER
};
#pragma GCC diagnostic pop

/// Returns the functions of libarchive. The first call loads the library, which then stays loaded.
///
/// Returns null if the library or one of the functions is missing. The first call logs that as a
/// WARNING on the component extractor_debug; later calls do not try again. Any thread may call it.
const ArchiveLibrary* LibArchive();
