// A folder of a test's own.
#pragma once

#include <stdlib.h>
#include <unistd.h>  // Declares mkdtemp on macOS.

#include <cerrno>
#include <filesystem>
#include <string>
#include <system_error>

/// Makes a fresh, empty folder in `parent` and removes it with everything in it at the end. Links
/// inside are removed, never followed. Throws when the folder cannot be made.
class TempDir {
public:
    explicit TempDir(const std::filesystem::path& parent = std::filesystem::temp_directory_path())
        : path_(std::filesystem::canonical(parent) / "corvimo-test-XXXXXX") {
        if (mkdtemp(path_.data()) == nullptr) {
            throw std::system_error(errno, std::generic_category(), path_);
        }
    }

    ~TempDir() {
        std::error_code ignored;  // A destructor has nobody to tell.
        std::filesystem::remove_all(path_, ignored);
    }

    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    /// The folder: absolute, free of links, without a final "/".
    const std::string& path() const { return path_; }

    /// The path of `name` inside the folder.
    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

private:
    std::string path_;
};
