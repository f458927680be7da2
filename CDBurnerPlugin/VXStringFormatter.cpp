// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/VXStringFormatter.h"

#include <algorithm>

bool VXStringFormatter::isPartialStringValid(Edit &edit) const {
    // Unsigned: a negative limit is no limit.
    if (static_cast<std::uint64_t>(edit.text.size()) <=
        static_cast<std::uint64_t>(std::int64_t{maxLength})) {
        return true;
    }
    const qsizetype originalLength = edit.originalText.size();
    if (edit.originalSelectionLocation == originalLength) {
        return false;
    }
    const qsizetype tail = edit.originalSelectionLocation + edit.originalSelectionLength;
    // A text that the program set may be longer than the limit behind the selection alone.
    qsizetype cut = std::max<qsizetype>(maxLength + tail - originalLength, 0);
    const bool partsPair = cut > 0 && cut < edit.text.size() &&
                           edit.text[cut - 1].isHighSurrogate() && edit.text[cut].isLowSurrogate();
    if (partsPair) {
        --cut;
    }
    edit.text = edit.text.left(cut) + edit.originalText.mid(tail);
    edit.selectionLocation = cut;
    return false;
}
