#pragma once

#include <QHash>
#include <QString>

#include "deskui_export.h"

/// The registry of named paths: the one place where the paths of the user's folders and of the
/// bundle are kept, so that nobody builds them a second time.
///
/// Paths are kept as they are given. Joining and cleaning them is up to the caller. `getPath` may
/// be called from several threads at once, as long as none calls `setPath`.
class DESKUI_EXPORT UIPathManager {
public:
    /// The registry of this process. It is made on first use, is never null, and is not the
    /// caller's to delete.
    static UIPathManager* getInstance();

    UIPathManager(const UIPathManager&) = delete;
    UIPathManager& operator=(const UIPathManager&) = delete;

    /// Keeps `path` under `key`, in place of any earlier one.
    void setPath(const QString& key, const QString& path);

    /// The path kept under exactly this key, or an empty string when there is none.
    QString getPath(const QString& key) const;

private:
    UIPathManager() = default;
    ~UIPathManager() = default;

    QHash<QString, QString> paths_;
};
