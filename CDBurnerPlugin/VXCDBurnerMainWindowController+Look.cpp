// SPDX-License-Identifier: GPL-2.0-or-later
// The window's icon and sizes, and what is drawn above what.
#include "CDBurnerPlugin/VXCDBurnerMainWindowController.h"

#include "CDBurnerPlugin/AmountLabel.h"
#include "CDBurnerPlugin/ButtonWidth.h"
#include "CDBurnerPlugin/Localization.h"
#include "CDBurnerPlugin/MainWindow.h"
#include "CDBurnerPlugin/ResourceLocator.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace {

/// The form's size is for ordinary letters: larger ones get a larger window if the screen has room.
QSize comfortableSize(const QSize &size, int letterHeight, const QSize &screen) {
    constexpr double ordinaryHeight = 18.0;
    constexpr double shareOfScreen = 0.9;
    const QSizeF wanted = QSizeF(size) * std::max(1.0, letterHeight / ordinaryHeight);
    return wanted.boundedTo(QSizeF(screen) * shareOfScreen).expandedTo(QSizeF(size)).toSize();
}

/// Gives the label room for each of these formats with any amount, and has it take what more there
/// is: what it reads changes with every file, and must not have the window laid out anew.
void keepRoomFor(QLabel *label, const QStringList &formats) {
    const QString longestAmount = QStringLiteral("888.8 MB");
    int width = 0;
    for (const QString &format : formats) {
        const QString text = filledFormat(format, {longestAmount});
        width = std::max(width, label->fontMetrics().horizontalAdvance(text));
    }
    label->setMinimumWidth(width + 2 * AmountLabel::sideMargin);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    label->setTextFormat(Qt::PlainText);
}

} // namespace

void VXCDBurnerMainWindowController::setUpLook() {
    _window->setWindowIcon(ResourceLocator::icon(QStringLiteral("icon_cd_burner")));
    showTypeIcon();
    // The caption lies over the list, which takes what is dropped on it.
    _txtDragHere->setAttribute(Qt::WA_TransparentForMouseEvents);
    _txtDragHere->raise();
    _dragImageView->raise();
    // Picture and caption are shown below the header, in the middle of what the list shows.
    _window->findChild<QGridLayout *>(QStringLiteral("listLayout"))
        ->setRowMinimumHeight(0, _filesTableView->horizontalHeader()->sizeHint().height());
    // The list never gets smaller than what it shows while it is empty, rows or not.
    for (QWidget *const hint :
         {static_cast<QWidget *>(_dragImageView), static_cast<QWidget *>(_txtDragHere)}) {
        QSizePolicy policy = hint->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        hint->setSizePolicy(policy);
    }
    for (QPushButton *const button : {_btnEject, _btnClear, _btnBurn}) {
        button->setMinimumWidth(std::max(
            button->minimumWidth(), comfortableButtonWidth(button->fontMetrics(), button->text())));
    }
    keepRoomFor(_txtUsedCapacity,
                {localizedString("Used Time: %@"), localizedString("Used Size: %@")});
    keepRoomFor(_txtRetainedCapacity,
                {localizedString("Remaining Time: %@"), localizedString("Remaining Space: %@"),
                 localizedString("Beyond Time: %@"), localizedString("Beyond Size: %@")});
    _window->resize(comfortableSize(_window->size(), _window->fontMetrics().height(),
                                    _window->screen()->availableSize()));
}
