#include "QtSingleApplication.h"

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <cerrno>
#include <utility>

#include "lib/platform/regular_file.h"
#include "lib/platform/retry.h"
#include "lib/platform/unique_fd.h"

namespace {

// Opens the lock file in the user's home folder, and creates it if it is missing. Returns 0, or the
// error number with `file` not open. The error is EPERM if the file belongs to another user.
int OpenLockFile(UniqueFd& file) {
    const QString folder = QDir::homePath() + QStringLiteral("/.Corvimo");
    // mkdir also fails if the folder exists. After any other failure, opening the file fails as
    // well.
    static_cast<void>(::mkdir(QFile::encodeName(folder).constData(), S_IRWXU));
    const QByteArray path = QFile::encodeName(folder + QStringLiteral("/launcher.lock"));
    UniqueFd opened =
        OpenRegularFile(path.toStdString(), O_RDWR | O_CREAT | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    // fstat and not stat, because another file may be at the path by now.
    struct stat status = {};
    if (!opened.IsOpen() || ::fstat(opened.Get(), &status) != 0) {
        return errno;
    }
    if (status.st_uid != ::geteuid()) {
        return EPERM;
    }
    file = std::move(opened);
    return 0;
}

// Takes the lock without waiting for it. Returns 0, or the error number. The error is EWOULDBLOCK
// if another process holds the lock.
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
