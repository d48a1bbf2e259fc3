#pragma once

/// Names a file system by the number that statfs gives for its type, in the words of
/// `PlatformFileSystemType`; "other" for one that is neither on a network nor FAT.
const char* FileSystemTypeName(unsigned long magic);
