#include "lib/tmp_name_gen.h"

#include <cstddef>

namespace {

constexpr std::size_t kNameLength = 8;

}  // namespace

TmpNameGen* TmpNameGen::getInstance() {
    static TmpNameGen tmp_name;
    return &tmp_name;
}

// NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp): the constructor's body seeds the engine.
TmpNameGen::TmpNameGen() {
    reseed();
}

void TmpNameGen::reseed() {
    const std::lock_guard<std::mutex> lock(mutex_);
    std::random_device device("/dev/urandom");
    engine_.seed(device());
}

std::string TmpNameGen::getTmpName() {
    static constexpr char map[] = {'0', '1', '2', '3', '4', '5', '6', '7', '8', '9', 'a', 'b', 'c',
                                   'd', 'e', 'f', 'g', 'h', 'i', 'j', 'k', 'l', 'm', 'n', 'o', 'p',
                                   'q', 'r', 's', 't', 'u', 'v', 'w', 'x', 'y', 'z', 'A', 'B', 'C',
                                   'D', 'E', 'F', 'G', 'H', 'I', 'J', 'K', 'L', 'M', 'N', 'O', 'P',
                                   'Q', 'R', 'S', 'T', 'U', 'V', 'W', 'X', 'Y', 'Z', '-', '_'};
    static_assert(sizeof(map) == 64, "64 values of equal probability");
    static std::uniform_int_distribution<std::size_t> dis(0, sizeof(map) - 1);

    std::string name;
    const std::lock_guard<std::mutex> lock(mutex_);
    while (name.size() < kNameLength) {
        name += map[dis(engine_)];
    }
    return name;
}

std::string TmpNameGen::getTmpPath(const std::string& folder) {
    return folder + "/" + getTmpName();
}
