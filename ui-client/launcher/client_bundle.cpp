#include "client_bundle.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QString>
#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <optional>
#include <sstream>
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

// Returns the number, or nothing if the text is not a whole number from its first to its last byte.
std::optional<int64_t> WholeNumber(const std::string& text) {
    int64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && rest == end ? std::optional(number) : std::nullopt;
}

// Returns kWhole for an executable file. Symbolic links are followed.
ClientBundle::State StateOfExecutable(const std::string& path) {
    struct stat status;
    if (stat(path.c_str(), &status) != 0) {
        return IsMissingError(errno) || errno == ELOOP ? ClientBundle::kIncomplete
                                                       : ClientBundle::kUnknown;
    }
    const bool can_start = S_ISREG(status.st_mode) && (status.st_mode & S_IXUSR) != 0;
    return can_start ? ClientBundle::kWhole : ClientBundle::kIncomplete;
}

// Reads a whole file. Returns 0 with the text, 0 with an empty text if the path leads to no regular
// file, or -1 if the file could not be read.
int ReadText(const std::string& path, std::string& text) {
    const UniqueFd file = OpenRegularFile(path, O_RDONLY);
    if (!file.IsOpen()) {
        // OpenRegularFile fails with EINVAL for most other objects. For a socket, open fails with
        // ENXIO on Linux and with EOPNOTSUPP on macOS.
        const bool has_no_file = IsMissingError(errno) || errno == ELOOP || errno == EINVAL ||
                                 errno == ENXIO || errno == EOPNOTSUPP;
        return has_no_file ? 0 : -1;
    }
    std::array<char, 4096> block;
    ssize_t count = 0;
    do {
        count = RetryInterrupted([&] { return read(file.Get(), block.data(), block.size()); });
        text.append(block.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    } while (count > 0);
    return count == 0 ? 0 : -1;
}

std::string Trimmed(const std::string& text) {
    const char* const blanks = " \t\r";
    const std::size_t begin = text.find_first_not_of(blanks);
    return begin == std::string::npos
               ? std::string()
               : text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}

// Finds the build in the text of an INFO file. Returns an empty text if it names none.
std::string BuildInText(const std::string& text) {
    std::istringstream lines(text);
    std::string build;
    bool is_in_group = false;
    for (std::string line; std::getline(lines, line);) {
        line = Trimmed(line);
        const std::size_t equals = line.find('=');
        if (!line.empty() && line[0] == '[') {
            is_in_group = line == "[Version]";
        } else if (is_in_group && equals != std::string::npos &&
                   Trimmed(line.substr(0, equals)) == kBuildKey) {
            build = Trimmed(line.substr(equals + 1));
        }
    }
    return build;
}

// Inspects an INFO file. QSettings does not tell a read error from an empty file, and keeps the
// empty content in its cache until the process ends. So a file without a build is read again
// without it.
ClientBundle InspectInfo(const std::string& path) {
    std::optional<std::string> build = VersionFile(QString::fromStdString(path)).Value(kBuildKey);
    if (!build.has_value()) {
        std::string text;
        if (ReadText(path, text) != 0) {
            return {ClientBundle::kUnknown};
        }
        build = BuildInText(text);
    }
    const std::optional<int64_t> number = WholeNumber(*build);
    return number.has_value() ? ClientBundle{ClientBundle::kWhole, *number}
                              : ClientBundle{ClientBundle::kIncomplete};
}

// Removes one file of the bundle, unless a symbolic link on its path leads out of the bundle.
// Returns whether the file is missing afterwards.
bool RemovePart(const std::string& path, const std::string& part) {
    _FILE_INFO_tag bundle;
    _FILE_INFO_tag file;
    if (GetFileInfo(path, bundle) == 0 && GetFileInfo(path + part, file) == 0 &&
        bundle.type == FILE_TYPE_DIR && FSIsParentFolder(bundle.path, file.path)) {
        static_cast<void>(FSRemove(path + part, false));  // IsSurelyMissing tells the result.
    }
    return IsSurelyMissing(path + part);
}

// Removes INFO, or the executable if INFO cannot be removed. If the removal of the bundle is
// interrupted later, the rest of the bundle does not count as whole.
void MakeIncomplete(const std::string& path, const BundleParts& parts) {
    for (const std::string& part : {parts.info, parts.executable}) {
        if (RemovePart(path, part)) {
            return;
        }
        // If this fails, the next attempt fails as well.
        static_cast<void>(FSMakeFoldersWritable(path));
        if (RemovePart(path, part)) {
            return;
        }
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
    if (IsSurelyMissing(path)) {
        return true;
    }
    MakeIncomplete(path, parts);
    // IsSurelyMissing tells the result of each removal.
    static_cast<void>(FSRemove(path, false));
    if (!IsSurelyMissing(path)) {
        static_cast<void>(FSMakeFoldersWritable(path));
        static_cast<void>(FSRemove(path, false));
    }
    return IsSurelyMissing(path);
}

bool IsSurelyMissing(const std::string& path) {
    struct stat status;
    return lstat(path.c_str(), &status) != 0 && IsMissingError(errno);
}
