// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLocale>
#include <QString>

namespace crate {

/// The context of all the host's own texts in its translation files.
inline constexpr const char *translationContext = "Crate";

/// The host's text for an English one, which is the key; the key itself where there is no
/// translation.
QString translated(const char *key);

/// The same for a text that counts: "%Ln" is filled with the number, in the form that the language
/// has for it. English needs another key where the count is 1.
QString translatedCount(const char *key, int count);

/// Has the program speak the user's language, if the host carries it, and run in its direction.
/// What the toolkit says by itself follows where its translations are installed. English otherwise.
/// Called once the application exists and before its first window. Main thread.
void speakLanguageOf(const QLocale &locale);

} // namespace crate
