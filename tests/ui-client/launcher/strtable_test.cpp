// The string table: its English texts, and translation at each call.
#include "strtable.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>

struct MapTranslator : QTranslator {  // the table's context only; English for texts not in the map
    QHash<QString, QString> texts;
    QString translate(const char* context, const char* source, const char*, int) const override {
        return qstrcmp(context, "global") == 0 ? texts.value(QString::fromLatin1(source)) : QString();
    }
};

// Which texts hold a placeholder is pinned by the catalogues, which must keep each one (catalogue_test).
TEST(StrTable, EnglishTexts) {
    StrTable::InitStrTable();
    for (const auto& [id, text] : std::map<int, const char*>{{306, "Quennet Lumora"}, {304, "Lumora is ready."},
             {340, "Lumora is initializing..."}, {3, "A newer version of Lumora is already installed.\nDo you want to continue?"},
             {-1, ""}, {StrTable::kStrCount, ""}})
        EXPECT_EQ(StrTable::LoadStr(id), QLatin1String(text)) << id;
    QSet<QString> distinct;
    for (int id = 0; id < StrTable::kStrCount; ++id) {
        const QString text = StrTable::LoadStr(id);
        ASSERT_FALSE(text.isEmpty()) << id;
        EXPECT_TRUE(QRegularExpression("^[ -~\n]+$").match(text).hasMatch()) << id << ": " << text.toStdString();  // ASCII
        distinct << text;
    }
    EXPECT_EQ(distinct.size(), 312);  // translation goes by text: the catalogues hold as many messages
}

TEST(StrTable, TranslatesAtEachCallAndTurnsEscapesIntoControls) {
    StrTable::InitStrTable();
    const QString english = StrTable::LoadStr(0);
    MapTranslator translator;
    translator.texts = {{english, "eins\\nzwei\\tdrei {\\DlgFont8} \\N\\T\\x"}, {"Cancel", "Abbrechen"}};
    QCoreApplication::installTranslator(&translator);
    EXPECT_EQ(StrTable::LoadStr(0), QStringLiteral("eins\nzwei\tdrei {\\DlgFont8} \\N\\T\\x"));
    for (int id : {193, 264, 274}) EXPECT_EQ(StrTable::LoadStr(id), QLatin1String("Abbrechen")) << id;  // one shared text
    EXPECT_EQ(StrTable::LoadStr(306), QLatin1String("Quennet Lumora"));  // no translation: English
    QCoreApplication::removeTranslator(&translator);
    EXPECT_EQ(StrTable::LoadStr(0), english);
}
