// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>

/// The one of the translations ("de", "pt_BR") for the first of the user's languages, best liked
/// first, that there is a text for; empty where that is English, in which all texts are written, or
/// none. Texts in another territory's kind of a language are taken rather than the user's next
/// language, those in another script are not. A host and its tools choose by the same rule, so that
/// a person who has both windows before them reads one language.
inline QString translationFor(const QStringList &languages, const QStringList &translations) {
    for (const QString &language : languages) {
        const QLocale wanted(language);
        if (wanted.language() == QLocale::English) {
            return {}; // What the texts are in: nothing that is liked less takes its place.
        }
        for (const QString &translation : translations) {
            const QLocale offered(translation);
            if (offered.language() == wanted.language() && offered.script() == wanted.script() &&
                wanted.language() != QLocale::C) {
                return translation;
            }
        }
    }
    return {};
}
