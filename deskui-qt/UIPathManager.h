#pragma once

#include <QHash>
#include <QString>

#include "deskui_export.h"

/// The registry of named paths. It holds the paths of the user's folders and of the bundle, so that
/// they are built in one place only.
///
/// Paths are stored unchanged. The caller joins and cleans them. Several threads may call `getPath`
/// at once, as long as no thread calls `setPath`.
class DESKUI_EXPORT UIPathManager {
public:
    /// Returns the only instance, which is made on first use. The caller does not own it.
    static UIPathManager* getInstance();

    UIPathManager(const UIPathManager&) = delete;
    UIPathManager& operator=(const UIPathManager&) = delete;

    /// Stores `path` under `key`, and replaces an earlier path.
    void setPath(const QString& key, const QString& path);

    /// Returns the path that is stored under exactly this key, or an empty string if there is none.
    QString getPath(const QString& key) const;

private:
    UIPathManager() = default;
    ~UIPathManager() = default;

    QHash<QString, QString> paths_;
};
