// Random names for temporary files and folders.
#pragma once

#include <mutex>
#include <random>
#include <string>

/// Draws names of eight characters. The names are hard to hit by chance, not hard to guess, and
/// nobody checks whether one is in use.
///
/// The process shares one instance, which lives until the process exits; any thread may use it.
class TmpNameGen {
public:
    /// The shared instance, made and seeded by the first call. Throws what `reseed` throws; the
    /// next call tries again then.
    static TmpNameGen* getInstance();

    /// Throws what `reseed` throws.
    TmpNameGen();
    ~TmpNameGen() = default;

    TmpNameGen(const TmpNameGen&) = delete;
    TmpNameGen& operator=(const TmpNameGen&) = delete;

    /// Starts a new sequence of names from /dev/urandom. Throws the standard library's exception,
    /// and leaves the sequence as it is, when that cannot be opened or read.
    void reseed();

    /// Eight characters, each from the ASCII letters, the digits, "-" and "_".
    std::string getTmpName();

    /// `folder`, a "/" and a new name. Nothing is created.
    std::string getTmpPath(const std::string& folder);

private:
    std::mutex mutex_;
    std::minstd_rand engine_;
};
