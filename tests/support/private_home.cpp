#include "tests/support/private_home.h"

#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>

#include <QString>
#include <filesystem>
#include <memory>

#include "UIPathManager.h"
#include "tests/support/files.h"

PrivateHome::PrivateHome()
    : package(folder / "package/lumaport.cpk"), app(*this / ".Corvimo/Corvimo.app") {
    std::filesystem::create_directory(folder / "package");
    std::filesystem::create_directory(folder / "home");
    const std::pair<const char*, std::string> paths[] = {
        {"user_corvimo_path", *this / ".Corvimo"},
        {"user_corvimo_app_path", app},
        {"user_corvimo_resource_path", app + "/Contents/Resources"},
        {"user_corvimo_ui_path", app + "/Contents/MacOS/corvimo-ui"},
        {"user_lumaport_path", *this / ".Lumaport"},
        {"root_resource_path", folder.path()},
    };
    for (const auto& [key, path] : paths) {
        UIPathManager::getInstance()->setPath(QLatin1String(key), QString::fromStdString(path));
    }
}

void PrivateHome::InstallClient() const {
    WriteDeep(app + "/Contents/MacOS/corvimo-ui", "client");
}

void PrivateHome::Pack(const std::vector<Entry>& entries, const std::string& suffix) const {
    const std::unique_ptr<archive, decltype(&archive_write_free)> writer(archive_write_new(),
                                                                         archive_write_free);
    const std::unique_ptr<archive_entry, decltype(&archive_entry_free)> header(archive_entry_new(),
                                                                               archive_entry_free);
    EXPECT_EQ(ARCHIVE_OK, archive_write_set_format_filter_by_ext(writer.get(), suffix.c_str()));
    // Modes in front of each entry of a zip too, as in the packages that ship.
    archive_write_set_format_option(writer.get(), "zip", "experimental", "1");
    EXPECT_EQ(ARCHIVE_OK, archive_write_open_filename(writer.get(), package.c_str()));
    for (const auto& [name, content, mode] : entries) {
        const bool is_link = mode == kSymbolicLink || mode == kHardLink;
        const std::string data = is_link ? "" : content;
        const auto set_target =
            mode == kSymbolicLink ? archive_entry_set_symlink : archive_entry_set_hardlink;
        archive_entry_clear(header.get());
        archive_entry_set_pathname(header.get(), name.c_str());
        archive_entry_set_mode(header.get(), mode);
        archive_entry_set_size(header.get(), static_cast<la_int64_t>(data.size()));
        set_target(header.get(), is_link ? content.c_str() : nullptr);
        EXPECT_LE(ARCHIVE_WARN, archive_write_header(writer.get(), header.get())) << name;
        EXPECT_LE(0, archive_write_data(writer.get(), data.data(), data.size())) << name;
    }
    EXPECT_EQ(ARCHIVE_OK, archive_write_close(writer.get()));
}
