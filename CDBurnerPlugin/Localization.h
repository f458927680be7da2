// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTranslator>

#include <memory>

/// The context of all the tool's texts in its translation files.
inline constexpr const char *localizableContext = "Localizable";

/// The tool's text for an English one, which is the key; the key itself where there is no
/// translation. Any thread.
QString localizedString(const char *key);

/// Fills the placeholders "%@", "%d", "%lu" and "%ld" of a format with the values, in order, in one
/// pass: a value that looks like a placeholder is left alone. "%%" is a percent sign. Placeholders
/// beyond the values stay as they are.
QString filledFormat(const QString &format, const QStringList &values);

/// Where localizedString looks. The translator is the tool's own and is not installed in the
/// application, where every other tool would share it. Null for English. Any thread.
void setLocalizationTranslator(std::shared_ptr<const QTranslator> translator);

/// The direction that the tool's texts run in. Its windows follow it, whatever direction the host's
/// language has. Any thread.
Qt::LayoutDirection localizationDirection();

/// Takes the translation that the tool carries for the locale, or English where there is none.
/// Called once, when the tool is loaded. True if there is one.
bool loadLocalization(const QLocale &locale);
