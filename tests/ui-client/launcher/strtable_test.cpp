#include "strtable.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMap>
#include <QSet>
#include <QTranslator>

namespace {

// Translates chosen English texts; everything else stays untranslated.
class MapTranslator : public QTranslator {
public:
    explicit MapTranslator(QMap<QString, QString> texts) : texts_(std::move(texts)) {}
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override {
        if (qstrcmp(context, "global") != 0) return QString();
        return texts_.value(QString::fromLatin1(source));
    }

private:
    QMap<QString, QString> texts_;
};

class InstalledTranslator {
public:
    explicit InstalledTranslator(QMap<QString, QString> texts) : translator_(std::move(texts)) {
        QCoreApplication::installTranslator(&translator_);
    }
    ~InstalledTranslator() { QCoreApplication::removeTranslator(&translator_); }

private:
    MapTranslator translator_;
};

const int kPlaceholderIds[] = {32, 54, 73, 84, 107, 142, 175, 220, 288, 291, 328};

}  // namespace

// Runs first: the table is empty until InitStrTable.
TEST(StrTableEmpty, NothingBeforeInit) {
    EXPECT_TRUE(StrTable::LoadStr(306).isNull());
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("app_name")), -1);
}

TEST(StrTable, EnglishTextsOfTheLauncherAndPlaceholders) {
    StrTable::InitStrTable();
    EXPECT_EQ(StrTable::LoadStr(306), QLatin1String("Quennet Lumora"));
    EXPECT_EQ(StrTable::LoadStr(304), QLatin1String("Lumora is ready."));
    EXPECT_EQ(StrTable::LoadStr(340), QLatin1String("Lumora is initializing..."));
    EXPECT_EQ(StrTable::LoadStr(73), QLatin1String("Updated %1 files."));
    EXPECT_EQ(StrTable::LoadStr(10), QLatin1String("{\\VerdanaBold13}[ProductName] Setup Wizard ended prematurely"));
    EXPECT_EQ(StrTable::LoadStr(23), QLatin1String("&Print"));
    EXPECT_TRUE(StrTable::LoadStr(-1).isEmpty());
    EXPECT_TRUE(StrTable::LoadStr(StrTable::kStrCount).isEmpty());

    const QSet<int> placeholders(std::begin(kPlaceholderIds), std::end(kPlaceholderIds));
    for (int id = 0; id < StrTable::kStrCount; ++id)
        EXPECT_EQ(StrTable::LoadStr(id).contains(QLatin1String("%1")), placeholders.contains(id)) << id;
}

TEST(StrTable, KeysFindTheirIdsIgnoringCase) {
    StrTable::InitStrTable();
    const struct {
        const char* key;
        int id;
    } cases[] = {
        {"notify_abnormal", 0}, {"NSIS_LUMORA_INSTALLED_NEWER", 3}, {"nsis_lumora_installed_newer", 3},
        {"management_proxy_cancel_btn", 193}, {"btn_cancel", 264}, {"msi_button_cancel", 274},
        {"app_name", 306}, {"APP_NAME", 306}, {"App_Name", 306}, {"desc_lmra_env_preparation_done", 304},
        {"desc_lmra_env_preparing", 340}, {"msi_exit_dlg_subtitle", 349},
        {"", -1}, {"app_name ", -1}, {" app_name", -1}, {"app", -1}, {"no_such_key", -1},
    };
    for (const auto& c : cases) EXPECT_EQ(StrTable::LookupStrID(QLatin1String(c.key)), c.id) << c.key;
}

TEST(StrTable, SharedTextsAndCharacterSet) {
    StrTable::InitStrTable();
    QMap<QString, QList<int>> ids_of;
    for (int id = 0; id < StrTable::kStrCount; ++id) {
        const QString text = StrTable::LoadStr(id);
        ASSERT_FALSE(text.isEmpty()) << id;
        for (QChar c : text) EXPECT_TRUE(c.unicode() < 128 && (c.isPrint() || c == '\n')) << id;
        ids_of[text] << id;
    }
    EXPECT_EQ(ids_of.size(), 312);
    int shared_texts = 0, shared_entries = 0;
    for (const QList<int>& ids : ids_of)
        if (ids.size() > 1) {
            ++shared_texts;
            shared_entries += ids.size();
        }
    EXPECT_EQ(shared_texts, 22);
    EXPECT_EQ(shared_entries, 60);
    EXPECT_EQ(ids_of.value(QStringLiteral("[ProductName] Setup")).size(), 14);
    EXPECT_EQ(ids_of.value(QStringLiteral("Cancel")), (QList<int>{193, 264, 274}));
}

TEST(StrTable, TranslatesAtEachCallAndTurnsEscapesIntoControls) {
    StrTable::InitStrTable();
    const QString english = StrTable::LoadStr(0);
    {
        InstalledTranslator translator({{english, QStringLiteral("eins\\nzwei\\tdrei {\\DlgFont8} \\N\\T\\x")},
                                        {QStringLiteral("Cancel"), QStringLiteral("Abbrechen")}});
        EXPECT_EQ(StrTable::LoadStr(0), QStringLiteral("eins\nzwei\tdrei {\\DlgFont8} \\N\\T\\x"));
        for (int id : {193, 264, 274}) EXPECT_EQ(StrTable::LoadStr(id), QLatin1String("Abbrechen")) << id;
        EXPECT_EQ(StrTable::LoadStr(306), QLatin1String("Quennet Lumora"));  // untranslated text falls back
    }
    EXPECT_EQ(StrTable::LoadStr(0), english);
    EXPECT_TRUE(StrTable::LoadStr(3).contains(QLatin1Char('\n')));  // the table's own escape
}
