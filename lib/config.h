// The reader of small configuration files: lines of "key = value".
#pragma once

#include <cstdint>
#include <map>
#include <string>

/// Reads a file into an ordered map. The reader is strict: one malformed line rejects the whole
/// file.
///
/// A line is `key = value`. White space may stand before, between and after the three, and a
/// comment from "#" to the end of the line may follow. A key consists of ASCII letters, digits,
/// "_", "-" and ".". A value is one word, or any text between two equal quotes, single or double.
/// No escape exists for the quote itself. Blank lines and comment lines hold no entry. Keys and
/// values are bytes in any encoding.
///
/// One thread at a time may use an object.
class Config {
public:
    /// The entries read so far. `entries[key]` gives a value as text, and adds a missing key.
    std::map<std::string, std::string> entries;

    /// Whether a quoted value is stored together with its quotes.
    bool keep_quotes = false;

    /// Adds the entries of the file. If a key occurs again, its last value counts.
    ///
    /// Returns 0 when the whole file was read. Returns -1 and leaves `entries` unchanged if the
    /// file cannot be opened or read, or is not a regular file. Returns -1 and empties `entries` if
    /// a line is malformed. A line of more than 8191 bytes, its line feed included, is read as
    /// several lines of 8191 bytes each. Nothing is logged.
    int32_t read(const std::string& path);

    /// Parses one line, which ends with a NUL. `length` is not used.
    ///
    /// Returns 0 for an entry, sets `key` and `value`, and writes a NUL after each of the two into
    /// `line`. Returns 1 for a line without an entry and 2 for a malformed line, and then leaves
    /// `key`, `value` and `line` unchanged.
    int32_t parse(char* line, int length, std::string& key, std::string& value) const;

    /// Returns the value of `key` as a decimal number, without white space before it and anything
    /// after it. Returns 0 if there is no number, and the nearest limit if the number does not fit.
    /// Adds a missing key with an empty value.
    int32_t get_int(const std::string& key);
};
