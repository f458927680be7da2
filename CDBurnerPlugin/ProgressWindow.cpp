// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/ProgressWindow.h"

#include "CDBurnerPlugin/ButtonWidth.h"
#include "CDBurnerPlugin/Localization.h"
#include "CDBurnerPlugin/Log.h"
#include "CDBurnerPlugin/MainQueue.h"
#include "CDBurnerPlugin/MissedFocus.h"
#include "ui_ProgressWindow.h"

#include <QEvent>
#include <QKeyEvent>

#include <algorithm>
#include <xcb/xcb.h>

ProgressWindow::ProgressWindow(QWidget *parent)
    : QDialog(parent), ui_(std::make_unique<Ui::ProgressWindow>()) {
    ui_->setupUi(this);
    setLayoutDirection(localizationDirection());
    setWindowModality(Qt::WindowModal);
    setWindowTitle(localizedString("CD Burner"));
    connect(ui_->btnCancel, &QPushButton::clicked, this, &ProgressWindow::clickCancel);
    ui_->btnCancel->installEventFilter(this);
    ui_->progressIndicator->setAccessibleName(localizedString("Progress"));
    fitToFont();
    awakeFromNib();
}

ProgressWindow::~ProgressWindow() = default;

void ProgressWindow::awakeFromNib() {
    setProgress(0.0);
    ui_->btnCancel->setText(localizedString("Cancel"));
    setTexts(QString(), QString());
}

void ProgressWindow::fitToFont() {
    constexpr int narrowest = 380;
    constexpr int charactersWide = 56;
    const int width = std::max(narrowest, charactersWide * fontMetrics().averageCharWidth());
    ui_->progressIndicator->setFixedWidth(width);
    const QFontMetrics metrics = ui_->btnCancel->fontMetrics();
    ui_->btnCancel->setMinimumWidth(
        std::max(comfortableButtonWidth(metrics, localizedString("Cancel")),
                 comfortableButtonWidth(metrics, localizedString("OK"))));
}

QPushButton *ProgressWindow::defaultButton() const {
    return ui_->btnCancel;
}

QString ProgressWindow::name() const {
    return ui_->txtName->text();
}

QString ProgressWindow::tips() const {
    return ui_->txtTips->text();
}

void ProgressWindow::setType(qint64 type) {
    _type = type;
    if (_type != closedType) {
        ui_->btnCancel->setEnabled(true);
    }
}

bool ProgressWindow::isButtonOK() const {
    return _type == burningType && ui_->btnCancel->text() == localizedString("OK");
}

void ProgressWindow::clickCancel() {
    isAnimating_ = false;
    showWork();
    if (myDelegate() == nullptr) {
        return;
    }
    if (isButtonOK()) {
        myDelegate()->progressDidOK(_type);
    } else {
        myDelegate()->progressDidCancel(_type);
    }
}

void ProgressWindow::reject() {
    if (ui_->btnCancel->isEnabled()) {
        clickCancel();
    }
}

bool ProgressWindow::nativeEvent(const QByteArray &eventType, void *message, qintptr *result) {
    constexpr int sentByClient = 0x80; // A bit that the X server sets in the event's type.
    if (isHidden() && eventType == "xcb_generic_event_t") {
        const auto *const event = static_cast<const xcb_generic_event_t *>(message);
        return static_cast<std::uint8_t>(event->response_type & ~sentByClient) ==
               XCB_CLIENT_MESSAGE;
    }
    return QDialog::nativeEvent(eventType, message, result);
}

void ProgressWindow::keyPressEvent(QKeyEvent *event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn) {
        QDialog::keyPressEvent(event);
    } else if (isButtonOK()) {
        // Return may not cancel: it is often still on its way from the field before.
        reject();
    }
}

void ProgressWindow::changeEvent(QEvent *event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::FontChange && ui_ != nullptr) {
        fitToFont();
    }
}

void ProgressWindow::setTexts(const QString &name, const QString &tips) {
    ui_->txtName->setText(name);
    ui_->txtTips->setText(tips);
}

void ProgressWindow::setProgress(double progress) {
    progress_ = progress;
    ui_->progressIndicator->setProgress(progress);
    showWork();
}

void ProgressWindow::showWork() {
    // Before there is anything to measure, and while what goes on is being stopped.
    const bool isStarting = isAnimating_ && progress_ == 0.0;
    const bool isStopping = !ui_->btnCancel->isEnabled() && progress_ < 1.0;
    ui_->progressIndicator->setBusy(isStarting || isStopping);
}

void ProgressWindow::announceTexts() {
    announcedPercent_ = ui_->progressIndicator->percent();
    ui_->txtName->announceText();
    ui_->txtTips->announceText();
}

void ProgressWindow::announceIfDue() {
    constexpr int tenth = 10; // Percents: time that passes is no news.
    const bool isNewWork = ui_->txtName->text() != ui_->txtName->announcedText();
    if (isNewWork || ui_->progressIndicator->percent() / tenth != announcedPercent_ / tenth) {
        announceTexts();
    }
}

bool ProgressWindow::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::EnabledChange) {
        showWork();
    }
    return QDialog::eventFilter(watched, event);
}

void ProgressWindow::updateNameTips(const QString &name, const QString &tips) {
    MainQueue::async([self = QPointer(this), name, tips] {
        if (self != nullptr) {
            self->setTexts(name, tips);
            self->announceTexts();
        }
    });
}

void ProgressWindow::updateProgressByNameTips(float progress, const QString &name,
                                              const QString &tips) {
    MainQueue::async([self = QPointer(this), progress, name, tips] {
        if (self != nullptr) {
            self->isAnimating_ = true;
            self->setProgress(static_cast<double>(progress));
            self->setTexts(name, tips);
            self->announceIfDue();
        }
    });
}

void ProgressWindow::runSheetForWindow(QWidget *parent) {
    if (parent == nullptr) {
        return;
    }
    MainQueue::sync([self = QPointer(this), window = QPointer(parent)] {
        if (self != nullptr && window != nullptr) {
            self->beginSheet(window);
        }
    });
}

void ProgressWindow::beginSheet(QWidget *parent) {
    if (isAttachedTo(parent)) {
        raise();
    }
    _parentWindow = parent;
    if (parentWidget() != parent) {
        setParent(parent, windowFlags());
        setWindowModality(Qt::WindowModal);
    }
    open();
}

void ProgressWindow::closeSheet() {
    MainQueue::sync([self = QPointer(this)] {
        if (self != nullptr) {
            self->endSheet();
        }
    });
}

void ProgressWindow::endSheet() {
    if (_parentWindow == nullptr || !isAttachedTo(_parentWindow)) {
        qCInfo(toolLog, "==>>i am not a sheet, just order me out, thanks.");
        hide();
        return;
    }
    setType(closedType);
    hide();
    noticeMissedFocus(*_parentWindow);
}

bool ProgressWindow::isAttachedTo(const QWidget *window) const {
    // Hidden with its window it is its sheet all the same.
    return window != nullptr && _parentWindow == window && !isHidden();
}
