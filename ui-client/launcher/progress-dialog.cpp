#include "progress-dialog.h"

#include <QFont>
#include <QIcon>
#include <QString>

#include "lumora-service.h"
#include "strtable.h"

namespace {

const int kTitleTextId = 306;
const int kPreparingTextId = 340;
const int kWidth = 400;
const char kStyleSheet[] = " QProgressDialog { background-color: WhiteSmoke; \n  vertical-align: middle } ";

}  // namespace

ProcessingProgressDialog::ProcessingProgressDialog() : QProgressDialog() {
    const QFont font(QStringLiteral("Arial"), -1, -1, false);
    const QString icon = QString::fromUtf8(Service::GetRootLumoraResourceInstallPath().c_str()) +
                         QStringLiteral("/images/ico_72_lumora.png");
    setWindowTitle(StrTable::LoadStr(kTitleTextId));
    setWindowIcon(QIcon(icon));
    setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    setValue(0);
    setRange(0, 100);
    setLabelText(StrTable::LoadStr(kPreparingTextId));
    setFont(font);
    setFixedWidth(kWidth);
    setModal(true);
    setWindowModality(Qt::WindowModal);
    setStyleSheet(QString::fromLatin1(kStyleSheet));
}
