#include "ArvendelLocale.h"

#include <QLatin1String>
#include <QLocale>
#include <algorithm>
#include <iterator>

namespace {

struct Translation {
    const char* language;  // The first subtag of a BCP 47 tag, in lower case.
    const char* code;
};

// The languages that have one translation for all their scripts and regions.
constexpr Translation kTranslations[] = {
    {"cs", "csy"}, {"da", "dan"}, {"de", "ger"}, {"en", "enu"}, {"es", "spn"},
    {"fr", "fre"}, {"hu", "hun"}, {"it", "ita"}, {"ja", "jpn"}, {"ko", "krn"},
    {"nb", "nor"}, {"nl", "nld"}, {"nn", "nor"}, {"no", "nor"}, {"pl", "plk"},
    {"ru", "rus"}, {"sv", "sve"}, {"th", "tha"}, {"tr", "trk"},
};

// Returns the code for Chinese. The subtags are in lower case.
QString ChineseCode(const QStringList& subtags) {
    const auto has = [&subtags](const char* subtag) {
        return subtags.contains(QLatin1String(subtag));
    };
    const bool traditional = has("hant") || has("tw") || has("hk") || has("mo");
    return traditional && !has("hans") ? QStringLiteral("cht") : QStringLiteral("chs");
}

// Returns the code for Portuguese. The subtags are in lower case.
QString PortugueseCode(const QStringList& subtags) {
    const bool outside_brazil =
        std::any_of(std::next(subtags.begin()), subtags.end(), [](const QString& subtag) {
            const bool is_region = subtag.size() == 2;
            return is_region && subtag != QLatin1String("br");
        });
    return outside_brazil ? QStringLiteral("ptg") : QStringLiteral("ptb");
}

// Returns the subtags of a language tag in lower case, without extensions. An extension starts with
// a subtag of one letter. Its other subtags may look like regions, such as "ca" in "pt-BR-u-ca".
QStringList SubtagsOf(const QString& tag) {
    const QStringList subtags = tag.toLower().split(QLatin1Char('-'));
    const auto extension = std::find_if(subtags.begin(), subtags.end(),
                                        [](const QString& subtag) { return subtag.size() == 1; });
    return subtags.mid(0, std::max(1, static_cast<int>(extension - subtags.begin())));
}

// Returns the code of the translation for a language tag, or an empty string if there is none.
QString CodeForTag(const QString& tag) {
    const QStringList subtags = SubtagsOf(tag);
    const QString& language = subtags.first();
    if (language == QLatin1String("zh")) {
        return ChineseCode(subtags);
    }
    if (language == QLatin1String("pt")) {
        return PortugueseCode(subtags);
    }
    const auto* const found = std::find_if(std::begin(kTranslations), std::end(kTranslations),
                                           [&language](const Translation& entry) {
                                               return language == QLatin1String(entry.language);
                                           });
    return found == std::end(kTranslations) ? QString() : QString::fromLatin1(found->code);
}

}  // namespace

ArvendelLocale* ArvendelLocale::getInstance() {
    static ArvendelLocale instance;
    return &instance;
}

QString ArvendelLocale::getDefaultLanguage() const {
    return codeForLanguages(QLocale::system().uiLanguages());
}

QString ArvendelLocale::codeForLanguages(const QStringList& languages) {
    for (const QString& tag : languages) {
        QString code = CodeForTag(tag);
        if (!code.isEmpty()) {
            return code;
        }
    }
    return QStringLiteral("enu");
}
