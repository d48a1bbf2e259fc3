#include "version_file.h"

#include <QFileInfo>

VersionFile::VersionFile(const QString& path) {
    // QSettings would open a FIFO as well, and then wait for another process.
    if (QFileInfo(path).isFile()) {
        settings_.emplace(path, QSettings::IniFormat);
        settings_->beginGroup(QStringLiteral("Version"));
    }
}

std::optional<std::string> VersionFile::Value(const char* key) const {
    const QString name = QLatin1String(key);
    if (!settings_.has_value() || !settings_->contains(name)) {
        return std::nullopt;
    }
    return settings_->value(name).toString().toStdString();
}
