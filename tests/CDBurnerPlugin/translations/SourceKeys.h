// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// A text that a source hands to the text table.
struct SourceKey {
    QString text;
    QString file; ///< From the repository's root.
};

/// A look-up whose key is not a literal, so that the translations cannot be held against it.
struct ComputedKey {
    QString expression; ///< The argument without blanks ("units[unit]").
    QString file;
};

struct SourceKeys {
    std::vector<SourceKey> keys;
    std::vector<ComputedKey> computed;
};

/// Collects the keys of one C++ source: the string literals in the first argument of each call of a
/// function that looks a key up, passes one on, or marks one. Adjacent literals are one key, as the
/// compiler joins them; literals apart ("a ? "x" : "y"") are several. Comments, other literals and
/// the declarations of these functions are left out.
void collectKeys(const QString &source, const QString &file, SourceKeys &result);

/// The keys of all sources that speak to the user through the table: the tool, the engine's
/// contract and the engine.
SourceKeys collectProjectKeys();

/// The source files of a folder of the repository and those below it, from its root.
QStringList sourceFiles(const QString &folder);

/// A file of the repository as text.
QString readSource(const QString &file);
