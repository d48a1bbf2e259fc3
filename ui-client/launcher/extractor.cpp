#include "extractor.h"

#include <sys/stat.h>

#include <QString>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <memory>

#include "archive_library.h"
#include "lib/file/file-op.h"
#include "lib/log.h"
#include "notify_adapter.h"
#include "strtable.h"

#define LOG_SOURCE "extractor"

namespace {

const std::string kLogComponent = "extractor_debug";

constexpr std::size_t kReadBlockSize = 10240;

// An existing object at the path of an entry is replaced. Modes are set, less the umask. Times and
// owners are not set.
constexpr int kWriterOptions =
    ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA;

struct FreeReader {
    void operator()(archive* reader) const { LibArchive()->archive_read_free(reader); }
};
struct FreeWriter {
    void operator()(archive* writer) const { LibArchive()->archive_write_free(writer); }
};
using Reader = std::unique_ptr<archive, FreeReader>;
using Writer = std::unique_ptr<archive, FreeWriter>;

// Returns the text of a handle's last error, or an empty text where libarchive returns null.
const char* ErrorString(archive* handle) {
    const char* const text = LibArchive()->archive_error_string(handle);
    return text != nullptr ? text : "";
}

// This call is deprecated, and does the same as archive_read_support_filter_all.
void EnableAllCompressions(archive* reader) {
    LibArchive()->archive_read_support_compression_all(reader);
}

bool HasArguments(const Extractor& extractor) {
    return !extractor.destination.empty() && !extractor.archive_path.empty();
}

// Opens a regular file only, because opening a FIFO waits for another process.
int OpenArchive(archive* reader, const std::string& path) {
    struct stat status;
    if (stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        LibArchive()->archive_set_error(reader, EINVAL, "Not a regular file");
        return ARCHIVE_FATAL;
    }
    return LibArchive()->archive_read_open_filename(reader, path.c_str(), kReadBlockSize);
}

// Returns null if libarchive cannot be loaded or memory is short.
Reader NewReader() {
    return Reader(LibArchive() != nullptr ? LibArchive()->archive_read_new() : nullptr);
}

// Opens the archive for reading its entries. Logs a failure and returns null.
Reader OpenForReading(const Extractor& extractor) {
    if (!HasArguments(extractor)) {
        LOG_MSG(ERROR, "Invalid argument");
        return nullptr;
    }
    Reader reader = NewReader();
    if (reader == nullptr) {
        LOG_MSG(ERROR, "Allocate archive failed");
        return reader;
    }
    LibArchive()->archive_read_support_filter_all(reader.get());
    LibArchive()->archive_read_support_format_all(reader.get());
    if (OpenArchive(reader.get(), extractor.archive_path) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "archive_read_open_filename failed: '%s'", ErrorString(reader.get()));
        reader.reset();
    }
    return reader;
}

// Puts the destination in front of a hard link's target, which is the name of another entry.
// Returns false if the destination cannot be resolved.
//
// libarchive removes every symbolic link on the path of a hard link's target. So the target gets
// the stored path of the destination: a symbolic link above the destination belongs to the user.
bool MoveLinkTargetUnder(std::string destination, archive_entry* entry) {
    const char* const linked = LibArchive()->archive_entry_hardlink(entry);
    if (linked == nullptr) {
        return true;
    }
    if (FSGetRealPath(destination) != 0) {
        return false;
    }
    LibArchive()->archive_entry_set_hardlink(entry, (destination + "/" + linked).c_str());
    return true;
}

// Extracts an entry below the destination. Returns the status of archive_read_extract2.
//
// Refuses a path that is too long for the system. libarchive would create it by changing the
// process's working folder, and no program could use or remove the file by its path.
int ExtractUnder(const std::string& destination, const char* name, archive* reader,
                 archive_entry* entry, archive* writer) {
    const std::string path = destination + "/" + name;
    if (path.size() >= PATH_MAX) {
        LibArchive()->archive_set_error(writer, ENAMETOOLONG, "Path too long");
        return ARCHIVE_FAILED;
    }
    if (!MoveLinkTargetUnder(destination, entry)) {
        LibArchive()->archive_set_error(writer, ENOENT, "Cannot resolve '%s'", destination.c_str());
        return ARCHIVE_FAILED;
    }
    LibArchive()->archive_entry_set_pathname(entry, path.c_str());
    return LibArchive()->archive_read_extract2(reader, entry, writer);
}

// Logs the writer's error, and the reader's if the writer has none: libarchive sets only the
// reader's error when reading fails.
void LogFailedExtraction(archive* reader, archive* writer) {
    const char* const text = ErrorString(writer);
    LOG_MSG(ERROR, "archive_read_extract2 failed: '%s'", text);
    const char* const cause = ErrorString(reader);
    if (*text == '\0' && *cause != '\0') {
        LOG_MSG(WARNING, "package reader: '%s'", cause);
    }
}

}  // namespace

int Extractor::Count() const {
    const Reader reader = OpenForReading(*this);
    if (reader == nullptr) {
        return -1;
    }
    int count = 0;
    archive_entry* entry = nullptr;
    while (LibArchive()->archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        ++count;
        LibArchive()->archive_read_data_skip(reader.get());
    }
    return count;
}

int Extractor::List() const {
    const Reader reader = OpenForReading(*this);
    if (reader == nullptr) {
        return -1;
    }
    archive_entry* entry = nullptr;
    while (LibArchive()->archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        const char* const name = LibArchive()->archive_entry_pathname(entry);
        std::printf("%s\n", name != nullptr ? name : "");
        static_cast<void>(std::fflush(stdout));  // The result does not depend on the output.
        LibArchive()->archive_read_data_skip(reader.get());
    }
    LibArchive()->archive_read_close(reader.get());
    return 0;
}

int Extractor::Extract() {
    if (!HasArguments(*this)) {
        LOG_MSG(ERROR, "Invalid Argument");
        return -1;
    }
    LOG_MSG(DEBUG, "decompress from '%s' to '%s'", archive_path.c_str(), destination.c_str());
    Notify_Adapter::GetInstance()->UpdateDialogText(
        StrTable::LoadStrWithAppName(StrTable::kInitializing));
    const int total = Count();
    if (total < 1) {
        LOG_MSG(ERROR, "Failed to calculate total file numbers, ret: %d", total);
        return -1;
    }
    Writer writer;  // Declared before the reader, so that it is freed after it.
    const Reader reader = NewReader();
    if (reader != nullptr) {
        writer.reset(LibArchive()->archive_write_disk_new());
    }
    if (writer == nullptr) {
        LOG_MSG(ERROR, "Allocate extractor failed");
        return -1;
    }
    LibArchive()->archive_write_disk_set_options(writer.get(), kWriterOptions);
    EnableAllCompressions(reader.get());
    LibArchive()->archive_read_support_format_all(reader.get());
    if (OpenArchive(reader.get(), archive_path) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "Failed to read file '%s' ('%s')", archive_path.c_str(),
                ErrorString(reader.get()));
        return -1;
    }
    return ExtractEntries(reader.get(), writer.get(), total);
}

int Extractor::ExtractEntries(archive* reader, archive* writer, int total) const {
    for (int index = 1;; ++index) {
        archive_entry* entry = nullptr;
        const int status = LibArchive()->archive_read_next_header(reader, &entry);
        if (status == ARCHIVE_EOF) {
            return 0;
        }
        if (status != ARCHIVE_OK) {
            LOG_MSG(ERROR, "archive_read_next_header failed: '%s'", ErrorString(reader));
            return -1;
        }
        if (ExtractEntry(reader, writer, entry, total, index) != 0) {
            return -1;
        }
    }
}

int Extractor::ExtractEntry(archive* reader, archive* writer, archive_entry* entry, int total,
                            int index) const {
    const char* const name = LibArchive()->archive_entry_pathname(entry);
    if (name == nullptr) {
        LOG_MSG(ERROR, "archive_entry_pathname failed");
        return -1;
    }
    if (ExtractUnder(destination, name, reader, entry, writer) != ARCHIVE_OK) {
        LogFailedExtraction(reader, writer);
        return -1;
    }
    Notify_Adapter::GetInstance()->UpdateProgress(total, index);
    if (LibArchive()->archive_write_finish_entry(writer) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "archive_write_finish_entry failed: '%s'", ErrorString(writer));
        return -1;
    }
    return 0;
}

int Extractor::copy_data(archive* reader, archive* writer) {
    if (reader == nullptr || writer == nullptr || LibArchive() == nullptr) {
        LOG_MSG(ERROR, "Invalid Argument");
        return -1;
    }
    for (;;) {
        const void* buffer = nullptr;
        std::size_t size = 0;
        la_int64_t offset = 0;
        const int status = LibArchive()->archive_read_data_block(reader, &buffer, &size, &offset);
        if (status == ARCHIVE_EOF) {
            return 0;
        }
        if (status != ARCHIVE_OK) {
            LOG_MSG(ERROR, "archive_read_data_block failed: '%s'", ErrorString(reader));
            return -1;
        }
        if (LibArchive()->archive_write_data_block(writer, buffer, size, offset) != ARCHIVE_OK) {
            LOG_MSG(ERROR, "archive_write_data_block failed: '%s'", ErrorString(writer));
            return -1;
        }
    }
}
