// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/UsageCollector.h"

#include "crate/Log.h"

#include <QDateTime>

#include <cerrno>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

namespace crate {

namespace {

/// One word of a line: a tool cannot start a line or a field of its own with it.
QByteArray asWord(const QString &text) {
    QByteArray word = text.toUtf8();
    for (char &byte : word) {
        const auto code = static_cast<unsigned char>(byte);
        if (code <= ' ' || code == 0x7f) {
            byte = '_';
        }
    }
    return word.isEmpty() ? QByteArray("-") : word;
}

} // namespace

UsageCollector::~UsageCollector() {
    if (log_ >= 0) {
        close(log_);
    }
}

std::string UsageCollector::openLog(const std::filesystem::path &path) {
    const int opened = open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    if (opened < 0) {
        return "cannot write " + path.string() + ": " + std::generic_category().message(errno);
    }
    if (log_ >= 0) {
        close(log_);
    }
    log_ = opened;
    return {};
}

void UsageCollector::collectDataWithTargetAndKey(const QString &target, const QString &key) {
    const QByteArray event = asWord(target) + ' ' + asWord(key);
    qCInfo(usageLog).noquote() << QString::fromUtf8(event);
    if (log_ >= 0) {
        const QString time = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
        appendLine(time.toLatin1() + ' ' + event + '\n');
    }
}

void UsageCollector::appendLine(const QByteArray &line) {
    // One call for a line: with O_APPEND, lines of several processes then never mix.
    ssize_t written = -1;
    do {
        written = write(log_, line.constData(), static_cast<std::size_t>(line.size()));
    } while (written < 0 && errno == EINTR);
    if (written != line.size() && !hasFailed_) {
        hasFailed_ = true;
        qCWarning(log) << "The usage log cannot be written:"
                       << std::generic_category().message(written < 0 ? errno : ENOSPC).c_str();
    }
}

} // namespace crate
