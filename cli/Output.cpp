// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/Output.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <poll.h>
#include <string_view>
#include <sys/ioctl.h>
#include <unistd.h>

namespace cli {
namespace {

bool canRewriteLines(int descriptor) {
    const char *const terminal = std::getenv("TERM"); // NOLINT(*-mt-unsafe): before any thread
    return isatty(descriptor) == 1 && terminal != nullptr && *terminal != '\0' &&
           std::string_view(terminal) != "dumb";
}

} // namespace

Output::Output(int descriptor) : descriptor_(descriptor), terminal_(canRewriteLines(descriptor)) {}

void Output::write(std::string_view text) {
    while (!text.empty() && !failed_) {
        const ssize_t count = ::write(descriptor_, text.data(), text.size());
        if (count >= 0) {
            text.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno == EAGAIN) { // The descriptor may be shared with a program that set it so.
            pollfd writable{descriptor_, POLLOUT, 0};
            poll(&writable, 1, -1);
        } else if (errno != EINTR) {
            failed_ = true;
        }
    }
}

std::size_t Output::columns() const {
    static constexpr std::size_t usual = 80;
    static constexpr std::size_t narrowest = 20;
    winsize size{};
    const bool known = ioctl(descriptor_, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? std::max<std::size_t>(size.ws_col, narrowest) : usual;
}

} // namespace cli
