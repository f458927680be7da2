// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/BlockedCloseRequest.h"

#include <QApplication>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <xcb/xcb.h>

namespace {

constexpr std::uint8_t sentByClient = 0x80; // A bit that the server sets in the event's type.
constexpr std::uint8_t format32 = 32;

xcb_atom_t atomNamed(xcb_connection_t *connection, const char *name) {
    const auto cookie =
        xcb_intern_atom(connection, 1, static_cast<std::uint16_t>(std::strlen(name)), name);
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    return reply != nullptr ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

} // namespace

BlockedCloseRequest::BlockedCloseRequest(QWidget *window, QWidget *sheet)
    : window_(window), sheet_(sheet) {
    QCoreApplication::instance()->installNativeEventFilter(this);
}

BlockedCloseRequest::~BlockedCloseRequest() {
    if (QCoreApplication::instance() != nullptr) {
        QCoreApplication::instance()->removeNativeEventFilter(this);
    }
}

bool BlockedCloseRequest::isCloseRequest(const void *message) {
    const auto *const event = static_cast<const xcb_client_message_event_t *>(message);
    const auto type = static_cast<std::uint8_t>(event->response_type & ~sentByClient);
    if (type != XCB_CLIENT_MESSAGE || event->format != format32 ||
        event->window != window_->internalWinId()) {
        return false;
    }
    if (protocolsAtom_ == 0) {
        const auto *const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
        if (x11 == nullptr) {
            return false;
        }
        protocolsAtom_ = atomNamed(x11->connection(), "WM_PROTOCOLS");
        deleteWindowAtom_ = atomNamed(x11->connection(), "WM_DELETE_WINDOW");
    }
    return event->type == protocolsAtom_ && event->data.data32[0] == deleteWindowAtom_;
}

bool BlockedCloseRequest::nativeEventFilter(const QByteArray &eventType, void *message,
                                            qintptr * /*result*/) {
    const bool isSheetUp = !window_.isNull() && !sheet_.isNull() && sheet_->isVisible() &&
                           QApplication::activeModalWidget() == sheet_;
    if (!isSheetUp || eventType != "xcb_generic_event_t" || !isCloseRequest(message)) {
        return false;
    }
    // Not from in here: the window may ask a question and run an event loop for it.
    QMetaObject::invokeMethod(window_, &QWidget::close, Qt::QueuedConnection);
    return true;
}
