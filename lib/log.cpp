#include "lib/log.h"

#include <pthread.h>
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
#include <map>
#include <memory>
#include <new>
#include <string_view>

#include "lib/config.h"
#include "lib/platform/error_text.h"
#include "lib/platform/regular_file.h"

struct Logger::State {
    InitConfig config;
    std::map<std::string, int32_t> log_level;
    FILE* log_fp = stderr;
    int32_t* log_size = nullptr;
    std::string log_path;
    pthread_mutex_t* log_lock = nullptr;
    uint64_t* log_rotated_count_shared = nullptr;
    uint64_t log_rotated_count_private = 0;
    bool log_initialized = true;
    int32_t log_flock = -1;  // Reserved for a lock between processes.

    int32_t Threshold(const std::string& component) const {
        const auto entry = log_level.find(component);
        return entry == log_level.end() ? static_cast<int32_t>(LEVEL_WARNING) : entry->second;
    }
};

// The first call makes the state, and nothing destroys it. If the state were a static object,
// constructors of other static objects could log before it exists, and destructors after its end.
Logger::State& Logger::GetState() {
    alignas(State) static unsigned char place[sizeof(State)];
    static State* const state = new (place) State;
    return *state;
}

namespace {

constexpr int64_t kMaxFileBytes = 0x500000;
constexpr std::size_t kNameBytes = 1024;
constexpr std::size_t kTimestampBytes = 512;

// Restores errno at the end of a block.
class ErrnoKeeper {
public:
    ErrnoKeeper() = default;
    ~ErrnoKeeper() { errno = saved_; }
    ErrnoKeeper(const ErrnoKeeper&) = delete;
    ErrnoKeeper& operator=(const ErrnoKeeper&) = delete;

private:
    const int saved_ = errno;
};

// Grows with every `Initialize`. Each thread then makes a new timestamp, so that a change of the
// time zone before `Initialize` takes effect at once.
unsigned configuration_number = 0;

// Makes the timestamps of one thread, and keeps the last one for the rest of its second. Each
// thread has its own, because records are not always written under the lock. Without a destructor,
// it can be used until the thread ends.
class Timestamp {
public:
    // The result is valid until the thread's next call.
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
        tzset();  // localtime_r, unlike localtime, may miss a change of TZ.
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

// Writes the formatted text, at most `size` bytes with its final NUL. Returns the number of
// characters of the whole text, or a negative number if it cannot be formatted.
__attribute__((format(printf, 3, 0))) int64_t FormatInto(char* buffer, std::size_t size,
                                                         const char* format, va_list args) {
    const ErrnoKeeper errno_keeper;  // "%m" reads errno, also when a text is formatted twice.
    va_list copy;
    va_copy(copy, args);
    const int length = vsnprintf(buffer, size, format, copy);
    va_end(copy);
    return length;
}

// Makes the whole text of one record in one buffer, so that one call can write it.
class RecordText {
public:
    // Formats the text and leaves room for the timestamp.
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

    // Returns false if the text could not be formatted or memory was short.
    bool IsMade() const { return length_ >= 0; }

    // Puts `timestamp` in front and returns the whole text. To be called once, if IsMade().
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

// Holds the logger's lock for one record.
class LockHolder {
public:
    LockHolder() { Logger::Lock(); }
    ~LockHolder() { Logger::Unlock(); }
    LockHolder(const LockHolder&) = delete;
    LockHolder& operator=(const LockHolder&) = delete;
};

// Whether the log file ends inside a record, because a write of this process or of an earlier one
// failed.
bool ends_inside_record = false;

// Returns whether the file's last byte is something else than a line feed. False if that byte
// cannot be read.
bool EndsInsideLine(int fd) {
    char last = '\n';
    return lseek(fd, -1, SEEK_END) >= 0 && read(fd, &last, 1) == 1 && last != '\n';
}

// Opens a log file, and creates a missing one. Returns null if it cannot be opened for appending.
FILE* OpenForAppending(const std::string& path) {
    UniqueFd fd = OpenRegularFile(path, O_RDWR | O_APPEND | O_CREAT, S_IRUSR | S_IWUSR);
    if (!fd.IsOpen() && errno == EACCES) {
        fd = OpenRegularFile(path, O_WRONLY | O_APPEND);  // May be written, but not read.
    }
    FILE* const stream = fd.IsOpen() ? fdopen(fd.Get(), "a") : nullptr;
    if (stream != nullptr) {
        ends_inside_record = EndsInsideLine(fd.Get());
        fd.Release();
    }
    return stream;
}

// Writes the text. Returns false if a write fails; a part of the text may be in the file then.
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

// Writes a record to the log file in one call, without the stream's buffer. Several processes that
// share the file thus write whole lines. Ends a line first that a full disk has cut.
void WriteToFile(FILE* stream, std::string_view text) {
    const int fd = fileno(stream);
    // Another process may have ended the line in the meantime.
    const bool is_cut = ends_inside_record && EndsInsideLine(fd);
    if (!is_cut || WriteAll(fd, "\n")) {
        static_cast<void>(WriteAll(fd, text));  // A record that cannot be written is lost.
    }
}

// Writes one record with the current time. Returns the number of its characters, also if they could
// not be written, or a negative number if the record could not be formatted.
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
        // By way of the stream, which keeps records and the program's other output in order. A
        // record that cannot be written is lost.
        static_cast<void>(fwrite(text.data(), 1, text.size(), stream));
        static_cast<void>(fflush(stream));
    }
    return static_cast<int32_t>(text.size());
}

// Closes a log file. Standard output and standard error stay open for the rest of the program.
void CloseLogStream(FILE*& stream) {
    if (stream != nullptr && stream != stderr && stream != stdout) {
        static_cast<void>(fclose(stream));  // Loses nothing: the stream's buffer is always empty.
    }
    stream = nullptr;
}

// Returns the name of a rotated file, cut to kNameBytes - 1 bytes.
std::string IndexedName(const std::string& path, int64_t index) {
    char name[kNameBytes];
    static_cast<void>(snprintf(name, sizeof(name), "%s_%" PRId64, path.c_str(), index));
    return name;
}

pid_t process_id = 0;

void EndForkInChild() {
    process_id = getpid();
    Logger::Unlock();
}

bool RegisterForkHandlers() {
    process_id = getpid();
    return pthread_atfork(Logger::Lock, Logger::Unlock, EndForkInChild) == 0;
}

// Makes every fork wait until no thread holds the lock, and makes the child fetch its process id.
// Otherwise a child whose parent was writing a record in another thread would wait forever for the
// lock. Registers the handlers at the first call. Returns false if memory was too short for that.
bool HandleForks() {
    static const bool is_registered = RegisterForkHandlers();
    return is_registered;
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
    State& state = GetState();
    ++configuration_number;
    state.config = init;
    state.log_path = init.file_path;
    if (state.config.type == TYPE_FILE) {
        InitializeLock();
    } else {
        state.config.safety_scope = SCOPE_NONE;
    }
    const bool lock_missing = state.config.safety_scope > SCOPE_NONE && state.log_lock == nullptr;
    if (lock_missing || InitializeSharedData() == nullptr) {
        Destroy();
        return -1;
    }
    InitializeThresholds();
    return InitializeOutput();
}

void Logger::InitializeThresholds() {
    State& state = GetState();
    state.log_level["default_component"] = LEVEL_WARNING;
    Config file;
    // Ignored because the file is optional. If the reading fails, the file has no entries.
    static_cast<void>(file.read(state.config.debug_config_path));
    for (const auto& entry : file.entries) {
        state.log_level[entry.first] = file.get_int(entry.first);
    }
}

int32_t Logger::InitializeOutput() {
    State& state = GetState();
    if (state.config.type == TYPE_FILE) {
        FILE* const stream = state.log_path.empty() ? nullptr : OpenForAppending(state.log_path);
        if (stream == nullptr) {
            return -1;
        }
        state.log_fp = stream;
        *state.log_size = GetFileSize(state.log_path);
    } else {
        state.log_fp = state.config.type == TYPE_STDERR   ? stderr
                       : state.config.type == TYPE_STDOUT ? stdout
                                                          : nullptr;
        state.log_path.clear();
        *state.log_size = -1;
    }
    *state.log_rotated_count_shared = 0;
    state.log_rotated_count_private = 0;
    state.log_initialized = true;
    return 0;
}

void Logger::Destroy() {
    State& state = GetState();
    state.log_initialized = false;
    if (state.config.type == TYPE_FILE) {
        CloseLogStream(state.log_fp);
        state.config.type = TYPE_STDERR;
        state.log_fp = stderr;
        state.log_path.clear();
    }
    DestroySharedData();
    DestroyLock();
}

bool Logger::IsNeedToLog(Level level, const std::string& component) {
    const State& state = GetState();
    return state.log_initialized && level <= state.Threshold(component);
}

int32_t Logger::GetCompLevel(const std::string& component) {
    return GetState().Threshold(component);
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
    const State& state = GetState();
    if (state.config.type == TYPE_SYSLOG) {
        vsyslog(LOG_ERR, format, args);
        return;
    }
    // Formatted before the lock is taken, so that other threads wait for the writing only.
    RecordText record;
    record.Format(format, args);
    const LockHolder lock;
    if (state.log_fp != nullptr) {
        ReloadLogFile();
        // Ignored because the caller of a record never learns of a failure.
        static_cast<void>(RotateIfFileBig(Write(record, state.config.type, state.log_fp)));
    }
}

void Logger::LogMsg3(Level level, const std::string& component, std::stringstream& message,
                     ConfigFlag flags) {
    const ErrnoKeeper errno_keeper;
    const int error = (flags & FLAG_ERRNO) != 0 ? errno : 0;
    if (error != 0) {
        // Not by "<<": it does nothing on a stream that was read to its end, and may write the
        // number in hexadecimal.
        const std::string text = ", err=" + std::to_string(error) + ":";
        message.rdbuf()->pubseekoff(0, std::ios_base::end, std::ios_base::out);
        message.rdbuf()->sputn(text.data(), static_cast<std::streamsize>(text.size()));
    }
    // Not by "%m", which not every system's printf has.
    LogMsg(level, component, "%s%s%s", message.str().c_str(),
           error != 0 ? PlatformErrorText(error).c_str() : "",
           (flags & FLAG_LINE_FEED) != 0 ? "\n" : "");
}

void LogMSG_c(int level, const char* component, const char* format, va_list args) {
    Logger::LogMsg2(static_cast<Logger::Level>(level), component, format, args);
}

int32_t Logger::Rotate() {
    State& state = GetState();
    const int64_t count = state.config.rotate_count;
    for (int64_t i = count - 2; i >= 0; --i) {
        // Ignored because most files do not exist yet, and the current record matters more than
        // the order of old files.
        static_cast<void>(rename(IndexedName(state.log_path, i).c_str(),
                                 IndexedName(state.log_path, i + 1).c_str()));
    }
    // Ignored because that file need not exist.
    static_cast<void>(remove(IndexedName(state.log_path, count - 1).c_str()));
    CloseLogStream(state.log_fp);
    if (rename(state.log_path.c_str(), IndexedName(state.log_path, 0).c_str()) != 0) {
        return -1;
    }
    state.log_fp = OpenForAppending(state.log_path);
    if (state.log_fp == nullptr) {
        return -1;
    }
    ++*state.log_rotated_count_shared;
    ++state.log_rotated_count_private;
    return 0;
}

int32_t Logger::RotateIfFileBig(int32_t written) {
    State& state = GetState();
    if (written < 0 || state.config.type != TYPE_FILE) {
        return 0;
    }
    const int64_t size = static_cast<int64_t>(*state.log_size) + written;
    if (size <= kMaxFileBytes) {
        *state.log_size = static_cast<int32_t>(size);
        return 0;
    }
    const int32_t result = Rotate();
    *state.log_size = 0;
    return result;
}

void Logger::ReloadLogFile() {
    State& state = GetState();
    if (state.config.type != TYPE_FILE || state.config.safety_scope < SCOPE_SHARED ||
        state.log_rotated_count_private == *state.log_rotated_count_shared) {
        return;
    }
    const ErrnoKeeper errno_keeper;
    CloseLogStream(state.log_fp);
    state.log_fp = OpenForAppending(state.log_path);
    if (state.log_fp != nullptr) {
        *state.log_size = GetFileSize(state.log_path);
        state.log_rotated_count_private = *state.log_rotated_count_shared;
    }
}

int32_t Logger::GetFileSize(const std::string& path) {
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0) {
        const int error = errno;
        PrintToFilePointer("stat(%s): %s (%d)\n", path.c_str(), PlatformErrorText(error).c_str(),
                           error);
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
    const State& state = GetState();
    RecordText record;
    record.Format(format, args);
    return Write(record, state.config.type, state.log_fp);
}

void Logger::FlushFileStream(long /*unused*/) {
    const State& state = GetState();
    if (state.log_fp != nullptr) {
        static_cast<void>(fflush(state.log_fp));  // A record that cannot be written is lost.
    }
}

void Logger::InitializeLock() {
    State& state = GetState();
    if (state.config.safety_scope <= SCOPE_NONE || state.log_lock != nullptr) {
        return;
    }
    state.log_lock = new (std::nothrow) pthread_mutex_t;
    if (state.log_lock != nullptr && pthread_mutex_init(state.log_lock, nullptr) != 0) {
        delete state.log_lock;
        state.log_lock = nullptr;
    }
    static_cast<void>(HandleForks());  // Without it, only a child of fork may be unable to log.
}

void Logger::DestroyLock() {
    State& state = GetState();
    if (state.log_lock != nullptr) {
        static_cast<void>(pthread_mutex_destroy(state.log_lock));  // Fails only while locked.
        delete state.log_lock;
        state.log_lock = nullptr;
    }
}

void Logger::Lock() {
    const State& state = GetState();
    if (state.log_lock != nullptr) {
        static_cast<void>(pthread_mutex_lock(state.log_lock));  // Cannot fail for a default mutex.
    }
}

void Logger::Unlock() {
    const State& state = GetState();
    if (state.log_lock != nullptr) {
        static_cast<void>(pthread_mutex_unlock(state.log_lock));  // Nor can this.
    }
}

void Logger::InitializeFileLock() {}

void Logger::DestroyFileLock() {}

uint64_t* Logger::InitializeSharedData() {
    State& state = GetState();
    if (state.log_size == nullptr || state.log_rotated_count_shared == nullptr) {
        DestroySharedData();
        state.log_size = new (std::nothrow) int32_t(0);
        state.log_rotated_count_shared = new (std::nothrow) uint64_t(0);
    }
    return state.log_size != nullptr ? state.log_rotated_count_shared : nullptr;
}

void Logger::DestroySharedData() {
    State& state = GetState();
    delete state.log_size;
    state.log_size = nullptr;
    delete state.log_rotated_count_shared;
    state.log_rotated_count_shared = nullptr;
}

int Logger::ProcessId() {
    return HandleForks() ? process_id : getpid();  // getpid is a system call in every record.
}

int Logger::ThreadId() {
    const pthread_t self = pthread_self();  // A number on Linux, a pointer on macOS.
    uint64_t handle = 0;
    static_assert(sizeof(self) <= sizeof(handle), "the whole handle counts");
    memcpy(&handle, &self, sizeof(self));
    return static_cast<int>(handle % 100000);
}
