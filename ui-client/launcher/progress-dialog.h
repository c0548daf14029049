// ProcessingProgressDialog: the launcher's only window, a small window-modal progress dialog
// configured once in its constructor. Not shown until the launcher shows it.
#ifndef UI_CLIENT_LAUNCHER_PROGRESS_DIALOG_H
#define UI_CLIENT_LAUNCHER_PROGRESS_DIALOG_H

#include <QProgressDialog>

class ProcessingProgressDialog : public QProgressDialog {
public:
    ProcessingProgressDialog();
};

#endif
