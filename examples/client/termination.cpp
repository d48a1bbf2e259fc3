#include "termination.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>

namespace {

// Where the handler writes; -1 is no descriptor, and writing to it does nothing.
std::atomic<int> signal_end{-1};

// The only thing done inside the handler: a write is among the few calls that are safe there. A
// full pipe loses nothing, because one byte is enough.
extern "C" void OnSignal(int) {
    const int saved_errno = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(signal_end, &byte, sizeof byte);
    errno = saved_errno;
}

// A process that the client starts must not hold the pipe, and a handler must not block.
int MakePrivate(int fd) {
    if (fcntl(fd, F_SETFD, FD_CLOEXEC) != 0 || fcntl(fd, F_SETFL, O_NONBLOCK) != 0) {
        qFatal("no pipe for signals: %s", std::strerror(errno));
    }
    return fd;
}

}  // namespace

Termination::Pipe Termination::MakePipe() {
    std::array<int, 2> ends = {};
    if (pipe(ends.data()) != 0) {
        qFatal("no pipe for signals: %s", std::strerror(errno));
    }
    return {UniqueFd(MakePrivate(ends[0])), UniqueFd(MakePrivate(ends[1]))};
}

Termination::Termination()
    : pipe_(MakePipe()), notifier_(pipe_.read_end.Get(), QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);
    signal_end = pipe_.write_end.Get();

    struct sigaction action = {};
    action.sa_handler = OnSignal;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        static_cast<void>(sigaction(signal, &action, nullptr));  // Fails for unknown signals only.
    }
}

Termination::~Termination() {
    signal_end = -1;
}
