#include "lib/log.h"

#include <sys/stat.h>
#include <syslog.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cinttypes>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <string_view>
#include <system_error>

#include "lib/config.h"
#include "lib/platform/regular_file.h"

Logger::InitConfig Logger::config;
std::map<std::string, int32_t> Logger::log_level;
FILE* Logger::log_fp = stderr;
int32_t* Logger::log_size = nullptr;
std::string Logger::log_path;
pthread_mutex_t* Logger::log_lock = nullptr;
uint64_t* Logger::log_rotated_count_shared = nullptr;
uint64_t Logger::log_rotated_count_private = 0;
bool Logger::log_initialized = true;
int32_t Logger::log_flock = -1;

namespace {

constexpr int32_t kDefaultThreshold = Logger::WARNING;
constexpr int64_t kMaxFileBytes = 0x500000;
constexpr std::size_t kNameBytes = 1024;
constexpr std::size_t kTimestampBytes = 512;

/// Leaves errno at the end of a block as it was at its beginning.
class ErrnoKeeper {
public:
    ErrnoKeeper() = default;
    ~ErrnoKeeper() { errno = saved_; }
    ErrnoKeeper(const ErrnoKeeper&) = delete;
    ErrnoKeeper& operator=(const ErrnoKeeper&) = delete;

private:
    const int saved_ = errno;
};

/// Counts the configurations, so that no timestamp outlives one.
unsigned configuration_number = 0;

/// The local time in front of a record, made once per second: a change of the time zone shows with
/// the next second. Each thread has its own, because records are not always written under the lock.
/// Needs no destruction, so that destructors of static objects may log.
class Timestamp {
public:
    /// Holds until the thread's next call.
    std::string_view Now() {
        const time_t now = time(nullptr);
        if (now != second_ || configuration_number != configuration_number_) {
            Make(now);
        }
        return {text_, length_};
    }

private:
    void Make(time_t now) {
        struct tm local = {};
        tzset();  // localtime_r, unlike localtime, need not look at the zone again.
        const bool known = localtime_r(&now, &local) != nullptr;
        length_ = known ? strftime(text_, sizeof(text_), "%Y-%m-%dT%H:%M:%S ", &local) : 0;
        second_ = now;
        configuration_number_ = configuration_number;
    }

    time_t second_ = -1;
    unsigned configuration_number_ = 0;
    char text_[kTimestampBytes] = {};
    std::size_t length_ = 0;
};

thread_local Timestamp local_time;

/// Writes the formatted text, at most `size` bytes with its final NUL. Returns the number of
/// characters of the whole text, or a negative number when it cannot be formatted.
__attribute__((format(printf, 3, 0))) int64_t FormatInto(char* buffer, std::size_t size,
                                                         const char* format, va_list args) {
    const ErrnoKeeper errno_keeper;  // The text may be made twice, and "%m" stands for errno.
    va_list copy;
    va_copy(copy, args);
    const int length = vsnprintf(buffer, size, format, copy);
    va_end(copy);
    return length;
}

/// The text of one record, made as a whole so that it reaches its stream in one call.
class RecordText {
public:
    /// Makes the text, but for its timestamp.
    void Format(const char* format, va_list args) __attribute__((format(printf, 2, 0))) {
        length_ = FormatInto(Text(), kShortBytes, format, args);
        if (length_ < static_cast<int64_t>(kShortBytes)) {
            return;
        }
        if (length_ > std::numeric_limits<int32_t>::max() - static_cast<int64_t>(kTimestampBytes)) {
            length_ = -1;
            return;
        }
        const std::size_t size = static_cast<std::size_t>(length_) + 1;
        long_.reset(new (std::nothrow) char[kTimestampBytes + size]);
        length_ = long_ == nullptr ? -1 : std::min(length_, FormatInto(Text(), size, format, args));
    }

    /// Whether there is a text: it may be impossible to format or too long for the memory.
    bool IsMade() const { return length_ >= 0; }

    /// Puts `timestamp` in front and returns the whole. May be called once, for a text that is
    /// made.
    std::string_view Stamped(std::string_view timestamp) {
        char* const begin = Text() - timestamp.size();
        timestamp.copy(begin, timestamp.size());
        return {begin, timestamp.size() + static_cast<std::size_t>(length_)};
    }

private:
    static constexpr std::size_t kShortBytes = 4096;  // Enough for most records.

    char* Text() { return (long_ != nullptr ? long_.get() : short_) + kTimestampBytes; }

    char short_[kTimestampBytes + kShortBytes];
    std::unique_ptr<char[]> long_;
    int64_t length_ = -1;
};

/// Holds the logger's lock for one record.
class LockHolder {
public:
    LockHolder() { Logger::Lock(); }
    ~LockHolder() { Logger::Unlock(); }
    LockHolder(const LockHolder&) = delete;
    LockHolder& operator=(const LockHolder&) = delete;
};

/// Whether the log file ends with a part of a record, because a write of this process or an earlier
/// one has failed.
bool ends_inside_record = false;

/// Whether the file's last byte is no line feed. False when it cannot be read.
bool EndsInsideLine(int fd) {
    char last = '\n';
    return lseek(fd, -1, SEEK_END) >= 0 && read(fd, &last, 1) == 1 && last != '\n';
}

/// Returns null when the file cannot be opened for appending.
FILE* OpenForAppending(const std::string& path) {
    UniqueFd fd = OpenRegularFile(path, O_RDWR | O_APPEND | O_CREAT, S_IRUSR | S_IWUSR);
    if (!fd.IsOpen() && errno == EACCES) {
        fd = OpenRegularFile(path, O_WRONLY | O_APPEND);  // It may be written to, but not read.
    }
    FILE* const stream = fd.IsOpen() ? fdopen(fd.Get(), "a") : nullptr;
    if (stream != nullptr) {
        ends_inside_record = EndsInsideLine(fd.Get());
        fd.Release();
    }
    return stream;
}

/// Writes the text. Returns false when a write fails; the text's beginning may be written then.
bool WriteAll(int fd, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = write(fd, text.data(), text.size());
        if (written > 0) {
            text.remove_prefix(static_cast<std::size_t>(written));
            ends_inside_record = !text.empty();
        } else if (written == 0 || errno != EINTR) {
            return false;
        }
    }
    return true;
}

/// Writes past the stream's buffer, which stays empty: one call for a record of any size, so that
/// processes that share the file write whole lines. A record that is cut short by a full disk is
/// ended before the next one begins.
void WriteToFile(FILE* stream, std::string_view text) {
    const int fd = fileno(stream);
    // Another process may have ended the record meanwhile.
    const bool is_cut = ends_inside_record && EndsInsideLine(fd);
    if (!is_cut || WriteAll(fd, "\n")) {
        static_cast<void>(WriteAll(fd, text));  // What cannot be written is lost.
    }
}

/// Writes one record, stamped with the time of now, and returns the number of its characters or a
/// negative number. What cannot be written vanishes, and counts all the same.
int32_t Write(RecordText& record, Logger::Type type, FILE* stream) {
    if (stream == nullptr) {
        return 0;
    }
    if (!record.IsMade()) {
        return -1;
    }
    const std::string_view text = record.Stamped(local_time.Now());
    if (type == Logger::TYPE_FILE) {
        WriteToFile(stream, text);
    } else {
        // In the order of what else the process prints.
        static_cast<void>(fwrite(text.data(), 1, text.size(), stream));
        static_cast<void>(fflush(stream));
    }
    return static_cast<int32_t>(text.size());
}

/// The standard streams are not the logger's to close.
void CloseLogStream(FILE*& stream) {
    if (stream != nullptr && stream != stderr && stream != stdout) {
        static_cast<void>(fclose(stream));  // Holds nothing that could still fail to be written.
    }
    stream = nullptr;
}

/// The name of a rotated file, cut where it gets too long.
std::string IndexedName(const std::string& path, int64_t index) {
    char name[kNameBytes];
    static_cast<void>(snprintf(name, sizeof(name), "%s_%" PRId64, path.c_str(), index));
    return name;
}

pid_t process_id = 0;

void FetchProcessId() {
    process_id = getpid();
}

/// Fetches the process id now and in every child. Returns whether it will.
bool KeepProcessId() {
    FetchProcessId();
    return pthread_atfork(nullptr, nullptr, FetchProcessId) == 0;
}

std::string ErrorText(int error) {
    return std::generic_category().message(error);
}

}  // namespace

int32_t Logger::Initialize(Type type, const std::string& file_path,
                           const std::string& debug_config_path, int rotate_count,
                           SafetyScope scope) {
    InitConfig init;
    init.type = type;
    init.file_path = file_path;
    init.debug_config_path = debug_config_path;
    init.rotate_count = rotate_count;
    init.safety_scope = scope;
    return Initialize(init);
}

int32_t Logger::Initialize(const InitConfig& init) {
    Destroy();
    ++configuration_number;
    config = init;
    log_path = init.file_path;
    if (config.type == TYPE_FILE) {
        InitializeLock();
    } else {
        config.safety_scope = SCOPE_NONE;
    }
    const bool lock_missing = config.safety_scope > SCOPE_NONE && log_lock == nullptr;
    if (lock_missing || InitializeSharedData() == nullptr) {
        Destroy();
        return -1;
    }
    InitializeThresholds();
    return InitializeOutput();
}

void Logger::InitializeThresholds() {
    log_level["default_component"] = kDefaultThreshold;
    Config file;
    // The file is optional: one that is not named, missing or malformed has no entries.
    static_cast<void>(file.read(config.debug_config_path));
    for (const auto& entry : file.entries) {
        log_level[entry.first] = file.get_int(entry.first);
    }
}

int32_t Logger::InitializeOutput() {
    if (config.type == TYPE_FILE) {
        FILE* const stream = log_path.empty() ? nullptr : OpenForAppending(log_path);
        if (stream == nullptr) {
            return -1;
        }
        log_fp = stream;
        *log_size = GetFileSize(log_path);
    } else {
        log_fp = config.type == TYPE_STDERR   ? stderr
                 : config.type == TYPE_STDOUT ? stdout
                                              : nullptr;
        log_path.clear();
        *log_size = -1;
    }
    *log_rotated_count_shared = 0;
    log_rotated_count_private = 0;
    log_initialized = true;
    return 0;
}

void Logger::Destroy() {
    log_initialized = false;
    if (config.type == TYPE_FILE) {
        CloseLogStream(log_fp);
        config.type = TYPE_STDERR;
        log_fp = stderr;
        log_path.clear();
    }
    DestroySharedData();
    DestroyLock();
}

bool Logger::IsNeedToLog(Level level, const std::string& component) {
    return log_initialized && level <= GetCompLevel(component);
}

int32_t Logger::GetCompLevel(const std::string& component) {
    const auto entry = log_level.find(component);
    return entry == log_level.end() ? kDefaultThreshold : entry->second;
}

void Logger::LogMsg(Level level, const std::string& component, const char* format, ...) {
    va_list args;
    va_start(args, format);
    LogMsg2(level, component, format, args);
    va_end(args);
}

void Logger::LogMsg2(Level level, const std::string& component, const char* format, va_list args) {
    if (!IsNeedToLog(level, component)) {
        return;
    }
    const ErrnoKeeper errno_keeper;
    if (config.type == TYPE_SYSLOG) {
        vsyslog(LOG_ERR, format, args);
        return;
    }
    // Made before the lock is taken, so that threads wait for each other's writing alone.
    RecordText record;
    record.Format(format, args);
    const LockHolder lock;
    if (log_fp != nullptr) {
        ReloadLogFile();
        // A failed rotation is not the caller's: it shows in the records that are missing.
        static_cast<void>(RotateIfFileBig(Write(record, config.type, log_fp)));
    }
}

void Logger::LogMsg3(Level level, const std::string& component, std::stringstream& message,
                     ConfigFlag flags) {
    const ErrnoKeeper errno_keeper;
    const int error = (flags & FLAG_ERRNO) != 0 ? errno : 0;
    if (error != 0) {
        message.seekp(0, std::ios_base::end);
        message << ", err=" << error << ":";
    }
    // The error's text is put in here because not every system's printf has "%m".
    LogMsg(level, component, "%s%s%s", message.str().c_str(),
           error != 0 ? ErrorText(error).c_str() : "", (flags & FLAG_LINE_FEED) != 0 ? "\n" : "");
}

void LogMSG_c(int level, const char* component, const char* format, va_list args) {
    Logger::LogMsg2(static_cast<Logger::Level>(level), component, format, args);
}

int32_t Logger::Rotate() {
    const int64_t count = config.rotate_count;
    for (int64_t i = count - 2; i >= 0; --i) {
        // Most of the names need not exist, and an older file is not worth losing a record for.
        static_cast<void>(
            rename(IndexedName(log_path, i).c_str(), IndexedName(log_path, i + 1).c_str()));
    }
    static_cast<void>(remove(IndexedName(log_path, count - 1).c_str()));
    CloseLogStream(log_fp);
    if (rename(log_path.c_str(), IndexedName(log_path, 0).c_str()) != 0) {
        return -1;
    }
    log_fp = OpenForAppending(log_path);
    if (log_fp == nullptr) {
        return -1;
    }
    ++*log_rotated_count_shared;
    ++log_rotated_count_private;
    return 0;
}

int32_t Logger::RotateIfFileBig(int32_t written) {
    if (written < 0 || config.type != TYPE_FILE) {
        return 0;
    }
    const int64_t size = static_cast<int64_t>(*log_size) + written;
    if (size <= kMaxFileBytes) {
        *log_size = static_cast<int32_t>(size);
        return 0;
    }
    const int32_t result = Rotate();
    *log_size = 0;
    return result;
}

void Logger::ReloadLogFile() {
    if (config.type != TYPE_FILE || config.safety_scope < SCOPE_SHARED ||
        log_rotated_count_private == *log_rotated_count_shared) {
        return;
    }
    const ErrnoKeeper errno_keeper;
    CloseLogStream(log_fp);
    log_fp = OpenForAppending(log_path);
    if (log_fp != nullptr) {
        *log_size = GetFileSize(log_path);
        log_rotated_count_private = *log_rotated_count_shared;
    }
}

int32_t Logger::GetFileSize(const std::string& path) {
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0) {
        const int error = errno;
        PrintToFilePointer("stat(%s): %s (%d)\n", path.c_str(), ErrorText(error).c_str(), error);
        return 0;
    }
    constexpr int64_t kLargest = std::numeric_limits<int32_t>::max();
    return static_cast<int32_t>(std::min<int64_t>(status.st_size, kLargest));
}

int32_t Logger::PrintToFilePointer(const char* format, ...) {
    va_list args;
    va_start(args, format);
    const int32_t length = PrintToFilePointerV(format, args);
    va_end(args);
    return length;
}

int32_t Logger::PrintToFilePointerV(const char* format, va_list args) {
    const ErrnoKeeper errno_keeper;
    RecordText record;
    record.Format(format, args);
    return Write(record, config.type, log_fp);
}

void Logger::FlushFileStream(long /*unused*/) {
    if (log_fp != nullptr) {
        static_cast<void>(fflush(log_fp));
    }
}

void Logger::InitializeLock() {
    if (config.safety_scope <= SCOPE_NONE || log_lock != nullptr) {
        return;
    }
    log_lock = new (std::nothrow) pthread_mutex_t;
    if (log_lock != nullptr) {
        pthread_mutex_init(log_lock, nullptr);
    }
}

void Logger::DestroyLock() {
    if (log_lock != nullptr) {
        pthread_mutex_destroy(log_lock);
        delete log_lock;
        log_lock = nullptr;
    }
}

void Logger::Lock() {
    if (log_lock != nullptr) {
        pthread_mutex_lock(log_lock);
    }
}

void Logger::Unlock() {
    if (log_lock != nullptr) {
        pthread_mutex_unlock(log_lock);
    }
}

void Logger::InitializeFileLock() {}

void Logger::DestroyFileLock() {}

uint64_t* Logger::InitializeSharedData() {
    if (log_size == nullptr || log_rotated_count_shared == nullptr) {
        DestroySharedData();
        log_size = new (std::nothrow) int32_t(0);
        log_rotated_count_shared = new (std::nothrow) uint64_t(0);
    }
    return log_size != nullptr ? log_rotated_count_shared : nullptr;
}

void Logger::DestroySharedData() {
    delete log_size;
    log_size = nullptr;
    delete log_rotated_count_shared;
    log_rotated_count_shared = nullptr;
}

int Logger::ProcessId() {
    // Asking the system for every record would cost a quarter of writing it.
    static const bool kept_up_to_date = KeepProcessId();
    return kept_up_to_date ? process_id : getpid();
}

int Logger::ThreadId() {
    const pthread_t self = pthread_self();  // A number on some systems, a pointer on others.
    uint64_t handle = 0;
    static_assert(sizeof(self) <= sizeof(handle), "the whole handle counts");
    memcpy(&handle, &self, sizeof(self));
    return static_cast<int>(handle % 100000);
}
