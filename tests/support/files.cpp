#include "tests/support/files.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>

std::string ReadFile(const std::string& path) {
    const std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    if (!file || (content << file.rdbuf()).bad()) {
        throw std::runtime_error("cannot read " + path);
    }
    return content.str();
}

void WriteFile(const std::string& path, const std::string& content) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    if (!(file << content << std::flush)) {
        throw std::runtime_error("cannot write " + path);
    }
}

std::vector<std::string> NamesIn(const std::string& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.insert(entry.path().filename().string());
    }
    return {names.begin(), names.end()};
}
