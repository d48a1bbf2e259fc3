// Whole files in one call.
#pragma once

#include <string>
#include <vector>

/// The file's bytes. Throws std::runtime_error, naming the path, when they cannot be read.
std::string ReadFile(const std::string& path);

/// Makes or replaces the file. Throws std::runtime_error, naming the path, when it cannot be written
/// completely.
void WriteFile(const std::string& path, const std::string& content);

/// The names in a folder, in byte order. Throws when the folder cannot be read.
std::vector<std::string> NamesIn(const std::string& folder);
