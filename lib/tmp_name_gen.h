// Random names for temporary files and folders.
#pragma once

#include <mutex>
#include <random>
#include <string>

/// Makes random names of eight characters.
///
/// Two names are rarely equal, but an attacker can predict them. Whether a file of that name exists
/// is not checked. Any thread may call any function.
class TmpNameGen {
public:
    /// Returns the instance that the whole process shares, until the process exits. The first call
    /// makes it. Throws if `reseed` throws; then the next call tries again.
    static TmpNameGen* getInstance();

    /// Calls `reseed`, and throws if that throws.
    TmpNameGen();
    ~TmpNameGen() = default;

    TmpNameGen(const TmpNameGen&) = delete;
    TmpNameGen& operator=(const TmpNameGen&) = delete;

    /// Starts a new sequence of names with a number from /dev/urandom. If that file cannot be
    /// opened or read, throws the standard library's exception and keeps the old sequence.
    void reseed();

    /// Returns a name of eight characters: ASCII letters, digits, "-" and "_".
    std::string getTmpName();

    /// Returns `folder`, a "/" and a new name. Creates nothing.
    std::string getTmpPath(const std::string& folder);

private:
    std::mutex mutex_;
    std::minstd_rand engine_;
};
