// Reports how long one operation of a program took.
#pragma once

#include <chrono>
#include <cstdio>

/// Runs the operation and prints its seconds, without the start and the end of the program. Returns
/// the program's exit status: 0 when the operation returned 0.
template <typename Operation>
int Measured(Operation operation) {
    const auto begin = std::chrono::steady_clock::now();
    const int result = operation();
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
    static_cast<void>(std::printf("%.6f\n", seconds.count()));
    return result == 0 ? 0 : 1;
}
