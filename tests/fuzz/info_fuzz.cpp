#include "UIPathManager.h"
#include "mac/mac-service.h"
#include "tests/fuzz/fuzz.h"

namespace {

struct PackagedVersion : MacService {
    // Each from a folder of its own: Qt remembers the files that it has read by their paths.
    explicit PackagedVersion(const std::string& info) {
        const TempDir folder;
        WriteFile(folder / "INFO", info);
        UIPathManager::getInstance()->setPath(QStringLiteral("root_resource_path"),
                                              QString::fromStdString(folder.path()));
        LoadTargetVersion();
    }
    using MacService::target_build_version;
};

}  // namespace

void Check(const std::string& input) {
    const PackagedVersion version(input);
    // A mark of UTF-8 counts at the very beginning only, which the other group would move it from.
    if (input.substr(0, 1) != "\xEF") {
        const PackagedVersion beside_another("[Other]\nbuild_version=9\n" + input);
        assert(version.target_build_version == beside_another.target_build_version);
    }
}
