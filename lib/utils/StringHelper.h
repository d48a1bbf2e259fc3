// Text in UTF-8 and UTF-16: conversion, normal forms, trimming, joining and splitting.
#pragma once

#include <string>
#include <vector>

namespace corvimo::utils {

/// Static functions without state. A `std::string` holds UTF-8, a `std::u16string` UTF-16.
///
/// Any thread may call them. Whatever converts a text reads it up to its first NUL. A conversion
/// that fails prints one line of warning on standard error:
/// "Warning: <ICU function>: error code <ICU's number> at line <line of the source>".
class StringHelper {
public:
    enum NormalizationForm : int {
        NFC = 0,  ///< Composed: an accented letter is one character where there is one.
        NFD = 1   ///< Decomposed: the letter, then its accent.
    };

    /// From and to the encoding of the system's own calls, which is UTF-8: unchanged copies.
    static std::string ToPlatformDependString(const std::string& text);
    static std::string FromPlatformDependString(const std::string& text);

    /// Return 0, or -1 for input that is not well-formed: an unpaired surrogate, an invalid byte.
    /// `output` is unchanged after a failure.
    static int ConvertWstringToString(const std::u16string& input, std::string& output);
    static int ConvertStringToWstring(const std::string& input, std::u16string& output);

    /// Removes from the end of `text` every character that is in `set`. A text of nothing else
    /// stays as it is.
    static void Rtrim(std::string& text, const std::string& set);

    /// `text` in a normal form; any form but NFD means NFC. An empty result stands for an empty
    /// text as well as for a failure, such as invalid UTF-8.
    static std::string Normalize(const std::string& text, NormalizationForm form);

    /// The local time in a strftime format, up to 63 bytes; empty when there would be more.
    static std::string GetFormatTime(const char* format);

    /// Whether `text` is well-formed UTF-8.
    static bool IsValid(const std::string& text);

    /// The parts, with `separator` between each two of them.
    static std::string Join(const std::vector<std::string>& parts, char separator);

    /// Appends the fields of `text` to `fields`. Fields may be empty, but a separator at the end
    /// starts no further field.
    static void Split(std::vector<std::string>& fields, const std::string& text, char separator);
};

}  // namespace corvimo::utils
