// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>

namespace crate {

/// Turns SIGTERM, SIGINT and SIGHUP into a Qt signal on the main thread. At most one object at a
/// time; its end brings back what the signals did before.
class QuitSignals : public QObject {
    Q_OBJECT

public:
    explicit QuitSignals(QObject *parent = nullptr);
    ~QuitSignals() override;

signals:
    /// The system, the session or a terminal wants the program to end, and does not want to be
    /// asked back.
    void arrived();

private:
    void readPipe();
};

} // namespace crate
