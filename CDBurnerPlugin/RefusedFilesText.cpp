// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/RefusedFilesText.h"

#include <QByteArray>
#include <QStringConverter>

namespace {

QString escapedByte(char byte) {
    return QStringLiteral("\\x%1").arg(static_cast<unsigned char>(byte), 2, 16, QLatin1Char('0'));
}

bool isValid(const QByteArray &bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return !decoder.hasError() && !text.contains(QChar::Null);
}

QString readablePath(const QByteArray &path) {
    const bool isText = isValid(path);
    QByteArray plain; // Bytes that stand for themselves.
    QString result;
    const auto flush = [&plain, &result] {
        result += QString::fromUtf8(plain);
        plain.clear();
    };
    for (const char byte : path) {
        const auto value = static_cast<unsigned char>(byte);
        const bool isControl = value < 0x20 || value == 0x7F;
        if (isControl || (!isText && value >= 0x80)) {
            flush();
            result += escapedByte(byte);
        } else {
            plain += byte;
        }
    }
    flush();
    return result;
}

} // namespace

QString refusedFilesText(const std::vector<RefusedFile> &files) {
    QString text = QStringLiteral("(\n");
    for (const RefusedFile &file : files) {
        text += QStringLiteral("    ") +
                readablePath(QByteArray::fromStdString(file.path.native())) + QStringLiteral(": ") +
                QString::fromStdString(file.reason) + u'\n';
    }
    return text + u')';
}
