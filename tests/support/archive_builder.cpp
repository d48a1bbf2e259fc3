#include "tests/support/archive_builder.h"

#include <archive.h>
#include <archive_entry.h>

#include <stdexcept>

constexpr const char* kSuffixes[] = {".zip", ".tar", ".tar.gz", ".7z"};

ArchiveBuilder::ArchiveBuilder(const std::string& path, Format format)
    : writer_(archive_write_new(), archive_write_free) {
    Check(archive_write_set_format_filter_by_ext(writer_.get(), kSuffixes[format]));
    if (format == ZIP) {
        // Modes in front of each entry too, as in the packages that ship.
        Check(archive_write_set_format_option(writer_.get(), "zip", "experimental", "1"));
    }
    Check(archive_write_open_filename(writer_.get(), path.c_str()));
}

ArchiveBuilder& ArchiveBuilder::File(const std::string& name, const std::string& content,
                                     unsigned mode) {
    return Add(name, AE_IFREG, mode, content, nullptr);
}

ArchiveBuilder& ArchiveBuilder::Folder(const std::string& name) {
    return Add(name, AE_IFDIR, 0755, "", nullptr);
}

ArchiveBuilder& ArchiveBuilder::SymbolicLink(const std::string& name, const std::string& target) {
    return Add(name, AE_IFLNK, 0777, "", target.c_str());
}

ArchiveBuilder& ArchiveBuilder::HardLink(const std::string& name, const std::string& target) {
    return Add(name, AE_IFREG, 0644, "", target.c_str());
}

ArchiveBuilder& ArchiveBuilder::Special(const std::string& name, unsigned type) {
    return Add(name, type, 0644, "", nullptr);
}

void ArchiveBuilder::Finish() {
    Check(archive_write_close(writer_.get()));
}

ArchiveBuilder& ArchiveBuilder::Add(const std::string& name, unsigned type, unsigned mode,
                                    const std::string& content, const char* target) {
    const std::unique_ptr<archive_entry, decltype(&archive_entry_free)> entry(archive_entry_new(),
                                                                              archive_entry_free);
    archive_entry_set_pathname(entry.get(), name.c_str());
    archive_entry_set_filetype(entry.get(), type);
    archive_entry_set_perm(entry.get(), mode);
    archive_entry_set_size(entry.get(), static_cast<la_int64_t>(content.size()));
    const auto set_target =
        type == AE_IFLNK ? archive_entry_set_symlink : archive_entry_set_hardlink;
    set_target(entry.get(), target);
    Check(archive_write_header(writer_.get(), entry.get()));
    Check(archive_write_data(writer_.get(), content.data(), content.size()));
    return *this;
}

void ArchiveBuilder::Check(long status) const {
    if (status < ARCHIVE_WARN) {
        throw std::runtime_error(archive_error_string(writer_.get()));
    }
}
