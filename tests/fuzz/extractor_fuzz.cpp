#include "extractor.h"

#include <signal.h>
#include <sys/resource.h>

#include <cerrno>
#include <filesystem>

#include "lib/file/file-op.h"
#include "lib/log.h"
#include "lib/platform/platform.h"
#include "strtable.h"
#include "tests/fuzz/fuzz.h"

// Takes the place of the system's: a package may lead outside by links of its own, and this machine
// is not the one to try it on.
extern "C" int symlink(const char* /*target*/, const char* /*path*/) noexcept {
    errno = EPERM;
    return -1;
}

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    PlatformUseUtf8CharacterType();
    StrTable::InitStrTable();
    Logger::Destroy();  // Nothing is logged from here on.
    // An archive that unpacks to more than any disk fails like on a full one.
    const rlimit limit = {1 << 20, 1 << 20};
    assert(signal(SIGXFSZ, SIG_IGN) != SIG_ERR && setrlimit(RLIMIT_FSIZE, &limit) == 0);
    return 0;
}

void Check(const std::string& input) {
    const TempDir folder;
    WriteFile(folder / "package", input);
    Extractor extractor;
    extractor.archive_path = folder / "package";
    extractor.destination = folder / "out";
    std::filesystem::create_directory(extractor.destination);
    assert(extractor.Extract() == -1 || extractor.Count() > 0);
    assert(ReadFile(extractor.archive_path) == input);
    assert(NamesIn(folder.path()) == (std::vector<std::string>{"out", "package"}));
    assert(FSRemove(extractor.destination, false) == 0 || geteuid() != 0);
}
