// A small client of the kind that the launcher keeps current: it shows which build it is, says
// under which process id it runs, and ends when it is asked to.

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLabel>
#include <QSettings>
#include <QVBoxLayout>
#include <QWidget>
#include <memory>

#include "pid_file.h"
#include "termination.h"

namespace {

// Without a display Qt would end the process as soon as it is asked for windows.
bool HasDisplay() {
    if (QSysInfo::kernelType() == QLatin1String("darwin")) {
        return true;
    }
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv) {
    if (HasDisplay()) {
        return std::make_unique<QApplication>(argc, argv);
    }
    return std::make_unique<QCoreApplication>(argc, argv);
}

QString Resource(const char* name) {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QLatin1String("/../Resources/") + QLatin1String(name));
}

QString BuildNumber() {
    return QSettings(Resource("INFO"), QSettings::IniFormat)
        .value(QStringLiteral("Version/build_version"), QStringLiteral("unknown"))
        .toString();
}

std::unique_ptr<QWidget> ShowWindow() {
    const QString name = QStringLiteral("Corvimo Client");
    const QIcon icon(Resource("images/corvimo.png"));
    auto window = std::make_unique<QWidget>();
    window->setWindowTitle(name);
    window->setWindowIcon(icon);

    auto* picture = new QLabel;
    picture->setPixmap(icon.pixmap(64));
    picture->setAlignment(Qt::AlignCenter);
    auto* build = new QLabel(QStringLiteral("%1, build %2").arg(name, BuildNumber()));
    build->setAlignment(Qt::AlignCenter);

    auto* layout = new QVBoxLayout(window.get());
    layout->addWidget(picture);
    layout->addWidget(build);
    window->resize(280, 140);
    window->show();
    return window;
}

}  // namespace

int main(int argc, char** argv) {
    const auto application = MakeApplication(argc, argv);

    // The signals come before the pid file: nobody may find a process that cannot end in order yet.
    const Termination termination;
    const PidFile pid_file(QDir::homePath() + QLatin1String("/.Corvimo/ui.pid"));
    const auto window = HasDisplay() ? ShowWindow() : nullptr;
    return QCoreApplication::exec();
}
