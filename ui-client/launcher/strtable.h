#pragma once

#include <QString>

#include "strtable_count.h"  // Made from the catalogue by the build.

/// The texts of the client's user interface. A text has a fixed numeric id, a fixed key and an
/// English source text, which Qt's translators look up. The rows come from texts/catalogue.txt.
///
/// `InitStrTable` must run before a second thread exists. Afterwards the tables are only read, so
/// any thread may call the other functions without a lock.
class StrTable {
public:
    /// The number of rows. Ids are 0 to kCount - 1.
    static constexpr int kCount = kStrTableCount;

    /// The ids of the rows that the launcher shows.
    static constexpr int kReady = 523;         ///< "%1 is ready.", %1 is the product name
    static constexpr int kInitializing = 539;  ///< "%1 is initializing...", %1 is the product name
    static constexpr int kAppName = 866;       ///< the product name

    StrTable() = delete;

    /// Fills both tables. Must run before the other functions. Running it again changes nothing.
    static void InitStrTable();

    /// Returns the text to show for `id`, which must be in 0 to kCount - 1: the translation by the
    /// application's installed translators, or the English text if they have none.
    ///
    /// Each two-character sequence backslash-n is replaced by a line break, and each backslash-t by
    /// a tab. Placeholders such as "%1" stay, for QString::arg.
    static QString LoadStr(int id);

    /// Returns the same text with the product's name instead of "%1".
    static QString LoadStrWithAppName(int id);

    /// Returns the id of a key, compared without regard to case, or -1 if there is no such key.
    static int LookupStrID(const QString& key);

    /// The English texts (UTF-8) and the keys (ASCII), by id. The pointers are null until
    /// `InitStrTable` has run. The strings are never freed.
    static const char* stab[kCount];
    static const char* ktab[kCount];
};
