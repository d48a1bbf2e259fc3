#include "client_bundle.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QString>
#include <array>
#include <cerrno>
#include <charconv>
#include <optional>
#include <system_error>

#include "lib/file/file-op.h"
#include "lib/platform/regular_file.h"
#include "lib/platform/retry.h"
#include "version_file.h"

namespace {

constexpr const char* kBuildKey = "build_version";

bool IsMissingError(int error) {
    return error == ENOENT || error == ENOTDIR;
}

// The build number, if the text is a whole number and nothing else.
std::optional<int64_t> WholeNumber(const std::string& text) {
    int64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && rest == end ? std::optional(number) : std::nullopt;
}

ClientBundle::State StateOfExecutable(const std::string& path) {
    struct stat status;
    if (stat(path.c_str(), &status) != 0) {
        return IsMissingError(errno) || errno == ELOOP ? ClientBundle::kTorso
                                                       : ClientBundle::kUnknown;
    }
    const bool can_start = S_ISREG(status.st_mode) && (status.st_mode & S_IXUSR) != 0;
    return can_start ? ClientBundle::kWhole : ClientBundle::kTorso;
}

// Whether INFO names a build, or may name one. QSettings takes a file that it cannot read for an empty
// one, so a missing value is only believed when the file can be read here and does not name the key.
bool MayNameBuild(const std::string& path) {
    const UniqueFd file = OpenRegularFile(path, O_RDONLY);
    if (!file.IsOpen()) {
        return !IsMissingError(errno) && errno != ELOOP && errno != EINVAL;
    }
    std::string text;
    std::array<char, 4096> block;
    ssize_t count = 0;
    while ((count = RetryInterrupted(
                [&] { return read(file.Get(), block.data(), block.size()); })) > 0) {
        text.append(block.data(), static_cast<std::size_t>(count));
    }
    return count < 0 || text.find(kBuildKey) != std::string::npos;
}

ClientBundle InspectInfo(const std::string& path) {
    const auto value = VersionFile(QString::fromStdString(path)).Value(kBuildKey);
    if (!value.has_value() && MayNameBuild(path)) {
        return {ClientBundle::kUnknown};
    }
    const std::optional<int64_t> build = WholeNumber(value.value_or(""));
    return build.has_value() ? ClientBundle{ClientBundle::kWhole, *build}
                             : ClientBundle{ClientBundle::kTorso};
}

// Removes INFO unless it is reached through a symbolic link, which may lead out of the bundle.
void RemoveInfo(const std::string& path, const std::string& info) {
    _FILE_INFO_tag bundle;
    _FILE_INFO_tag file;
    if (GetFileInfo(path, bundle) == 0 && GetFileInfo(path + info, file) == 0 &&
        bundle.type == FILE_TYPE_DIR && file.path == bundle.path + info) {
        // The removal of the whole bundle comes next, and tells whether anything stays.
        static_cast<void>(FSRemove(path + info, false));
    }
}

}  // namespace

ClientBundle InspectBundle(const std::string& path, const BundleParts& parts) {
    if (IsSurelyMissing(path)) {
        return {ClientBundle::kMissing};
    }
    const ClientBundle::State state = StateOfExecutable(path + parts.executable);
    return state == ClientBundle::kWhole ? InspectInfo(path + parts.info) : ClientBundle{state};
}

bool RemoveBundle(const std::string& path, const BundleParts& parts) {
    for (int attempt = 0; attempt < 2 && !IsSurelyMissing(path); ++attempt) {
        if (attempt > 0) {
            // A folder that stays as it is shows in the removal that follows.
            static_cast<void>(FSMakeFoldersWritable(path));
        }
        RemoveInfo(path, parts.info);
        static_cast<void>(FSRemove(path, false));  // What stays is looked for below.
    }
    return IsSurelyMissing(path);
}

bool IsSurelyMissing(const std::string& path) {
    struct stat status;
    return lstat(path.c_str(), &status) != 0 && IsMissingError(errno);
}
