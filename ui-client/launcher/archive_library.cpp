#include "archive_library.h"

#include <dlfcn.h>

#include <string>

#include "lib/log.h"

#define LOG_SOURCE "extractor"

namespace {

const std::string kLogComponent = "extractor_debug";

// Sets the pointer to the library's function. Returns false if the library has no such function.
template <typename Function>
bool Find(void* library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(dlsym(library, name));
    return function != nullptr;
}

// Sets every member. Stops at the first function that is missing, which dlerror then names, and
// returns false.
bool FindAll(void* library, ArchiveLibrary& functions) {
    bool has_all = true;
#define FIND(name) has_all = has_all && Find(library, #name, functions.name);
    ARCHIVE_LIBRARY_FUNCTIONS(FIND)
#undef FIND
    return has_all;
}

const ArchiveLibrary* Load() {
    static ArchiveLibrary functions;
    void* const library = dlopen(ARCHIVE_LIBRARY_NAME, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr || !FindAll(library, functions)) {
        LOG_MSG(WARNING, "cannot load libarchive: '%s'", dlerror());
        return nullptr;
    }
    return &functions;
}

}  // namespace

const ArchiveLibrary* LibArchive() {
    static const ArchiveLibrary* const functions = Load();
    return functions;
}
