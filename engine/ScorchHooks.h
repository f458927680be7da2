// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>

/// Marks a literal as a key of ScorchHooks::localizedText where it is not looked up on the spot, in
/// a table of keys. Who collects the keys for translation finds it by this.
constexpr std::string_view localizableKey(std::string_view key) {
    return key;
}

/// What the engine needs of the program it lives in. The program fills this in once, at start-up,
/// on the main thread, before it asks for a burner or a drive; the engine only reads it.
struct ScorchHooks {
    /// Runs a task on the main thread, later, after all tasks handed over before it. Called from
    /// any thread. Must not run the task inline. May drop tasks once the program is ending.
    std::function<void(std::function<void()>)> postToMainThread;

    /// The decimal mark of the user's locale, in UTF-8. Called on any thread. "." where unset.
    std::function<std::string()> decimalMark;

    /// A text in the user's language for its English key; the key keeps its "%@" placeholders.
    /// Called on any thread. The key itself where unset.
    std::function<std::string(std::string_view key)> localizedText;

    /// Takes a line for the log, UTF-8, English, without a line break: what a person need not know
    /// at once, but who looks into a failure wants to. Called on any thread. Dropped where unset.
    std::function<void(std::string_view line)> log;

    /// The one set of hooks of this process.
    static ScorchHooks &shared() {
        static ScorchHooks hooks;
        return hooks;
    }
};
