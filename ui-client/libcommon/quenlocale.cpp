#include "quenlocale.h"

#include <QDebug>
#include <QFile>
#include <QLocale>
#include <QMap>

namespace {

const char* const grgszLanguages[] = {
    "enu", "cht", "chs", "jpn", "deu", "krn", "fra", "ita", "esn", "ptb", "rus",
    "dan", "nor", "sve", "nld", "plk", "hun", "ptg", "trk", "csy", nullptr,
};
const unsigned kLanguageCount = 20;

const QString qstrLanguageFallSafe = QStringLiteral("enu");

// The first entry of a null-terminated list equal to name.
bool inList(const QString* rgqstrList, const QString& name) {
    for (const QString* entry = rgqstrList; !entry->isNull(); ++entry)
        if (*entry == name) return true;
    return false;
}

}  // namespace

namespace QuenLocale {

QString getDefaultLanguage() { return getLanguageForLocaleName(QLocale::system().name()); }

QString getLanguageForLocaleName(const QString& qstrLocaleName) {
    const QString qstrLocaleLower = qstrLocaleName.toLower();
    qDebug("%s:%d %s=[%s\n] ", __FILE__, __LINE__, "qPrintable(qstrLocaleLower)", qPrintable(qstrLocaleLower));
    qDebug("%s:%d %s=[%s] ", __FILE__, __LINE__, "qPrintable(qstrLocaleLower)", qPrintable(qstrLocaleLower));

    const QString rgqstrTraditionalChinese[] = {QStringLiteral("zh_tw"), QStringLiteral("zh_hk"),
                                                QStringLiteral("zh_mo"), QString()};
    const QString rgqstrPortugal[] = {QStringLiteral("pt"), QStringLiteral("pt_pt"), QString()};

    QString qstrDef;
    if (inList(rgqstrTraditionalChinese, qstrLocaleLower)) qstrDef = QStringLiteral("cht");
    if (inList(rgqstrPortugal, qstrLocaleLower)) qstrDef = QStringLiteral("ptg");

    if (qstrDef.isEmpty()) {
        QMap<QString, QString> mapLanguage;
        mapLanguage.insert(QStringLiteral("en"), QStringLiteral("enu"));
        mapLanguage.insert(QStringLiteral("zh"), QStringLiteral("chs"));
        mapLanguage.insert(QStringLiteral("ja"), QStringLiteral("jpn"));
        mapLanguage.insert(QStringLiteral("de"), QStringLiteral("deu"));
        mapLanguage.insert(QStringLiteral("ko"), QStringLiteral("krn"));
        mapLanguage.insert(QStringLiteral("fr"), QStringLiteral("fra"));
        mapLanguage.insert(QStringLiteral("it"), QStringLiteral("ita"));
        mapLanguage.insert(QStringLiteral("es"), QStringLiteral("esn"));
        mapLanguage.insert(QStringLiteral("pt"), QStringLiteral("ptb"));
        mapLanguage.insert(QStringLiteral("ru"), QStringLiteral("rus"));
        mapLanguage.insert(QStringLiteral("da"), QStringLiteral("dan"));
        mapLanguage.insert(QStringLiteral("no"), QStringLiteral("nor"));
        mapLanguage.insert(QStringLiteral("nb"), QStringLiteral("nor"));
        mapLanguage.insert(QStringLiteral("nn"), QStringLiteral("nor"));
        mapLanguage.insert(QStringLiteral("sv"), QStringLiteral("sve"));
        mapLanguage.insert(QStringLiteral("nl"), QStringLiteral("nld"));
        mapLanguage.insert(QStringLiteral("pl"), QStringLiteral("plk"));
        mapLanguage.insert(QStringLiteral("hu"), QStringLiteral("hun"));
        mapLanguage.insert(QStringLiteral("tr"), QStringLiteral("trk"));
        mapLanguage.insert(QStringLiteral("cs"), QStringLiteral("csy"));

        const QString qstrLang = qstrLocaleLower.section(QLatin1Char('_'), 0, 0);
        qstrDef = mapLanguage.value(qstrLang, mapLanguage.value(QStringLiteral("en")));
    }

    if (!isLanguageInstalled(qstrDef)) qstrDef = qstrLanguageFallSafe;
    qDebug("%s:%d %s=[%s\n] ", __FILE__, __LINE__, "qPrintable(qstrDef)", qPrintable(qstrDef));
    return qstrDef;
}

bool isLanguageInstalled(const QString& qstrCode) {
    const QString qstrLangFileName = QStringLiteral(":/") + qstrCode + QStringLiteral(".qm");
    const bool installed = QFile::exists(qstrLangFileName);
    if (installed)
        qDebug("%s:%d %s=[%s] ", __FILE__, __LINE__, "qPrintable(qstrLangFileName)", qPrintable(qstrLangFileName));
    return installed;
}

QList<QString> getSupportedLanguages() {
    QList<QString> languages;
    for (unsigned i = 0; i < kLanguageCount; ++i) languages.append(QString::fromLatin1(grgszLanguages[i]));
    return languages;
}

QString getStrLanguageFallSafe() { return qstrLanguageFallSafe; }

QString getLanguageAbbrByID(int id) {
    QString qstrCode;
    if (static_cast<unsigned>(id) > kLanguageCount) return qstrCode;
    return QString::fromLatin1(grgszLanguages[id]);  // id 20 is the table's null end: empty
}

}  // namespace QuenLocale
