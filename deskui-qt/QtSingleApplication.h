#pragma once

#include <QApplication>
#include <memory>

#include "deskui_export.h"

class UniqueFd;

/// The application object of a program of which one instance runs at a time for each home folder,
/// whichever copy of the program is started.
///
/// The instance holds an advisory lock on the file ".Corvimo/launcher.lock" in the user's home
/// folder. The system releases it when the process ends in any way, so a crashed instance is in
/// nobody's way, and programs that the process starts do not inherit it. The file stays behind:
/// removing it would let two instances lock two files.
///
/// A lock that cannot be tried counts as free, since a launcher that never starts is worse than two
/// that run at once. A warning says why.
class DESKUI_EXPORT QtSingleApplication : public QApplication {
    Q_OBJECT

public:
    /// Makes the application object and tries the lock; only the lock's holder is the instance.
    ///
    /// The folder ".Corvimo" is made, for its owner alone, when only it is missing. It may be
    /// reached through a symbolic link, and others may have the right to write to it. The lock file
    /// counts when it is a regular file that belongs to the user; a symbolic link in its place is
    /// not followed. Where others may write to the folder, they can put another file in its place:
    /// two instances may then run at once.
    ///
    /// `argc` and `argv` must stay valid for as long as the object. `gui_enabled` has no effect: an
    /// application with widgets always has its window system. Main thread only.
    QtSingleApplication(int& argc, char** argv, bool gui_enabled);

    /// Releases the lock.
    ~QtSingleApplication() override;

    /// Whether another process was the instance when this object was made. It does not change
    /// later.
    bool isRunning() const { return is_running_; }

private:
    std::unique_ptr<UniqueFd> lock_;  ///< Null unless this process is the instance.
    bool is_running_ = false;
};
