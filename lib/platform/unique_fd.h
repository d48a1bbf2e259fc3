#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

/// Owns a file descriptor and closes it; -1 stands for none. Closing leaves errno unchanged, so
/// that a function may set errno and then return.
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

    /// Returns the descriptor and no longer owns it; the caller closes it.
    int Release() { return std::exchange(fd_, -1); }

    void Close() {
        if (fd_ < 0) {
            return;
        }
        const int saved_errno = errno;
        // Not repeated after EINTR: the descriptor may be closed already, and another thread may
        // have opened a file with the same number.
        ::close(std::exchange(fd_, -1));
        errno = saved_errno;
    }

private:
    int fd_ = -1;
};
