#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

/// Owns a file descriptor and closes it; -1 stands for none. Closing leaves errno as it was, so
/// that an error may be returned from the middle of a function.
class UniqueFd {
public:
    UniqueFd() = default;
    explicit UniqueFd(int fd) : fd_(fd) {}
    UniqueFd(UniqueFd&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    UniqueFd& operator=(UniqueFd&& other) noexcept {
        std::swap(fd_, other.fd_);
        return *this;
    }
    ~UniqueFd() { Close(); }

    bool IsOpen() const { return fd_ >= 0; }
    int Get() const { return fd_; }

    /// Gives the descriptor away; the caller closes it.
    int Release() { return std::exchange(fd_, -1); }

    void Close() {
        if (fd_ < 0) {
            return;
        }
        const int saved_errno = errno;
        // Not retried: after EINTR the descriptor is gone or its state unknown, and closing it
        // again could hit one that another thread has just opened.
        ::close(std::exchange(fd_, -1));
        errno = saved_errno;
    }

private:
    int fd_ = -1;
};
