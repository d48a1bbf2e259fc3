#include "strtable.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QLatin1String>
#include <iterator>
#include <string_view>

namespace {

constexpr char kContext[] = "global";

struct Row {
    const char* key;
    const char* text;
};

constexpr Row kRows[] = {
#include "strtable_rows.inc"
};

constexpr bool HasKey(int id, std::string_view key) {
    return kRows[id].key == key;
}

// Code uses rows by id. A catalogue in which these rows have moved must not compile.
static_assert(std::size(kRows) == StrTable::kCount);
static_assert(HasKey(StrTable::kReady, "desc_lmpt_env_preparation_done_corvimo"));
static_assert(HasKey(StrTable::kInitializing, "desc_lmpt_env_preparing_corvimo"));
static_assert(HasKey(StrTable::kAppName, "app_name_corvimo_client"));

}  // namespace

const char* StrTable::stab[kCount];
const char* StrTable::ktab[kCount];

void StrTable::InitStrTable() {
    for (int id = 0; id < kCount; ++id) {
        ktab[id] = kRows[id].key;
        stab[id] = kRows[id].text;
    }
}

QString StrTable::LoadStr(int id) {
    QString text = QCoreApplication::translate(kContext, stab[id]);
    text.replace(QLatin1String("\\n"), QLatin1String("\n"));
    text.replace(QLatin1String("\\t"), QLatin1String("\t"));
    return text;
}

QString StrTable::LoadStrWithAppName(int id) {
    return LoadStr(id).arg(LoadStr(kAppName));
}

int StrTable::LookupStrID(const QString& key) {
    const QByteArray wanted = key.toLocal8Bit();
    for (int id = 0; id < kCount; ++id) {
        if (qstricmp(wanted.constData(), ktab[id]) == 0) {
            return id;
        }
    }
    return -1;
}
