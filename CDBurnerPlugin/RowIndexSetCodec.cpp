// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/RowIndexSetCodec.h"

#include <QCborStreamReader>
#include <QCborStreamWriter>

namespace {

// One head and eight bytes are the most that a number takes, or the array's length.
constexpr std::int64_t maximumBytesPerNumber = 9;

} // namespace

QByteArray encodeRowIndexSet(const IndexSet &rows) {
    QByteArray data;
    QCborStreamWriter writer(&data);
    writer.startArray(rows.size());
    for (const std::int64_t row : rows) {
        writer.append(static_cast<qint64>(row));
    }
    writer.endArray();
    return data;
}

std::optional<IndexSet> decodeRowIndexSet(const QByteArray &data, std::int64_t rowCount) {
    if (data.isEmpty() || data.size() > maximumBytesPerNumber * (rowCount + 1)) {
        return std::nullopt;
    }
    QCborStreamReader reader(data);
    if (!reader.isArray() || !reader.isLengthKnown() || !reader.enterContainer()) {
        return std::nullopt;
    }
    IndexSet rows;
    while (reader.lastError() == QCborError::NoError && reader.hasNext()) {
        if (!reader.isUnsignedInteger()) {
            return std::nullopt;
        }
        const quint64 row = reader.toUnsignedInteger();
        if (row < static_cast<quint64>(rowCount)) {
            rows.insert(static_cast<std::int64_t>(row));
        }
        reader.next();
    }
    const bool isWhole = reader.lastError() == QCborError::NoError && reader.leaveContainer() &&
                         reader.currentOffset() == data.size();
    return isWhole ? std::optional(rows) : std::nullopt;
}
