// The process-wide logger: timestamped records, filtered by a threshold per component, written to a
// file that is rotated once it has grown past 5 MiB, or to standard output, standard error or the
// system log.
//
// A module logs through LOG_MSG, at the end of this header, and through nothing else.
#pragma once

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <sstream>
#include <string>

/// All members are static: there is one logger in a process.
///
/// The logger works before `Initialize`, also in constructors of static objects: records of WARNING
/// and more severe go to standard error. After `main`, destructors of static objects may log too.
///
/// Any thread may write records. `Initialize` and `Destroy` must run while no other thread logs or
/// forks. With a lock, a child of fork may log whatever the other threads were doing at the fork.
/// Without a lock, a child of fork may log only if no other thread was logging at the fork.
///
/// The caller of a record never learns of a failure. A record that cannot be written is lost.
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
    enum Level : int32_t {
        LEVEL_ERROR = 3,
        LEVEL_WARNING = 4,
        LEVEL_NOTE = 5,
        LEVEL_INFO = 6,
        LEVEL_DEBUG = 7
    };

    /// How writes to a file are guarded. Other outputs have no lock.
    enum SafetyScope : int32_t {
        SCOPE_NONE = 0,     ///< No lock.
        SCOPE_PROCESS = 1,  ///< One lock for all threads, held during every write.
        SCOPE_SHARED = 2    ///< The same lock; reopens the file after another writer's rotation.
    };

    /// Flags of `LogMsg3`; they may be combined.
    enum ConfigFlag : int32_t {
        FLAG_LINE_FEED = 2,  ///< End the record with a line feed.
        FLAG_ERRNO = 4       ///< Append errno and its text if errno is not 0.
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
    /// Returns 0 on success. Returns -1 when the lock or the counters cannot be made, when
    /// TYPE_FILE has an empty path, or when its file cannot be opened for appending. After a
    /// failure nothing is logged until the next `Initialize`.
    ///
    /// A missing or malformed file of thresholds is not a failure: the thresholds keep their
    /// values. Only the owner can read and write a log file that is created here. A path that leads
    /// to anything but a regular file cannot be opened.
    static int32_t Initialize(const InitConfig& init);
    static int32_t Initialize(Type type, const std::string& file_path,
                              const std::string& debug_config_path, int rotate_count,
                              SafetyScope scope);

    /// Closes the log file and frees what `Initialize` made. Nothing is logged until the next
    /// `Initialize`. The thresholds stay.
    static void Destroy();

    /// Returns whether a record would be written. Callers ask this first, so that an unwanted
    /// record costs one map lookup and no formatting.
    static bool IsNeedToLog(Level level, const std::string& component);

    /// Returns the component's threshold, or 4 (WARNING) for a component without one.
    static int32_t GetCompLevel(const std::string& component);

    /// Writes one record. `format` makes the whole record with its prefix and its final line feed;
    /// the logger only adds the timestamp. Leaves errno unchanged.
    static void LogMsg(Level level, const std::string& component, const char* format, ...)
        __attribute__((format(printf, 3, 4)));
    static void LogMsg2(Level level, const std::string& component, const char* format, va_list args)
        __attribute__((format(printf, 3, 0)));

    /// Writes the text of `message` as one record.
    ///
    /// With FLAG_ERRNO, and when errno is not 0, first appends ", err=NUMBER:" to `message`,
    /// whatever state that stream is in. The text of the error follows in the record alone. Leaves
    /// errno unchanged.
    static void LogMsg3(Level level, const std::string& component, std::stringstream& message,
                        ConfigFlag flags);

    /// Renames the current file to index 0 and every older file to the next index, removes the
    /// oldest file, and opens a new current file. The caller holds the lock.
    ///
    /// Returns 0 on success. Returns -1 when the current file cannot be renamed or the new one
    /// cannot be opened. Then no stream is open, and records are lost until the next `Initialize`.
    static int32_t Rotate();

    /// Adds `written` characters to the size of the file, and rotates if it is now above 5 MiB.
    /// Returns 0, or the result of `Rotate`.
    static int32_t RotateIfFileBig(int32_t written);

    /// Reopens the log file if another writer has rotated it (SCOPE_SHARED and TYPE_FILE only).
    static void ReloadLogFile();

    /// Returns the size of a file in bytes. If that fails, writes the reason as a record and
    /// returns 0.
    static int32_t GetFileSize(const std::string& path);

    /// Write one timestamped record to the open stream and flush it, without asking for the level,
    /// locking, counting or rotating. Return the number of characters of the record, or 0 when no
    /// stream is open.
    static int32_t PrintToFilePointer(const char* format, ...)
        __attribute__((format(printf, 1, 2)));
    static int32_t PrintToFilePointerV(const char* format, va_list args)
        __attribute__((format(printf, 1, 0)));

    /// Flushes the open stream. The argument is not used.
    static void FlushFileStream(long unused);

    /// Make, free, take and release the lock. It exists for TYPE_FILE with a scope above
    /// SCOPE_NONE, and without it `Lock` and `Unlock` do nothing. It is not recursive: between
    /// `Lock` and `Unlock` a thread must neither write a record nor fork.
    static void InitializeLock();
    static void DestroyLock();
    static void Lock();
    static void Unlock();

    /// Do nothing. They are reserved for a lock between processes.
    static void InitializeFileLock();
    static void DestroyFileLock();

    /// Allocates the size counter and the rotation counter unless both exist. Returns the rotation
    /// counter, or null when memory is short.
    static uint64_t* InitializeSharedData();
    static void DestroySharedData();

    /// Return the two numbers of a record's prefix: the process id, and the calling thread's handle
    /// modulo 100000.
    static int ProcessId();
    static int ThreadId();

private:
    struct State;

    static State& GetState();
    static void InitializeThresholds();
    static int32_t InitializeOutput();
};

/// Calls `LogMsg2`, for callers that have plain C types only.
void LogMSG_c(int level, const char* component, const char* format, va_list args)
    __attribute__((format(printf, 3, 0)));

// A module that logs defines, once and before its first record:
//
//     #define LOG_SOURCE "launcher"                        the source name in its records
//     const std::string kLogComponent = "launcher_debug";  the component whose threshold decides
//
// Static objects of the module whose constructors or destructors log are defined below these.

/// Writes one record, such as LOG_MSG(ERROR, "failed to open '%s'", path), if its level is wanted.
///
/// Adds the prefix and the line feed. The level is a word without its LEVEL_ prefix, the message is
/// a string literal. The arguments are evaluated only if the record is wanted.
#define LOG_MSG(level, ...) LOG_RECORD(__LINE__, Logger::LEVEL_##level, #level, __VA_ARGS__, "")

/// Writes the same with a line number of the caller's choice, for records that others match on.
#define LOG_MSG_AT(line, level, ...) \
    LOG_RECORD(line, Logger::LEVEL_##level, #level, __VA_ARGS__, "")

// The two macros above use `level` only beside "#", so that a macro named DEBUG does not replace
// it. Their final empty text goes to the last "%s": C++17 allows no empty list of variable
// arguments.
#define LOG_RECORD(line, level, word, message, ...)                                     \
    do {                                                                                \
        if (Logger::IsNeedToLog(level, kLogComponent)) {                                \
            Logger::LogMsg(level, kLogComponent,                                        \
                           "(%5d:%5d) [" word "] " LOG_SOURCE "(%d): " message "%s\n",  \
                           Logger::ProcessId(), Logger::ThreadId(), line, __VA_ARGS__); \
        }                                                                               \
    } while (false)
