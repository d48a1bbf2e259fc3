#include <tuple>

#include "UIPathManager.h"
#include "mac/mac-service.h"
#include "tests/fuzz/fuzz.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

namespace {

class LoadedVersion : public MacService {
public:
    // Each from a folder of its own: Qt remembers the files that it has read by their paths.
    explicit LoadedVersion(const std::string& info) {
        const TempDir folder;
        WriteFile(folder / "INFO", info);
        UIPathManager::getInstance()->setPath(QStringLiteral("root_resource_path"),
                                              QString::fromStdString(folder.path()));
        LoadTargetVersion();
    }
    auto Fields() const {
        return std::tie(target_major_version, target_minor_version, target_build_version,
                        target_icon_overlay_version);
    }
};

}  // namespace

void Check(const std::string& input) {
    const LoadedVersion version(input);
    // A mark of UTF-8 counts at the very beginning only, which the other group would move it from.
    if (input.substr(0, 1) != "\xEF") {
        const LoadedVersion beside_another("[Other]\nbuild_version=9\n" + input);
        Require(version.Fields() == beside_another.Fields());
    }
}
