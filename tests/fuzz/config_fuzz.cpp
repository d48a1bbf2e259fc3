#include "lib/config.h"

#include "tests/fuzz/fuzz.h"

namespace {

std::map<std::string, std::string> Entries(const std::string& content) {
    const TempDir folder;
    WriteFile(folder / "config", content);
    Config config;
    config.keep_quotes = true;
    assert(config.read(folder / "config") == 0 || config.entries.empty());
    return config.entries;
}

}  // namespace

void Check(const std::string& input) {
    const auto entries = Entries(input);
    std::string written;
    for (const auto& [key, value] : entries) {
        written += key + "=" + value + "\n";
    }
    assert(Entries(written) == entries);
}
