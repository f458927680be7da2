// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/DelegateSlot.h"

#include <QDialog>
#include <QPointer>
#include <QString>

#include <memory>

class QPushButton;

namespace Ui {
class ProgressWindow;
}

/// Hears of clicks on the sheet's one button. Both operations are optional. Not owned.
class ProgressWindowDelegate : public DetachingDelegate<ProgressWindowDelegate> {
public:
    virtual ~ProgressWindowDelegate() = default;

    /// The button was clicked as a Cancel button.
    virtual void progressDidCancel(qint64 /*type*/) {}
    /// The button was clicked as an OK button.
    virtual void progressDidOK(qint64 /*type*/) {}
};

/// The sheet on the main window while files are added or a disc is burned: a name line, a bar, a
/// tips line and one button. Knows nothing of what goes on. Escape and the close box are a click on
/// the button, and nothing while it is disabled.
///
/// Screen readers hear of each step (updateNameTips), and of what lies between at each tenth of the
/// way. The bar shows work without a measure until there is a progress, and while the button is
/// disabled.
///
/// The four display operations, updateNameTips to closeSheet, may be called from any thread as long
/// as the window exists; all of them go through the main queue, so they take effect in the order
/// of the calls. Everything else is for the main thread.
class ProgressWindow : public QDialog {
    Q_OBJECT

public:
    // What the sheet stands for.
    static constexpr qint64 addingFilesType = 0;
    static constexpr qint64 burningType = 1;
    static constexpr qint64 closedType = 2;

    explicit ProgressWindow(QWidget *parent = nullptr);
    ~ProgressWindow() override;

    qint64 type() const { return _type; }
    /// Also enables the button, unless the type is `closedType`.
    void setType(qint64 type);

    ProgressWindowDelegate *myDelegate() const { return _myDelegate.get(); }
    void setMyDelegate(ProgressWindowDelegate *delegate) { _myDelegate.set(delegate); }

    /// The one button, which owners retitle ("Cancel", "OK") and disable.
    QPushButton *defaultButton() const;

    /// The first state: an empty bar, two empty lines, "Cancel". Called by the constructor.
    void awakeFromNib();

    /// The button's action.
    void clickCancel();

    /// Sets both lines, later.
    void updateNameTips(const QString &name, const QString &tips);
    /// Sets the bar (0 to 1) and both lines, later.
    void updateProgressByNameTips(float progress, const QString &name, const QString &tips);
    /// Shows this as a sheet on `parent`, which owns it from then on as a dialog's parent does;
    /// returns when it is shown. Null does nothing.
    void runSheetForWindow(QWidget *parent);
    /// Ends the sheet; returns when it is hidden.
    void closeSheet();

    /// The sheet is up on this window.
    bool isAttachedTo(const QWidget *window) const;

    QString name() const;
    QString tips() const;
    /// The bar's value as it was given, 0 at first.
    double progress() const { return progress_; }
    /// The bar has been set since the button was clicked last.
    bool isAnimating() const { return isAnimating_; }

    /// What Escape does to a dialog: a click on the button.
    void reject() override;

    /// Drops what the window system still says to a sheet that is hidden already. A short check
    /// hides it before it was ever active; the answer to Qt's wish to activate it comes after that,
    /// and Qt would make the hidden sheet the active window, which then swallows every key.
    bool nativeEvent(const QByteArray &eventType, void *message, qintptr *result) override;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setTexts(const QString &name, const QString &tips);
    void setProgress(double progress);
    void beginSheet(QWidget *parent);
    void endSheet();
    bool isButtonOK() const;
    void fitToFont();
    void showWork();
    void announceTexts();
    void announceIfDue();

    std::unique_ptr<Ui::ProgressWindow> ui_;
    qint64 _type = addingFilesType;
    DelegateSlot<ProgressWindowDelegate> _myDelegate;
    QPointer<QWidget> _parentWindow; // The window that the sheet was last begun on.
    double progress_ = 0.0;
    bool isAnimating_ = false;
    int announcedPercent_ = 0; // Where the bar stood at the last announcement.
};
