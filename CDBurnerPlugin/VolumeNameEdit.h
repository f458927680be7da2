// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "CDBurnerPlugin/VXStringFormatter.h"

#include <QLineEdit>

#include <optional>

/// The field for the volume's name. Every edit of the user - typing, pasting, dropping, what an
/// input method commits - is vetted by its formatter, and what was cut or refused leaves the undo
/// history as it was. A length limit of QLineEdit's own would cut where the formatter refuses.
/// Main thread.
class VolumeNameEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit VolumeNameEdit(QWidget *parent = nullptr);

    VXStringFormatter &formatter() { return formatter_; }

    /// Sets a text of the program's, of any length.
    void setText(const QString &text);

    bool event(QEvent *event) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    class Vetting;

    /// What happens in place of an edit that was too long.
    struct Replacement {
        QString originalText;
        qsizetype start = 0; // The range that goes,
        qsizetype end = 0;
        QString inserted; // and what comes in its place.
    };

    struct State {
        QString text;
        qsizetype selectionStart = 0;
        qsizetype selectionLength = 0;
    };

    bool vet(const QString &proposed, int cursor);
    void remember();
    void rememberSelection();
    void separateUndo();
    void applyReplacement();

    VXStringFormatter formatter_;
    State before_; // The field as it stood before the edit that is being vetted.
    std::optional<Replacement> replacement_;
    bool isSettingText_ = false;
};
