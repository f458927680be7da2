// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/ElidedComboBox.h"

#include "CDBurnerPlugin/ToolTipText.h"

#include <QHelpEvent>
#include <QStylePainter>
#include <QToolTip>

QString ElidedComboBox::shownText() const {
    constexpr int sideMargin = 2; // Styles keep it free on each side of a title.
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    return fontMetrics().elidedText(currentText(), Qt::ElideMiddle, field.width() - 2 * sideMargin);
}

bool ElidedComboBox::event(QEvent *event) {
    if (event->type() == QEvent::ToolTip && shownText() != currentText()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                           toolTipText(currentText()), this);
        return true;
    }
    return QComboBox::event(event);
}

void ElidedComboBox::paintEvent(QPaintEvent * /*event*/) {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    option.currentText = shownText();
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}
