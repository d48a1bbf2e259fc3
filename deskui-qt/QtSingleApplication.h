#pragma once

#include <QApplication>
#include <memory>

#include "deskui_export.h"

class UniqueFd;

/// The application object of a program that runs only once at a time for each home folder, even if
/// the user has several copies of the program.
///
/// The running instance holds an advisory lock on the file ".Corvimo/launcher.lock" in the user's
/// home folder. The system releases the lock when the process ends, also after a crash. Programs
/// that the process starts do not inherit the lock. The file is never removed: otherwise two
/// instances could lock two different files.
///
/// If the lock cannot be tried, it counts as free, and a warning says why. Two launchers at once do
/// less harm than a launcher that never starts.
class DESKUI_EXPORT QtSingleApplication : public QApplication {
    Q_OBJECT

public:
    /// Makes the application object and tries the lock. Main thread only.
    ///
    /// Creates the folder ".Corvimo", with access for its owner only, if it is missing. It may be a
    /// symbolic link to a folder, and others may have write access to it. If others replace the
    /// lock file there, two instances can run at once. The lock file must be a regular file that
    /// belongs to the user, and no symbolic link.
    ///
    /// `argc` and `argv` must stay valid as long as the object exists. `gui_enabled` has no effect:
    /// an application with widgets always needs a window system.
    QtSingleApplication(int& argc, char** argv, bool gui_enabled);

    /// Releases the lock.
    ~QtSingleApplication() override;

    /// Returns whether another instance was running when this object was made. The result never
    /// changes.
    bool isRunning() const { return is_running_; }

private:
    std::unique_ptr<UniqueFd> lock_;  ///< Null unless this process is the instance.
    bool is_running_ = false;
};
