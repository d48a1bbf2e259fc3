// The process-wide logger: timestamped records, filtered by a threshold per component, written to a
// file that is rotated once it has grown past 5 MiB, or to standard output, standard error or the
// system log.
//
// A module logs through LOG_MSG, at the end of this header, and through nothing else.
#pragma once

#include <pthread.h>

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <map>
#include <sstream>
#include <string>

/// All members are static: there is one logger in a process.
///
/// Before `Initialize` the logger already works: records of WARNING and more severe go to standard
/// error. Records may be written from any thread. `Initialize` and `Destroy` must run while no
/// other thread logs. The logger never reports a failure of its own to a caller that writes a
/// record: a record that cannot be written vanishes.
class Logger {
public:
    /// Where records go.
    enum Type : int32_t {
        TYPE_SYSLOG = 0,  ///< The system log, at LOG_ERR whatever the level, without a timestamp.
        TYPE_STDOUT = 1,
        TYPE_STDERR = 2,
        TYPE_FILE = 3  ///< `InitConfig::file_path`, counted and rotated.
    };

    /// Numbered like syslog priorities: the smaller, the more severe.
    enum Level : int32_t { ERROR = 3, WARNING = 4, NOTE = 5, INFO = 6, DEBUG = 7 };

    /// How writes to a file are guarded. Other outputs never lock.
    enum SafetyScope : int32_t {
        SCOPE_NONE = 0,
        SCOPE_PROCESS = 1,  ///< One mutex around every write.
        SCOPE_SHARED = 2    ///< Also reopens the file when another writer has rotated it.
    };

    /// Flags of `LogMsg3`; they may be combined.
    enum ConfigFlag : int32_t {
        FLAG_LINE_FEED = 2,  ///< End the record with a line feed.
        FLAG_ERRNO = 4       ///< Append errno and its text, when errno is not 0.
    };

    struct InitConfig {
        Type type = TYPE_STDOUT;
        std::string file_path;          ///< TYPE_FILE only.
        std::string debug_config_path;  ///< Thresholds per component; empty for none.
        int32_t rotate_count = 50;      ///< Files kept, the current one included.
        SafetyScope safety_scope = SCOPE_PROCESS;
    };

    /// Ends the former configuration and takes the new one.
    ///
    /// Returns 0, or -1 when memory is short, when TYPE_FILE has an empty path or when its file
    /// cannot be opened for appending; nothing is logged then until the next `Initialize`. A file
    /// of thresholds that is missing or malformed is no failure: the thresholds keep their values.
    /// The log file is created readable and writable by its owner alone. Anything but a regular file
    /// in its place cannot be opened.
    static int32_t Initialize(const InitConfig& init);
    static int32_t Initialize(Type type, const std::string& file_path,
                              const std::string& debug_config_path, int rotate_count,
                              SafetyScope scope);

    /// Closes the log file and frees what `Initialize` made. Nothing is logged until the next
    /// `Initialize`. The thresholds stay.
    static void Destroy();

    /// Whether a record would be written. Asked first, so that a record that is not wanted costs
    /// one map lookup and no formatting.
    static bool IsNeedToLog(Level level, const std::string& component);

    /// The component's threshold; 4 (WARNING) when it has none of its own.
    static int32_t GetCompLevel(const std::string& component);

    /// Writes one record. `format` holds the whole record, its prefix and its final line feed
    /// included; only the timestamp is put before it. errno is left as it was.
    static void LogMsg(Level level, const std::string& component, const char* format, ...)
        __attribute__((format(printf, 3, 4)));
    static void LogMsg2(Level level, const std::string& component, const char* format, va_list args)
        __attribute__((format(printf, 3, 0)));

    /// Writes the text collected in `message`; with FLAG_ERRNO, appends to it what errno held at
    /// the call.
    static void LogMsg3(Level level, const std::string& component, std::stringstream& message,
                        ConfigFlag flags);

    /// Moves the current file to index 0 and every older file one index up, drops the oldest, and
    /// opens a new current file. The caller holds the lock. Returns 0, or -1 when the current file
    /// could not be moved or opened anew; no stream is open then and records are dropped until the
    /// next `Initialize`.
    static int32_t Rotate();

    /// Counts `written` characters and rotates when the file is now larger than 5 MiB. Returns 0,
    /// or what `Rotate` returned.
    static int32_t RotateIfFileBig(int32_t written);

    /// Reopens the log file when another writer has rotated it (SCOPE_SHARED and TYPE_FILE only).
    static void ReloadLogFile();

    /// The file's size in bytes; 0 after a failure, which is itself written as a record.
    static int32_t GetFileSize(const std::string& path);

    /// Write one timestamped record to the open stream and flush it: no filter, no lock, no
    /// accounting, no rotation. Return the number of characters written, 0 when no stream is open.
    static int32_t PrintToFilePointer(const char* format, ...)
        __attribute__((format(printf, 1, 2)));
    static int32_t PrintToFilePointerV(const char* format, va_list args)
        __attribute__((format(printf, 1, 0)));

    /// Flushes the open stream; the argument has no meaning.
    static void FlushFileStream(long unused);

    /// The mutex exists while the configured scope asks for one. `Lock` and `Unlock` do nothing
    /// without it.
    static void InitializeLock();
    static void DestroyLock();
    static void Lock();
    static void Unlock();

    /// Reserved for a lock between processes; they do nothing.
    static void InitializeFileLock();
    static void DestroyFileLock();

    /// Allocates the size counter and the rotation counter unless both exist; returns the latter,
    /// or null when memory is short.
    static uint64_t* InitializeSharedData();
    static void DestroySharedData();

    /// The two numbers of a record's prefix: the process id, and the calling thread's handle modulo
    /// 100000.
    static int ProcessId();
    static int ThreadId();

private:
    static void InitializeThresholds();
    static int32_t InitializeOutput();

    static InitConfig config;
    static std::map<std::string, int32_t> log_level;
    static FILE* log_fp;
    static int32_t* log_size;
    static std::string log_path;
    static pthread_mutex_t* log_lock;
    static uint64_t* log_rotated_count_shared;
    static uint64_t log_rotated_count_private;
    static bool log_initialized;
    static int32_t log_flock;
};

/// `LogMsg2` for callers that have plain C types only.
void LogMSG_c(int level, const char* component, const char* format, va_list args)
    __attribute__((format(printf, 3, 0)));

// A module that logs defines, once and before its first record:
//
//     #define LOG_SOURCE "launcher"                        the source name in its records
//     const std::string kLogComponent = "launcher_debug";  the component whose threshold decides
//
// and then writes LOG_MSG(ERROR, "failed to open '%s'", path). The macro asks for the level first
// and adds the prefix and the line feed; the arguments are not evaluated when the record is not
// wanted.
#define LOG_MSG(level, ...) LOG_MSG_AT(__LINE__, level, __VA_ARGS__)

/// The same with a line number of the caller's choice, for records that others match on.
#define LOG_MSG_AT(line, level, ...) LOG_RECORD(line, level, __VA_ARGS__, "")

// The empty text at the end of LOG_MSG_AT feeds the last "%s", so that a message without arguments
// is valid C++17 too.
#define LOG_RECORD(line, level, message, ...)                                            \
    do {                                                                                 \
        if (Logger::IsNeedToLog(Logger::level, kLogComponent)) {                         \
            Logger::LogMsg(Logger::level, kLogComponent,                                 \
                           "(%5d:%5d) [" #level "] " LOG_SOURCE "(%d): " message "%s\n", \
                           Logger::ProcessId(), Logger::ThreadId(), line, __VA_ARGS__);  \
        }                                                                                \
    } while (false)
