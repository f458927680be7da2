// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorchHooks.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// The texts of the engine's two units. UTF-8, any thread.

namespace scorch_text {

inline constexpr std::uint64_t framesPerSecond = 75;

/// The magnitude of a value whose negation may not be representable.
constexpr std::uint64_t magnitude(std::int64_t value) {
    return value < 0 ? ~static_cast<std::uint64_t>(value) + 1 : static_cast<std::uint64_t>(value);
}

inline std::string twoDigits(std::uint64_t value) {
    return (value < 10 ? "0" : "") + std::to_string(value);
}

} // namespace scorch_text

/// A duration in CD frames (75 a second) as discs have it: "m:ss", minutes running past 59
/// ("79:57"), and ":ff" behind it with frames. Without frames the rest of a second is dropped. A
/// negative value keeps its sign.
inline std::string stringWithDurationFramesEnabled(std::int64_t frames, bool framesEnabled) {
    using namespace scorch_text;
    const std::uint64_t count = magnitude(frames);
    const std::uint64_t seconds = count / framesPerSecond;
    std::string text =
        std::to_string(seconds / 60) + ':' + twoDigits(seconds % 60); // NOLINT: minutes and seconds
    if (framesEnabled) {
        text += ':' + twoDigits(count % framesPerSecond);
    }
    const bool isZero = framesEnabled ? count == 0 : seconds == 0;
    return frames < 0 && !isZero ? '-' + text : text;
}

/// A size in bytes in SI units, one decimal, rounded half up ("737.0 MB", "12.3 kB"); below 1000
/// in whole bytes ("1 byte"). A negative value keeps its sign.
inline std::string stringWithFilesize(std::int64_t bytes) {
    using namespace scorch_text;
    static constexpr std::array<std::string_view, 6> units = {
        localizableKey("kB"), localizableKey("MB"), localizableKey("GB"),
        localizableKey("TB"), localizableKey("PB"), localizableKey("EB")};
    const ScorchHooks &hooks = ScorchHooks::shared();
    const auto localized = [&hooks](std::string_view key) {
        return hooks.localizedText ? hooks.localizedText(key) : std::string(key);
    };
    const std::uint64_t count = magnitude(bytes);
    const std::string sign = bytes < 0 ? "-" : "";
    if (count < 1000) {
        return sign + std::to_string(count) + ' ' + localized(count == 1 ? "byte" : "bytes");
    }
    std::size_t unit = 0;
    std::uint64_t divisor = 1000;
    // The next unit takes over where rounding to one decimal would show 1000.0 of this one.
    while (unit + 1 < units.size() && count / (divisor / 20) >= 19999) {
        divisor *= 1000;
        ++unit;
    }
    const std::uint64_t tenth = divisor / 10;
    const std::uint64_t tenths = count / tenth + (count % tenth >= tenth / 2 ? 1 : 0);
    const std::string mark = hooks.decimalMark ? hooks.decimalMark() : ".";
    return sign + std::to_string(tenths / 10) + mark + std::to_string(tenths % 10) + ' ' +
           localized(units[unit]);
}
