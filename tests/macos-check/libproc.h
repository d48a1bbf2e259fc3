// Stands in for the header of macOS; see CoreServices/CoreServices.h.
#pragma once

#include <cstdint>

constexpr unsigned PROC_PIDPATHINFO_MAXSIZE = 4096;

int proc_pidpath(int pid, void* buffer, uint32_t size);
