#pragma once

#include <string>

/// Reads the whole content of a link of /proc. Returns 0, or -1 with errno set and `content` as it was.
int ReadProcLink(const char* link, std::string& content);
