// SPDX-License-Identifier: GPL-2.0-or-later
// In every language the window shows its texts whole at the size it opens with.
#include "CDBurnerPlugin/ButtonWidth.h"
#include "CDBurnerPlugin/ElidedLabel.h"
#include "CDBurnerPlugin/Localization.h"
#include "CDBurnerPlugin/VXHelpWindow.h"
#include "tests/CDBurnerPlugin/controller/ControllerTest.h"
#include "tests/CDBurnerPlugin/translations/Languages.h"

#include <QToolButton>

namespace {

constexpr QSize formSize(640, 560);       // What the window's form says.
constexpr QSize smallestScreen(800, 600); // The bubble is not larger than this.

std::string textOf(const QWidget &widget) {
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        return label->text().toStdString();
    }
    if (const auto *tips = qobject_cast<const ErrorTipsView *>(&widget)) {
        return tips->errorTips().toStdString();
    }
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    return button != nullptr ? button->text().toStdString() : widget.objectName().toStdString();
}

/// A widget's size hint is what its text needs, whatever the layout makes of it.
void expectFits(const QWidget &widget) {
    if (!widget.isVisible()) {
        return;
    }
    EXPECT_GE(widget.width(), widget.sizeHint().width()) << textOf(widget);
    EXPECT_GE(widget.height(), widget.sizeHint().height()) << textOf(widget);
}

void expectRoomBesideTitle(const QPushButton &button) {
    EXPECT_GE(button.width(), comfortableButtonWidth(button.fontMetrics(), button.text()))
        << textOf(button);
}

class Fitting : public ControllerTest, public testing::WithParamInterface<std::string> {
protected:
    /// The texts of the window itself, not those of its sheet and bubble.
    void expectWindowFits() {
        QApplication::processEvents();
        EXPECT_EQ(controller->window()->size(), formSize);
        for (const QWidget *widget : controller->window()->findChildren<QWidget *>()) {
            const bool isText = qobject_cast<const QLabel *>(widget) != nullptr ||
                                qobject_cast<const QAbstractButton *>(widget) != nullptr ||
                                qobject_cast<const ErrorTipsView *>(widget) != nullptr ||
                                widget == typePopup();
            if (widget->window() == controller->window() && isText) {
                expectFits(*widget);
            }
        }
        for (const char *const name : {"_btnEject", "_btnClear", "_btnBurn"}) {
            expectRoomBesideTitle(*find<QPushButton>(name));
        }
        expectHeaderFits();
    }

    void expectHeaderFits() {
        constexpr int margins = 24; // On both sides of a title, and of the room beside it.
        const QHeaderView *const header = table()->horizontalHeader();
        for (int column = 0; column < header->count(); ++column) {
            const QString title = table()->model()->headerData(column, Qt::Horizontal).toString();
            const int room = column == FilesTableModel::fileinfo
                                 ? static_cast<int>(FilesTableView::deleteButtonSize)
                                 : 0;
            EXPECT_GE(header->sectionSize(column),
                      header->fontMetrics().horizontalAdvance(title) + room + margins)
                << title.toStdString();
        }
    }

    void expectSheetFits() {
        drainMainQueue();
        QApplication::processEvents();
        for (const auto *line : sheet()->findChildren<ElidedLabel *>()) {
            EXPECT_GE(line->contentsRect().width(),
                      line->fontMetrics().horizontalAdvance(line->text()))
                << line->text().toStdString();
            EXPECT_GE(line->height(), line->fontMetrics().height()) << line->text().toStdString();
        }
        expectFits(*sheet()->defaultButton());
        expectRoomBesideTitle(*sheet()->defaultButton());
    }

    const SpokenLanguage spoken_{GetParam()};
};

} // namespace

TEST_P(Fitting, FullListAndBothTypes) {
    openWithSongs(99);
    engine.audio().used = std::uint64_t{75} * 60 * 70;
    controller->updateUI();
    expectWindowFits();
    typePopup()->setCurrentIndex(1);
    controller->selectCDType();
    engine.data().append("Film", 694'600'000);
    engine.data().used = 694'600'000;
    controller->updateUI();
    expectWindowFits();
}

TEST_P(Fitting, ListThatIsTooLong) {
    openWithBlankDisc();
    engine.audio().append("Long", std::int64_t{75} * 60 * 199);
    engine.audio().used = std::uint64_t{75} * 60 * 199;
    engine.audio().overflows = true;
    controller->updateUI();
    expectWindowFits();
}

TEST_P(Fitting, EmptyListWithoutADrive) {
    open();
    expectWindowFits();
}

TEST_P(Fitting, EachStateOfTheDrive) {
    engine.addDrive("Drive");
    open();
    inEachStateOfTheDrive([this] { expectWindowFits(); });
}

TEST_P(Fitting, EachStateOfTheDriveInTheSmallestWindow) {
    engine.addDrive("Drive");
    open();
    controller->window()->resize(1, 1);
    inEachStateOfTheDrive([this] {
        const auto *const tips = find<ErrorTipsView>("_errorTipsView");
        // The layout goes up from the strip to the window, a step with each round of the loop.
        EXPECT_TRUE(runUntil([tips] { return tips->width() >= tips->sizeHint().width(); }))
            << tips->errorTips().toStdString();
    });
}

TEST_P(Fitting, SheetWhileFilesAreAdded) {
    openWithBlankDisc();
    send(engine.audio(), [](ScorchDelegate &adding) { adding.addFilesProgressDidStarted(); });
    expectSheetFits();
    send(engine.audio(), [](ScorchDelegate &adding) {
        adding.addFilesProgressDidChangedIndexOf("A song.mp3", 1999, 2000);
    });
    expectSheetFits();
}

TEST_P(Fitting, SheetWhileADiscIsBurned) {
    openWithSongs(1);
    startBurn();
    const auto expectAfter = [this](auto callback) {
        send(engine.audio(), callback);
        expectSheetFits();
    };
    expectSheetFits();
    expectAfter([](ScorchDelegate &burn) { burn.burnProgressIsPreparing(); });
    expectAfter([](ScorchDelegate &burn) { burn.burnProgressIsOpeningTrackOf(98, 99); });
    expectAfter([](ScorchDelegate &burn) { burn.burnProgressIsWriteingTrackOf(98, 99); });
    expectAfter([](ScorchDelegate &burn) { burn.burnProgressDidChanagedLefttime(0.5, 350000); });
    expectAfter([](ScorchDelegate &burn) { burn.burnProgressDidCloseTrackOf(98, 99); });
    expectAfter([](ScorchDelegate &burn) { burn.burnProgressDidCloseSession(); });
    expectAfter([](ScorchDelegate &burn) { burn.burnProgressIsFinishing(); });
    expectAfter([](ScorchDelegate &burn) { burn.burnProgressIsVerifying(); });
    expectAfter([](ScorchDelegate &burn) { burn.burnProgressDidDone(); });
}

TEST_P(Fitting, HelpBubble) {
    openWithBlankDisc();
    find<QToolButton>("_btnHelp")->click();
    auto *const bubble = controller->window()->findChild<VXHelpWindow *>();
    ASSERT_NE(bubble, nullptr);
    const auto *const text = bubble->findChild<QLabel *>();
    EXPECT_GE(text->height(), text->heightForWidth(text->width()));
    EXPECT_GE(text->width(), text->minimumSizeHint().width());
    EXPECT_LE(bubble->height(), smallestScreen.height());
    bubble->endFakeMenu();
}

INSTANTIATE_TEST_SUITE_P(Languages, Fitting, testing::ValuesIn(languages()), languageName);
