// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QAbstractNativeEventFilter>
#include <QPointer>
#include <QWidget>

#include <cstdint>

/// Passes the window manager's wish to close a window on to it while its sheet is up. Qt drops the
/// wish for a window that a modal dialog blocks, so that its close box would be dead without a
/// word; here the window gets its close event and can ask. A dialog above the sheet still blocks.
///
/// X11 only: on Wayland the wish does not pass through anything that a program could watch.
/// Main thread.
class BlockedCloseRequest final : public QAbstractNativeEventFilter {
public:
    /// Watches as long as it lives. Neither is owned; `sheet` is modal for `window`.
    BlockedCloseRequest(QWidget *window, QWidget *sheet);
    ~BlockedCloseRequest() override;
    BlockedCloseRequest(const BlockedCloseRequest &) = delete;
    BlockedCloseRequest &operator=(const BlockedCloseRequest &) = delete;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    bool isCloseRequest(const void *message);

    QPointer<QWidget> window_;
    QPointer<QWidget> sheet_;
    std::uint32_t protocolsAtom_ = 0; // 0 until it was asked for.
    std::uint32_t deleteWindowAtom_ = 0;
};
