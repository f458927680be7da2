// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorchError.h"

#include <optional>
#include <utility>
#include <variant>

namespace scorch {

/// A value, or the error that stood in its way. Nothing in the engine throws across a layer.
template <class T, class E = ScorchError>
class [[nodiscard]] Result {
public:
    Result(T value) : content_(std::in_place_index<0>, std::move(value)) {} // NOLINT(*-explicit-*)
    Result(E error) : content_(std::in_place_index<1>, std::move(error)) {} // NOLINT(*-explicit-*)

    bool ok() const { return content_.index() == 0; }
    explicit operator bool() const { return ok(); }

    /// Only when ok().
    T &value() { return std::get<0>(content_); }
    const T &value() const { return std::get<0>(content_); }
    T &operator*() { return value(); }
    const T &operator*() const { return value(); }
    T *operator->() { return &value(); }
    const T *operator->() const { return &value(); }

    /// Only when not ok().
    const E &error() const { return std::get<1>(content_); }

private:
    std::variant<T, E> content_;
};

/// Success without a value, or an error.
template <class E>
class [[nodiscard]] Result<void, E> {
public:
    Result() = default;
    Result(E error) : error_(std::move(error)) {} // NOLINT(*-explicit-*)

    bool ok() const { return !error_.has_value(); }
    explicit operator bool() const { return ok(); }

    /// Only when not ok().
    const E &error() const { return *error_; }

private:
    std::optional<E> error_;
};

/// How a cancelled operation ends: not a failure, and never shown to anybody. Blocking operations
/// that take a stop token return it as soon as they notice the request.
struct Cancelled {};

/// Why a blocking operation did not come to its end.
using Interruption = std::variant<Cancelled, ScorchError>;

/// The outcome of a blocking operation that can be cancelled.
template <class T = void>
using Outcome = Result<T, Interruption>;

inline bool isCancelled(const Interruption &interruption) {
    return std::holds_alternative<Cancelled>(interruption);
}

} // namespace scorch
