#pragma once

#include <QSocketNotifier>

#include "lib/platform/unique_fd.h"

/// Turns the signals that ask a process to end (SIGTERM, SIGINT, SIGHUP) into an orderly end of the
/// event loop.
///
/// There is at most one, on the main thread, made after the application object. Once it is
/// destroyed these signals have no effect: the process is on its way out.
class Termination {
public:
    Termination();
    ~Termination();

    Termination(const Termination&) = delete;
    Termination& operator=(const Termination&) = delete;

private:
    struct Pipe {
        UniqueFd read_end;
        UniqueFd write_end;
    };
    static Pipe MakePipe();

    Pipe pipe_;
    QSocketNotifier notifier_;
};
