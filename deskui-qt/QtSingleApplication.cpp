#include "QtSingleApplication.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <cerrno>
#include <utility>

#include "lib/platform/retry.h"
#include "lib/platform/unique_fd.h"

namespace {

/// Opens the folder, which is made if it is missing. Returns 0, or the error number with `folder`
/// not open: EPERM when others than the user own it or may write to it.
int OpenPrivateFolder(const QByteArray& path, UniqueFd& folder) {
    // A failure shows when the folder is opened; that it already exists is none.
    ::mkdir(path.constData(), S_IRWXU);
    UniqueFd opened(RetryInterrupted(
        [&path] { return ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    // The open folder is examined, not its path, which may come to name another one meanwhile.
    struct stat status = {};
    if (!opened.IsOpen() || ::fstat(opened.Get(), &status) != 0) {
        return errno;
    }
    if (status.st_uid != ::geteuid() || (status.st_mode & (S_IWGRP | S_IWOTH)) != 0) {
        return EPERM;
    }
    folder = std::move(opened);
    return 0;
}

/// Opens the lock file of the user's home folder, which is made if it is missing. Returns 0, or the
/// error number with `file` not open.
int OpenLockFile(UniqueFd& file) {
    UniqueFd folder;
    const QString path = QDir::homePath() + QStringLiteral("/.Corvimo");
    if (const int error = OpenPrivateFolder(QFile::encodeName(path), folder); error != 0) {
        return error;
    }
    file = UniqueFd(RetryInterrupted([&folder] {
        return ::openat(folder.Get(), "launcher.lock", O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC,
                        S_IRUSR | S_IWUSR);
    }));
    return file.IsOpen() ? 0 : errno;
}

/// Takes the lock without waiting for it. Returns 0, or the error number: EWOULDBLOCK when another
/// process has it.
int TakeLock(const UniqueFd& file) {
    const int result = RetryInterrupted([&file] { return ::flock(file.Get(), LOCK_EX | LOCK_NB); });
    return result == 0 ? 0 : errno;
}

void WarnThatLockIsUntried(int error) {
    qErrnoWarning(error, "Cannot tell whether another instance is running");
}

}  // namespace

QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool /*gui_enabled*/)
    : QApplication(argc, argv) {
    UniqueFd file;
    if (const int error = OpenLockFile(file); error != 0) {
        WarnThatLockIsUntried(error);
        return;
    }
    const int error = TakeLock(file);
    is_running_ = error == EWOULDBLOCK;
    if (error == 0) {
        lock_ = std::make_unique<UniqueFd>(std::move(file));
    } else if (!is_running_) {
        WarnThatLockIsUntried(error);
    }
}

QtSingleApplication::~QtSingleApplication() = default;
