// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <cstdint>

/// An edit of a text field that is being vetted. Lengths and positions count UTF-16 code units.
struct Edit {
    QString text;                    ///< The proposed new text; may be replaced.
    qsizetype selectionLocation = 0; ///< The proposed selection; its location may be moved.
    qsizetype selectionLength = 0;
    QString originalText; ///< The text before the edit, and its selection.
    qsizetype originalSelectionLocation = 0;
    qsizetype originalSelectionLength = 0;
};

/// Limits the length of the volume name while it is typed. An edit that would make the text too
/// long is refused at the end of the text and cut down to what fits elsewhere; what stands behind
/// the selection is never lost. Texts that the program sets are not its affair.
class VXStringFormatter {
public:
    static constexpr std::int32_t volumeNameLength = 50;

    void setMaximumLength(std::int32_t length) { maxLength = length; }
    std::int32_t maximumLength() const { return maxLength; }

    /// Called once the form that holds the field is built: the limit is 50 again.
    void awakeFromNib() { maxLength = volumeNameLength; }

    /// True: the edit may happen as proposed. False: the field takes the edit's text and selection
    /// if they were replaced, and keeps what it had if not. A cut never parts a surrogate pair; it
    /// may make the text one unit shorter than the limit then.
    bool isPartialStringValid(Edit &edit) const;

private:
    std::int32_t maxLength = volumeNameLength;
};
