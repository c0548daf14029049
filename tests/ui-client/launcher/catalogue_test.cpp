// The compiled catalogues: what each holds, how it is stored, and what the launcher shows from it.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QResource>
#include <QSet>
#include <QStringList>
#include <QTranslator>
#include <QtEndian>

#include <map>
#include <set>
#include <string>

#include "strtable.h"

int qInitResources_texts();
int qCleanupResources_texts();

namespace {

const char* const kCodes[] = {"enu", "cht", "chs", "jpn", "deu", "krn", "fra", "ita", "esn", "ptb",
                              "rus", "dan", "nor", "sve", "nld", "plk", "hun", "ptg", "trk", "csy"};

// The launcher's three texts (ids 304 and 340; 306 is the same everywhere).
const std::map<std::string, std::pair<const char*, const char*>> kLauncherTexts = {
    {"enu", {"Lumora is ready.", "Lumora is initializing..."}},
    {"cht", {"Lumora 準備完成", "Lumora 準備中..."}},
    {"chs", {"Lumora 已就绪。", "Lumora 正在初始化..."}},
    {"jpn", {"Lumora は準備完了です。", "Lumora は初期化中です。"}},
    {"deu", {"Lumora ist bereit.", "Lumora wird initialisiert ..."}},
    {"krn", {"Lumora 사용 준비가 되었습니다.", "Lumora 초기화 중..."}},
    {"fra", {"Lumora est prêt.", "Lumora est en cours d'initialisation..."}},
    {"ita", {"Lumora pronta.", "Lumora sta inizializzando..."}},
    {"esn", {"Lumora está lista.", "Lumora se está inicializando..."}},
    {"ptb", {"O Lumora está pronto.", "O Lumora está sendo inicializado..."}},
    {"rus", {"Lumora готов.", "Lumora выполняет инициализацию..."}},
    {"dan", {"Lumora er klar.", "Lumora initialiserer..."}},
    {"nor", {"Lumora er klar.", "Lumora starter opp..."}},
    {"sve", {"Lumora är klar.", "Lumora initialiserar..."}},
    {"nld", {"Lumora is gereed.", "Lumora is bezig met initialisatie..."}},
    {"plk", {"Aplikacja Lumora jest gotowa.", "Aplikacja Lumora jest inicjowana..."}},
    {"hun", {"A Lumora készen áll.", "A Lumora inicializálása folyamatban..."}},
    {"ptg", {"Lumora pronta.", "Lumora a iniciar..."}},
    {"trk", {"Lumora hazır.", "Lumora başlıyor..."}},
    {"csy", {"Lumora je připravena.", "Lumora se inicializuje..."}},
};

// Texts a translation may leave as in English because the word is the same in that language.
const std::map<std::string, std::set<std::string>> kSameAsEnglish = {
    {"cht", {"ID"}},
    {"chs", {"ID"}},
    {"jpn", {"OK", "ID"}},
    {"deu", {"Standby", "Port:", "Internet (WAN)", "OK", "Proxy", "Version", "Name", "Status", "Status:", "ID"}},
    {"krn", {"ID"}},
    {"fra", {"Internet (WAN)", "OK", "Proxy", "Action", "Version", "Options", "Destination", "ID"}},
    {"ita", {"Internet (WAN)", "OK", "Proxy", "Password:", "&No", "Password", "ID"}},
    {"esn", {"Internet (WAN)", "Proxy", "&No", "Error", "ID"}},
    {"ptb", {"Internet (WAN)", "OK", "Proxy", "Status", "Status:", "ID"}},
    {"dan", {"Standby", "Port:", "Internet (WAN)", "OK", "Proxy", "Version", "Status", "Status:", "ID"}},
    {"nor", {"Port:", "OK", "Proxy", "Status", "Status:", "ID"}},
    {"sve", {"Port:", "Internet (WAN)", "OK", "Proxy", "Version", "Information", "Status", "Status:", "ID"}},
    {"nld", {"Internet (WAN)", "OK", "Help", "Proxy", "Status", "Status:", "ID"}},
    {"plk", {"Port:", "Internet (WAN)", "OK"}},
    {"hun", {"Port:", "Internet (WAN)", "OK", "Proxy"}},
    {"ptg", {"Internet (WAN)", "OK", "Proxy", "ID"}},
    {"csy", {"Port:", "Internet (WAN)", "OK", "Proxy", "ID"}},
};

// Everything that must pass through a translation unchanged, and as often.
const char* const kKeptTokens[] = {"%1", "[ProductName]", "[DlgTitleFont]", "{\\VerdanaBold13}", "{\\DlgFont8}",
                                   "\n", "Lumora", "Quennet"};

// The table's texts as shown with no translator installed.
QStringList englishTexts() {
    QStringList texts;
    for (int id = 0; id < StrTable::kStrCount; ++id) texts << StrTable::LoadStr(id);
    return texts;
}

// Section tags of the compiled format.
const uchar kTagHashes = 0x42, kTagMessages = 0x69;
const uchar kMagic[16] = {0x3c, 0xb8, 0x64, 0x18, 0xca, 0xef, 0x9c, 0x95,
                          0xcd, 0x21, 0x1c, 0xbf, 0x60, 0xa1, 0xbd, 0xdd};

struct QmLayout {
    std::set<int> sections;
    int messages = 0;
    int hashes = 0;
    bool well_formed = false;
};

// Walks the sections, then the message records (tagged fields, each record closed by tag 1).
QmLayout readLayout(const QByteArray& qm) {
    QmLayout layout;
    if (qm.size() < 16 || memcmp(qm.constData(), kMagic, 16) != 0) return layout;
    const uchar* p = reinterpret_cast<const uchar*>(qm.constData()) + 16;
    const uchar* end = reinterpret_cast<const uchar*>(qm.constData()) + qm.size();
    while (p + 5 <= end) {
        const uchar tag = p[0];
        const quint32 len = qFromBigEndian<quint32>(p + 1);
        const uchar* body = p + 5;
        if (body + len > end) return layout;
        layout.sections.insert(tag);
        if (tag == kTagHashes) layout.hashes = static_cast<int>(len / 8);
        if (tag == kTagMessages) {
            for (const uchar* m = body; m < body + len;) {
                const uchar field = *m++;
                if (field == 1) {
                    ++layout.messages;
                } else if (field == 5) {
                    m += 4;
                } else if (field == 3 || (field >= 6 && field <= 8)) {
                    const quint32 n = qFromBigEndian<quint32>(m);
                    m += 4 + (n == 0xffffffffu ? 0 : n);
                } else {
                    return layout;
                }
            }
        }
        p = body + len;
    }
    layout.well_formed = p == end;
    return layout;
}

QByteArray readFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class Catalogues : public ::testing::Test {
protected:
    void SetUp() override {
        qInitResources_texts();
        StrTable::InitStrTable();
    }
};

}  // namespace

TEST_F(Catalogues, EachHoldsEveryTextTranslatedWithItsTokensKept) {
    const QStringList sources = englishTexts();
    for (const char* code : kCodes) {
        SCOPED_TRACE(code);
        QTranslator translator;
        ASSERT_TRUE(translator.load(QStringLiteral(":/") + code + ".qm", QString(), QString(), QString()));
        ASSERT_FALSE(translator.isEmpty());
        ASSERT_TRUE(QCoreApplication::installTranslator(&translator));

        const auto& same = kSameAsEnglish.count(code) ? kSameAsEnglish.at(code) : std::set<std::string>();
        for (int id = 0; id < StrTable::kStrCount; ++id) {
            const QString& source = sources[id];
            const QString text = StrTable::LoadStr(id);
            ASSERT_FALSE(text.trimmed().isEmpty()) << id;
            if (qstrcmp(code, "enu") == 0 || id == 306) {
                EXPECT_EQ(text, source) << id;
                continue;
            }
            for (const char* token : kKeptTokens)
                EXPECT_EQ(text.count(QString::fromUtf8(token)), source.count(QString::fromUtf8(token)))
                    << id << " " << token << ": " << text.toStdString();
            EXPECT_EQ(source.contains('&'), text.contains('&')) << id << ": " << text.toStdString();
            if (text == source) {
                EXPECT_TRUE(same.count(source.toStdString())) << id << " left in English: " << text.toStdString();
            }
        }
        EXPECT_EQ(StrTable::LoadStr(304), QString::fromUtf8(kLauncherTexts.at(code).first));
        EXPECT_EQ(StrTable::LoadStr(340), QString::fromUtf8(kLauncherTexts.at(code).second));
        EXPECT_EQ(StrTable::LoadStr(306), QLatin1String("Quennet Lumora"));
        QCoreApplication::removeTranslator(&translator);
    }
}

TEST_F(Catalogues, HoldOnlyHashesAndTheSameMessages) {
    for (const char* code : kCodes) {
        SCOPED_TRACE(code);
        const QmLayout layout = readLayout(readFile(QStringLiteral(QM_DIR "/") + code + ".qm"));
        EXPECT_TRUE(layout.well_formed);
        EXPECT_EQ(layout.sections, (std::set<int>{kTagHashes, kTagMessages}));
        EXPECT_EQ(layout.messages, 312);
        EXPECT_EQ(layout.hashes, 312);
    }
}

TEST_F(Catalogues, CollectionHoldsExactlyTheTwentyCatalogues) {
    auto rootEntries = [] {
        const QStringList names = QDir(QStringLiteral(":/")).entryList(QDir::AllEntries);
        return QSet<QString>(names.begin(), names.end());
    };
    const QSet<QString> with = rootEntries();
    qCleanupResources_texts();
    const QSet<QString> without = rootEntries();
    qInitResources_texts();

    QSet<QString> expected;
    for (const char* code : kCodes) expected << QString::fromLatin1(code) + ".qm";
    EXPECT_EQ(with - without, expected);
}

TEST_F(Catalogues, StoredCompressedOnlyWhenThatSavesSeventyPercent) {
    for (const char* code : kCodes) {
        SCOPED_TRACE(code);
        const QResource resource(QStringLiteral(":/") + code + ".qm");
        ASSERT_TRUE(resource.isValid());
        EXPECT_FALSE(resource.lastModified().isValid());  // format version 1 keeps no times

        const QByteArray plain = readFile(QStringLiteral(QM_DIR "/") + code + ".qm");
        ASSERT_FALSE(plain.isEmpty());
        const QByteArray packed = qCompress(plain);
        const bool worth_it = int(100.0 * (plain.size() - packed.size()) / plain.size()) >= 70;
        EXPECT_EQ(resource.compressionAlgorithm(),
                  worth_it ? QResource::ZlibCompression : QResource::NoCompression);
        EXPECT_EQ(resource.uncompressedData(), plain);
    }
}
