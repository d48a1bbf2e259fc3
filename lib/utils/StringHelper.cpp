#include "lib/utils/StringHelper.h"

#include <time.h>
#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string_view>

namespace corvimo::utils {
namespace {

constexpr std::size_t kFormattedTimeBytes = 64;

// Returns the part of `text` that is converted: everything before its first 0.
template <typename Unit>
std::basic_string_view<Unit> UntilNul(const std::basic_string<Unit>& text) {
    return text.c_str();
}

// Returns whether `text` is the same in every normal form because it has ASCII characters only.
// Most paths are such texts.
bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

template <typename Unit>
int32_t Length(std::basic_string_view<Unit> text) {
    return static_cast<int32_t>(text.size());
}

// Returns whether `error` is a failure, and prints a warning then.
bool Warned(const char* function, UErrorCode error, int line) {
    if (U_SUCCESS(error)) {
        return false;
    }
    // In one call, so that warnings of two threads do not mix. Not by way of <iostream>, whose
    // streams every program that uses this library would have to set up at its start.
    static_cast<void>(  // A warning that cannot be printed is lost.
        std::fprintf(stderr, "Warning: %s: error code %d at line %d\n", function,
                     static_cast<int>(error), line));
    return true;
}

// Holds a text that an ICU function has written.
template <typename Unit>
class IcuText {
public:
    // Calls `write`, an ICU function of the shape (buffer, capacity, error) -> length, with a
    // buffer that is large enough for most texts. If the text is longer, calls it again with a
    // buffer of the length that the first call returned. Returns ICU's error.
    template <typename Write>
    UErrorCode Take(Write write) {
        UErrorCode error = U_ZERO_ERROR;
        int32_t length = write(short_, kShortUnits, &error);
        const Unit* text = short_;
        if (error == U_BUFFER_OVERFLOW_ERROR) {
            error = U_ZERO_ERROR;
            long_ = std::make_unique<Unit[]>(static_cast<std::size_t>(length) + 1);
            length = write(long_.get(), length + 1, &error);
            text = long_.get();
        }
        if (U_SUCCESS(error)) {
            text_ = {text, static_cast<std::size_t>(length)};
        }
        return error;
    }

    // Returns the text. It is empty before a successful Take.
    std::basic_string_view<Unit> get() const { return text_; }

private:
    static constexpr int32_t kShortUnits = 1024;  // A long path.

    Unit short_[kShortUnits];
    std::unique_ptr<Unit[]> long_;
    std::basic_string_view<Unit> text_;
};

// The next two functions print a warning and return false if the input is not well-formed.

bool ToUtf8(std::u16string_view input, IcuText<char>& output) {
    const UErrorCode error = output.Take([=](char* buffer, int32_t capacity, UErrorCode* status) {
        int32_t length = 0;
        u_strToUTF8(buffer, capacity, &length, input.data(), Length(input), status);
        return length;
    });
    return !Warned("u_strToUTF8", error, __LINE__);
}

bool FromUtf8(std::string_view input, IcuText<char16_t>& output) {
    const UErrorCode error =
        output.Take([=](char16_t* buffer, int32_t capacity, UErrorCode* status) {
            int32_t length = 0;
            u_strFromUTF8(buffer, capacity, &length, input.data(), Length(input), status);
            return length;
        });
    return !Warned("u_strFromUTF8", error, __LINE__);
}

}  // namespace

std::string StringHelper::ToPlatformDependString(const std::string& text) {
    return text;
}

std::string StringHelper::FromPlatformDependString(const std::string& text) {
    return text;
}

int StringHelper::ConvertWstringToString(const std::u16string& input, std::string& output) {
    IcuText<char> converted;
    if (!ToUtf8(UntilNul(input), converted)) {
        return -1;
    }
    output = converted.get();
    return 0;
}

int StringHelper::ConvertStringToWstring(const std::string& input, std::u16string& output) {
    IcuText<char16_t> converted;
    if (!FromUtf8(UntilNul(input), converted)) {
        return -1;
    }
    output = converted.get();
    return 0;
}

void StringHelper::Rtrim(std::string& text, const std::string& set) {
    const std::size_t last = text.find_last_not_of(set);
    if (last != std::string::npos) {
        text.erase(last + 1);
    }
}

std::string StringHelper::Normalize(const std::string& text, NormalizationForm form) {
    const std::string_view input = UntilNul(text);
    if (IsAscii(input)) {
        return std::string(input);
    }
    IcuText<char16_t> wide;
    if (!FromUtf8(input, wide)) {
        return "";
    }
    UErrorCode error = U_ZERO_ERROR;
    const UNormalization2Mode mode = form == NFD ? UNORM2_DECOMPOSE : UNORM2_COMPOSE;
    const UNormalizer2* const normalizer = unorm2_getInstance(nullptr, "nfc", mode, &error);
    if (Warned("unorm2_getInstance", error, __LINE__)) {
        return "";
    }
    IcuText<char16_t> normalized;
    error = normalized.Take([&](char16_t* buffer, int32_t capacity, UErrorCode* status) {
        const auto source = wide.get();
        return unorm2_normalize(normalizer, source.data(), Length(source), buffer, capacity,
                                status);
    });
    if (Warned("unorm2_normalize", error, __LINE__)) {
        return "";
    }
    if (normalized.get() == wide.get()) {
        return std::string(input);  // Spares most texts the conversion back to UTF-8.
    }
    IcuText<char> result;
    // Ignored because every normal form is well-formed.
    static_cast<void>(ToUtf8(normalized.get(), result));
    return std::string(result.get());
}

std::string StringHelper::GetFormatTime(const char* format) {
    const time_t now = time(nullptr);
    struct tm local = {};
    tzset();  // localtime_r, unlike localtime, may miss a change of TZ.
    if (localtime_r(&now, &local) == nullptr) {
        return "";
    }
    char text[kFormattedTimeBytes];
    return std::string(text, strftime(text, sizeof(text), format, &local));
}

bool StringHelper::IsValid(const std::string& text) {
    UErrorCode error = U_ZERO_ERROR;
    u_strFromUTF8(nullptr, 0, nullptr, text.c_str(), -1, &error);
    return error != U_INVALID_CHAR_FOUND;
}

std::string StringHelper::Join(const std::vector<std::string>& parts, char separator) {
    std::string text;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0) {
            text += separator;
        }
        text += parts[i];
    }
    return text;
}

void StringHelper::Split(std::vector<std::string>& fields, const std::string& text,
                         char separator) {
    std::size_t begin = 0;
    while (begin < text.size()) {
        const std::size_t end = std::min(text.find(separator, begin), text.size());
        fields.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
}

}  // namespace corvimo::utils
