# Builds for macOS on Debian, for scripts/check-macos.sh. The environment says where things are:
# MACOS_SYSROOT, MACOS_PREFIX (Qt, libarchive and ICU), MACOS_ARCHITECTURE and LLVM (folder of the
# tools).
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_VERSION 20)
set(CMAKE_SYSTEM_PROCESSOR $ENV{MACOS_ARCHITECTURE})
set(CMAKE_OSX_ARCHITECTURES $ENV{MACOS_ARCHITECTURE})
set(CMAKE_OSX_SYSROOT $ENV{MACOS_SYSROOT})
set(CMAKE_CXX_COMPILER $ENV{LLVM}/clang++)
set(CMAKE_CXX_COMPILER_TARGET $ENV{MACOS_ARCHITECTURE}-apple-darwin)
set(CMAKE_CXX_FLAGS_INIT -stdlib=libc++)
# The SDK's headers ask for this name, which compilers define from version 15 on.
string(APPEND CMAKE_CXX_FLAGS_INIT
    " -D__ENVIRONMENT_OS_VERSION_MIN_REQUIRED__=__ENVIRONMENT_MAC_OS_X_VERSION_MIN_REQUIRED__")
if($ENV{MACOS_ARCHITECTURE} STREQUAL x86_64)
    # Clang 14 lacks the type there; Apple's <math.h> declares functions with it that nobody here
    # calls.
    string(APPEND CMAKE_CXX_FLAGS_INIT " -D_Float16=float")
endif()
foreach(tool AR RANLIB STRIP NM)
    string(TOLOWER ${tool} name)
    set(CMAKE_${tool} $ENV{LLVM}/llvm-${name})
endforeach()

# The tests are compiled and linked, but nothing here can run them.
set(CMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE PRE_TEST)

# The stand-ins for Qt, libarchive and ICU have no code, so their functions stay undefined.
foreach(kind EXE SHARED)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "-fuse-ld=lld -Wl,-undefined,dynamic_lookup")
endforeach()

file(GLOB CMAKE_PREFIX_PATH $ENV{MACOS_PREFIX}/*)
list(APPEND CMAKE_PREFIX_PATH ${CMAKE_CURRENT_LIST_DIR}/packages)
set(CMAKE_FIND_USE_CMAKE_SYSTEM_PATH OFF)  # Debian's own libraries must not be found.
