// The launcher's spine: the main-thread Launcher, the Worker that runs the upgrade service once
// on its own HandlerThread, and the traffic between them (queued signals only).
#ifndef UI_CLIENT_LAUNCHER_LAUNCHER_H
#define UI_CLIENT_LAUNCHER_LAUNCHER_H

#include <QObject>
#include <QString>
#include <QThread>

class ProcessingProgressDialog;
class Service;

class HandlerThread : public QThread {
protected:
    void run() override;
};

class Worker : public QObject {
    Q_OBJECT

public:
    Worker();
    ~Worker() override;

    void StartThread();
    void QuitThread();
    void JoinThread();

signals:
    void sigServiceDone();
    void sigShowMsg();
    void sigUpdateProgress(int total, int steps);
    void sigSetLabelText(const QString& text);

private slots:
    void HandleServicce();

private:
    HandlerThread* thread_;
    Service* service_;
};

class Launcher : public QObject {
    Q_OBJECT

public:
    Launcher();
    ~Launcher() override;

    void Run();
    void Start();

signals:
    void sigStart();

private slots:
    void LaunchDone();
    void UpdateProgress(int total, int steps);
    void SetLabelText(const QString& text);
    void ShowMsgBox();

private:
    Worker* worker_;
    ProcessingProgressDialog* dialog_;
};

#endif
