// QuenLocale: which of the supported languages the system locale asks for, by three-letter
// code ("enu", "cht", ... "csy"), and whether its catalogue ":/<code>.qm" is among the
// resources. No user setting is consulted.
#ifndef UI_CLIENT_LIBCOMMON_QUENLOCALE_H
#define UI_CLIENT_LIBCOMMON_QUENLOCALE_H

#include <QList>
#include <QString>

namespace QuenLocale {

// The code for the system locale; "enu" when the locale is unknown or its catalogue is missing.
QString getDefaultLanguage();
// The same choice for a locale name of the form language_COUNTRY (any letter case).
QString getLanguageForLocaleName(const QString& qstrLocaleName);
bool isLanguageInstalled(const QString& qstrCode);
QList<QString> getSupportedLanguages();
QString getStrLanguageFallSafe();
// The code with that language id (0-19), else an empty string.
QString getLanguageAbbrByID(int id);

}  // namespace QuenLocale

#endif
