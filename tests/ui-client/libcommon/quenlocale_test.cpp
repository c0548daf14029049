#include "quenlocale.h"

#include <gtest/gtest.h>

#include <QResource>

int qInitResources_texts();
int qCleanupResources_texts();

static QString chooseFor(const QString& name) { return QuenLocale::getLanguageForLocaleName(name); }

TEST(QuenLocale, ChoosesByWholeNameThenLanguagePart) {
    qInitResources_texts();
    for (const QString& c : QStringLiteral("zh_TW=cht zh_HK=cht zh_MO=cht ZH_tw=cht zh_CN=chs zh_SG=chs zh=chs zh_tw_x=chs "
                                 "pt_PT=ptg pt=ptg pt_BR=ptb pt_AO=ptb nb_NO=nor nn_NO=nor no=nor en_GB=enu es_MX=esn fr_CA=fra "
                                 "ja_JP=jpn de_AT=deu ko_KR=krn it_CH=ita ru_RU=rus da_DK=dan sv_FI=sve nl_BE=nld "
                                 "pl_PL=plk hu_HU=hun tr_TR=trk cs_CZ=csy ar_SA=enu C=enu =enu tw=enu").split(' '))
        EXPECT_EQ(chooseFor(c.section('=', 0, 0)), c.section('=', 1)) << qPrintable(c);
}

TEST(QuenLocale, MissingCatalogueFallsBackToEnglish) {
    qCleanupResources_texts();  // registering twice has no effect, so this removes the collection
    ASSERT_FALSE(QuenLocale::isLanguageInstalled(QStringLiteral("enu")));
    ASSERT_TRUE(QResource::registerResource(QStringLiteral(PARTIAL_RCC_PATH)));
    EXPECT_EQ(chooseFor(QStringLiteral("hu_HU")), QLatin1String("enu"));
    EXPECT_EQ(chooseFor(QStringLiteral("de_DE")), QLatin1String("deu"));
    QResource::unregisterResource(QStringLiteral(PARTIAL_RCC_PATH));
    qInitResources_texts();
    EXPECT_EQ(chooseFor(QStringLiteral("hu_HU")), QLatin1String("hun"));
    EXPECT_FALSE(QuenLocale::isLanguageInstalled(QStringLiteral("ENU"))) << "codes are lower case";
}

