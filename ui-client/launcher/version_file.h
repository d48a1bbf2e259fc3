// The version file INFO of a client or of a package. It is an INI file with the group "Version".
#pragma once

#include <QSettings>
#include <QString>
#include <optional>
#include <string>

/// One INFO file.
class VersionFile {
public:
    /// Reads the file. If it is missing, cannot be read or is not a regular file, it has no values.
    explicit VersionFile(const QString& path);

    /// Returns the value of a key in the group "Version", in UTF-8, or nothing if the file does not
    /// have the key.
    std::optional<std::string> Value(const char* key) const;

private:
    std::optional<QSettings> settings_;
};
