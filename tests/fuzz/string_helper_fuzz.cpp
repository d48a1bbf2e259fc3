#include "lib/utils/StringHelper.h"

#include "tests/fuzz/fuzz.h"

using corvimo::utils::StringHelper;

void Check(const std::string& input) {
    const std::string text = input.c_str();
    std::u16string wide;
    const bool is_valid = StringHelper::ConvertStringToWstring(text, wide) == 0;
    assert(is_valid == StringHelper::IsValid(text));
    std::string back;
    assert(StringHelper::ConvertWstringToString(wide, back) == 0 && (back == text || !is_valid));

    const std::string composed = StringHelper::Normalize(text, StringHelper::NFC);
    const std::string decomposed = StringHelper::Normalize(text, StringHelper::NFD);
    assert(composed.empty() == (!is_valid || text.empty()));
    assert(StringHelper::Normalize(decomposed, StringHelper::NFC) == composed);
    assert(StringHelper::Normalize(composed, StringHelper::NFD) == decomposed);

    std::vector<std::string> fields;
    StringHelper::Split(fields, input, ',');
    const std::string joined = StringHelper::Join(fields, ',');
    assert(joined == input || joined + ',' == input);
}
