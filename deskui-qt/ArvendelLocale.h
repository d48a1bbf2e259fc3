#pragma once

#include <QString>
#include <QStringList>

#include "deskui_export.h"

/// Finds the language to show the user interface in. Used on the main thread only.
class DESKUI_EXPORT ArvendelLocale {
public:
    /// The service of this process. It is made on first use, is never null, and is not the caller's
    /// to delete.
    static ArvendelLocale* getInstance();

    ArvendelLocale(const ArvendelLocale&) = delete;
    ArvendelLocale& operator=(const ArvendelLocale&) = delete;

    /// The three-letter code of the first of the user's interface languages, in the user's order,
    /// that has a translation; "enu" when none of them has one or the system names none.
    QString getDefaultLanguage() const;

    /// The same for a given list of languages, best first, each a BCP 47 tag in any case.
    ///
    /// Chinese is "chs" or "cht" by its script; without one it is "cht" in Taiwan, Hong Kong and
    /// Macao and "chs" elsewhere. Portuguese is "ptb" in Brazil or without a region and "ptg"
    /// elsewhere. Bokmal, Nynorsk and plain Norwegian are all "nor". Of every other language only
    /// the first subtag counts. Names that are not tags, such as "C", have no translation.
    static QString codeForLanguages(const QStringList& languages);

private:
    ArvendelLocale() = default;
    ~ArvendelLocale() = default;
};
