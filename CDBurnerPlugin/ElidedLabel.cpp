// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/ElidedLabel.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyle>

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize ElidedLabel::sizeHint() const {
    return minimumSizeHint();
}

QSize ElidedLabel::minimumSizeHint() const {
    return {1, QFontMetrics(font()).height()};
}

QString ElidedLabel::shownText() const {
    QString line = text();
    line.replace(u'\n', u' ');
    return QFontMetrics(font()).elidedText(line, Qt::ElideMiddle, contentsRect().width());
}

void ElidedLabel::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.setLayoutDirection(layoutDirection()); // By itself it has the application's.
    const Qt::Alignment side = QStyle::visualAlignment(layoutDirection(), alignment());
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(side) | Qt::TextSingleLine,
                          palette(), isEnabled(), shownText(), foregroundRole());
}
