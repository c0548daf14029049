#include "quenlocale.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QResource>
#include <QStringList>

int qInitResources_texts();
int qCleanupResources_texts();

namespace {

const char* const kCodes[] = {"enu", "cht", "chs", "jpn", "deu", "krn", "fra", "ita", "esn", "ptb",
                              "rus", "dan", "nor", "sve", "nld", "plk", "hun", "ptg", "trk", "csy"};

// Collects what the language functions send through the debug channel.
QStringList g_traces;
void collect(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtDebugMsg) g_traces << message;
}

class TraceCapture {
public:
    TraceCapture() : previous_(qInstallMessageHandler(collect)) { g_traces.clear(); }
    ~TraceCapture() { qInstallMessageHandler(previous_); }

private:
    QtMessageHandler previous_;
};

QString chooseFor(const char* name) { return QuenLocale::getLanguageForLocaleName(QString::fromLatin1(name)); }

}  // namespace

TEST(QuenLocale, ChoosesByWholeNameThenLanguagePart) {
    qInitResources_texts();
    const struct {
        const char* locale;
        const char* code;
    } cases[] = {
        {"zh_TW", "cht"}, {"zh_HK", "cht"}, {"zh_MO", "cht"}, {"ZH_tw", "cht"}, {"zh_CN", "chs"},
        {"zh_SG", "chs"}, {"pt_PT", "ptg"}, {"pt", "ptg"},    {"pt_BR", "ptb"}, {"pt_AO", "ptb"},
        {"nb_NO", "nor"}, {"nn_NO", "nor"}, {"no", "nor"},    {"en_GB", "enu"}, {"es_MX", "esn"},
        {"fr_CA", "fra"}, {"ja_JP", "jpn"}, {"de_AT", "deu"}, {"ko_KR", "krn"}, {"it_CH", "ita"},
        {"ru_RU", "rus"}, {"da_DK", "dan"}, {"sv_FI", "sve"}, {"nl_BE", "nld"}, {"pl_PL", "plk"},
        {"hu_HU", "hun"}, {"tr_TR", "trk"}, {"cs_CZ", "csy"}, {"ar_SA", "enu"}, {"C", "enu"},
        {"", "enu"},      {"zh", "chs"},    {"zh_tw_x", "chs"}, {"tw", "enu"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.locale);
        EXPECT_EQ(chooseFor(c.locale), QLatin1String(c.code));
    }
}

TEST(QuenLocale, TracesOneTwoFourThreeInTheirFormats) {
    qInitResources_texts();
    TraceCapture capture;
    ASSERT_EQ(chooseFor("de_DE"), QLatin1String("deu"));
    ASSERT_EQ(g_traces.size(), 4);
    const QString at = QStringLiteral("^.*quenlocale\\.cpp:\\d+ ");
    EXPECT_TRUE(g_traces[0].contains(QRegularExpression(at + "qPrintable\\(qstrLocaleLower\\)=\\[de_de\\n\\] $")))
        << g_traces[0].toStdString();
    EXPECT_TRUE(g_traces[1].contains(QRegularExpression(at + "qPrintable\\(qstrLocaleLower\\)=\\[de_de\\] $")))
        << g_traces[1].toStdString();
    EXPECT_TRUE(g_traces[2].contains(QRegularExpression(at + "qPrintable\\(qstrLangFileName\\)=\\[:/deu\\.qm\\] $")))
        << g_traces[2].toStdString();
    EXPECT_TRUE(g_traces[3].contains(QRegularExpression(at + "qPrintable\\(qstrDef\\)=\\[deu\\n\\] $")))
        << g_traces[3].toStdString();

    // A code without its catalogue traces no file name; the fallback is checked without a trace.
    g_traces.clear();
    EXPECT_FALSE(QuenLocale::isLanguageInstalled(QStringLiteral("xyz")));
    EXPECT_TRUE(g_traces.isEmpty());
}

TEST(QuenLocale, MissingCatalogueFallsBackToEnglish) {
    qCleanupResources_texts();  // registering twice has no effect, so this removes the collection
    ASSERT_FALSE(QuenLocale::isLanguageInstalled(QStringLiteral("enu")));
    ASSERT_TRUE(QResource::registerResource(QStringLiteral(PARTIAL_RCC_PATH)));
    EXPECT_EQ(chooseFor("hu_HU"), QLatin1String("enu"));
    EXPECT_EQ(chooseFor("de_DE"), QLatin1String("deu"));
    QResource::unregisterResource(QStringLiteral(PARTIAL_RCC_PATH));
    qInitResources_texts();
    EXPECT_EQ(chooseFor("hu_HU"), QLatin1String("hun"));
}

TEST(QuenLocale, CatalogueLookupAndTables) {
    qInitResources_texts();
    EXPECT_TRUE(QuenLocale::isLanguageInstalled(QStringLiteral("enu")));
    EXPECT_FALSE(QuenLocale::isLanguageInstalled(QString()));
    EXPECT_FALSE(QuenLocale::isLanguageInstalled(QStringLiteral("ENU")));

    QStringList expected;
    for (const char* code : kCodes) expected << QLatin1String(code);
    EXPECT_EQ(QStringList(QuenLocale::getSupportedLanguages()), expected);
    for (int id = 0; id < 20; ++id) EXPECT_EQ(QuenLocale::getLanguageAbbrByID(id), expected[id]);
    for (int id : {20, 21, -1, -20}) EXPECT_TRUE(QuenLocale::getLanguageAbbrByID(id).isEmpty()) << id;
    EXPECT_EQ(QuenLocale::getStrLanguageFallSafe(), QLatin1String("enu"));
}

// The system locale comes from the environment once per process, so each case is a child.
TEST(QuenLocale, SystemLocaleSelectsEveryLanguage) {
    const struct {
        const char* lang;
        const char* code;
    } cases[] = {
        {"en_US.UTF-8", "enu"}, {"zh_TW.UTF-8", "cht"}, {"zh_CN.UTF-8", "chs"}, {"ja_JP.UTF-8", "jpn"},
        {"de_DE.UTF-8", "deu"}, {"ko_KR.UTF-8", "krn"}, {"fr_FR.UTF-8", "fra"}, {"it_IT.UTF-8", "ita"},
        {"es_ES.UTF-8", "esn"}, {"pt_BR.UTF-8", "ptb"}, {"ru_RU.UTF-8", "rus"}, {"da_DK.UTF-8", "dan"},
        {"nb_NO.UTF-8", "nor"}, {"sv_SE.UTF-8", "sve"}, {"nl_NL.UTF-8", "nld"}, {"pl_PL.UTF-8", "plk"},
        {"hu_HU.UTF-8", "hun"}, {"pt_PT.UTF-8", "ptg"}, {"tr_TR.UTF-8", "trk"}, {"cs_CZ.UTF-8", "csy"},
        {"ar_SA.UTF-8", "enu"}, {"C", "enu"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.lang);
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.remove(QStringLiteral("LC_ALL"));
        env.remove(QStringLiteral("LC_MESSAGES"));
        env.insert(QStringLiteral("LANG"), QLatin1String(c.lang));
        QProcess probe;
        probe.setProcessEnvironment(env);
        probe.start(QStringLiteral(PROBE_PATH), QStringList());
        ASSERT_TRUE(probe.waitForFinished(10000));
        EXPECT_EQ(probe.exitCode(), 0);
        EXPECT_EQ(QString::fromLatin1(probe.readAllStandardOutput()).trimmed(), QLatin1String(c.code));
    }
}
