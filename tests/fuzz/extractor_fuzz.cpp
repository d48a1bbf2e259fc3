#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>
#include <signal.h>
#include <sys/resource.h>

#include <filesystem>
#include <memory>

#include "lib/file/file-op.h"
#include "lib/log.h"
#include "lib/platform/platform.h"
#include "strtable.h"
#include "tests/fuzz/fuzz.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

namespace {

constexpr rlim_t kLargestFile = 1 << 20;

// A package may lead outside by links of its own, and this machine is not the one to try it on.
bool HoldsSymbolicLink(const std::string& path) {
    const std::unique_ptr<archive, decltype(&archive_read_free)> reader(archive_read_new(),
                                                                        archive_read_free);
    archive_read_support_filter_all(reader.get());
    archive_read_support_format_all(reader.get());
    archive_read_open_filename(reader.get(), path.c_str(), 10240);
    archive_entry* entry = nullptr;
    bool found = false;
    while (!found && archive_read_next_header(reader.get(), &entry) >= ARCHIVE_WARN) {
        found =
            archive_entry_filetype(entry) == AE_IFLNK || archive_entry_symlink(entry) != nullptr;
    }
    return found;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    PlatformUseUtf8CharacterType();
    StrTable::InitStrTable();
    const MemoryFile silent("extractor_debug=0\nfile_op_debug=0\n");
    Logger::Initialize(Logger::TYPE_STDERR, "", silent.path(), 0, Logger::SCOPE_NONE);
    // An archive that unpacks to more than any disk fails like on a full one.
    const rlimit limit = {kLargestFile, kLargestFile};
    Require(signal(SIGXFSZ, SIG_IGN) != SIG_ERR && setrlimit(RLIMIT_FSIZE, &limit) == 0);
    return 0;
}

void Check(const std::string& input) {
    const MemoryFile package(input);
    if (HoldsSymbolicLink(package.path())) {
        return;
    }
    const TempDir folder;
    WriteFile(folder / "outside", "untouched");
    Extractor extractor;
    extractor.archive_path = package.path();
    extractor.destination = folder / "out";
    std::filesystem::create_directory(extractor.destination);
    Require(extractor.Extract() == -1 || extractor.Count() > 0);
    Require(FSRemove(extractor.destination, false) == 0 || geteuid() != 0);
    Require(ReadFile(folder / "outside") == "untouched");
    Require(NamesIn(folder.path()).front() == "outside");
}
