// Normalising a path of 200 bytes to form C, against ICU's normaliser called directly between the
// same two conversions.

#include <benchmark/benchmark.h>
#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <array>
#include <string>

#include "lib/utils/StringHelper.h"

using corvimo::utils::StringHelper;

namespace {

constexpr std::size_t kPathBytes = 200;
constexpr int32_t kUnits = 1024;

std::string Path(const std::string& name) {
    std::string path;
    while (path.size() + name.size() <= kPathBytes) {
        path += name;
    }
    return path.append(kPathBytes - path.size(), 'x');
}

const std::string& AsciiPath() {
    static const std::string path = Path("/Contents/Resources/help");
    return path;
}

// As this system's volumes keep names.
const std::string& ComposedPath() {
    static const std::string path = Path("/Größe/文書/Contents");
    return path;
}

// As older volumes of macOS keep names.
const std::string& DecomposedPath() {
    static const std::string path = Path("/Gro\u0308ße/e\u0301tude/Contents");
    return path;
}

std::string NormalizeDirectly(const std::string& text) {
    UErrorCode error = U_ZERO_ERROR;
    std::array<char16_t, kUnits> wide;
    std::array<char16_t, kUnits> normal;
    std::array<char, kUnits * 3> narrow;
    int32_t wide_length = 0;
    int32_t narrow_length = 0;
    u_strFromUTF8(wide.data(), kUnits, &wide_length, text.data(), static_cast<int32_t>(text.size()),
                  &error);
    const int32_t normal_length =
        unorm2_normalize(unorm2_getInstance(nullptr, "nfc", UNORM2_COMPOSE, &error), wide.data(),
                         wide_length, normal.data(), kUnits, &error);
    u_strToUTF8(narrow.data(), kUnits * 3, &narrow_length, normal.data(), normal_length, &error);
    return U_SUCCESS(error) ? std::string(narrow.data(), static_cast<std::size_t>(narrow_length))
                            : "";
}

void Normalize(benchmark::State& state, const std::string& (*path)()) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(StringHelper::Normalize(path(), StringHelper::NFC));
    }
}

void NormalizePeer(benchmark::State& state, const std::string& (*path)()) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(NormalizeDirectly(path()));
    }
}

BENCHMARK_CAPTURE(Normalize, ascii, AsciiPath);
BENCHMARK_CAPTURE(NormalizePeer, ascii, AsciiPath);
BENCHMARK_CAPTURE(Normalize, composed, ComposedPath);
BENCHMARK_CAPTURE(NormalizePeer, composed, ComposedPath);
BENCHMARK_CAPTURE(Normalize, decomposed, DecomposedPath);
BENCHMARK_CAPTURE(NormalizePeer, decomposed, DecomposedPath);

}  // namespace
