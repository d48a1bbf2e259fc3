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
#include "strtable.h"

#define LOG_SOURCE "launcher"

namespace {

const std::string kLogComponent = "launcher_debug";

// Support's tools find these records by their line, so it does not follow the code.
constexpr int kLineRunning = 89;
constexpr int kLineNoNeed = 94;
constexpr int kLineFailed = 101;
constexpr int kLineDone = 117;

// Removing a tree takes stack for each of its levels, and a path has room for two thousand of them;
// what the system gives a thread by itself may be an eighth of this.
constexpr unsigned kWorkerStackBytes = 4 << 20;

constexpr int kBarMaximum = 100;
constexpr double kDesignWidth = 400.0;
constexpr double kDesignHeight = 80.0;

int Percentage(int total, int steps) {
    // Wider than the arguments, so that the product cannot overflow.
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

Worker::Worker() {
    service_ = new MacService;
    handler_thread_ = new HandlerThread;
    moveToThread(handler_thread_);
}

Worker::~Worker() {
    delete handler_thread_;
    delete service_;
}

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
    // The person gets a client that starts, whatever became of the installation.
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
    // Putting the old client back may have failed, too.
    service_->EnsureWholeClient();
}

// Given no text for a cancel button, the base makes none, and so has nothing to measure.
ProcessingProgressDialog::ProcessingProgressDialog()
    : QProgressDialog(QString(), QString(), 0, kBarMaximum) {
    const QFont application_font = QApplication::font();
    const QString icon_path = Service::RegisteredPath("root_resource_path") +
                              QLatin1String("/images/ico_72_lumaport.png");
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

Launcher::Launcher() : worker_(new Worker), dialog_(new ProcessingProgressDialog) {
    dialog_->setCancelButton(nullptr);
    dialog_->setAutoReset(false);
    dialog_->setModal(false);
    ConnectAll();
}

void Launcher::ConnectAll() {
    Notify_Adapter* const adapter = Notify_Adapter::GetInstance();
    connect(this, SIGNAL(sigStart()), worker_, SLOT(HandleServicce()));
    connect(worker_, SIGNAL(sigShowMsg()), this, SLOT(ShowMsgBox()));
    connect(worker_, SIGNAL(sigServiceDone()), this, SLOT(LaunchDone()));
    connect(worker_, SIGNAL(sigUpdateProgress(int, int)), this, SLOT(UpdateProgress(int, int)));
    connect(worker_, SIGNAL(sigSetLabelText(QString)), this, SLOT(SetLabelText(QString)));
    connect(adapter, SIGNAL(sigUpdateProgress(int, int)), this, SLOT(UpdateProgress(int, int)));
    connect(adapter, SIGNAL(sigUpdateDialogText(QString)), this, SLOT(SetLabelText(QString)));
}

Launcher::~Launcher() {
    // When the event loop was ended by anything but the worker, an installation may be half-way.
    worker_->QuitThread();
    worker_->JoinThread();
    delete worker_;
    delete dialog_;
}

void Launcher::Run() {
    worker_->StartThread();
}

void Launcher::Start() {
    if (worker_->IsThreadRunning()) {
        Q_EMIT sigStart();
        return;
    }
    // The system has given no thread, so the worker's sequence runs on this one. It waits for the event
    // loop: before the loop has begun, the call that ends the application has no effect.
    startTimer(0);
}

void Launcher::timerEvent(QTimerEvent* event) {
    killTimer(event->timerId());
    QMetaObject::invokeMethod(worker_, "HandleServicce", Qt::DirectConnection);
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
