// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cerrno>
#include <exception>
#include <type_traits>

namespace recorder::preload {

/// What a call returns, or -1 (null) and ENOMEM: no exception may cross into a program in C, and
/// only a lack of memory can throw here.
template <class Call>
auto guarded(Call call) noexcept -> decltype(call()) {
    using Result = decltype(call());
    try {
        return call();
    } catch (const std::exception &) {
        errno = ENOMEM;
        if constexpr (std::is_pointer_v<Result>) {
            return nullptr;
        } else {
            return Result{-1};
        }
    }
}

} // namespace recorder::preload
