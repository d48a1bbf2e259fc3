// The control spine of a run: the worker that installs, on a thread of its own, and the progress
// dialog that follows it on the main thread.
#pragma once

#include <QObject>
#include <QProgressDialog>
#include <QString>
#include <QThread>

class Service;

/// The worker's thread: nothing but an event loop.
class HandlerThread : public QThread {
    Q_OBJECT

public:
    HandlerThread();

protected:
    void run() override;
};

/// Runs the installation service through its fixed sequence.
///
/// Made on the main thread; belongs to its own thread from then on. It is destroyed on the main
/// thread after its own thread has finished.
class Worker : public QObject {
    Q_OBJECT

public:
    Worker();
    ~Worker() override;

    /// Starts the thread, unless the system refuses to make another one.
    void StartThread();
    bool IsThreadRunning() const;
    void QuitThread();

    /// Waits without a limit until the thread has finished. Returns at once if it never started.
    void JoinThread();

Q_SIGNALS:
    /// The sequence is over; the last thing that it does.
    void sigServiceDone();
    /// An installation begins.
    void sigShowMsg();
    void sigUpdateProgress(int total, int steps);
    void sigSetLabelText(const QString& text);

private Q_SLOTS:
    void HandleServicce();

private:
    void InstallPackage();

    HandlerThread* handler_thread_;  ///< Owned.
    Service* service_;               ///< Owned.
};

/// The small window that is shown while a package is installed: a label and a bar from 0 to 100.
class ProcessingProgressDialog : public QProgressDialog {
    Q_OBJECT

public:
    /// Takes its texts from the string table, its icon from the folder registered for the
    /// launcher's resources and its font from the application.
    ProcessingProgressDialog();

    /// Does nothing: no key and no window button ends what the dialog shows.
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;
};

/// Owns the worker and the dialog and connects them. Lives on the main thread.
class Launcher : public QObject {
    Q_OBJECT

public:
    /// The path registry and the string table must be filled before.
    Launcher();
    ~Launcher() override;

    /// Starts the worker's thread.
    void Run();

    /// Has the worker begin: on its own thread, or where the system refused to make one, on the main
    /// thread once the event loop runs. The application quits when the worker is done.
    void Start();

Q_SIGNALS:
    void sigStart();

protected:
    /// Runs the worker's sequence on the main thread.
    void timerEvent(QTimerEvent* event) override;

private Q_SLOTS:
    void LaunchDone();
    void UpdateProgress(int total, int steps);
    void SetLabelText(const QString& text);
    void ShowMsgBox();

private:
    void ConnectAll();

    Worker* worker_;                    ///< Owned.
    ProcessingProgressDialog* dialog_;  ///< Owned.
};
