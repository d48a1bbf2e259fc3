// Declarations of what lib/platform/macos uses of CoreServices, so that it can be type-checked where
// the real header is not. There is nothing to link.
#pragma once

using Boolean = unsigned char;
using OSStatus = int;
using OptionBits = unsigned int;
using UInt32 = unsigned int;
using UInt8 = unsigned char;

struct FSRef {
    UInt8 hidden[80];
};

enum : OSStatus { noErr = 0 };
enum : OptionBits { kFSPathMakeRefDoNotFollowLeafSymlink = 1 };

extern "C" {
OSStatus FSPathMakeRef(const UInt8* path, FSRef* ref, Boolean* isDirectory);
OSStatus FSPathMakeRefWithOptions(const UInt8* path, OptionBits options, FSRef* ref,
                                  Boolean* isDirectory);
OSStatus FSRefMakePath(const FSRef* ref, UInt8* path, UInt32 pathBufferSize);
}
