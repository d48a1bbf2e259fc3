// The objects of one run: a worker that installs the client on a thread of its own, and a progress
// dialog on the main thread.
//
// None of these objects has a Qt parent. Their owners are unique_ptr members and `main`.
#pragma once

#include <QObject>
#include <QProgressDialog>
#include <QString>
#include <QThread>
#include <memory>

class Service;

/// The worker's thread. It only runs an event loop.
class HandlerThread : public QThread {
    Q_OBJECT

public:
    HandlerThread();

protected:
    void run() override;
};

/// Runs the steps of the installation service in their fixed order.
///
/// The slot `HandleServicce` runs on the worker's own thread, where it also emits the signals. All
/// public functions are called on the main thread. The worker's thread must have ended before the
/// destructor runs.
class Worker : public QObject {
    Q_OBJECT

public:
    Worker();
    ~Worker() override;

    /// Starts the thread. If the system cannot create a thread, nothing happens.
    void StartThread();

    /// Returns whether the thread has started and has not ended yet.
    bool IsThreadRunning() const;

    /// Asks the thread's event loop to end, and does not wait for that.
    void QuitThread();

    /// Waits without a time limit until the thread has ended. Returns at once if it never started.
    void JoinThread();

Q_SIGNALS:
    /// Comes last: all steps are done.
    void sigServiceDone();
    /// Comes before an installation.
    void sigShowMsg();
    /// Reports that `steps` of `total` steps are done.
    void sigUpdateProgress(int total, int steps);
    void sigSetLabelText(const QString& text);

private Q_SLOTS:
    void HandleServicce();

private:
    void InstallPackage();

    // Members are destroyed in reverse order: first the thread, then the service that ran on it.
    std::unique_ptr<Service> service_;
    std::unique_ptr<HandlerThread> handler_thread_;
};

/// The small window that shows the progress of an installation: a label, and a bar from 0 to 100.
class ProcessingProgressDialog : public QProgressDialog {
    Q_OBJECT

public:
    /// Takes the texts from the string table, the icon from the launcher's resources and the font
    /// from the application. The dialog is hidden at first.
    ProcessingProgressDialog();

    /// Does nothing, so that the Escape key does not hide the dialog.
    void reject() override;

protected:
    /// Ignores the event, so that the window system does not close the dialog.
    void closeEvent(QCloseEvent* event) override;
};

/// Owns the worker and the dialog and connects them. Lives on the main thread.
class Launcher : public QObject {
    Q_OBJECT

public:
    /// Needs a filled path registry and a filled string table.
    Launcher();

    /// Waits until the worker's thread has ended.
    ~Launcher() override;

    /// Starts the worker's thread.
    void Run();

    /// Starts the worker's steps; to be called after `Run`. The application quits when they are
    /// done.
    ///
    /// If the system could not create the worker's thread, the steps run on the main thread as soon
    /// as its event loop runs.
    void Start();

Q_SIGNALS:
    /// Makes the worker run its steps on its own thread.
    void sigStart();

protected:
    /// Runs the worker's steps on the main thread.
    void timerEvent(QTimerEvent* event) override;

private Q_SLOTS:
    void LaunchDone();
    void UpdateProgress(int total, int steps);
    void SetLabelText(const QString& text);
    void ShowMsgBox();

private:
    void ConnectAll();

    // Members are destroyed in reverse order: the worker, whose signals change the dialog, ends
    // first.
    std::unique_ptr<ProcessingProgressDialog> dialog_;
    std::unique_ptr<Worker> worker_;
};
