// Stands in for the header of macOS; see CoreServices/CoreServices.h.
#pragma once

#include <cstdint>
#include <ctime>

struct kevent {
    uintptr_t ident;
    int16_t filter;
    uint16_t flags;
    uint32_t fflags;
    intptr_t data;
    void* udata;
};

constexpr int16_t EVFILT_PROC = -5;
constexpr uint16_t EV_ADD = 1;
constexpr uint32_t NOTE_EXIT = 0x80000000;

#define EV_SET(event, ...) (*(event) = {__VA_ARGS__})

int kqueue();
int kevent(int queue, const struct kevent* changes, int change_count, struct kevent* events,
           int event_count, const struct timespec* timeout);
