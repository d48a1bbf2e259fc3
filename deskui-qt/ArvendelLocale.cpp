#include "ArvendelLocale.h"

#include <QLatin1String>
#include <QLocale>
#include <algorithm>
#include <iterator>

namespace {

struct Translation {
    const char* language;  // The first subtag of a language tag, in lower case.
    const char* code;
};

/// The languages that have one translation, whatever the script and the region.
constexpr Translation kTranslations[] = {
    {"cs", "csy"}, {"da", "dan"}, {"de", "ger"}, {"en", "enu"}, {"es", "spn"},
    {"fr", "fre"}, {"hu", "hun"}, {"it", "ita"}, {"ja", "jpn"}, {"ko", "krn"},
    {"nb", "nor"}, {"nl", "nld"}, {"nn", "nor"}, {"no", "nor"}, {"pl", "plk"},
    {"ru", "rus"}, {"sv", "sve"}, {"th", "tha"}, {"tr", "trk"},
};

/// The code for Chinese, from the subtags of a tag in lower case.
QString ChineseCode(const QStringList& subtags) {
    const auto has = [&subtags](const char* subtag) {
        return subtags.contains(QLatin1String(subtag));
    };
    const bool traditional = has("hant") || has("tw") || has("hk") || has("mo");
    return traditional && !has("hans") ? QStringLiteral("cht") : QStringLiteral("chs");
}

/// The code for Portuguese, from the subtags of a tag in lower case.
QString PortugueseCode(const QStringList& subtags) {
    const bool outside_brazil =
        std::any_of(std::next(subtags.begin()), subtags.end(), [](const QString& subtag) {
            const bool is_region = subtag.size() == 2;
            return is_region && subtag != QLatin1String("br");
        });
    return outside_brazil ? QStringLiteral("ptg") : QStringLiteral("ptb");
}

/// The subtags of a language tag in lower case, up to the first extension, which a single letter begins
/// and whose own subtags look like regions.
QStringList SubtagsOf(const QString& tag) {
    const QStringList subtags = tag.toLower().split(QLatin1Char('-'));
    const auto extension = std::find_if(subtags.begin(), subtags.end(),
                                        [](const QString& subtag) { return subtag.size() == 1; });
    return subtags.mid(0, std::max(1, static_cast<int>(extension - subtags.begin())));
}

/// The code of a language tag's translation, or an empty string when it has none.
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
