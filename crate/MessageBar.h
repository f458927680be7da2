// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFrame>

class QLabel;

namespace crate {

/// A line above the list that says what did not work, until it is closed. Hidden while it has
/// nothing to say.
class MessageBar : public QFrame {
    Q_OBJECT

public:
    explicit MessageBar(QWidget *parent = nullptr);

    void showMessage(const QString &text);

private:
    QLabel *text_;
};

} // namespace crate
