// One copy of the client on disk: the installed one, or a backup of it.
//
// Nothing is logged here, and nothing is thrown.
#pragma once

#include <cstdint>
#include <string>

/// The paths, relative to the bundle, of the two files that a whole bundle needs. Each begins with
/// "/".
struct BundleParts {
    std::string executable;
    std::string info;
};

/// What was found at a bundle's path.
struct ClientBundle {
    enum State {
        kMissing,
        kIncomplete,  ///< Something is there, but it is not whole.
        kWhole,       ///< It has an executable file, and an INFO with a whole number as its build.
        kUnknown      ///< It could not be inspected.
    };
    State state = kUnknown;
    int64_t build = 0;  ///< The build of a whole bundle, otherwise 0.
};

/// Inspects the bundle at `path`.
ClientBundle InspectBundle(const std::string& path, const BundleParts& parts);

/// Removes whatever is at `path`. Returns whether nothing is there afterwards.
///
/// INFO is removed first, or the executable if INFO cannot be removed. So what an interruption
/// leaves is not whole. If an object cannot be removed, every folder is made writable for its
/// owner, and the removal is tried once more. Symbolic links are removed, never followed.
bool RemoveBundle(const std::string& path, const BundleParts& parts);

/// Returns whether nothing is at `path`. Returns false if the path cannot be inspected.
bool IsSurelyMissing(const std::string& path);
