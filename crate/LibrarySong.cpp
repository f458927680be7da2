// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/LibrarySong.h"

#include "crate/Translation.h"

#include <QCoreApplication>

#include <array>
#include <cstdlib>

namespace crate {

namespace {

struct Unit {
    const char *one;
    const char *many;
    long long minutes;
};

constexpr std::array<Unit, 3> units{{
    {QT_TRANSLATE_NOOP("Crate", "1 day"), QT_TRANSLATE_N_NOOP("Crate", "%Ln days"), 1440},
    {QT_TRANSLATE_NOOP("Crate", "1 hour"), QT_TRANSLATE_N_NOOP("Crate", "%Ln hours"), 60},
    {QT_TRANSLATE_NOOP("Crate", "1 minute"), QT_TRANSLATE_N_NOOP("Crate", "%Ln minutes"), 1},
}};

QString unitText(const Unit &unit, long long count) {
    return count == 1 ? translated(unit.one) : translatedCount(unit.many, static_cast<int>(count));
}

} // namespace

QString LibrarySong::displayTitle() const {
    if (!title.isEmpty()) {
        return title;
    }
    const QByteArray name = path.mid(path.lastIndexOf('/') + 1);
    const qsizetype dot = name.lastIndexOf('.');
    return QString::fromUtf8(dot > 0 ? name.left(dot) : name);
}

QString songLengthText(std::optional<std::chrono::milliseconds> length) {
    if (!length) {
        return {};
    }
    const long long seconds = std::chrono::round<std::chrono::seconds>(*length).count();
    const QString tail = QStringLiteral(":%1").arg(seconds % 60, 2, 10, QLatin1Char('0'));
    const long long minutes = seconds / 60;
    if (minutes < 60) {
        return QString::number(minutes) + tail;
    }
    return QStringLiteral("%1:%2").arg(minutes / 60).arg(minutes % 60, 2, 10, QLatin1Char('0')) +
           tail;
}

QString totalLengthText(std::chrono::milliseconds length) {
    const long long minutes = std::chrono::round<std::chrono::minutes>(length).count();
    for (std::size_t index = 0; index + 1 < units.size(); ++index) {
        const Unit &unit = units[index];
        if (minutes < unit.minutes) {
            continue;
        }
        const Unit &smaller = units[index + 1];
        const long long rest = minutes % unit.minutes / smaller.minutes;
        const QString text = unitText(unit, minutes / unit.minutes);
        return rest == 0 ? text : translated("%1 %2").arg(text, unitText(smaller, rest));
    }
    return unitText(units.back(), minutes);
}

} // namespace crate
