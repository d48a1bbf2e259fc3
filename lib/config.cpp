#include "lib/config.h"

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <locale>
#include <memory>
#include <sstream>
#include <utility>

#include "lib/platform/regular_file.h"

namespace {

constexpr std::size_t kLineBytes = 8192;

enum ParseResult { kEntry = 0, kNoEntry = 1, kMalformed = 2 };

// The functions of <cctype> are not used because they depend on the locale. This format does not.

bool IsSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool IsKeyByte(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' ||
           c == '-' || c == '.';
}

bool IsControl(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F;
}

bool IsQuote(char c) {
    return c == '"' || c == '\'';
}

bool IsEndOfText(char c) {
    return c == '\0' || c == '#';
}

char* SkipSpace(char* at) {
    while (IsSpace(*at)) {
        ++at;
    }
    return at;
}

char* SkipKey(char* at) {
    while (IsKeyByte(*at)) {
        ++at;
    }
    return at;
}

// Returns the end of an unquoted value: the first space or control byte. The final NUL is one too.
char* FindValueEnd(char* at) {
    while (*at != ' ' && !IsControl(*at)) {
        ++at;
    }
    return at;
}

// Returns the next `quote`, or null if a control byte or the end of the text comes first.
char* FindClosingQuote(char* at, char quote) {
    while (*at != quote) {
        if (IsControl(*at)) {
            return nullptr;
        }
        ++at;
    }
    return at;
}

struct CloseFile {
    void operator()(FILE* file) const { static_cast<void>(fclose(file)); }  // Nothing was written.
};
using File = std::unique_ptr<FILE, CloseFile>;

// Returns null if the file cannot be opened.
File OpenForReading(const std::string& path) {
    UniqueFd fd = OpenRegularFile(path, O_RDONLY);
    File file(fd.IsOpen() ? fdopen(fd.Get(), "r") : nullptr);
    if (file != nullptr) {
        fd.Release();
    }
    return file;
}

// Reads one byte like getc, and tries again when a signal interrupts it.
int NextByte(FILE* file) {
    int byte = getc(file);
    while (byte == EOF && ferror(file) != 0 && errno == EINTR) {
        clearerr(file);
        byte = getc(file);
    }
    return byte;
}

// Fills `line` like fgets. Returns false at the end of the file or if the file cannot be read.
bool ReadLine(FILE* file, char (&line)[kLineBytes]) {
    std::size_t length = 0;
    int byte = 0;
    while (length < kLineBytes - 1 && byte != '\n' && (byte = NextByte(file)) != EOF) {
        line[length++] = static_cast<char>(byte);
    }
    line[length] = '\0';
    return length > 0 && ferror(file) == 0;
}

}  // namespace

int32_t Config::read(const std::string& path) {
    const File file = OpenForReading(path);
    if (file == nullptr) {
        return -1;
    }
    // Collected apart from `entries`, which must not change if the file cannot be read to its end.
    std::map<std::string, std::string> found;
    std::string key;
    std::string value;
    char line[kLineBytes];
    while (ReadLine(file.get(), line)) {
        const int32_t result = parse(line, static_cast<int>(kLineBytes), key, value);
        if (result == kMalformed) {
            entries.clear();
            return -1;
        }
        if (result == kEntry) {
            found[key] = value;
        }
    }
    if (ferror(file.get()) != 0) {
        return -1;
    }
    found.merge(entries);  // Takes only keys that `found` does not have.
    entries = std::move(found);
    return 0;
}

int32_t Config::parse(char* line, int /*length*/, std::string& key, std::string& value) const {
    char* const key_begin = SkipSpace(line);
    char* const key_end = SkipKey(key_begin);
    if (IsEndOfText(*key_end)) {
        return kNoEntry;
    }
    char* const equals = SkipSpace(key_end);
    if (*equals != '=') {
        return kMalformed;
    }
    char* value_begin = SkipSpace(equals + 1);
    if (*value_begin == '\0') {
        return kMalformed;
    }
    char* value_end = nullptr;
    char* rest = nullptr;
    if (IsQuote(*value_begin)) {
        char* const closing_quote = FindClosingQuote(value_begin + 1, *value_begin);
        if (closing_quote == nullptr) {
            return kMalformed;
        }
        rest = closing_quote + 1;
        value_begin += keep_quotes ? 0 : 1;
        value_end = keep_quotes ? rest : closing_quote;
    } else {
        rest = value_end = FindValueEnd(value_begin);
    }
    if (!IsEndOfText(*SkipSpace(rest))) {
        return kMalformed;
    }
    *key_end = '\0';
    *value_end = '\0';
    key = key_begin;
    value = value_begin;
    return kEntry;
}

int32_t Config::get_int(const std::string& key) {
    std::istringstream stream(entries[key]);
    stream.imbue(std::locale::classic());
    int32_t number = 0;
    stream >> number;
    return number;
}
