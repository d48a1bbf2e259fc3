#pragma once

#include <QObject>
#include <QString>

/// Reports progress and texts to the user interface, for code without a reference to it. Each call
/// emits one signal with the same arguments.
///
/// The instance belongs to the thread that calls `GetInstance` first. Any thread may report. A
/// receiver on another thread gets the reports queued, and those of one thread in their order.
class Notify_Adapter : public QObject {
    Q_OBJECT

public:
    /// Returns the only instance. It lives until the process ends, and the caller does not own it.
    static Notify_Adapter* GetInstance();

    /// Reports that `current` of `total` steps are done.
    void UpdateProgress(int total, int current);

    /// Reports the text to show with the progress.
    void UpdateDialogText(QString text);

Q_SIGNALS:
    void sigUpdateProgress(int total, int current);
    void sigUpdateDialogText(QString text);

private:
    Notify_Adapter() = default;
};
