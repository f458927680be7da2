// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <vector>

/// One text of a translation file.
struct TranslatedText {
    QString context;
    QString key;
    QString text;
    QString state; ///< "unfinished", "obsolete", "vanished"; empty where it is finished.
};

struct TranslationFile {
    QString language;
    QString error; ///< Why the file could not be read; empty if it could.
    std::vector<TranslatedText> texts;
};

/// Reads the source of a translation ("de", "pt_BR").
TranslationFile readTranslationFile(const QString &translation);
