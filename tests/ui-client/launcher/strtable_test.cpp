#include "strtable.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QMap>
#include <QRegularExpression>
#include <QTranslator>

int qInitResources_texts();  // The resource compiler generates it.

namespace {

// clang-format off
const struct { const char* code; const char* initializing; const char* ready; } kLanguages[] = {
    {"chs", "%1 正在初始化...", "%1 已就绪。"}, {"cht", "%1 準備中...", "%1 準備完成"},
    {"csy", "%1 se inicializuje...", "%1 je připravena."},
    {"dan", "%1 initialiserer...", "%1 er klar."},
    {"enu", "%1 is initializing...", "%1 is ready."},
    {"fre", "%1 est en cours d'initialisation...", "%1 est prêt."},
    {"ger", "%1 wird initialisiert ...", "%1 ist bereit."},
    {"hun", "A %1 inicializálása folyamatban...", "A %1 készen áll."},
    {"ita", "%1 sta inizializzando...", "%1 pronta."}, {"jpn", "%1 は初期化中です。", "%1 は準備完了です。"},
    {"krn", "%1 초기화 중...", "%1 사용 준비가 되었습니다."},
    {"nld", "%1 is bezig met initialisatie...", "%1 is gereed."},
    {"nor", "%1 starter opp...", "%1 er klar."},
    {"plk", "Aplikacja %1 jest inicjowana...", "Aplikacja %1 jest gotowa."},
    {"ptb", "O %1 está sendo inicializado...", "O %1 está pronto."},
    {"ptg", "%1 a iniciar...", "%1 pronta."},
    {"rus", "%1 выполняет инициализацию...", "%1 готов."},
    {"spn", "%1 se está inicializando...", "%1 está lista."},
    {"sve", "%1 initialiserar...", "%1 är klar."},
    {"tha", "%1 กำลังเริ่มต้น...", "%1 พร้อมแล้ว"}, {"trk", "%1 başlıyor...", "%1 hazır."},
};
// clang-format on

}  // namespace

TEST(StrTable, KeysAreUniqueAndTextsCanBeShown) {
    const QRegularExpression unfit("^$|[\\t\\r\\n]|\\\\[nt]|%(?![12](?!\\d))");
    QMap<QString, int> uses;
    EXPECT_EQ(std::size(StrTable::stab), 1082U);
    for (int id = 0; id < StrTable::kCount; ++id) {
        EXPECT_EQ(StrTable::LookupStrID(StrTable::ktab[id]), id) << "a key differs in case only";
        EXPECT_FALSE(unfit.match(StrTable::stab[id]).hasMatch()) << id;
        ++uses[StrTable::stab[id]];
    }
    EXPECT_EQ(uses.size(), 952);
}

TEST(StrTable, KeyInCapitalsIsFoundAndAnUnknownOneIsNot) {
    EXPECT_EQ(StrTable::LookupStrID("APP_NAME_CORVIMO_CLIENT"), 866);
    EXPECT_EQ(StrTable::LookupStrID("add "), -1);
    EXPECT_EQ(StrTable::LoadStr(2), "File added: ");
}

TEST(StrTable, BackslashSequencesBecomeBreaksAndTabs) {
    StrTable::stab[4] = R"(\n1\n2\t3\t \N\T \\server\share %1 %n \)";
    EXPECT_EQ(StrTable::LoadStr(4), "\n1\n2\t3\t \\N\\T \\\\server\\share %1 %n \\");
    StrTable::InitStrTable();
}

TEST(StrTable, EachLanguageTranslatesEveryTextWithItsPlaceholders) {
    qInitResources_texts();
    EXPECT_EQ(QDir(":/").entryList({"*.qm"}).size(), 21);
    for (const auto& [code, initializing, ready] : kLanguages) {
        SCOPED_TRACE(code);
        const QString file = QString(":/%1.qm").arg(code);
        QTranslator translator;
        ASSERT_TRUE(translator.load(file));
        for (const QString source : StrTable::stab) {
            const QString text = translator.translate("global", qUtf8Printable(source));
            EXPECT_TRUE(file == ":/enu.qm" ? text == source : !text.isEmpty())
                << text.toStdString();
            for (const char* part : {"%1", "%2", "%3", "%L", "%n"}) {
                EXPECT_EQ(text.count(part), source.count(part)) << text.toStdString();
            }
        }
        QCoreApplication::installTranslator(&translator);
        EXPECT_EQ(StrTable::LoadStr(StrTable::kAppName), "Corvimo Client");
        EXPECT_EQ(StrTable::LoadStr(StrTable::kInitializing), initializing);
        EXPECT_EQ(StrTable::LoadStr(StrTable::kReady), ready);
    }
}
