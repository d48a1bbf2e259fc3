#include "launcher.h"

#include <QApplication>
#include <QCloseEvent>
#include <QIcon>
#include <QTimerEvent>
#include <algorithm>
#include <cstdint>
#include <limits>

#include "DPIinfo.h"
#include "lib/log.h"
#include "mac/mac-service.h"
#include "notify_adapter.h"
#include "registered_path.h"
#include "strtable.h"

#define LOG_SOURCE "launcher"

namespace {

const std::string kLogComponent = "launcher_debug";

// The support team's tools recognise these records by their line numbers. So the numbers are fixed,
// and are not the lines of this file.
constexpr int kLineRunning = 89;
constexpr int kLineNoNeed = 94;
constexpr int kLineFailed = 101;
constexpr int kLineDone = 117;

// `FSRename` to another volume, and libarchive for missing parent folders, recurse once for each
// level of folders, and a path of 4,096 bytes can have about 2,000 levels. The default stack of a
// thread may be too small for that: it is 512 KiB on macOS.
constexpr unsigned kWorkerStackBytes = 4 << 20;

constexpr int kBarMaximum = 100;
constexpr double kDesignWidth = 400.0;
constexpr double kDesignHeight = 80.0;

int Percentage(int total, int steps) {
    // The product is computed in 64 bits, because it can overflow 32 bits.
    const int64_t percentage = int64_t{steps} * kBarMaximum / total;
    return static_cast<int>(std::clamp<int64_t>(percentage, std::numeric_limits<int>::min(),
                                                std::numeric_limits<int>::max()));
}

}  // namespace

HandlerThread::HandlerThread() {
    setStackSize(kWorkerStackBytes);
}

void HandlerThread::run() {
    exec();
}

Worker::Worker()
    : service_(std::make_unique<MacService>()), handler_thread_(std::make_unique<HandlerThread>()) {
    moveToThread(handler_thread_.get());
}

Worker::~Worker() = default;

void Worker::StartThread() {
    handler_thread_->start(QThread::InheritPriority);
}

bool Worker::IsThreadRunning() const {
    return handler_thread_->isRunning();
}

void Worker::QuitThread() {
    handler_thread_->quit();
}

void Worker::JoinThread() {
    handler_thread_->wait();
}

void Worker::HandleServicce() {
    LOG_MSG_AT(kLineRunning, DEBUG, "running");
    service_->EnsureWholeClient();
    service_->PreUpgrade();
    if (service_->IsNeedUpgrade()) {
        InstallPackage();
    } else {
        LOG_MSG_AT(kLineNoNeed, DEBUG, "no need to upgrade");
    }
    // These two steps follow even if the installation has failed: the user gets a running client.
    service_->RemoveAgedFolders();
    service_->PostUpgrade();
    LOG_MSG_AT(kLineDone, DEBUG, "done");
    Q_EMIT sigServiceDone();
}

void Worker::InstallPackage() {
    Q_EMIT sigShowMsg();
    service_->RemoveLeftovers();
    if (service_->HandlePackageUpgrade() == 0) {
        Q_EMIT sigUpdateProgress(kBarMaximum, kBarMaximum);
        Q_EMIT sigSetLabelText(StrTable::LoadStrWithAppName(StrTable::kReady));
        return;
    }
    LOG_MSG_AT(kLineFailed, ERROR, "Failed to upgrade package");
    // The roll-back of the failed installation may have failed, too.
    service_->EnsureWholeClient();
}

// A null text for the cancel button makes QProgressDialog create no such button.
ProcessingProgressDialog::ProcessingProgressDialog()
    : QProgressDialog(QString(), QString(), 0, kBarMaximum) {
    const QFont application_font = QApplication::font();
    const QString icon_path =
        RegisteredPath("root_resource_path") + QLatin1String("/images/ico_72_lumaport.png");
    setWindowTitle(StrTable::LoadStr(StrTable::kAppName));
    setWindowIcon(QIcon(icon_path));
    setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    setValue(0);
    setRange(0, kBarMaximum);
    setLabelText(StrTable::LoadStrWithAppName(StrTable::kInitializing));
    setFont(application_font);
    setModal(true);
    setWindowModality(Qt::WindowModal);
    DPIinfo* const display = DPIinfo::getInstance();
    setFixedSize(static_cast<int>(display->getDPI() * kDesignWidth),
                 static_cast<int>(display->getDPI() * kDesignHeight));
    setStyleSheet(display->getScaledStyleSheet(QStringLiteral(
        "QProgressDialog { background-color: WhiteSmoke; vertical-align: middle; }")));
}

void ProcessingProgressDialog::reject() {}

void ProcessingProgressDialog::closeEvent(QCloseEvent* event) {
    event->ignore();
}

Launcher::Launcher() {
    // The worker is made first and destroyed first. The order of the members gives only the latter.
    worker_ = std::make_unique<Worker>();
    dialog_ = std::make_unique<ProcessingProgressDialog>();
    dialog_->setCancelButton(nullptr);
    dialog_->setAutoReset(false);
    dialog_->setModal(false);
    ConnectAll();
}

void Launcher::ConnectAll() {
    Notify_Adapter* const adapter = Notify_Adapter::GetInstance();
    connect(this, SIGNAL(sigStart()), worker_.get(), SLOT(HandleServicce()));
    connect(worker_.get(), SIGNAL(sigShowMsg()), this, SLOT(ShowMsgBox()));
    connect(worker_.get(), SIGNAL(sigServiceDone()), this, SLOT(LaunchDone()));
    connect(worker_.get(), SIGNAL(sigUpdateProgress(int, int)), this,
            SLOT(UpdateProgress(int, int)));
    connect(worker_.get(), SIGNAL(sigSetLabelText(QString)), this, SLOT(SetLabelText(QString)));
    connect(adapter, SIGNAL(sigUpdateProgress(int, int)), this, SLOT(UpdateProgress(int, int)));
    connect(adapter, SIGNAL(sigUpdateDialogText(QString)), this, SLOT(SetLabelText(QString)));
}

Launcher::~Launcher() {
    // If something other than `LaunchDone` has ended the event loop, the worker may still be
    // installing.
    worker_->QuitThread();
    worker_->JoinThread();
}

void Launcher::Run() {
    worker_->StartThread();
}

void Launcher::Start() {
    if (worker_->IsThreadRunning()) {
        Q_EMIT sigStart();
        return;
    }
    // The system could not create a thread, so the steps run on the main thread. A timer starts
    // them from the event loop, because QCoreApplication::quit has no effect before the loop runs.
    startTimer(0);
}

void Launcher::timerEvent(QTimerEvent* event) {
    killTimer(event->timerId());
    QMetaObject::invokeMethod(worker_.get(), "HandleServicce", Qt::DirectConnection);
}

void Launcher::LaunchDone() {
    dialog_->setValue(kBarMaximum);
    dialog_->hide();
    worker_->QuitThread();
    worker_->JoinThread();
    QCoreApplication::quit();
}

void Launcher::UpdateProgress(int total, int steps) {
    if (total > 0) {
        dialog_->setValue(Percentage(total, steps));
    }
}

void Launcher::SetLabelText(const QString& text) {
    dialog_->setLabelText(text);
}

void Launcher::ShowMsgBox() {
    dialog_->show();
}
