#include "lib/config.h"

#include <gtest/gtest.h>

#include <climits>
#include <tuple>

#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

namespace {

// What `parse` makes of a line: its result, the key and the value.
using Parsed = std::tuple<int, std::string, std::string>;

Parsed Parse(std::string line) {
    std::string key = "-";
    std::string value = "-";
    const int result = Config().parse(line.data(), 0, key, value);
    return {result, key, value};
}

TEST(Config, Lines) {
    const char* const entries[][3] = {{" \t\v\f\r pid\t=\v81 \r\n", "pid", "81"},
                                      {"aZ0_-.=x", "aZ0_-.", "x"},
                                      {"a=b #c", "a", "b"},
                                      {"a= #c", "a", "#c"},
                                      {"a=\xC3\xA4\xFF", "a", "\xC3\xA4\xFF"},
                                      {"a='b#\"c' # d", "a", "b#\"c"},
                                      {"a=\"b\"#c", "a", "b"}};
    for (const auto& [line, key, value] : entries) {
        EXPECT_EQ(Parse(line), Parsed(0, key, value)) << line;
    }
    for (const char* malformed : {"a\n", "a #b", "a b=c", "a=x y", "a:1", "\xC3\xA4=1", "a= \n",
                                  "a=\x01", "a=\"b", "a=\"b'\n", "a=\"b\tc\"", "a=\"b\"c"}) {
        EXPECT_EQ(Parse(malformed), Parsed(2, "-", "-")) << malformed;
    }
}

TEST(Config, Files) {
    const auto x = [](std::size_t count) { return std::string(count, 'x'); };
    // clang-format off
    const std::tuple<const char*, std::string, int, std::map<std::string, std::string>> rows[] = {
        {"no entries", "# a=1\n\n \t\n  #\na#=b\na", 0, {{"old", "1"}}},
        {"the last of a key counts", "a=1\r\nold=2\na=3", 0, {{"a", "3"}, {"old", "2"}}},
        {"malformed at the end", "a=1\nb\n", -1, {}},
        {"8192 bytes", "old=" + x(8187) + "\n", 0, {{"old", x(8187)}}},
        {"8193 bytes", "old=" + x(8188) + "\n", -1, {}},
        {"a long comment goes on as a line", "#" + x(8190) + "old=2", 0, {{"old", "2"}}},
        {"a folder", "", -1, {{"old", "1"}}}};
    // clang-format on
    const TempDir folder;
    for (const auto& [name, content, result, entries] : rows) {
        WriteFile(folder / "file", content);
        Config config;
        config.entries["old"] = "1";
        EXPECT_EQ(config.read(content.empty() ? folder.path() : folder / "file"), result) << name;
        EXPECT_EQ(config.entries, entries) << name;
    }
    EXPECT_EQ(Config().read(folder / "missing"), -1);
}

TEST(Config, Numbers) {
    const std::pair<const char*, int32_t> rows[] = {
        {"12abc", 12}, {"abc", 0}, {"010", 10}, {" \t-5 6", -5}, {"2147483648", INT_MAX}};
    for (const auto& [value, number] : rows) {
        Config config;
        config.entries["key"] = value;
        EXPECT_EQ(config.get_int("key"), number) << value;
    }
}

}  // namespace
