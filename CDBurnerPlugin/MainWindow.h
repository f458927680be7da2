// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

class MainWindow;

/// Hears of the window being closed. Not owned by the window.
class MainWindowDelegate {
public:
    virtual ~MainWindowDelegate() = default;
    MainWindowDelegate(const MainWindowDelegate &) = delete;
    MainWindowDelegate &operator=(const MainWindowDelegate &) = delete;

    /// False keeps the window open. May ask the user.
    virtual bool windowShouldClose(MainWindow *window) = 0;
    /// The window is about to be hidden, inside its close event: it must outlive this call.
    virtual void windowWillClose(QWidget *window) = 0;

protected:
    MainWindowDelegate() = default;
};

/// The tool's window as a widget: everything in it comes from the form, everything it does from
/// the controller; only closing needs a class. Main thread.
class MainWindow final : public QWidget {
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);

    /// Null takes it off; the window then just closes.
    void setDelegate(MainWindowDelegate *delegate) { delegate_ = delegate; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    MainWindowDelegate *delegate_ = nullptr;
};
