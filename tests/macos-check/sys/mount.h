// Stands in for the header of macOS, where it declares statfs; see CoreServices/CoreServices.h.
#pragma once

struct statfs {
    char f_fstypename[16];
};

int statfs(const char* path, struct statfs* status);
