// Text in UTF-8 and UTF-16: conversion, normal forms, trimming, joining and splitting.
#pragma once

#include <string>
#include <vector>

namespace corvimo::utils {

/// Static functions without state. A `std::string` holds UTF-8, a `std::u16string` UTF-16.
///
/// Any thread may call them. The conversions and `Normalize` read a text up to its first NUL. If
/// one of these fails, it prints one line on standard error:
///
///     Warning: <ICU function>: error code <ICU's number> at line <line of the source>
class StringHelper {
public:
    enum NormalizationForm : int {
        NFC = 0,  ///< Composed: one character for an accented letter, if Unicode has one.
        NFD = 1   ///< Decomposed: the letter, then its accent.
    };

    /// Return `text` in the encoding of system calls, and back. Both encodings are UTF-8 here, so
    /// the result is an unchanged copy.
    static std::string ToPlatformDependString(const std::string& text);
    static std::string FromPlatformDependString(const std::string& text);

    /// Convert `input` and return 0. Return -1 and leave `output` unchanged if `input` is not
    /// well-formed, because of an unpaired surrogate or an invalid byte.
    static int ConvertWstringToString(const std::u16string& input, std::string& output);
    static int ConvertStringToWstring(const std::string& input, std::u16string& output);

    /// Removes the characters of `set` from the end of `text`. A text that consists of such
    /// characters only is left unchanged.
    static void Rtrim(std::string& text, const std::string& set);

    /// Returns `text` in a normal form. Any form but NFD means NFC. The result is empty for an
    /// empty text, and also after a failure, such as invalid UTF-8.
    static std::string Normalize(const std::string& text, NormalizationForm form);

    /// Returns the local time in a strftime format, or an empty text if it has more than 63 bytes.
    static std::string GetFormatTime(const char* format);

    /// Returns whether `text` is well-formed UTF-8 up to its first NUL.
    static bool IsValid(const std::string& text);

    /// Returns the parts in one text, with `separator` between each two neighbours.
    static std::string Join(const std::vector<std::string>& parts, char separator);

    /// Splits `text` at each `separator` and appends its fields to `fields`. A field may be empty.
    /// A separator at the end of the text does not begin another field.
    static void Split(std::vector<std::string>& fields, const std::string& text, char separator);
};

}  // namespace corvimo::utils
