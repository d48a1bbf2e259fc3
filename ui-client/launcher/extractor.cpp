#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>
#include <sys/stat.h>

#include <QString>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <memory>

#include "lib/file/file-op.h"
#include "lib/log.h"
#include "notify_adapter.h"
#include "strtable.h"

#define LOG_SOURCE "extractor"

namespace {

const std::string kLogComponent = "extractor_debug";

constexpr std::size_t kReadBlockSize = 10240;

// An object in the way of an entry is replaced; modes less the umask are kept, times and owners
// not.
constexpr int kWriterOptions =
    ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA;

struct FreeReader {
    void operator()(archive* reader) const { archive_read_free(reader); }
};
struct FreeWriter {
    void operator()(archive* writer) const { archive_write_free(writer); }
};
using Reader = std::unique_ptr<archive, FreeReader>;
using Writer = std::unique_ptr<archive, FreeWriter>;

// libarchive gives no text where it has none to give.
const char* ErrorString(archive* handle) {
    const char* const text = archive_error_string(handle);
    return text != nullptr ? text : "";
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
// The one place that names the deprecated call: archive_read_support_filter_all does the same.
void EnableAllCompressions(archive* reader) {
    archive_read_support_compression_all(reader);
}
#pragma GCC diagnostic pop

bool HasArguments(const Extractor& extractor) {
    return !extractor.destination.empty() && !extractor.archive_path.empty();
}

// Refuses anything but a regular file: opening a FIFO waits for another process.
int OpenArchive(archive* reader, const std::string& path) {
    struct stat status;
    if (stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        archive_set_error(reader, EINVAL, "Not a regular file");
        return ARCHIVE_FATAL;
    }
    return archive_read_open_filename(reader, path.c_str(), kReadBlockSize);
}

// Opens the archive for a look at its entries. None after a failure, which is logged.
Reader OpenForReading(const Extractor& extractor) {
    if (!HasArguments(extractor)) {
        LOG_MSG(ERROR, "Invalid argument");
        return nullptr;
    }
    Reader reader(archive_read_new());
    if (reader == nullptr) {
        LOG_MSG(ERROR, "Allocate archive failed");
        return reader;
    }
    archive_read_support_filter_all(reader.get());
    archive_read_support_format_all(reader.get());
    if (OpenArchive(reader.get(), extractor.archive_path) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "archive_read_open_filename failed: '%s'", ErrorString(reader.get()));
        reader.reset();
    }
    return reader;
}

// A hard link names another entry, so its target lies under the destination as the entry itself
// does. False when the destination cannot be resolved.
//
// The target gets the destination without symbolic links among its folders: libarchive removes every
// one that it meets there, and those above the destination are the person's.
bool MoveLinkUnder(std::string destination, archive_entry* entry) {
    const char* const linked = archive_entry_hardlink(entry);
    if (linked == nullptr) {
        return true;
    }
    if (FSGetRealPath(destination) != 0) {
        return false;
    }
    archive_entry_set_hardlink(entry, (destination + "/" + linked).c_str());
    return true;
}

// archive_read_extract2 below the destination. Refuses a path longer than the system takes: libarchive
// would make it by changing the process's working folder, and nobody could use or remove the file.
int ExtractUnder(const std::string& destination, const char* name, archive* reader,
                 archive_entry* entry, archive* writer) {
    const std::string path = destination + "/" + name;
    if (path.size() >= PATH_MAX) {
        archive_set_error(writer, ENAMETOOLONG, "Path too long");
        return ARCHIVE_FAILED;
    }
    if (!MoveLinkUnder(destination, entry)) {
        archive_set_error(writer, ENOENT, "Cannot resolve '%s'", destination.c_str());
        return ARCHIVE_FAILED;
    }
    archive_entry_set_pathname(entry, path.c_str());
    return archive_read_extract2(reader, entry, writer);
}

// libarchive leaves the writer's text empty where the reader or the disk has failed.
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
    while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        ++count;
        archive_read_data_skip(reader.get());
    }
    return count;
}

int Extractor::List() const {
    const Reader reader = OpenForReading(*this);
    if (reader == nullptr) {
        return -1;
    }
    archive_entry* entry = nullptr;
    while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        const char* const name = archive_entry_pathname(entry);
        std::printf("%s\n", name != nullptr ? name : "");
        static_cast<void>(std::fflush(stdout));  // A listing is for a person who sees it end.
        archive_read_data_skip(reader.get());
    }
    archive_read_close(reader.get());
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
    Writer writer;  // Declared first, so that it is freed after the reader.
    const Reader reader(archive_read_new());
    if (reader != nullptr) {
        writer.reset(archive_write_disk_new());
    }
    if (writer == nullptr) {
        LOG_MSG(ERROR, "Allocate extractor failed");
        return -1;
    }
    archive_write_disk_set_options(writer.get(), kWriterOptions);
    EnableAllCompressions(reader.get());
    archive_read_support_format_all(reader.get());
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
        const int status = archive_read_next_header(reader, &entry);
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
    const char* const name = archive_entry_pathname(entry);
    if (name == nullptr) {
        LOG_MSG(ERROR, "archive_entry_pathname failed");
        return -1;
    }
    if (ExtractUnder(destination, name, reader, entry, writer) != ARCHIVE_OK) {
        LogFailedExtraction(reader, writer);
        return -1;
    }
    Notify_Adapter::GetInstance()->UpdateProgress(total, index);
    if (archive_write_finish_entry(writer) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "archive_write_finish_entry failed: '%s'", ErrorString(writer));
        return -1;
    }
    return 0;
}

int Extractor::copy_data(archive* reader, archive* writer) {
    if (reader == nullptr || writer == nullptr) {
        LOG_MSG(ERROR, "Invalid Argument");
        return -1;
    }
    for (;;) {
        const void* buffer = nullptr;
        std::size_t size = 0;
        la_int64_t offset = 0;
        const int status = archive_read_data_block(reader, &buffer, &size, &offset);
        if (status == ARCHIVE_EOF) {
            return 0;
        }
        if (status != ARCHIVE_OK) {
            LOG_MSG(ERROR, "archive_read_data_block failed: '%s'", ErrorString(reader));
            return -1;
        }
        if (archive_write_data_block(writer, buffer, size, offset) != ARCHIVE_OK) {
            LOG_MSG(ERROR, "archive_write_data_block failed: '%s'", ErrorString(writer));
            return -1;
        }
    }
}
