// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/translations/TranslationFile.h"

#include <QFile>
#include <QXmlStreamReader>

TranslationFile readTranslationFile(const QString &translation) {
    TranslationFile result;
    QFile file(
        QStringLiteral(CDBURNER_SOURCES "/resources/translations/cdburner_%1.ts").arg(translation));
    if (!file.open(QIODevice::ReadOnly)) {
        result.error = file.errorString();
        return result;
    }
    QXmlStreamReader reader(&file);
    QString context;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == QLatin1String("TS")) {
            result.language = reader.attributes().value(QLatin1String("language")).toString();
        } else if (reader.name() == QLatin1String("name")) {
            context = reader.readElementText();
        } else if (reader.name() == QLatin1String("source")) {
            result.texts.push_back({context, reader.readElementText(), {}, {}});
        } else if (reader.name() == QLatin1String("translation") && !result.texts.empty()) {
            result.texts.back().state = reader.attributes().value(QLatin1String("type")).toString();
            result.texts.back().text = reader.readElementText();
        }
    }
    result.error = reader.errorString();
    return result;
}
