// Stands in for the header of macOS; see CoreServices/CoreServices.h.
#pragma once

#include <sys/time.h>

#include <cstddef>

constexpr int CTL_KERN = 1;
constexpr int KERN_PROC = 14;
constexpr int KERN_PROC_PID = 1;

struct kinfo_proc {
    struct {
        struct timeval p_starttime;
    } kp_proc;
};

int sysctl(int* name, unsigned name_length, void* value, std::size_t* size, void* new_value,
           std::size_t new_size);
