// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/ProgressWindow.h"

#include "CDBurnerPlugin/MainQueue.h"
#include "tests/CDBurnerPlugin/EventLoop.h"
#include "tests/CDBurnerPlugin/views/LogLines.h"

#include <gtest/gtest.h>

#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>
#include <xcb/xcb.h>

namespace {

using Types = std::vector<qint64>;

class CancelOnly : public ProgressWindowDelegate {
public:
    void progressDidCancel(qint64 type) override { cancelled.push_back(type); }
    Types cancelled;
};

class Both : public CancelOnly {
public:
    void progressDidOK(qint64 type) override { confirmed.push_back(type); }
    Types confirmed;
};

class ProgressWindowTest : public testing::Test {
protected:
    ProgressWindowTest() {
        main_.resize(500, 400);
        sheet_.setMyDelegate(&delegate_);
    }

    void runSheet(qint64 type, const QString &title) {
        sheet_.setType(type);
        sheet_.defaultButton()->setText(title);
        showActive(main_);
        sheet_.runSheetForWindow(&main_);
    }
    int barValue() const { return sheet_.findChild<QProgressBar *>()->value(); }
    int barMaximum() const { return sheet_.findChild<QProgressBar *>()->maximum(); }

    const QString cancel_ = QStringLiteral("Cancel");
    const QString ok_ = QStringLiteral("OK");
    QWidget main_;
    Both delegate_;
    ProgressWindow sheet_{&main_};
};

TEST_F(ProgressWindowTest, ANewSheetIsEmpty) {
    const auto *bar = sheet_.findChild<QProgressBar *>();
    EXPECT_LT(bar->minimum(), bar->maximum()); // Equal would be indeterminate.
    EXPECT_EQ(bar->value(), bar->minimum());
    EXPECT_EQ(sheet_.progress(), 0.0);
    EXPECT_EQ(sheet_.defaultButton()->text(), cancel_);
    EXPECT_EQ(sheet_.name(), QString());
    EXPECT_EQ(sheet_.tips(), QString());
    EXPECT_EQ(sheet_.type(), 0);
    EXPECT_FALSE(sheet_.isVisible());
}

TEST_F(ProgressWindowTest, TypeTwoLeavesTheButtonAndOthersEnableIt) {
    sheet_.defaultButton()->setEnabled(false);
    sheet_.setType(2);
    EXPECT_FALSE(sheet_.defaultButton()->isEnabled());
    for (const qint64 type : {0, 1}) {
        sheet_.defaultButton()->setEnabled(false);
        sheet_.setType(type);
        EXPECT_TRUE(sheet_.defaultButton()->isEnabled());
        EXPECT_EQ(sheet_.type(), type);
    }
    sheet_.setType(2);
    EXPECT_TRUE(sheet_.defaultButton()->isEnabled());
}

TEST_F(ProgressWindowTest, BurningTheButtonsTitleSaysWhatAClickMeans) {
    sheet_.setType(1);
    sheet_.defaultButton()->setText(ok_);
    sheet_.defaultButton()->click();
    EXPECT_EQ(delegate_.confirmed, Types{1});
    sheet_.defaultButton()->setText(cancel_);
    sheet_.defaultButton()->click();
    EXPECT_EQ(delegate_.confirmed, Types{1});
    EXPECT_EQ(delegate_.cancelled, Types{1});
}

TEST_F(ProgressWindowTest, AddingEveryClickIsACancel) {
    sheet_.setType(0);
    sheet_.defaultButton()->setText(ok_);
    sheet_.clickCancel();
    EXPECT_EQ(delegate_.cancelled, Types{0});
    EXPECT_TRUE(delegate_.confirmed.empty());
}

TEST_F(ProgressWindowTest, ADelegateWithoutOKHearsNothingOfIt) {
    CancelOnly cancelOnly;
    sheet_.setMyDelegate(&cancelOnly);
    sheet_.updateProgressByNameTips(1.0F, {}, {});
    drainMainQueue();
    EXPECT_TRUE(sheet_.isAnimating());
    sheet_.setType(1);
    sheet_.defaultButton()->setText(ok_);
    sheet_.clickCancel();
    EXPECT_TRUE(cancelOnly.cancelled.empty());
    EXPECT_FALSE(sheet_.isAnimating());
}

TEST_F(ProgressWindowTest, ADestroyedDelegateIsTakenOff) {
    {
        CancelOnly gone;
        sheet_.setMyDelegate(&gone);
    }
    EXPECT_EQ(sheet_.myDelegate(), nullptr);
    sheet_.clickCancel();
}

TEST_F(ProgressWindowTest, UpdatesComeLaterAndInOrder) {
    sheet_.updateProgressByNameTips(0.5F, QStringLiteral("a"), QStringLiteral("b"));
    EXPECT_EQ(sheet_.name(), QString());
    drainMainQueue();
    EXPECT_EQ(sheet_.name(), QStringLiteral("a"));
    EXPECT_EQ(sheet_.tips(), QStringLiteral("b"));
    EXPECT_EQ(sheet_.progress(), 0.5);
    EXPECT_EQ(barValue() * 2, barMaximum());
    EXPECT_TRUE(sheet_.isAnimating());
}

TEST_F(ProgressWindowTest, TextsAloneLeaveTheBar) {
    sheet_.updateProgressByNameTips(0.5F, {}, {});
    drainMainQueue();
    sheet_.clickCancel();
    sheet_.updateNameTips(QStringLiteral("c"), QStringLiteral("d"));
    drainMainQueue();
    EXPECT_EQ(sheet_.name(), QStringLiteral("c"));
    EXPECT_EQ(sheet_.progress(), 0.5);
    EXPECT_EQ(barValue() * 2, barMaximum());
    EXPECT_FALSE(sheet_.isAnimating());
}

TEST_F(ProgressWindowTest, TheBarKeepsValuesThatItCanNotShow) {
    sheet_.updateProgressByNameTips(1.5F, {}, {});
    drainMainQueue();
    EXPECT_EQ(sheet_.progress(), 1.5);
    EXPECT_EQ(barValue(), barMaximum());
    sheet_.updateProgressByNameTips(std::numeric_limits<float>::quiet_NaN(), {}, {});
    drainMainQueue();
    EXPECT_EQ(barValue(), 0);
}

TEST_F(ProgressWindowTest, RunsAsAWindowModalSheet) {
    runSheet(0, cancel_);
    EXPECT_TRUE(sheet_.isVisible());
    EXPECT_EQ(sheet_.windowModality(), Qt::WindowModal);
    EXPECT_EQ(sheet_.parentWidget(), &main_);
    EXPECT_TRUE(sheet_.isAttachedTo(&main_));
}

TEST_F(ProgressWindowTest, RunningTwiceKeepsItUp) {
    runSheet(0, cancel_);
    sheet_.runSheetForWindow(&main_);
    EXPECT_TRUE(sheet_.isAttachedTo(&main_));
    EXPECT_TRUE(sheet_.isVisible());
}

TEST_F(ProgressWindowTest, NoWindowIsNoSheet) {
    sheet_.runSheetForWindow(nullptr);
    EXPECT_FALSE(sheet_.isVisible());
    EXPECT_FALSE(sheet_.isAttachedTo(nullptr));
}

TEST_F(ProgressWindowTest, ClosingHidesItAsTypeTwoWithTheButtonAsItIs) {
    runSheet(1, cancel_);
    sheet_.defaultButton()->setEnabled(false);
    sheet_.closeSheet();
    EXPECT_FALSE(sheet_.isVisible());
    EXPECT_EQ(sheet_.type(), 2);
    EXPECT_FALSE(sheet_.defaultButton()->isEnabled());
    EXPECT_FALSE(sheet_.isAttachedTo(&main_));
}

TEST_F(ProgressWindowTest, ClosingWhatIsNoSheetIsLogged) {
    sheet_.setType(1);
    const LogLines log;
    sheet_.closeSheet();
    EXPECT_EQ(log.lines(),
              QStringList(QStringLiteral("==>>i am not a sheet, just order me out, thanks.")));
    EXPECT_EQ(sheet_.type(), 1);
    EXPECT_FALSE(sheet_.isVisible());
}

TEST_F(ProgressWindowTest, ClosingTwiceIsNotASheetTheSecondTime) {
    runSheet(1, cancel_);
    sheet_.closeSheet();
    const LogLines log;
    sheet_.closeSheet();
    EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(ProgressWindowTest, EscapeIsAClickOnTheButton) {
    runSheet(1, cancel_);
    QTest::keyClick(&sheet_, Qt::Key_Escape);
    EXPECT_EQ(delegate_.cancelled, Types{1});
    EXPECT_TRUE(sheet_.isVisible());
    sheet_.defaultButton()->setEnabled(false);
    QTest::keyClick(&sheet_, Qt::Key_Escape);
    EXPECT_EQ(delegate_.cancelled, Types{1});
}

TEST_F(ProgressWindowTest, TheCloseBoxIsAClickOnTheButton) {
    runSheet(1, ok_);
    EXPECT_FALSE(sheet_.close());
    EXPECT_EQ(delegate_.confirmed, Types{1});
    sheet_.defaultButton()->setEnabled(false);
    EXPECT_FALSE(sheet_.close());
    EXPECT_EQ(delegate_.confirmed, Types{1});
    EXPECT_TRUE(sheet_.isVisible());
}

TEST_F(ProgressWindowTest, ReturnConfirmsTheEndButNeverCancels) {
    runSheet(1, cancel_);
    QTest::keyClick(&sheet_, Qt::Key_Return);
    QTest::keyClick(sheet_.defaultButton(), Qt::Key_Return);
    EXPECT_TRUE(delegate_.cancelled.empty());
    sheet_.defaultButton()->setText(ok_);
    QTest::keyClick(&sheet_, Qt::Key_Return);
    EXPECT_EQ(delegate_.confirmed, Types{1});
}

TEST_F(ProgressWindowTest, DisplayOperationsComeFromAnyThreadInOrder) {
    showActive(main_);
    std::atomic<bool> isOver = false;
    bool wasShown = false;
    QString nameThen;
    std::thread worker([&] {
        sheet_.updateProgressByNameTips(0.25F, QStringLiteral("first"), {});
        sheet_.runSheetForWindow(&main_);
        MainQueue::sync([&] {
            wasShown = sheet_.isVisible();
            nameThen = sheet_.name();
        });
        sheet_.updateNameTips(QStringLiteral("second"), {});
        sheet_.closeSheet();
        isOver = true;
    });
    EXPECT_TRUE(runUntil([&isOver] { return isOver.load(); }));
    worker.join();
    EXPECT_TRUE(wasShown);
    EXPECT_EQ(nameThen, QStringLiteral("first"));
    EXPECT_EQ(sheet_.name(), QStringLiteral("second"));
    EXPECT_FALSE(sheet_.isVisible());
}

TEST(ProgressWindowLife, MayEndWithItsWindowWhileItIsShown) {
    auto main = std::make_unique<QWidget>();
    const QPointer<ProgressWindow> sheet = new ProgressWindow;
    main->show();
    sheet->runSheetForWindow(main.get());
    sheet->updateNameTips(QStringLiteral("a"), QStringLiteral("b"));
    main.reset();
    EXPECT_EQ(sheet, nullptr);
    drainMainQueue(); // What was queued for it reaches nobody.
}

TEST_F(ProgressWindowTest, ItsSizeDoesNotDependOnItsTexts) {
    runSheet(0, cancel_);
    const QSize before = sheet_.size();
    sheet_.updateProgressByNameTips(0.5F, QString(500, u'm'), QString(500, u'w'));
    drainMainQueue();
    QCoreApplication::processEvents();
    EXPECT_EQ(sheet_.size(), before);
    EXPECT_LT(before.width(), 700);
}

TEST_F(ProgressWindowTest, HiddenSheetHearsNothingMoreOfTheWindowSystem) {
    xcb_client_message_event_t wish{};
    wish.response_type = XCB_CLIENT_MESSAGE | 0x80; // As one that another program has sent.
    qintptr result = 0;
    EXPECT_TRUE(sheet_.nativeEvent("xcb_generic_event_t", &wish, &result));
    runSheet(ProgressWindow::addingFilesType, cancel_);
    EXPECT_FALSE(sheet_.nativeEvent("xcb_generic_event_t", &wish, &result));
    sheet_.closeSheet();
    EXPECT_TRUE(sheet_.nativeEvent("xcb_generic_event_t", &wish, &result));
    wish.response_type = XCB_UNMAP_NOTIFY;
    EXPECT_FALSE(sheet_.nativeEvent("xcb_generic_event_t", &wish, &result));
}

} // namespace
