// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/window/neighbour/DropReply.h"

#include "tests/support/X11.h"

#include <QGuiApplication>

#include <utility>

namespace {

constexpr std::uint8_t sentByClient = 0x80;

xcb_atom_t atomNamed(const char *name) {
    return x11::atomNamed(
        qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection(), name);
}

} // namespace

DropReply::DropReply(Handlers handlers) : handlers_(std::move(handlers)) {
    QCoreApplication::instance()->installNativeEventFilter(this);
}

DropReply::~DropReply() {
    QCoreApplication::instance()->removeNativeEventFilter(this);
}

bool DropReply::nativeEventFilter(const QByteArray & /*eventType*/, void *message,
                                  qintptr * /*result*/) {
    const auto *const event = static_cast<const xcb_client_message_event_t *>(message);
    const auto type = static_cast<std::uint8_t>(event->response_type & ~sentByClient);
    if (type != XCB_CLIENT_MESSAGE) {
        return false;
    }
    const bool isTaken = (event->data.data32[1] & 1U) != 0;
    if (event->type == atomNamed("XdndStatus")) {
        handlers_.answered(isTaken);
    } else if (event->type == atomNamed("XdndFinished")) {
        const bool isMove = event->data.data32[2] == atomNamed("XdndActionMove");
        handlers_.finished(!isTaken ? QStringLiteral("ignore")
                           : isMove ? QStringLiteral("move")
                                    : QStringLiteral("copy"));
    }
    return false;
}
