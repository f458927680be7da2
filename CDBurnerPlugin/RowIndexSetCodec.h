// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/BurnItem.h"

#include <QByteArray>

#include <optional>

/// How dragged rows of the list travel: CBOR (RFC 8949), an array of row numbers.
QByteArray encodeRowIndexSet(const IndexSet &rows);

/// The rows that exist in a list of `rowCount` rows. Nothing for data that is cut short, has
/// something behind its end, is larger than such a list could need, or is of another shape.
std::optional<IndexSet> decodeRowIndexSet(const QByteArray &data, std::int64_t rowCount);
