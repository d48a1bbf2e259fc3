// Reads the path registry, `UIPathManager`, by the literal keys of the launcher.
#pragma once

#include <QString>
#include <string>

/// Returns the path that is registered under a key, or an empty string if there is none. Any thread
/// may call it once the registry is filled.
QString RegisteredPath(const char* key);

/// Returns the same path in UTF-8, as the service, the extractor and lib/ take paths.
std::string RegisteredPathUtf8(const char* key);
