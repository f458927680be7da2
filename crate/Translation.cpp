// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/Translation.h"

#include "host/TranslationChoice.h"

#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace crate {

namespace {

/// Null if there is no such file. Owned by the application, and used from now on.
QTranslator *install(const QString &file) {
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (!translator->load(file)) {
        delete translator;
        return nullptr;
    }
    QCoreApplication::installTranslator(translator);
    return translator;
}

} // namespace

QString translated(const char *key) {
    return QCoreApplication::translate(translationContext, key);
}

QString translatedCount(const char *key, int count) {
    return QCoreApplication::translate(translationContext, key, nullptr, count);
}

void speakLanguageOf(const QLocale &locale) {
    static const QString prefix = QStringLiteral("crate_");
    const QDir folder(QStringLiteral(":/crate/translations"));
    QStringList translations;
    for (const QFileInfo &file : folder.entryInfoList({prefix + QStringLiteral("*.qm")})) {
        translations += file.completeBaseName().sliced(prefix.size());
    }
    const QString translation = translationFor(locale.uiLanguages(), translations);
    if (translation.isEmpty() || install(folder.filePath(prefix + translation)) == nullptr) {
        return;
    }
    const QDir toolkit(QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    for (const QString &name : {translation, translation.section(u'_', 0, 0)}) {
        if (install(toolkit.filePath(QStringLiteral("qtbase_") + name)) != nullptr) {
            break;
        }
    }
    QGuiApplication::setLayoutDirection(QLocale(translation).textDirection());
}

} // namespace crate
