// SPDX-License-Identifier: GPL-2.0-or-later
// Preloaded into a program: what it writes to files in the folder HELD_IMAGES waits as long as a
// file with the folder's name and ".held" behind it is there.
#include <array>
#include <chrono>
#include <cstdlib>
#include <dlfcn.h>
#include <string>
#include <string_view>
#include <thread>
#include <unistd.h>

namespace {

void waitWhileHeld(int file) {
    const char *const folder = std::getenv("HELD_IMAGES"); // NOLINT(*-mt-unsafe): only read
    if (folder == nullptr) {
        return;
    }
    std::array<char, 4096> target{};
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t length = readlink(link.c_str(), target.data(), target.size());
    const std::string inside = std::string(folder) + '/';
    if (length <= 0 ||
        !std::string_view(target.data(), static_cast<std::size_t>(length)).starts_with(inside)) {
        return;
    }
    const std::string gate = std::string(folder) + ".held";
    while (access(gate.c_str(), F_OK) == 0) {
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
}

using Write = ssize_t (*)(int, const void *, std::size_t, off64_t);

ssize_t writeWhenLet(int file, const void *bytes, std::size_t count, off64_t offset) {
    static const auto real = reinterpret_cast<Write>(dlsym(RTLD_NEXT, "pwrite64"));
    waitWhileHeld(file);
    return real(file, bytes, count, offset);
}

} // namespace

// What libc's headers declare has other names for the parameters.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" __attribute__((visibility("default"))) ssize_t pwrite(int file, const void *bytes,
                                                                 std::size_t count, off_t offset) {
    return writeWhenLet(file, bytes, count, offset);
}

extern "C" __attribute__((visibility("default"))) ssize_t
pwrite64(int file, const void *bytes, std::size_t count, off64_t offset) {
    return writeWhenLet(file, bytes, count, offset);
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
