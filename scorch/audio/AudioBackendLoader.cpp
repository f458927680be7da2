// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/AudioBackend.h"
#include "scorch/support/Text.h"

#include <array>
#include <dlfcn.h>
#include <link.h>
#include <mutex>
#include <system_error>

namespace scorch {
namespace {

namespace fs = std::filesystem;

/// The folder of the program or library that this code was linked into, or an empty path.
fs::path ownFolder() {
    Dl_info info{};
    void *extra = nullptr;
    const auto *self = reinterpret_cast<const void *>(&audioBackend);
    if (dladdr1(self, &info, &extra, RTLD_DL_LINKMAP) == 0 || extra == nullptr) {
        return {};
    }
    // The main program has no name here, and its argv[0] need not be a path.
    const auto *map = static_cast<const link_map *>(extra);
    const fs::path file = *map->l_name == '\0' ? fs::path("/proc/self/exe") : fs::path(map->l_name);
    std::error_code failure;
    const fs::path resolved = fs::canonical(file, failure);
    return failure ? fs::path() : resolved.parent_path();
}

/// Programs stand in bin/ and tests/, tools in lib/crate/tools/, the module in lib/scorch/.
fs::path modulePath() {
    static constexpr std::array places = {"../lib/scorch", "../../scorch", "../scorch"};
    const fs::path folder = ownFolder();
    for (const char *place : places) {
        fs::path candidate = folder / place / "scorch-audio.so";
        std::error_code failure;
        if (fs::exists(candidate, failure)) {
            return candidate;
        }
    }
    return {};
}

ScorchError notLoaded(std::string detail) {
    return {ScorchErrorCode::internal,
            localized("The part of this program that plays songs cannot be loaded. Install the "
                      "program again."),
            std::move(detail)};
}

Result<const AudioBackend *> load() {
    const fs::path path = modulePath();
    if (path.empty()) {
        return notLoaded("scorch-audio.so not found relative to " + ownFolder().string());
    }
    // Never closed: the threads and static data of the libraries behind it outlive a close.
    void *module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    void *entry = module == nullptr ? nullptr : dlsym(module, scorchAudioBackendSymbol);
    if (entry == nullptr) {
        const char *reason = dlerror();
        return notLoaded(reason == nullptr ? path.string() : reason);
    }
    return reinterpret_cast<AudioBackendEntry>(entry)();
}

} // namespace

Result<const AudioBackend *> audioBackend() {
    static std::mutex mutex;
    static const AudioBackend *loaded = nullptr;
    const std::lock_guard lock(mutex);
    if (loaded == nullptr) {
        // A failure is not kept: a person who installs what was missing need not start again.
        Result<const AudioBackend *> result = load();
        if (!result) {
            return result;
        }
        loaded = result.value();
    }
    return loaded;
}

} // namespace scorch
