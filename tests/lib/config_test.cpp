#include "lib/config.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

namespace {

using Entries = std::map<std::string, std::string>;

/// What is known after reading a file, of which "old=1" was known before; nothing if it is refused.
Entries Read(const std::string& content) {
    const TempDir folder;
    WriteFile(folder / "file", content);
    Config config;
    config.entries["old"] = "1";
    const int result = config.read(folder / "file");
    EXPECT_EQ(result, config.entries.empty() ? -1 : 0) << content;
    return config.entries;
}

TEST(Config, LineIsAnEntryOrRefusesTheFile) {
    const char* const entries[][3] = {{" \t\v\f\r pid\t=\v81 \r\n", "pid", "81"},
                                      {"azAZ09_-.=x", "azAZ09_-.", "x"},
                                      {"a=b #c", "a", "b"},
                                      {"a= #c", "a", "#c"},
                                      {"a=\xC3\xA4\xFF", "a", "\xC3\xA4\xFF"},
                                      {"a='b #\"c' # d", "a", "b #\"c"},
                                      {"a=\"b\"#c", "a", "b"}};
    for (const auto& [line, key, value] : entries) {
        EXPECT_EQ(Read(line), (Entries{{key, value}, {"old", "1"}})) << line;
    }
    for (const char* malformed :
         {"a\n", "a #b", "a b=c", "a=x y", "a:1", "\xC3\xA4=1", "a= \n", "a=\x01", "a=\x7F",
          "a=\"b", "a=\"b'\n", "a=\"b\tc\"", "a=\"b\"c"}) {
        EXPECT_EQ(Read(malformed), Entries()) << malformed;
    }
}

TEST(Config, FileAddsItsEntriesOrNothing) {
    const auto x = [](std::size_t count) { return std::string(count, 'x'); };
    const std::pair<std::string, Entries> rows[] = {
        {"# a=1\n\n \t\n  #\na#=b\na", {{"old", "1"}}},
        {"a=1\r\nold=2\na=3", {{"a", "3"}, {"old", "2"}}},
        {"a=1\nb\n", {}},
        {"old=" + x(8187) + "\n", {{"old", x(8187)}}},
        {"old=" + x(8188) + "\n", {}},  // One byte more than a line may have.
        {"#" + x(8190) + "old=2", {{"old", "2"}}}};
    for (const auto& [content, entries] : rows) {
        EXPECT_EQ(Read(content), entries);
    }
    Config config;
    config.entries["old"] = "1";
    for (const char* unreadable : {"", "/", "/missing", "/proc/self/mem"}) {
        EXPECT_EQ(config.read(unreadable), -1);
    }
    EXPECT_EQ(config.entries, (Entries{{"old", "1"}}));
    config.entries = {{"octal", "010x"}, {"large", "2147483648"}};
    EXPECT_EQ(std::pair(config.get_int("octal"), config.get_int("large")),
              std::pair(10, INT32_MAX));
}

}  // namespace
