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
#include "registered_path.h"
#include "strtable.h"

#define LOG_SOURCE "main"

namespace {

const std::string kLogComponent = "launcher_debug";

constexpr int kLogFiles = 50;
constexpr int kFontPointSize = 12;

// The support team's tools recognise these records by their line numbers. So the numbers are fixed,
// and are not the lines of this file.
//
// The launcher never registers four of these keys. Their records show an empty path.
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

// The registered paths below the user's home folder.
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

// Lets Qt load plug-ins only from the bundle's folder. Must run before the application object is
// made, because its constructor loads the window system's plug-in.
void UseBundledPlugins(const char* executable) {
    const QString path =
        QDir::cleanPath(QString::fromUtf8(executable) + QLatin1String("/../../Frameworks/plugins"));
    QCoreApplication::setLibraryPaths({path});
    std::printf("lib path = '%s'\n", path.toUtf8().constData());
    // Qt aborts if it finds no plug-in, and abort() does not flush. Without this flush, the line
    // that names the searched folder would be lost.
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
                   RegisteredPathUtf8(entry.key).c_str());
    }
}

// Creates the log folder and opens the log file there. If the folder cannot be created, the logger
// stays in its initial state: it writes records of WARNING and more severe to standard error.
void StartLogging() {
    const QString levels =
        RegisteredPath("root_resource_path") + QLatin1String("/log/launcher.debug");
    const QString folder = RegisteredPath("user_corvimo_path") + QLatin1String("/log");
    if (!QDir().mkpath(folder)) {
        return;
    }
    const QString file = folder + QLatin1String("/launcher.log");
    // If the log file cannot be opened, nothing is logged. The run goes on, because starting the
    // client matters more than a log.
    static_cast<void>(Logger::Initialize(Logger::TYPE_FILE, file.toStdString(),
                                         levels.toStdString(), kLogFiles, Logger::SCOPE_PROCESS));
    LogPaths();
}

void InstallTranslation(const QString& language) {
    auto translator = std::make_unique<QTranslator>();
    // If the language has no translation file, the translator stays empty.
    static_cast<void>(translator->load(QLatin1String(":/") + language + QLatin1String(".qm")));
    if (translator->isEmpty()) {
        return;
    }
    // Qt uses the translator until the process ends, so nothing deletes it. The static pointer
    // keeps it reachable: otherwise the leak checker would report it.
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
    // Writing to standard output raises SIGPIPE if its reader has ended. The other signals come
    // with a log-out or a closed terminal, and must not end an installation half-way.
    for (const int signal : {SIGPIPE, SIGTERM, SIGHUP, SIGINT}) {
        static_cast<void>(std::signal(signal, SIG_IGN));
    }
    // A process inherits an ignored SIGCHLD from its parent. While SIGCHLD is ignored, waitpid does
    // not return the exit status of the tools that the service starts.
    static_cast<void>(std::signal(SIGCHLD, SIG_DFL));
    // If the environment names a locale that is not installed, this call fails and the "C" locale
    // stays. Only the character type matters here, and the next call sets it.
    static_cast<void>(std::setlocale(LC_ALL, ""));
    PlatformUseUtf8CharacterType();
    Q_INIT_RESOURCE(texts);
    UseBundledPlugins(argv[0]);
    QtSingleApplication application(argc, argv, true);
    QApplication::setQuitOnLastWindowClosed(false);  // Only Launcher::LaunchDone ends the run.
    // The constructor of the application object has called setlocale(LC_ALL, "") again.
    PlatformUseUtf8CharacterType();

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
