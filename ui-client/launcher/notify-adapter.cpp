#include "notify-adapter.h"

Notify_Adapter* Notify_Adapter::GetInstance() {
    static Notify_Adapter ad;
    return &ad;
}

void Notify_Adapter::UpdateProgress(int total, int current) { emit sigUpdateProgress(total, current); }

void Notify_Adapter::UpdateDialogText(QString text) { emit sigUpdateDialogText(text); }
