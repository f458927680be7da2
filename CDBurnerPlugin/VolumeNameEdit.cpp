// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/VolumeNameEdit.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QValidator>

#include <algorithm>
#include <utility>

/// Asked by the line edit after each edit. "Invalid" makes it take back just that edit, and leaves
/// the history of the edits before alone; a validator that changed the text itself would clear it.
class VolumeNameEdit::Vetting final : public QValidator {
public:
    explicit Vetting(VolumeNameEdit *field) : QValidator(field), field_(field) {}

    State validate(QString &text, int &cursor) const override {
        return field_->vet(text, cursor) ? Acceptable : Invalid;
    }

private:
    VolumeNameEdit *field_;
};

VolumeNameEdit::VolumeNameEdit(QWidget *parent) : QLineEdit(parent) {
    setValidator(new Vetting(this));
    // The text is reported when an edit is over, so that `before_` still holds what was before it
    // while it is vetted.
    connect(this, &QLineEdit::textChanged, this, &VolumeNameEdit::remember);
    connect(this, &QLineEdit::selectionChanged, this, &VolumeNameEdit::rememberSelection);
    connect(this, &QLineEdit::cursorPositionChanged, this, &VolumeNameEdit::rememberSelection);
    // For edits that no event of this field brings, such as a choice in its context menu.
    connect(this, &QLineEdit::inputRejected, this, &VolumeNameEdit::applyReplacement,
            Qt::QueuedConnection);
    remember();
}

void VolumeNameEdit::setText(const QString &text) {
    replacement_.reset();
    const QScopedValueRollback guard(isSettingText_, true);
    QLineEdit::setText(text);
    remember();
}

void VolumeNameEdit::rememberSelection() {
    // What an input method commits moves the cursor before it is vetted.
    if (text() == before_.text) {
        remember();
    }
}

void VolumeNameEdit::remember() {
    const bool hasSelection = hasSelectedText();
    before_ = {text(), hasSelection ? selectionStart() : cursorPosition(),
               hasSelection ? selectionLength() : 0};
}

bool VolumeNameEdit::vet(const QString &proposed, int cursor) {
    if (isSettingText_) {
        return true;
    }
    Edit edit = {
        proposed, cursor, 0, before_.text, before_.selectionStart, before_.selectionLength};
    if (formatter_.isPartialStringValid(edit)) {
        return true;
    }
    if (edit.text != proposed) {
        const qsizetype cut = edit.selectionLocation;
        const qsizetype start = std::min(cut, before_.selectionStart);
        replacement_ =
            Replacement{before_.text, start, before_.selectionStart + before_.selectionLength,
                        edit.text.mid(start, cut - start)};
    }
    return false;
}

bool VolumeNameEdit::event(QEvent *event) {
    if (event->type() == QEvent::WindowActivate) {
        // A line edit would give up its selection here if the focus has gone elsewhere again, as
        // it does where the sheet comes up with the window: the name is to be typed over still.
        return QWidget::event(event); // NOLINT(bugprone-parent-virtual-call): as said
    }
    const bool isHandled = QLineEdit::event(event);
    applyReplacement();
    return isHandled;
}

void VolumeNameEdit::keyPressEvent(QKeyEvent *event) {
    // Alt with a letter is somebody's mnemonic. While its control is disabled it comes here, and a
    // line edit would take it for typing.
    const QString typed = event->text();
    if (event->modifiers().testFlag(Qt::AltModifier) && !typed.isEmpty() && typed[0].isPrint()) {
        event->ignore();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void VolumeNameEdit::applyReplacement() {
    if (!replacement_) {
        return;
    }
    const Replacement wanted = *std::exchange(replacement_, std::nullopt);
    if (text() != wanted.originalText) {
        return; // Somebody has set another text meanwhile.
    }
    // As one edit of the text as it stands again, so that undo takes back what was put in.
    setSelection(static_cast<int>(wanted.start), static_cast<int>(wanted.end - wanted.start));
    if (wanted.start != wanted.end || !wanted.inserted.isEmpty()) {
        separateUndo();
        insert(wanted.inserted);
        separateUndo();
    }
}

void VolumeNameEdit::separateUndo() {
    // A line edit joins insertions into one step unless the cursor was moved between them.
    const QSignalBlocker quiet(this);
    const State here = {text(), hasSelectedText() ? selectionStart() : cursorPosition(),
                        selectionLength()};
    setCursorPosition(cursorPosition() > 0 ? 0 : static_cast<int>(here.text.size()));
    if (here.selectionLength > 0) {
        setSelection(static_cast<int>(here.selectionStart), static_cast<int>(here.selectionLength));
    } else {
        setCursorPosition(static_cast<int>(here.selectionStart));
    }
}
