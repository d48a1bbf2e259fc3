// The reader of small configuration files: lines of "key = value".
#pragma once

#include <cstdint>
#include <map>
#include <string>

/// Reads one file into an ordered map. The reader is strict: one malformed line rejects the whole
/// file.
///
/// A line is `key = value`, with white space allowed around the three and a "#" comment after them.
/// Keys are made of ASCII letters, digits, "_", "-" and "."; a value is one word, or any text
/// between two equal quotes, single or double, without an escape for the quote itself. Blank lines
/// and comment lines hold no entry. Keys and values are plain bytes.
///
/// An object serves one thread.
class Config {
public:
    /// What has been read so far. `entries[key]` reads a value as text; a missing key is added.
    std::map<std::string, std::string> entries;

    /// Whether a quoted value is stored with its quotes.
    bool keep_quotes = false;

    /// Adds the entries of the file; a later line replaces an earlier one with the same key.
    ///
    /// Returns 0 when the whole file was read. Returns -1 when the file cannot be opened or read, or
    /// is no regular file: `entries` is as before then; or when a line is malformed: `entries` is
    /// empty then, whatever it held before. A line of more than 8191 bytes, its line feed included,
    /// is taken as several lines of 8191 bytes each. Nothing is logged.
    int32_t read(const std::string& path);

    /// Takes one line, a text that ends with a NUL, apart. `length` is not used.
    ///
    /// Returns 0 for an entry: `key` and `value` are set, and `line` has a NUL after each of the
    /// two. Returns 1 for a line without an entry and 2 for a malformed line: `key`, `value` and
    /// `line` are unchanged.
    int32_t parse(char* line, int length, std::string& key, std::string& value) const;

    /// The value of `key` as a decimal number: white space before it is skipped and anything after
    /// it is ignored. 0 when there is no number; the nearest limit when it does not fit. A missing
    /// key is added with an empty value.
    int32_t get_int(const std::string& key);
};
