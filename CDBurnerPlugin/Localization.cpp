// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/Localization.h"

#include "CDBurnerPlugin/ResourceLocator.h"
#include "host/TranslationChoice.h"

#include <QDir>
#include <QFileInfo>

#include <array>
#include <mutex>
#include <utility>

namespace {

struct CurrentTranslator {
    std::mutex mutex;
    std::shared_ptr<const QTranslator> translator;
};

/// Never destroyed: texts are asked for on threads that may outlive this library's statics.
CurrentTranslator &current() {
    static auto *const instance = new CurrentTranslator;
    return *instance;
}

/// The length of the placeholder at `position` of the format; 0 if there is none.
qsizetype placeholderLength(const QString &format, qsizetype position) {
    static constexpr std::array<QLatin1StringView, 4> placeholders = {
        QLatin1StringView("%@"), QLatin1StringView("%d"), QLatin1StringView("%lu"),
        QLatin1StringView("%ld")};
    const QStringView rest = QStringView(format).sliced(position);
    for (const QLatin1StringView placeholder : placeholders) {
        if (rest.startsWith(placeholder)) {
            return placeholder.size();
        }
    }
    return 0;
}

} // namespace

QString localizedString(const char *key) {
    std::shared_ptr<const QTranslator> translator;
    {
        const std::lock_guard lock(current().mutex);
        translator = current().translator;
    }
    const QString text =
        translator != nullptr ? translator->translate(localizableContext, key) : QString();
    return text.isEmpty() ? QString::fromUtf8(key) : text;
}

QString filledFormat(const QString &format, const QStringList &values) {
    QString result;
    result.reserve(format.size());
    qsizetype next = 0;
    for (qsizetype position = 0; position < format.size();) {
        const qsizetype length = placeholderLength(format, position);
        if (length > 0 && next < values.size()) {
            result += values[next++];
            position += length;
        } else if (QStringView(format).sliced(position).startsWith(QLatin1StringView("%%"))) {
            result += u'%';
            position += 2;
        } else {
            result += format[position++];
        }
    }
    return result;
}

void setLocalizationTranslator(std::shared_ptr<const QTranslator> translator) {
    const std::lock_guard lock(current().mutex);
    current().translator.swap(translator);
}

Qt::LayoutDirection localizationDirection() {
    const std::lock_guard lock(current().mutex);
    const std::shared_ptr<const QTranslator> &translator = current().translator;
    return translator != nullptr ? QLocale(translator->language()).textDirection()
                                 : Qt::LeftToRight;
}

bool loadLocalization(const QLocale &locale) {
    static const QString prefix = QStringLiteral("cdburner_");
    const QDir folder(ResourceLocator::folder() + QStringLiteral("/translations"));
    QStringList translations;
    for (const QFileInfo &file : folder.entryInfoList({prefix + QStringLiteral("*.qm")})) {
        translations += file.completeBaseName().sliced(prefix.size());
    }
    const QString translation = translationFor(locale.uiLanguages(), translations);
    auto translator = std::make_shared<QTranslator>();
    const bool isLoaded =
        !translation.isEmpty() && translator->load(folder.filePath(prefix + translation));
    setLocalizationTranslator(isLoaded ? translator : nullptr);
    return isLoaded;
}
