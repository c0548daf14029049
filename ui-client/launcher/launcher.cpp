#include "launcher.h"

#include <QGuiApplication>

#include <climits>

#include "log.h"
#include "mac/mac-service.h"
#include "notify-adapter.h"
#include "progress-dialog.h"
#include "strtable.h"

namespace {

const ustring& component() {
    static const ustring name("launcher_debug");
    return name;
}

const int kReadyTextId = 304;

}  // namespace

void HandlerThread::run() { exec(); }

Worker::Worker() : thread_(nullptr), service_(new MacService) {
    thread_ = new HandlerThread;
    moveToThread(thread_);
}

// The thread is normally joined by LaunchDone already; a thread object must never be destroyed
// while its thread runs, so make sure of it here too.
Worker::~Worker() {
    if (thread_->isRunning()) {
        thread_->quit();
        thread_->wait();
    }
    delete thread_;
    delete service_;
}

void Worker::StartThread() { thread_->start(QThread::InheritPriority); }

void Worker::QuitThread() { thread_->quit(); }

void Worker::JoinThread() { thread_->wait(ULONG_MAX); }

void Worker::HandleServicce() {
    Logger::LogMsg(Logger::LEVEL_DEBUG, component(), "[DEBUG] launcher.cpp(%d): running\n", __LINE__);
    service_->PreUpgrade();
    if (!service_->IsNeedUpgrade()) {
        Logger::LogMsg(Logger::LEVEL_DEBUG, component(), "[DEBUG] launcher.cpp(%d): no need to upgrade\n", __LINE__);
    } else {
        emit sigShowMsg();
        if (service_->HandlePackageUpgrade() == 0) {
            emit sigUpdateProgress(100, 100);
            emit sigSetLabelText(StrTable::LoadStr(kReadyTextId));
        } else {
            Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] launcher.cpp(%d): Failed to upgrade packge\n", __LINE__);
        }
    }
    service_->PostUpgrade();
    Logger::LogMsg(Logger::LEVEL_DEBUG, component(), "[DEBUG] launcher.cpp(%d): done\n", __LINE__);
    emit sigServiceDone();
}

Launcher::Launcher() : worker_(new Worker), dialog_(new ProcessingProgressDialog) {
    dialog_->setCancelButton(nullptr);
    dialog_->setAutoReset(false);
    // Only LaunchDone ends the run: closing the dialog's window must not quit the application
    // while the worker thread is still busy.
    QGuiApplication::setQuitOnLastWindowClosed(false);

    connect(this, SIGNAL(sigStart()), worker_, SLOT(HandleServicce()));
    connect(worker_, SIGNAL(sigShowMsg()), this, SLOT(ShowMsgBox()));
    connect(worker_, SIGNAL(sigServiceDone()), this, SLOT(LaunchDone()));
    connect(worker_, SIGNAL(sigUpdateProgress(int, int)), this, SLOT(UpdateProgress(int, int)));
    connect(worker_, SIGNAL(sigSetLabelText(QString)), this, SLOT(SetLabelText(QString)));
    connect(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateProgress(int, int)), this, SLOT(UpdateProgress(int, int)));
    connect(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateDialogText(QString)), this, SLOT(SetLabelText(QString)));
}

Launcher::~Launcher() {
    delete worker_;
    delete dialog_;
}

void Launcher::Run() { worker_->StartThread(); }

void Launcher::Start() { emit sigStart(); }

void Launcher::LaunchDone() {
    dialog_->setValue(100);
    dialog_->hide();
    worker_->QuitThread();
    worker_->JoinThread();
    QCoreApplication::quit();
}

void Launcher::UpdateProgress(int total, int steps) { dialog_->setValue(steps * 100 / total); }

void Launcher::SetLabelText(const QString& text) { dialog_->setLabelText(text); }

void Launcher::ShowMsgBox() { dialog_->show(); }
