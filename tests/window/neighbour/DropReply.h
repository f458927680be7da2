// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QAbstractNativeEventFilter>
#include <QString>

#include <functional>

/// Hears what the target of a drag says, as it stands on the wire (XDND version 5): of what is held
/// over it (XdndStatus), and of a drop at its end (XdndFinished). Qt does not wait for the latter:
/// its own result is what the target promised before the drop. Main thread.
class DropReply final : public QAbstractNativeEventFilter {
public:
    struct Handlers {
        std::function<void(bool isTaken)> answered;
        /// "copy" or "move", or "ignore" for a drop that was refused.
        std::function<void(const QString &action)> finished;
    };

    explicit DropReply(Handlers handlers);
    ~DropReply() override;
    DropReply(const DropReply &) = delete;
    DropReply &operator=(const DropReply &) = delete;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    Handlers handlers_;
};
