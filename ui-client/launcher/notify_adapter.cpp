#include "notify_adapter.h"

#include <utility>

Notify_Adapter* Notify_Adapter::GetInstance() {
    static Notify_Adapter ad;
    return &ad;
}

void Notify_Adapter::UpdateProgress(int total, int current) {
    Q_EMIT sigUpdateProgress(total, current);
}

void Notify_Adapter::UpdateDialogText(QString text) {
    Q_EMIT sigUpdateDialogText(std::move(text));
}
