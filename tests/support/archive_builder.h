// Package archives made on the spot.
#pragma once

#include <memory>
#include <string>

struct archive;

/// Writes one archive, entry by entry. Throws std::runtime_error with libarchive's text on failure.
class ArchiveBuilder {
public:
    enum Format { ZIP, TAR, TAR_GZ, SEVEN_ZIP };

    ArchiveBuilder(const std::string& path, Format format);

    ArchiveBuilder& File(const std::string& name, const std::string& content, unsigned mode = 0644);
    ArchiveBuilder& Folder(const std::string& name);
    ArchiveBuilder& SymbolicLink(const std::string& name, const std::string& target);
    ArchiveBuilder& HardLink(const std::string& name, const std::string& target);
    /// A fifo or a device, by its type in a mode.
    ArchiveBuilder& Special(const std::string& name, unsigned type);

    /// Completes the archive; nothing may be added afterwards. The destructor does it too, but
    /// cannot tell a failure.
    void Finish();

private:
    ArchiveBuilder& Add(const std::string& name, unsigned type, unsigned mode,
                        const std::string& content, const char* target);
    void Check(long status) const;

    std::unique_ptr<archive, int (*)(archive*)> writer_;
};
