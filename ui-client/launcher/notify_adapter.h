#pragma once

#include <QObject>
#include <QString>

/// Lets code that holds no reference to the user interface report progress and texts to it: each
/// call becomes one signal with the same arguments, and nothing more.
///
/// The instance belongs to the thread of the first `GetInstance`. The other calls may come from any
/// thread; a receiver on another thread gets them queued, in the order of the calls of one thread.
class Notify_Adapter : public QObject {
    Q_OBJECT

public:
    /// The single instance; it lives until the process ends and is never deleted by a caller.
    static Notify_Adapter* GetInstance();

    /// Reports that `current` of `total` steps are done.
    void UpdateProgress(int total, int current);

    /// Reports the text to show beside the progress.
    void UpdateDialogText(QString text);

Q_SIGNALS:
    void sigUpdateProgress(int total, int current);
    void sigUpdateDialogText(QString text);

private:
    Notify_Adapter() = default;
};
