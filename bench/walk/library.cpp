// SPDX-License-Identifier: Apache-2.0
#include "library.h"

#include <dlfcn.h>
#include <tpxcore.h>

#include <filesystem>
#include <stdexcept>

namespace bench::walk {
namespace {

namespace fs = std::filesystem;

// Beside the library, where it is installed and where it is built; else this program's.
fs::path companionOf(const fs::path& library) {
    for (const char* place : {"libtpxcore.so", "core/libtpxcore.so"})
        if (const fs::path found = library.parent_path() / place; fs::exists(found)) return found;
    Dl_info info;
    if (!dladdr(reinterpret_cast<const void*>(tpxGetMaxCacheSizeB), &info))
        throw std::runtime_error("no libtpxcore.so beside " + library.string());
    return info.dli_fname;
}

// Namespaces keep libraries of one name apart.
void* load(Lmid_t space, const fs::path& path) {
    void* const handle = dlmopen(space, fs::absolute(path).c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) throw std::runtime_error(dlerror());
    return handle;
}

} // namespace

Library::Library(const std::string& path) {
    const fs::path file = fs::is_directory(path) ? fs::path(path) / "libtpxie9.so" : fs::path(path);
    // Loaded first, the companion is the one that the library finds.
    void* const companion = load(LM_ID_NEWLM, companionOf(file));
    Lmid_t space;
    if (dlinfo(companion, RTLD_DI_LMID, &space) != 0) throw std::runtime_error(dlerror());
    handle_ = load(space, file);
}

void (*Library::find(const std::string& name) const)() {
    return reinterpret_cast<void (*)()>(dlsym(handle_, name.c_str()));
}

} // namespace bench::walk
