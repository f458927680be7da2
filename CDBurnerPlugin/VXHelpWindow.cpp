// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/VXHelpWindow.h"

#include "CDBurnerPlugin/HelpBubbleGeometry.h"
#include "CDBurnerPlugin/Localization.h"
#include "CDBurnerPlugin/VXHelpView.h"

#include <QApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QTextDocumentFragment>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

namespace {

constexpr int bubbleWidth = 300;
constexpr int margin = 18;
const QColor textColor(0x1e, 0x24, 0x2c); // The bubble is white in every theme.
const QColor edgeColor(0x9a, 0xa3, 0xae); // Of the line around it, as in its pictures.

bool isModifier(int key) {
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_Mode_switch:
    case Qt::Key_Multi_key:
        return true;
    default:
        return false;
    }
}

QString paragraph(const QString &title, const QString &text) {
    return QStringLiteral("<p style=\"margin:0 0 9px 0\"><b>%1</b><br>%2</p>")
        .arg(title.toHtmlEscaped(), text.toHtmlEscaped());
}

} // namespace

VXHelpWindow::VXHelpWindow(QWidget *parent)
    : QWidget(parent, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint),
      bubble_(new VXHelpView(this)),
      text_(new QLabel(helpText())) {
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_NoMouseReplay);
    setLayoutDirection(localizationDirection());
    setWindowTitle(localizedString("Help"));
    setAccessibleName(localizedString("Help"));
    // A screen reader says it as soon as the bubble is shown.
    bubble_->setAccessibleName(QTextDocumentFragment::fromHtml(helpText()).toPlainText());
    auto *outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(bubble_);
    auto *inner = new QVBoxLayout(bubble_);
    inner->setContentsMargins(margin, VXHelpView::pointerHeight + margin, margin, margin - 2);
    inner->addWidget(text_);
    QPalette colors = text_->palette();
    colors.setColor(QPalette::WindowText, textColor);
    text_->setPalette(colors);
    text_->setTextFormat(Qt::RichText);
    text_->setWordWrap(true);
    text_->setFixedWidth(bubbleWidth - 2 * margin);
    outer->setSizeConstraint(QLayout::SetFixedSize);
    adjustSize();
}

VXHelpWindow::~VXHelpWindow() {
    stopMonitoring();
}

QString VXHelpWindow::helpText() {
    return paragraph(localizedString("Audio CD"),
                     localizedString("Plays in CD players and cars. Holds about 80 minutes of "
                                     "music, up to 99 songs, however large their files are.")) +
           paragraph(localizedString("Data CD"),
                     localizedString("Keeps files and folders for computers, just as they are. "
                                     "Holds about 700 MB.")) +
           paragraph(localizedString("What you need"),
                     localizedString("A blank CD-R or CD-RW. The bar shows how much of it is "
                                     "filled; what does not fit has to leave the list.")) +
           paragraph(localizedString("The drive is not found?"),
                     localizedString("Check its cable and power, then wait a few seconds. A drive "
                                     "that another program uses can not be used here until that "
                                     "program is closed."));
}

void VXHelpWindow::setFrameTopLeftPoint(const QPoint &global) {
    const QScreen *target = QGuiApplication::screenAt(global);
    if (target == nullptr) {
        target = parentWidget() != nullptr ? parentWidget()->screen() : screen();
    }
    adjustSize();
    move(target != nullptr ? keptOnScreen(QRect(global, size()), target->availableGeometry())
                           : global);
}

void VXHelpWindow::beginFakeMenu() {
    QGuiApplication::inputMethod()->commit(); // What is half typed somewhere is kept.
    if (!isMonitoring_) {
        isMonitoring_ = true;
        qApp->installEventFilter(this);
        activeWindowConnection_ = connect(qGuiApp, &QGuiApplication::focusWindowChanged, this,
                                          &VXHelpWindow::activeWindowChanged);
    }
    show();
    raise();
    activateWindow();
}

void VXHelpWindow::endFakeMenu() {
    stopMonitoring();
    close();
}

void VXHelpWindow::stopMonitoring() {
    if (isMonitoring_) {
        isMonitoring_ = false;
        qApp->removeEventFilter(this);
        disconnect(activeWindowConnection_);
    }
}

void VXHelpWindow::paintEvent(QPaintEvent * /*event*/) {
    if (!mask().isEmpty()) {
        // What of the line is half covered would be half black.
        QPainter(this).fillRect(rect(), edgeColor);
    }
}

void VXHelpWindow::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
        // Where no compositor runs, what is translucent would be black.
        setMask(bubble_->shape());
    }
}

void VXHelpWindow::hideEvent(QHideEvent *event) {
    QWidget::hideEvent(event);
    stopMonitoring(); // The window system may close a popup by itself.
}

void VXHelpWindow::windowDidResignKey(const QWidget *window) {
    if (window == this) {
        endFakeMenu();
    }
}

void VXHelpWindow::activeWindowChanged(QWindow *window) {
    const QWidget *owner = parentWidget() != nullptr ? parentWidget()->window() : nullptr;
    const bool isOwn = window != nullptr && (window == windowHandle() ||
                                             (owner != nullptr && window == owner->windowHandle()));
    if (isOwn) {
        return;
    }
    if (window != nullptr) {
        windowDidResignKey(this);
        return;
    }
    // Between two windows of ours there may be a moment without any.
    QTimer::singleShot(0, this, [this] {
        if (isMonitoring_ && QGuiApplication::focusWindow() == nullptr) {
            windowDidResignKey(this);
        }
    });
}

bool VXHelpWindow::isInBubble(const QObject *watched, const QPointF &global) const {
    if (!geometry().contains(global.toPoint())) {
        return false;
    }
    const auto *widget = qobject_cast<const QWidget *>(watched);
    return watched == windowHandle() ||
           (widget != nullptr && (widget == this || isAncestorOf(widget)));
}

bool VXHelpWindow::closesOnTyping(const QInputMethodEvent &typed) {
    if (typed.preeditString().isEmpty() && typed.commitString().isEmpty()) {
        return false; // It only tidies up.
    }
    endFakeMenu();
    QGuiApplication::inputMethod()->reset(); // Else what was begun would go on with the next key.
    return true;
}

bool VXHelpWindow::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::Wheel:
        return true;
    case QEvent::ShortcutOverride:
        event->accept(); // The key comes as a key press now, not as a shortcut.
        return true;
    case QEvent::KeyPress:
        if (!isModifier(static_cast<QKeyEvent *>(event)->key())) {
            endFakeMenu();
        }
        return true;
    case QEvent::InputMethod: // What an input method makes of a key.
        return closesOnTyping(*static_cast<QInputMethodEvent *>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (isInBubble(watched, static_cast<QMouseEvent *>(event)->globalPosition())) {
            return false;
        }
        endFakeMenu();
        return true;
    default:
        return false;
    }
}
