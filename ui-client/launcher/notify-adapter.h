// Notify_Adapter: the relay through which service code on the worker thread reports progress and
// label texts to the dialog. It only emits; receivers on other threads get queued calls.
#ifndef UI_CLIENT_LAUNCHER_NOTIFY_ADAPTER_H
#define UI_CLIENT_LAUNCHER_NOTIFY_ADAPTER_H

#include <QObject>
#include <QString>

class Notify_Adapter : public QObject {
    Q_OBJECT

public:
    static Notify_Adapter* GetInstance();

    void UpdateProgress(int total, int current);
    void UpdateDialogText(QString text);

signals:
    void sigUpdateProgress(int total, int current);
    void sigUpdateDialogText(QString text);

private:
    Notify_Adapter() = default;
};

#endif
