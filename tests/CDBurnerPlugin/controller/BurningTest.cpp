// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/controller/ControllerTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

class Burning : public ControllerTest {
protected:
    void openBurning() {
        openWithSongs(2);
        volumeName()->setText(QStringLiteral("Road %@ trip"));
        usage.clear();
        startBurn();
    }
    std::string name() const { return sheet()->name().toStdString(); }
    std::string tips() const { return sheet()->tips().toStdString(); }
    QPushButton *button() const { return sheet()->defaultButton(); }
    void finish() {
        send(engine.audio(), [](ScorchDelegate &delegate) { delegate.burnProgressDidDone(); });
    }
    void confirmCancel() {
        const AlertAnswer answer(QStringLiteral("Yes"));
        button()->click();
        EXPECT_EQ(answer.count(), 1);
    }
};

TEST_F(Burning, ClickBurnsWithDriveAndNameAsTheyAre) {
    openWithSongs(1);
    usage.clear();
    volumeName()->setText(QStringLiteral("  Road trip "));
    burnButton()->click();
    EXPECT_THAT(engine.audio().burns, ElementsAre(std::pair("Drive", "  Road trip ")));
    EXPECT_FALSE(sheet()->isVisible()) << "not before the engine has started";
    EXPECT_THAT(usage.keys(), IsEmpty());
}

TEST_F(Burning, EmptyListIsNotBurned) {
    openWithBlankDisc();
    usage.clear();
    controller->burn();
    EXPECT_THAT(engine.audio().burns, IsEmpty());
    EXPECT_THAT(usage.keys(), IsEmpty());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Burning, ListThatDoesNotFitIsNotBurned) {
    openWithSongs(1);
    engine.audio().overflows = true;
    const AlertAnswer answer(QStringLiteral("OK"));
    burnButton()->click();
    EXPECT_EQ(answer.count(), 1);
    EXPECT_EQ(answer.message(), QStringLiteral("Insufficient storage space.\t"));
    EXPECT_THAT(engine.audio().burns, IsEmpty());
}

TEST_F(Burning, ReturnInTheNameIsTheDefaultButton) {
    openWithSongs(1);
    emit volumeName()->returnPressed();
    EXPECT_EQ(engine.audio().burns.size(), 1U);
}

TEST_F(Burning, StartShowsTheSheet) {
    openBurning();
    EXPECT_TRUE(sheet()->isAttachedTo(controller->window()));
    EXPECT_EQ(sheet()->type(), ProgressWindow::burningType);
    EXPECT_EQ(name(), "Burning 'Road %@ trip'");
    EXPECT_EQ(tips(), "Start burning");
    EXPECT_DOUBLE_EQ(sheet()->progress(), 0.0);
    EXPECT_EQ(button()->text(), QStringLiteral("Cancel"));
    EXPECT_TRUE(button()->isEnabled());
    EXPECT_THAT(usage.keys(), ElementsAre("CDBurn_BurnStart", "CDBurn_BurnStart_Audio"));
}

TEST_F(Burning, StartReportsTheTypeThatThePopupReads) {
    openWithSongs(1);
    chooseData();
    usage.clear();
    startBurn();
    EXPECT_THAT(usage.keys(), ElementsAre("CDBurn_BurnStart", "CDBurn_BurnStart_Data"));
}

TEST_F(Burning, StagesChangeTheTextsAndLeaveTheBar) {
    openBurning();
    const auto stage = [this](auto callback) {
        send(engine.audio(), callback);
        EXPECT_EQ(name(), "Burning 'Road %@ trip'");
        return tips();
    };
    send(engine.audio(), [](ScorchDelegate &d) { d.burnProgressDidChanagedLefttime(0.25, 0); });
    EXPECT_EQ(stage([](ScorchDelegate &d) { d.burnProgressIsPreparing(); }), "Prepare burning");
    EXPECT_EQ(stage([](ScorchDelegate &d) { d.burnProgressIsOpeningTrackOf(0, 2); }),
              "Opening track 0 of 2");
    EXPECT_EQ(stage([](ScorchDelegate &d) { d.burnProgressIsWriteingTrackOf(3, 12); }),
              "Writing track 3 of 12");
    EXPECT_EQ(stage([](ScorchDelegate &d) { d.burnProgressDidCloseTrackOf(UINT64_MAX, 1); }),
              "Closing track 18446744073709551615 of 1");
    EXPECT_EQ(stage([](ScorchDelegate &d) { d.burnProgressDidCloseSession(); }), "Closing session");
    EXPECT_EQ(stage([](ScorchDelegate &d) { d.burnProgressIsFinishing(); }), "Finish burning");
    EXPECT_EQ(stage([](ScorchDelegate &d) { d.burnProgressIsVerifying(); }), "Verifying CD");
    EXPECT_DOUBLE_EQ(sheet()->progress(), 0.25);
}

TEST_F(Burning, ProgressMovesTheBarAndTellsTheTimeLeft) {
    openBurning();
    send(engine.audio(),
         [](ScorchDelegate &d) { d.burnProgressDidChanagedLefttime(0.25, UINT64_C(75) * 83); });
    EXPECT_DOUBLE_EQ(sheet()->progress(), 0.25);
    EXPECT_EQ(tips(), "Left time - 1:23");
    EXPECT_EQ(name(), "Burning 'Road %@ trip'");
    send(engine.audio(), [](ScorchDelegate &d) { d.burnProgressDidChanagedLefttime(1.5, 0); });
    EXPECT_DOUBLE_EQ(sheet()->progress(), 1.5) << "as it is";
}

TEST_F(Burning, NameIsReadAnewByEachCallback) {
    openBurning();
    volumeName()->setText(QStringLiteral("Other"));
    send(engine.audio(), [](ScorchDelegate &d) { d.burnProgressIsPreparing(); });
    EXPECT_EQ(name(), "Burning 'Other'");
}

TEST_F(Burning, DoneLeavesTheSheetWithOK) {
    openBurning();
    finish();
    EXPECT_TRUE(sheet()->isVisible());
    EXPECT_EQ(name(), "Finish burning");
    EXPECT_EQ(tips(), "Eject CD");
    EXPECT_DOUBLE_EQ(sheet()->progress(), 1.0);
    EXPECT_EQ(button()->text(), QStringLiteral("OK"));
    EXPECT_EQ(usage.keys().back(), "CDBurn_BurnOK");
    EXPECT_EQ(engine.audio().count("clearAll"), 1);
    EXPECT_EQ(rowCount(), 0);
    EXPECT_THAT(engine.ejected, IsEmpty());
    button()->click();
    EXPECT_FALSE(sheet()->isVisible());
    EXPECT_EQ(typePopup()->currentIndex(), 0);
}

TEST_F(Burning, DoneResetsThePopupAndNotTheBurner) {
    openWithBlankDisc();
    engine.data().append("File", 2048);
    chooseData();
    const QImage icon = find<QLabel>("_icon4CDType")->pixmap().toImage();
    startBurn();
    finish();
    EXPECT_EQ(typePopup()->currentText(), QStringLiteral("Audio CD"));
    EXPECT_EQ(infoTitle(), "Size");
    EXPECT_EQ(find<QLabel>("_icon4CDType")->pixmap().toImage(), icon);
    EXPECT_EQ(engine.data().count("clearAll"), 1);
    EXPECT_EQ(engine.audio().count("clearAll"), 0);
    usage.clear();
    startBurn();
    EXPECT_EQ(usage.keys().back(), "CDBurn_BurnStart_Audio") << "it is what the popup reads";
    chooseData();
    EXPECT_EQ(infoTitle(), "Size");
    chooseAudio();
    EXPECT_EQ(infoTitle(), "Time");
}

TEST_F(Burning, CancelAsksFirst) {
    openBurning();
    const AlertAnswer answer(QStringLiteral("No"));
    button()->click();
    EXPECT_EQ(answer.count(), 1);
    EXPECT_EQ(answer.message(), QStringLiteral("The disc may not be usable anymore. Are you sure "
                                               "you want to cancel?"));
    EXPECT_EQ(answer.informative(), QString());
    EXPECT_EQ(answer.icon(), QMessageBox::Information);
    EXPECT_EQ(answer.modality(), Qt::ApplicationModal);
    EXPECT_EQ(answer.defaultButton(), QStringLiteral("Yes"));
    EXPECT_EQ(answer.buttons().size(), 2);
    EXPECT_EQ(engine.audio().count("stopBurn"), 0);
    EXPECT_TRUE(button()->isEnabled());
    EXPECT_TRUE(sheet()->isVisible());
}

TEST_F(Burning, EscapeOnTheQuestionIsNo) {
    openBurning();
    const AlertAnswer answer([](QMessageBox *alert) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(alert, &escape);
    });
    button()->click();
    EXPECT_EQ(answer.count(), 1);
    EXPECT_EQ(engine.audio().count("stopBurn"), 0);
}

TEST_F(Burning, YesStopsOnceAndWaitsForTheEngine) {
    openBurning();
    const LogCatcher log;
    confirmCancel();
    EXPECT_EQ(engine.audio().count("stopBurn"), 1);
    EXPECT_FALSE(button()->isEnabled());
    EXPECT_TRUE(sheet()->isVisible());
    EXPECT_THAT(LogCatcher::lines(), ElementsAre("==>>cancel burning files, waiting..."));
    button()->click();
    sheet()->reject();
    EXPECT_EQ(engine.audio().count("stopBurn"), 1);
    send(engine.audio(), [](ScorchDelegate &d) { d.burnProgressDidCanceled(); });
    EXPECT_FALSE(sheet()->isVisible());
    EXPECT_EQ(usage.keys().back(), "CDBurn_BurnCancel");
    EXPECT_EQ(LogCatcher::lines().back(), "==>>cancel burning, you got this");
    EXPECT_EQ(rowCount(), 2) << "the list is kept";
}

TEST_F(Burning, DoneAfterYesLeavesOKDisabled) {
    openBurning();
    confirmCancel();
    finish();
    EXPECT_EQ(button()->text(), QStringLiteral("OK"));
    EXPECT_FALSE(button()->isEnabled());
}

TEST_F(Burning, NextStartEnablesTheButtonAgain) {
    openBurning();
    confirmCancel();
    send(engine.audio(), [](ScorchDelegate &d) { d.burnProgressDidCanceled(); });
    startBurn();
    EXPECT_TRUE(button()->isEnabled());
    EXPECT_EQ(button()->text(), QStringLiteral("Cancel"));
}

TEST_F(Burning, EndOfTheBurnWithdrawsTheQuestion) {
    openBurning();
    const AlertAnswer answer(
        [this](QMessageBox * /*alert*/) { engine.audio().delegate()->burnProgressDidDone(); });
    button()->click();
    EXPECT_EQ(answer.count(), 1);
    EXPECT_EQ(engine.audio().count("stopBurn"), 0);
    EXPECT_TRUE(sheet()->isVisible());
    EXPECT_EQ(button()->text(), QStringLiteral("OK"));
}

TEST_F(Burning, ErrorIsAnAlertAndALogLine) {
    openBurning();
    const LogCatcher log;
    const AlertAnswer answer(QStringLiteral("OK"));
    const ScorchError error(static_cast<ScorchErrorCode>(-5), "100 %@ <b>broken</b>");
    engine.audio().delegate()->burnProgressDidError(error);
    EXPECT_FALSE(sheet()->isVisible());
    EXPECT_EQ(usage.keys().back(), "CDBurn_BurnFail");
    EXPECT_THAT(LogCatcher::lines(), ElementsAre("==>>error burning: 100 %@ <b>broken</b>(-5)"));
    EXPECT_EQ(answer.count(), 0) << "the alert is queued";
    drainMainQueue();
    EXPECT_TRUE(runUntil([&answer] { return answer.count() == 1; }));
    EXPECT_EQ(answer.message(), QStringLiteral("Error"));
    EXPECT_EQ(answer.informative(), QStringLiteral("100 %@ <b>broken</b>"));
    EXPECT_EQ(answer.icon(), QMessageBox::Information);
    EXPECT_EQ(answer.buttons(), QStringList{QStringLiteral("OK")});
    EXPECT_EQ(rowCount(), 2);
    EXPECT_EQ(typePopup()->currentIndex(), 0);
}

TEST_F(Burning, ErrorWithoutASheetOnlyOrdersItOut) {
    openWithSongs(1);
    const LogCatcher log;
    const AlertAnswer answer(QStringLiteral("OK"));
    send(engine.audio(), [](ScorchDelegate &d) {
        d.burnProgressDidError(ScorchError(ScorchErrorCode::noDrive, "No drive."));
    });
    EXPECT_TRUE(runUntil([&answer] { return answer.count() == 1; }));
    EXPECT_THAT(LogCatcher::lines(), ElementsAre("==>>i am not a sheet, just order me out, thanks.",
                                                 "==>>error burning: No drive.(20)"));
}

TEST_F(Burning, AnswersAfterTheAlertReachTheBurnerThatBurns) {
    openWithBlankDisc();
    engine.data().append("File", 2048);
    chooseData();
    startBurn();
    confirmCancel();
    EXPECT_EQ(engine.data().count("stopBurn"), 1);
    EXPECT_EQ(engine.audio().count("stopBurn"), 0);
}

TEST_F(Burning, OtherTypesOfSheetAreNotCancelled) {
    openWithSongs(1);
    controller->progressDidCancel(ProgressWindow::closedType);
    EXPECT_THAT(engine.audio().calls, IsEmpty());
}

TEST_F(Burning, OKClosesTheSheetWhateverItStandsFor) {
    openBurning();
    controller->progressDidOK(ProgressWindow::addingFilesType);
    EXPECT_FALSE(sheet()->isVisible());
}

TEST_F(Burning, DrivesAndListsThatChangeLeaveTheSheetAlone) {
    openBurning();
    engine.removeDrive("Drive");
    controller->deviceDidDisappeared("Drive");
    controller->deviceDidAppeared("Other");
    controller->updateUI();
    EXPECT_TRUE(sheet()->isAttachedTo(controller->window()));
    EXPECT_EQ(tips(), "Start burning");
    EXPECT_TRUE(button()->isEnabled());
}

TEST_F(Burning, WindowOpenedDuringADataBurnFollowsAndStopsIt) {
    openWithSongs(1);
    usage.clear();
    engine.data().busy = true;
    send(engine.data(), [](ScorchDelegate &delegate) { delegate.burnProgressDidStarted(); });
    EXPECT_THAT(usage.keys(), ElementsAre("CDBurn_BurnStart", "CDBurn_BurnStart_Data"));
    EXPECT_EQ(typePopup()->currentText(), QStringLiteral("Data CD"));
    confirmCancel();
    EXPECT_THAT(engine.data().calls, testing::Contains("stopBurn").Times(1));
    EXPECT_THAT(engine.audio().calls, testing::Not(testing::Contains("stopBurn")));
}

TEST_F(Burning, EndOfADataBurnInANewWindowKeepsTheSongs) {
    openWithSongs(1);
    engine.data().busy = true;
    send(engine.data(), [](ScorchDelegate &delegate) { delegate.burnProgressDidStarted(); });
    send(engine.data(), [](ScorchDelegate &delegate) { delegate.burnProgressDidDone(); });
    EXPECT_THAT(engine.data().calls, testing::Contains("clearAll"));
    EXPECT_THAT(engine.audio().calls, testing::Not(testing::Contains("clearAll")));
}
