// The compiled catalogues: what each holds and what the launcher shows from it.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

#include "strtable.h"

int qInitResources_texts();

// Per catalogue: the launcher's texts 304 and 340, then the texts it may leave as in English.
const std::map<QString, QString> kCatalogues = {
    {"enu", "Lumora is ready.|Lumora is initializing..."}, {"cht", "Lumora 準備完成|Lumora 準備中...|ID"},
    {"chs", "Lumora 已就绪。|Lumora 正在初始化...|ID"}, {"jpn", "Lumora は準備完了です。|Lumora は初期化中です。|OK|ID"},
    {"krn", "Lumora 사용 준비가 되었습니다.|Lumora 초기화 중...|ID"}, {"rus", "Lumora готов.|Lumora выполняет инициализацию..."},
    {"trk", "Lumora hazır.|Lumora başlıyor..."}, {"ptg", "Lumora pronta.|Lumora a iniciar...|Internet (WAN)|OK|Proxy|ID"},
    {"deu", "Lumora ist bereit.|Lumora wird initialisiert ...|Standby|Port:|Internet (WAN)|OK|Proxy|Version|Name|Status|Status:|ID"},
    {"fra", "Lumora est prêt.|Lumora est en cours d'initialisation...|Internet (WAN)|OK|Proxy|Action|Version|Options|Destination|ID"},
    {"ita", "Lumora pronta.|Lumora sta inizializzando...|Internet (WAN)|OK|Proxy|Password:|&No|Password|ID"},
    {"esn", "Lumora está lista.|Lumora se está inicializando...|Internet (WAN)|Proxy|&No|Error|ID"},
    {"ptb", "O Lumora está pronto.|O Lumora está sendo inicializado...|Internet (WAN)|OK|Proxy|Status|Status:|ID"},
    {"dan", "Lumora er klar.|Lumora initialiserer...|Standby|Port:|Internet (WAN)|OK|Proxy|Version|Status|Status:|ID"},
    {"nor", "Lumora er klar.|Lumora starter opp...|Port:|OK|Proxy|Status|Status:|ID"},
    {"sve", "Lumora är klar.|Lumora initialiserar...|Port:|Internet (WAN)|OK|Proxy|Version|Information|Status|Status:|ID"},
    {"nld", "Lumora is gereed.|Lumora is bezig met initialisatie...|Internet (WAN)|OK|Help|Proxy|Status|Status:|ID"},
    {"plk", "Aplikacja Lumora jest gotowa.|Aplikacja Lumora jest inicjowana...|Port:|Internet (WAN)|OK"},
    {"hun", "A Lumora készen áll.|A Lumora inicializálása folyamatban...|Port:|Internet (WAN)|OK|Proxy"},
    {"csy", "Lumora je připravena.|Lumora se inicializuje...|Port:|Internet (WAN)|OK|Proxy|ID"}};
// Everything that must pass through a translation unchanged, and as often.
const char* const kKeptTokens[] = {"%1", "[ProductName]", "[DlgTitleFont]", "{\\VerdanaBold13}", "{\\DlgFont8}", "\n", "&",
                                   "Lumora", "Quennet"};
static const bool kReady = (qInitResources_texts(), StrTable::InitStrTable(), true);

TEST(Catalogues, EachHoldsEveryTextTranslatedWithItsTokensKept) {
    QStringList sources;
    for (int id = 0; id < StrTable::kStrCount; ++id) sources << StrTable::LoadStr(id);
    for (const auto& [code, texts] : kCatalogues) {
        SCOPED_TRACE(code.toStdString());
        const QStringList launcher_then_same = texts.split('|');
        QTranslator translator;
        ASSERT_TRUE(translator.load(QStringLiteral(":/") + code));
        ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
        for (int id = 0; id < StrTable::kStrCount; ++id) {
            const QString &source = sources[id], text = StrTable::LoadStr(id), shown = ": " + text;
            for (const char* token : kKeptTokens)
                EXPECT_EQ(text.count(token), source.count(token)) << id << " " << token << shown.toStdString();
            // English only where the word is the same (an empty or missing translation is English); the name stays as it is.
            EXPECT_EQ(text == source, code == "enu" || id == 306 || launcher_then_same.mid(2).contains(source))
                << id << shown.toStdString();
        }
        EXPECT_EQ(StrTable::LoadStr(304) + '|' + StrTable::LoadStr(340), launcher_then_same.mid(0, 2).join('|'));
        QCoreApplication::removeTranslator(&translator);
    }
}
