// Whole files and whole folder trees in one call.
#pragma once

#include <map>
#include <string>
#include <vector>

/// The file's bytes. Throws std::runtime_error, naming the path, when they cannot be read.
std::string ReadFile(const std::string& path);

/// Makes or replaces the file. Throws std::runtime_error, naming the path, when it cannot be
/// written completely.
void WriteFile(const std::string& path, const std::string& content);

/// The same with all missing folders above it.
void WriteDeep(const std::string& path, const std::string& content);

/// The names in a folder, in byte order. Throws when the folder cannot be read.
std::vector<std::string> NamesIn(const std::string& folder);

/// What a tree holds, by relative path: "dir", "link TARGET" or "file MODE CONTENT", with the mode
/// in octal. Two trees are alike when their snapshots are equal.
using TreeSnapshot = std::map<std::string, std::string>;

/// Describes everything below a folder. Throws when the folder cannot be read.
TreeSnapshot Snapshot(const std::string& folder);
