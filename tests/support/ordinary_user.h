#pragma once

#include <functional>

/// Runs a body in a child process without the rights of root and gives its result (0 to 125); 126
/// when the rights could not be dropped, 127 when the child did not end by itself. What the body
/// touches must be open to everybody.
int RunAsOrdinaryUser(const std::function<int()>& body);
