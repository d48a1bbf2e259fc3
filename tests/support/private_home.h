#pragma once

#include <string>

#include "tests/support/archive_builder.h"
#include "tests/support/temp_dir.h"

/// A home folder and launcher resources of a test's own, entered in the path registry.
struct PrivateHome {
    PrivateHome();

    /// The path of a name in the home folder.
    std::string operator/(const std::string& name) const { return folder / ("home/" + name); }

    /// Installs a client of the given build: an executable, an INFO and a link.
    void InstallClient(const std::string& build) const;

    /// Begins the launcher's package; what it holds is up to the test.
    ArchiveBuilder Package(ArchiveBuilder::Format format = ArchiveBuilder::ZIP) const;

    const TempDir folder;
    const std::string package;  ///< The path of the launcher's package.
    const std::string app;      ///< The per-user bundle; not there at first.
};
