// The string table's English texts. Their translations, each call anew: catalogue_test.
#include "strtable.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QSet>

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
