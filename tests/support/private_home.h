#pragma once

#include <sys/stat.h>

#include <string>
#include <vector>

#include "tests/support/temp_dir.h"

constexpr mode_t kFolder = S_IFDIR | 0755;
constexpr mode_t kExecutable = S_IFREG | 0755;
constexpr mode_t kSymbolicLink = S_IFLNK | 0777;
constexpr mode_t kHardLink = S_IFREG;  // No file here is one that nobody may read.

/// One entry of a package.
struct Entry {
    std::string name;
    std::string content;  ///< Or a link's target.
    mode_t mode = S_IFREG | 0644;
};

/// A home folder and launcher resources of a test's own, entered in the path registry.
struct PrivateHome {
    PrivateHome();

    /// The path of a name in the home folder.
    std::string operator/(const std::string& name) const { return folder / ("home/" + name); }

    /// Installs a client that is nothing but its executable.
    void InstallClient() const;

    /// Writes the launcher's package in the format that a file's suffix stands for.
    void Pack(const std::vector<Entry>& entries, const std::string& suffix = ".zip") const;

    const TempDir folder;
    const std::string package;  ///< The path of the launcher's package.
    const std::string app;      ///< The per-user bundle; not there at first.
};
