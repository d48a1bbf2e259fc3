// Declarations of what lib/platform/macos uses of CoreServices, so that it can be compiled where
// the real header is not. macos_test.cpp emulates the calls.
#pragma once

using OSStatus = int;
using UInt32 = unsigned int;
using UInt8 = unsigned char;

struct FSRef {
    int fd;
};

constexpr OSStatus noErr = 0;
constexpr UInt32 kFSPathMakeRefDoNotFollowLeafSymlink = 1;

extern "C" {
OSStatus FSPathMakeRef(const UInt8* path, FSRef* ref, UInt8* folder);
OSStatus FSPathMakeRefWithOptions(const UInt8* path, UInt32 options, FSRef* ref, UInt8* folder);
OSStatus FSRefMakePath(const FSRef* ref, UInt8* path, UInt32 pathBufferSize);
}
