#include <QApplication>
#include <QDir>
#include <QFont>
#include <QTranslator>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <memory>

#include "ArvendelLocale.h"
#include "QtSingleApplication.h"
#include "UIPathManager.h"
#include "cloud-service.h"
#include "launcher.h"
#include "lib/log.h"
#include "lib/platform/platform.h"
#include "strtable.h"

#define LOG_SOURCE "main"

namespace {

const std::string kLogComponent = "launcher_debug";

constexpr int kLogFiles = 50;
constexpr int kFontPointSize = 12;

// Support's tools find these records by their line, so it does not follow the code. Four of the
// keys belong to other programs of the client and have no value here.
constexpr int kLineAlreadyLaunched = 154;
struct LoggedPath {
    int line;
    const char* key;
};
constexpr LoggedPath kLoggedPaths[] = {
    {106, "user_lumaport_path"},
    {107, "user_lumaport_app_path"},
    {108, "user_lumaport_resource_path"},
    {109, "user_lumaport_data_path"},
    {110, "user_lumaport_working_dir_path"},
    {111, "user_lumaport_corvimo_ui_path"},
    {112, "root_resource_path"},
};

// Where everything of the user's lies below the home folder, by registry key.
struct UserPath {
    const char* key;
    const char* path;
};
constexpr UserPath kUserPaths[] = {
    {"user_corvimo_path", "/.Corvimo"},
    {"user_corvimo_app_path", "/.Corvimo/Corvimo.app"},
    {"user_corvimo_resource_path", "/.Corvimo/Corvimo.app/Contents/Resources"},
    {"user_corvimo_data_path", "/.Corvimo/data"},
    {"user_corvimo_working_dir_path", "/.Corvimo/Corvimo.app/Contents/MacOS"},
    {"user_corvimo_ui_path", "/.Corvimo/Corvimo.app/Contents/MacOS/corvimo-ui"},
    {"user_lumaport_path", "/.Lumaport"},
    {"user_lumaport_resource_path", "/.Lumaport/Lumaport.app/Contents/Resources"},
};

void RegisterPath(const char* key, const QString& path) {
    UIPathManager::getInstance()->setPath(QLatin1String(key), QDir::cleanPath(path));
}

// Runs before the application object exists, which loads the window system's plug-in from this
// path.
void UseBundledPlugins(const char* executable) {
    const QString path =
        QDir::cleanPath(QString::fromUtf8(executable) + QLatin1String("/../../Frameworks/plugins"));
    QCoreApplication::setLibraryPaths({path});
    std::printf("lib path = '%s'\n", path.toUtf8().constData());
    // Without a plug-in Qt aborts, and the text would be lost that tells why.
    static_cast<void>(std::fflush(stdout));
}

void RegisterPaths() {
    for (const UserPath& entry : kUserPaths) {
        RegisterPath(entry.key, Service::GetUserInstallPath() + QLatin1String(entry.path));
    }
    RegisterPath("root_resource_path",
                 QCoreApplication::applicationDirPath() + QLatin1String("/../Resources"));
}

void LogPaths() {
    for (const LoggedPath& entry : kLoggedPaths) {
        LOG_MSG_AT(entry.line, INFO, ">>> %s = %s", entry.key,
                   Service::RegisteredPath(entry.key).toUtf8().constData());
    }
}

// Without its folder the logger keeps writing what matters most to standard error.
void StartLogging() {
    const QString levels =
        Service::RegisteredPath("root_resource_path") + QLatin1String("/log/launcher.debug");
    const QString folder = Service::RegisteredPath("user_corvimo_path") + QLatin1String("/log");
    if (!QDir().mkpath(folder)) {
        return;
    }
    const QString file = folder + QLatin1String("/launcher.log");
    // A logger that cannot start stays silent, and the person's client comes first.
    static_cast<void>(Logger::Initialize(Logger::TYPE_FILE, file.toStdString(),
                                         levels.toStdString(), kLogFiles, Logger::SCOPE_PROCESS));
    LogPaths();
}

void InstallTranslation(const QString& language) {
    auto translator = std::make_unique<QTranslator>();
    // A language without a file leaves the translator empty.
    static_cast<void>(translator->load(QLatin1String(":/") + language + QLatin1String(".qm")));
    if (translator->isEmpty()) {
        return;
    }
    // It lives with the process; the pointer to it stays for the leak checker to find.
    static QTranslator* const installed = translator.release();
    QCoreApplication::installTranslator(installed);
}

void SetApplicationFont(const QString& language) {
    const QString family = language == QLatin1String("tha") ? QStringLiteral("Microsoft Sans Serif")
                                                            : QStringLiteral("Arial");
    QApplication::setFont(QFont(family, kFontPointSize));
}

int RunLauncher() {
    const auto launcher = std::make_unique<Launcher>();
    launcher->Run();
    launcher->Start();
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    // Standard output may be a pipe that nobody reads. The others come from a log-out or a closed
    // terminal: an installation that has begun goes to its end.
    for (const int signal : {SIGPIPE, SIGTERM, SIGHUP, SIGINT}) {
        static_cast<void>(std::signal(signal, SIG_IGN));
    }
    // A parent that ignored it would leave us without the results of the tools that we start.
    static_cast<void>(std::signal(SIGCHLD, SIG_DFL));
    // An environment that names no installed locale leaves the C locale, which serves as well.
    static_cast<void>(std::setlocale(LC_ALL, ""));
    PlatformUseUtf8CharacterType();
    Q_INIT_RESOURCE(texts);
    UseBundledPlugins(argv[0]);
    QtSingleApplication application(argc, argv, true);
    QApplication::setQuitOnLastWindowClosed(false);  // Only the worker ends the run.
    PlatformUseUtf8CharacterType();  // The application object has set the environment's locale
                                     // again.

    RegisterPaths();
    StartLogging();
    if (application.isRunning()) {
        LOG_MSG_AT(kLineAlreadyLaunched, DEBUG, "app has already launched, return");
        return 0;
    }
    const QString language = ArvendelLocale::getInstance()->getDefaultLanguage();
    InstallTranslation(language);
    StrTable::InitStrTable();
    SetApplicationFont(language);
    return RunLauncher();
}
