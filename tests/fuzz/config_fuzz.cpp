#include "lib/config.h"

#include <algorithm>

#include "tests/fuzz/fuzz.h"

namespace {

Config Read(const std::string& content, bool keep_quotes) {
    Config config;
    config.keep_quotes = keep_quotes;
    const bool is_read = config.read(MemoryFile(content).path()) == 0;
    Require(is_read || config.entries.empty());
    return config;
}

}  // namespace

void Check(const std::string& input) {
    const Config quoted = Read(input, true);
    Config plain = Read(input, false);
    Require(plain.entries.size() == quoted.entries.size());
    std::string written;
    for (const auto& [key, value] : quoted.entries) {
        const bool has_quotes = value.front() == '"' || value.front() == '\'';
        Require(plain.entries[key] == (has_quotes ? value.substr(1, value.size() - 2) : value));
        const long number = std::strtol(plain.entries[key].c_str(), nullptr, 10);
        Require(plain.get_int(key) == std::clamp<long>(number, INT32_MIN, INT32_MAX));
        written += key + "=" + value + "\n";
    }
    Require(Read(written, true).entries == quoted.entries);
}
