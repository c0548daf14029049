// QtSingleApplication: an application object that knows whether another instance of the same
// executable already runs for this user.
//
// Identity: the executable's full path. The guard is a lock file in QDir::tempPath() named
// "qtsingleapp-<up to 6 letters of the file name>-<hex CRC-16 of the path>-<hex uid>-lockfile",
// held with an fcntl write lock for the life of the process: the kernel drops it when the
// process ends, so a crashed instance never blocks the next start, and of two instances started
// together exactly one gets it. The first instance also listens on a local socket of that name
// in the same folder (a plain AF_UNIX socket: no message is ever exchanged, and linking a network
// module only for it would cost every start eight more libraries to load), and it claims that name
// where names die with their process (Linux's abstract sockets).
//
// Only a lock held by another process means another instance. A lock that cannot be taken at all
// (no lock service on a network file system, a FUSE file system without locks, a lock file that
// cannot be created) falls back on the claimed name, else on the folder's socket: a live holder
// answers on it.
#ifndef UI_CLIENT_QTSINGLEAPPLICATION_QTSINGLEAPPLICATION_H
#define UI_CLIENT_QTSINGLEAPPLICATION_QTSINGLEAPPLICATION_H

#include <QApplication>
#include <QString>

class QtSingleApplication : public QApplication {
    Q_OBJECT

public:
    QtSingleApplication(int& argc, char** argv, bool GUIenabled = true);
    ~QtSingleApplication() override;

    // True when another instance holds the guard. The first call takes the guard if it is free.
    bool isRunning();

    // Why the lock could not guard this instance and what guards it instead; empty when the lock did.
    QString guardWarning() const { return guard_warning_; }

    QString id() const { return id_; }
    QString socketName() const { return socket_name_; }
    QString lockFileName() const { return lock_name_; }

private:
    bool takeGuard();
    bool takeFallbackGuard(int lock_error);
    bool holderAnswers() const;
    void listen();

    QString id_;
    QString socket_name_;
    QString lock_name_;
    QString socket_path_;
    QByteArray claim_name_;
    QString guard_warning_;
    int lock_fd_ = -1;
    int name_fd_ = -1;
    int socket_fd_ = -1;
    bool guard_checked_ = false;
    bool other_running_ = false;
};

#endif
