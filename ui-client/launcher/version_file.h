// The version file INFO of a client or of a package: an INI file with the group "Version".
#pragma once

#include <QSettings>
#include <QString>
#include <optional>
#include <string>

/// Reads one INFO file. A file that is missing, cannot be read or is no regular file has no values.
class VersionFile {
public:
    explicit VersionFile(const QString& path);

    /// The value of a key in the group "Version", in UTF-8; none when the file does not have the key.
    std::optional<std::string> Value(const char* key) const;

private:
    std::optional<QSettings> settings_;
};
