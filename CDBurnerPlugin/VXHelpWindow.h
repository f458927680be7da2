// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPointer>
#include <QWidget>

class QInputMethodEvent;
class QLabel;
class QWindow;
class VXHelpView;

/// The help bubble: a borderless window that behaves like a menu. While it is open, any key and any
/// mouse press outside it close it and reach nobody else, shortcuts and input methods included; the
/// wheel does nothing; a modifier key alone does nothing; presses inside reach what is in it. It
/// also closes when another window becomes the active one.
///
/// It is a popup window to the window system. On X11 that grabs the pointer, so that the closing
/// click reaches no other program either. On Wayland programs neither place windows on the screen
/// nor see clicks elsewhere: the compositor places the popup relative to its parent window, moves
/// it if it would leave the screen, and dismisses it on a click elsewhere.
///
/// Owned by its parent, reused for each opening. Main thread.
class VXHelpWindow : public QWidget {
    Q_OBJECT

public:
    explicit VXHelpWindow(QWidget *parent = nullptr);
    ~VXHelpWindow() override;

    /// Moves the bubble's top left corner to this place of the screen, or as near to it as keeps
    /// the whole bubble on that screen.
    void setFrameTopLeftPoint(const QPoint &global);

    /// Shows the bubble and starts to watch events.
    void beginFakeMenu();
    /// Stops watching and hides the bubble.
    void endFakeMenu();
    /// To be told of any window that stopped being the active one: this one closes.
    void windowDidResignKey(const QWidget *window);

    bool isOpen() const { return isMonitoring_; }

    /// The bubble's content, as rich text.
    static QString helpText();

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void activeWindowChanged(QWindow *window);
    bool isInBubble(const QObject *watched, const QPointF &global) const;
    bool closesOnTyping(const QInputMethodEvent &typed);
    void stopMonitoring();

    VXHelpView *bubble_;
    QLabel *text_;
    bool isMonitoring_ = false; // Events and the active window are being watched.
    QMetaObject::Connection activeWindowConnection_;
};
