#include "pid_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QtDebug>

PidFile::PidFile(const QString& path)
    : path_(path),
      content_("pid=" + QByteArray::number(QCoreApplication::applicationPid()) + "\n") {
    QDir().mkpath(QFileInfo(path_).path());
    QSaveFile file(path_);
    if (!file.open(QIODevice::WriteOnly) || file.write(content_) != content_.size() ||
        !file.commit()) {
        qWarning() << "cannot write" << path_ << "-" << file.errorString();
    }
}

PidFile::~PidFile() {
    QFile file(path_);
    if (file.open(QIODevice::ReadOnly) && file.readAll() == content_) {
        file.remove();
    }
}
