// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLabel>

/// One line of plain text that is cut in its middle where it does not fit, so that both the
/// beginning and the ending of a file's name can be read. Its size never depends on its text.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// What is shown of the text at the present width.
    QString shownText() const;

protected:
    void paintEvent(QPaintEvent *event) override;
};
