#include <iostream>

#include "lib/utils/StringHelper.h"
#include "tests/fuzz/fuzz.h"

using corvimo::utils::StringHelper;

namespace {

void CheckForms(const std::string& text, bool is_valid) {
    const auto normal = &StringHelper::Normalize;
    const std::string composed = normal(text, StringHelper::NFC);
    const std::string decomposed = normal(text, StringHelper::NFD);
    Require(composed.empty() == (!is_valid || text.empty()));
    for (const std::string& other : {composed, decomposed}) {
        Require(normal(other, StringHelper::NFC) == composed);
        Require(normal(other, StringHelper::NFD) == decomposed);
    }
}

void CheckFields(const std::string& text) {
    std::vector<std::string> fields;
    StringHelper::Split(fields, text, ',');
    const bool ends_a_field = !text.empty() && text.back() == ',';
    Require(StringHelper::Join(fields, ',') + (ends_a_field ? "," : "") == text);
    std::string trimmed = text;
    StringHelper::Rtrim(trimmed, ", ");
    const std::size_t last = text.find_last_not_of(", ");
    Require(trimmed == (last == std::string::npos ? text : text.substr(0, last + 1)));
}

}  // namespace

void Check(const std::string& input) {
    std::cerr.rdbuf(nullptr);  // The warnings would be most of the work.
    const std::string text = input.c_str();
    std::u16string wide;
    const bool is_valid = StringHelper::ConvertStringToWstring(text, wide) == 0;
    Require(is_valid == StringHelper::IsValid(text));
    std::string back;
    Require(StringHelper::ConvertWstringToString(wide, back) == 0 && (back == text || !is_valid));
    CheckForms(text, is_valid);
    CheckFields(input);
}
