#include "tests/support/private_home.h"

#include <QString>
#include <filesystem>

#include "UIPathManager.h"
#include "tests/support/tree.h"

PrivateHome::PrivateHome()
    : package(folder / "package/lumaport.cpk"), app(*this / ".Corvimo/Corvimo.app") {
    std::filesystem::create_directory(folder / "package");
    std::filesystem::create_directory(folder / "home");
    const auto register_path = [](const char* key, const std::string& path) {
        UIPathManager::getInstance()->setPath(QLatin1String(key), QString::fromStdString(path));
    };
    register_path("user_corvimo_path", *this / ".Corvimo");
    register_path("user_corvimo_app_path", app);
    register_path("user_corvimo_resource_path", app + "/Contents/Resources");
    register_path("user_corvimo_ui_path", app + "/Contents/MacOS/corvimo-ui");
    register_path("user_lumaport_path", *this / ".Lumaport");
    register_path("root_resource_path", folder.path());
}

void PrivateHome::InstallClient(const std::string& build) const {
    WriteDeep(app + "/Contents/MacOS/corvimo-ui", "client " + build);
    WriteDeep(app + "/Contents/Resources/INFO", "[Version]\nbuild_version=" + build + "\n");
    std::filesystem::create_symlink("MacOS/corvimo-ui", app + "/Contents/start");
}

ArchiveBuilder PrivateHome::Package(ArchiveBuilder::Format format) const {
    return ArchiveBuilder(package, format);
}
