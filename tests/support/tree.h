// Whole folder trees, to be built from a list and compared as one value.
#pragma once

#include <cstdint>
#include <map>
#include <string>

/// What a tree holds, by relative path: "dir", "link TARGET" or "file MODE CONTENT", with the mode
/// in octal; the content stands as it is, or as its hash when it is long. Two trees are alike when
/// their snapshots are equal.
using TreeSnapshot = std::map<std::string, std::string>;

/// Describes everything below a folder; a missing folder is an empty tree.
TreeSnapshot Snapshot(const std::string& folder);

/// Writes a file with all missing folders above it.
void WriteDeep(const std::string& path, const std::string& content);
