#pragma once

#include <QString>
#include <QStringList>

#include "deskui_export.h"

/// Finds the language of the user interface. Main thread only.
class DESKUI_EXPORT ArvendelLocale {
public:
    /// Returns the only instance, which is made on first use. The caller does not own it.
    static ArvendelLocale* getInstance();

    ArvendelLocale(const ArvendelLocale&) = delete;
    ArvendelLocale& operator=(const ArvendelLocale&) = delete;

    /// Returns the three-letter code of the first of the user's languages that has a translation,
    /// or "enu" if none has one.
    QString getDefaultLanguage() const;

    /// Returns the same for a given list of languages, the preferred one first. Each is a BCP 47
    /// tag, in upper or lower case.
    ///
    /// Chinese is "chs" or "cht" by its script. Without a script it is "cht" in Taiwan, Hong Kong
    /// and Macao, and "chs" elsewhere. Portuguese is "ptb" in Brazil or without a region, and "ptg"
    /// elsewhere. Bokmal, Nynorsk and Norwegian are all "nor". For the other languages only the
    /// first subtag matters. Names that are not tags, such as "C", have no translation.
    static QString codeForLanguages(const QStringList& languages);

private:
    ArvendelLocale() = default;
    ~ArvendelLocale() = default;
};
