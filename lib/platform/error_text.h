#pragma once

#include <string>
#include <system_error>

/// Returns the system's text for an errno value, such as "No such file or directory" for ENOENT.
inline std::string PlatformErrorText(int error) {
    return std::generic_category().message(error);
}
