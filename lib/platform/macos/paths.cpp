#include <CoreServices/CoreServices.h>

#include <array>

#include "lib/platform/platform.h"

// These functions are deprecated since macOS 10.8, but still exported. getattrlist and F_GETPATH
// also give stored paths. They are not used as a fallback because no object is known that only they
// accept.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wdeprecated-declarations"

namespace {

const UInt8* Bytes(const std::string& path) {
    return reinterpret_cast<const UInt8*>(path.c_str());
}

OSStatus MakeRef(const std::string& path, bool follow_final_link, FSRef& object) {
    if (follow_final_link) {
        return FSPathMakeRef(Bytes(path), &object, nullptr);
    }
    return FSPathMakeRefWithOptions(Bytes(path), kFSPathMakeRefDoNotFollowLeafSymlink, &object,
                                    nullptr);
}

}  // namespace

int PlatformStoredPath(const std::string& path, bool follow_final_link, std::string& stored) {
    FSRef object;
    OSStatus status = MakeRef(path, follow_final_link, object);
    if (status != noErr) {
        return status;
    }
    std::array<UInt8, kStoredPathCapacity> buffer{};
    status = FSRefMakePath(&object, buffer.data(), static_cast<UInt32>(buffer.size()));
    if (status != noErr) {
        return status;
    }
    stored = reinterpret_cast<const char*>(buffer.data());
    return 0;
}

#pragma clang diagnostic pop

std::string PlatformToolPath(const std::string& tool) {
    return tool;
}
