#pragma once

#include <string>

/// Reads the target of a symbolic link in /proc. Returns 0 and sets `target`, or returns -1 with
/// errno set and leaves `target` unchanged.
int ReadProcLink(const char* link, std::string& target);
