// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QComboBox>

/// A popup button whose title is cut in its middle where it does not fit, since what tells two
/// drives of one make apart stands at the end. A tip then shows the whole title. Main thread.
class ElidedComboBox : public QComboBox {
    Q_OBJECT

public:
    using QComboBox::QComboBox;

    /// What is shown of the current title at the present width.
    QString shownText() const;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
