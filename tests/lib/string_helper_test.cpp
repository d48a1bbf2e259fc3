#include "lib/utils/StringHelper.h"

#include <gtest/gtest.h>

#include <regex>
#include <tuple>

using corvimo::utils::StringHelper;

namespace {

TEST(StringHelper, TextIsConvertedUpToItsFirstNul) {
    const std::pair<std::string, std::u16string> rows[] = {
        {"\xC3\xA9\xE6\x97\xA5\xF0\x9F\x98\x80", u"\u00E9\u65E5\U0001F600"},
        {std::string(1024, 'x'), std::u16string(1024, u'x')},
        {std::string(1025, 'x'), std::u16string(1025, u'x')}};
    for (const auto& [narrow, wide] : rows) {
        std::string to_narrow = "old";
        std::u16string to_wide = u"old";
        const std::string ignored("\0\xFF", 2);
        EXPECT_EQ(StringHelper::ConvertStringToWstring(narrow + ignored, to_wide), 0);
        EXPECT_EQ(StringHelper::ConvertWstringToString(wide + u'\0' + u'\xD800', to_narrow), 0);
        EXPECT_EQ(std::tie(to_narrow, to_wide), std::tie(narrow, wide));
    }
}

TEST(StringHelper, IllFormedTextIsRefusedWithAWarning) {
    std::u16string wide = u"old";
    std::string text = "old";
    testing::internal::CaptureStderr();
    for (const char* narrow : {"\x80", "x\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF5\x80\x80"}) {
        EXPECT_EQ(StringHelper::ConvertStringToWstring(narrow, wide), -1);
        EXPECT_EQ(StringHelper::Normalize(narrow, StringHelper::NFD), "");
        EXPECT_FALSE(StringHelper::IsValid(narrow));
    }
    EXPECT_EQ(StringHelper::ConvertWstringToString(u"x\xD800", text), -1);
    EXPECT_TRUE(
        std::regex_match(testing::internal::GetCapturedStderr(),
                         std::regex("(Warning: u_strFromUTF8: error code 10 at line \\d+\n){10}"
                                    "Warning: u_strToUTF8: error code 10 at line \\d+\n")));
    EXPECT_EQ(std::tie(wide, text), std::tuple(u"old", "old"));
}

TEST(StringHelper, FieldsAreSplitAtSeparatorsAndJoinedByThem) {
    std::vector<std::string> fields = {"old"};
    StringHelper::Split(fields, ",a,,b,", ',');
    EXPECT_EQ(StringHelper::Join(fields, '|'), "old||a||b");
}

TEST(StringHelper, FormattedTimeIsLocalAndAtMost63BytesLong) {
    setenv("TZ", "FAR-05:45", 1);
    EXPECT_EQ(StringHelper::GetFormatTime("%z"), "+0545");
    EXPECT_LE(std::stol(StringHelper::GetFormatTime("%s")) - time(nullptr), 60);
    EXPECT_EQ(StringHelper::GetFormatTime(std::string(63, 'x').c_str()), std::string(63, 'x'));
    EXPECT_EQ(StringHelper::GetFormatTime(std::string(64, 'x').c_str()), "");
    unsetenv("TZ");
}

TEST(StringHelper, TextThatRtrimWouldEmptyIsKept) {
    const char* const rows[][3] = {{"a  ", " ", "a"}, {"  ", " ", "  "}, {"a/\\/", "/\\", "a"}};
    for (const auto& [text, set, trimmed] : rows) {
        std::string result = text;
        StringHelper::Rtrim(result, set);
        EXPECT_EQ(result, trimmed);
    }
}

TEST(StringHelper, TextIsNormalizedToEitherForm) {
    const std::string x(3000, 'x');
    // A text, its composed and its decomposed form.
    const std::tuple<std::string, std::string, std::string> rows[] = {
        {std::string("/x\0b", 4), "/x", "/x"},
        {"/xe\xCC\x81y", "/x\xC3\xA9y", "/xe\xCC\x81y"},
        {"\xE0\xA5\x98", "\xE0\xA4\x95\xE0\xA4\xBC", "\xE0\xA4\x95\xE0\xA4\xBC"},
        {x + "\xC3\xA9", x + "\xC3\xA9", x + "e\xCC\x81"}};
    for (const auto& [text, composed, decomposed] : rows) {
        EXPECT_EQ(StringHelper::Normalize(text, StringHelper::NFC), composed);
        EXPECT_EQ(StringHelper::Normalize(text, StringHelper::NFD), decomposed);
    }
}

}  // namespace
