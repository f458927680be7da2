// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/AvLog.h"

#include "scorch/audio/ffmpeg/AvHandles.h"

#include <array>
#include <cstdarg>
#include <cstdio>
#include <mutex>

namespace scorch {
namespace {

using Line = std::array<char, 512>;

Line &lastLine() {
    thread_local Line line{};
    return line;
}

/// Called by the library on whatever thread has something to say.
void keepLine(void *, int level, const char *format, va_list arguments) {
    if (level <= AV_LOG_ERROR) {
        std::vsnprintf(lastLine().data(), lastLine().size(), format, arguments);
    }
}

} // namespace

void captureAvLog() {
    static std::once_flag once;
    std::call_once(once, [] { av_log_set_callback(keepLine); });
}

std::string takeAvDetail(int code) {
    std::string detail = lastLine().data();
    lastLine().front() = '\0';
    while (!detail.empty() && detail.back() == '\n') {
        detail.pop_back();
    }
    if (code < 0) {
        std::array<char, AV_ERROR_MAX_STRING_SIZE> text{};
        av_strerror(code, text.data(), text.size());
        detail += detail.empty() ? "" : ": ";
        detail += text.data();
    }
    return detail;
}

} // namespace scorch
