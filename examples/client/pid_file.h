#pragma once

#include <QByteArray>
#include <QString>

/// The file by which the launcher finds this process when it has to replace the client.
///
/// It exists, whole, from the end of the constructor to the destructor: it is written under a
/// temporary name and renamed, so a reader never sees half of it. Its folder is made when it is
/// missing.
class PidFile {
public:
    /// When the file cannot be written, a warning is printed and the client is one that the
    /// launcher cannot stop.
    explicit PidFile(const QString& path);

    /// Removes the file, unless another process has put its own in its place.
    ~PidFile();

    PidFile(const PidFile&) = delete;
    PidFile& operator=(const PidFile&) = delete;

private:
    QString path_;
    QByteArray content_;
};
