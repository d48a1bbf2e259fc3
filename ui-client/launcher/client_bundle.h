// One copy of the client on disk: the installed one, or one that was moved aside as a backup.
#pragma once

#include <cstdint>
#include <string>

/// The paths, below the bundle, of the files that make it whole. Each begins with "/".
struct BundleParts {
    std::string executable;
    std::string info;
};

/// What is at a bundle's path.
struct ClientBundle {
    enum State {
        kMissing,
        kTorso,   ///< Something is there, but it is not whole.
        kWhole,   ///< It has an executable file, and an INFO with a whole number as its build.
        kUnknown  ///< The system refused to tell.
    };
    State state = kUnknown;
    int64_t build = 0;  ///< Of a whole bundle; 0 otherwise.
};

/// Inspects the bundle at `path`. Nothing is logged.
ClientBundle InspectBundle(const std::string& path, const BundleParts& parts);

/// Removes the bundle at `path`, whatever state it is in. Returns whether nothing is there any more.
///
/// INFO goes first, or where it cannot be removed, the executable: what an interruption leaves is not
/// whole. Where something cannot be removed, every folder is made writable for its owner, and the
/// removal is tried once more. Symbolic links are removed, never followed.
bool RemoveBundle(const std::string& path, const BundleParts& parts);

/// Whether there certainly is nothing at the path, as opposed to something that cannot be inspected.
bool IsSurelyMissing(const std::string& path);
