#include "tests/support/files.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>

namespace fs = std::filesystem;

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

void WriteDeep(const std::string& path, const std::string& content) {
    fs::create_directories(fs::path(path).parent_path());
    WriteFile(path, content);
}

std::vector<std::string> NamesIn(const std::string& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        names.insert(entry.path().filename());
    }
    return {names.begin(), names.end()};
}

TreeSnapshot Snapshot(const std::string& folder) {
    TreeSnapshot snapshot;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        std::ostringstream text;
        if (entry.is_symlink()) {
            text << "link " << fs::read_symlink(entry).string();
        } else if (entry.is_directory()) {
            text << "dir";
        } else {
            text << "file " << std::oct << static_cast<unsigned>(entry.status().permissions())
                 << " " << ReadFile(entry.path());
        }
        snapshot[entry.path().lexically_relative(folder)] = text.str();
    }
    return snapshot;
}
