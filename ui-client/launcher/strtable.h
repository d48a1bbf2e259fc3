#pragma once

#include <QString>

#include "strtable_count.h"  // Made from the catalogue by the build.

/// The client's user-interface texts. A text has a fixed numeric id, a stable key and an English
/// source text, which is what Qt's translators look up. The rows come from texts/catalogue.txt.
///
/// Threads: InitStrTable() runs before a second thread exists; afterwards the tables are only read,
/// so every other function may be called from any thread without a lock.
class StrTable {
public:
    /// Number of rows; ids are 0 to kCount - 1.
    static constexpr int kCount = kStrTableCount;

    /// Ids of the rows that the launcher shows.
    static constexpr int kReady = 523;         ///< "%1 is ready.", %1 is the product name
    static constexpr int kInitializing = 539;  ///< "%1 is initializing...", %1 is the product name
    static constexpr int kAppName = 866;       ///< the product name

    StrTable() = delete;

    /// Fills both tables. Every other function here needs it to have run; running it again changes
    /// nothing.
    static void InitStrTable();

    /// The text to show for `id`, which must be in 0 to kCount - 1: its translation by the
    /// application's installed translators, or the English text where they have none. In either,
    /// each two-character sequence backslash-n has become a line break and each backslash-t a tab.
    /// Placeholders are still in place, for QString::arg.
    static QString LoadStr(int id);

    /// The same with the product's name in the place of "%1".
    static QString LoadStrWithAppName(int id);

    /// The id whose key equals `key` without regard to case, or -1 when there is none.
    static int LookupStrID(const QString& key);

    /// English texts (UTF-8) and keys (ASCII), by id. The strings live as long as the program; all
    /// pointers are null until InitStrTable().
    static const char* stab[kCount];
    static const char* ktab[kCount];
};
