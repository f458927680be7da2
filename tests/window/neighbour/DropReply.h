// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QAbstractNativeEventFilter>
#include <QString>

#include <functional>

/// Hears what the target of a drop says of it at the end (XdndFinished, XDND version 5). Qt does
/// not wait for that: its own result is what the target promised before the drop. Main thread.
class DropReply final : public QAbstractNativeEventFilter {
public:
    /// `finished` gets "copy" or "move", or "ignore" for a drop that was refused.
    explicit DropReply(std::function<void(const QString &action)> finished);
    ~DropReply() override;
    DropReply(const DropReply &) = delete;
    DropReply &operator=(const DropReply &) = delete;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    std::function<void(const QString &)> finished_;
};
