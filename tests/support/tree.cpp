#include "tests/support/tree.h"

#include <filesystem>
#include <functional>
#include <sstream>

#include "tests/support/files.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kLongContent = 200;

std::string Describe(const fs::directory_entry& entry) {
    if (entry.is_symlink()) {
        return "link " + fs::read_symlink(entry.path()).string();
    }
    if (entry.is_directory()) {
        return "dir";
    }
    const std::string content = ReadFile(entry.path().string());
    const bool is_long = content.size() > kLongContent;
    std::ostringstream text;
    text << "file " << std::oct << static_cast<unsigned>(entry.status().permissions()) << " "
         << (is_long ? "#" + std::to_string(std::hash<std::string>()(content)) : content);
    return text.str();
}

}  // namespace

TreeSnapshot Snapshot(const std::string& folder) {
    TreeSnapshot snapshot;
    if (fs::exists(fs::symlink_status(folder))) {
        for (const auto& entry : fs::recursive_directory_iterator(folder)) {
            snapshot[entry.path().lexically_relative(folder).string()] = Describe(entry);
        }
    }
    return snapshot;
}

void WriteDeep(const std::string& path, const std::string& content) {
    fs::create_directories(fs::path(path).parent_path());
    WriteFile(path, content);
}
