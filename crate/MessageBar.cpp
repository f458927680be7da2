// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/MessageBar.h"

#include "crate/Translation.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

namespace crate {

namespace {

/// What screen readers speak of by themselves when it comes into sight.
QAccessibleInterface *notificationFor(const QString & /*className*/, QObject *object) {
    auto *bar = qobject_cast<MessageBar *>(object);
    return bar != nullptr ? new QAccessibleWidget(bar, QAccessible::Notification) : nullptr;
}

} // namespace

MessageBar::MessageBar(QWidget *parent) : QFrame(parent), text_(new QLabel(this)) {
    QAccessible::installFactory(notificationFor); // Known once, however often it is installed.
    setObjectName(QStringLiteral("messageBar"));
    setBackgroundRole(QPalette::ToolTipBase);
    setAutoFillBackground(true);
    text_->setObjectName(QStringLiteral("messageText"));
    text_->setForegroundRole(QPalette::ToolTipText);
    text_->setTextFormat(Qt::PlainText);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text_->setWordWrap(true);
    const int iconSize = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    auto *icon = new QLabel(this);
    icon->setPixmap(style()
                        ->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this)
                        .pixmap({iconSize, iconSize}, devicePixelRatioF()));
    auto *dismiss = new QToolButton(this);
    dismiss->setObjectName(QStringLiteral("messageClose"));
    dismiss->setAutoRaise(true);
    dismiss->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton, nullptr, this));
    dismiss->setToolTip(translated("Close this message"));
    dismiss->setAccessibleName(dismiss->toolTip());
    connect(dismiss, &QToolButton::clicked, this, &QWidget::hide);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 6, 6, 6);
    layout->addWidget(icon);
    layout->addWidget(text_, 1);
    layout->addWidget(dismiss);
    hide();
}

void MessageBar::showMessage(const QString &text) {
    hide(); // Another message is a new one, also for those who hear it.
    text_->setText(text);
    setAccessibleName(text);
    show();
}

} // namespace crate
