// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/controller/ControllerTest.h"

#include "CDBurnerPlugin/VXDragImageView.h"

#include <QThreadPool>

using testing::ElementsAre;

class SetUp : public ControllerTest {};

TEST_F(SetUp, WindowIsReadyWhileTheSearchForDrivesRuns) {
    engine.addDrive("Drive");
    engine.holdSearch();
    openWhileSearching();
    EXPECT_EQ(controller->window()->windowTitle(), QStringLiteral("CD Burner"));
    EXPECT_EQ(find<QLabel>("_txtDragHere")->text(), QStringLiteral("Drag music files here"));
    EXPECT_EQ(infoTitle(), "Time");
    EXPECT_TRUE(noneDevice()->isHidden());
    EXPECT_EQ(devicePopup()->count(), 0);
    EXPECT_FALSE(burnButton()->isEnabled());
    EXPECT_TRUE(engine.handles.empty());
}

TEST_F(SetUp, LongSearchForDrivesIsSpokenOf) {
    engine.holdSearch();
    openWhileSearching();
    EXPECT_EQ(tip(), "") << "a short one is not";
    EXPECT_TRUE(runUntil([this] { return tip() == "Looking for disc drives..."; }));
    engine.releaseSearch();
    EXPECT_TRUE(runUntil([this] { return tip() == "You should connect a disc drive!"; }));
}

TEST_F(SetUp, DrivesAreNeverAskedForHereBeforeTheFirstSearchIsDone) {
    engine.addDrive("Drive");
    engine.audio().append("Song", 75);
    engine.holdSearch();
    openWhileSearching();
    controller->updateUI();
    controller->updateDeviceStatus();
    EXPECT_EQ(engine.searchCountHere(), 0);
    engine.releaseSearch();
    EXPECT_TRUE(runUntil([this] { return !engine.handles.empty(); }));
    EXPECT_EQ(engine.searchCountElsewhere(), 1);
}

TEST_F(SetUp, PaintingGoesOnWhileTheSearchTakesItsTime) {
    // Painting large areas shares the thread pool, and waits for it.
    QThreadPool::globalInstance()->setMaxThreadCount(1);
    engine.holdSearch();
    openWhileSearching();
    controller->window()->resize(1600, 1200);
    EXPECT_TRUE(runUntil([this] { return engine.searchCountElsewhere() == 1; }));
    QPixmap picture(controller->window()->size());
    picture.fill(Qt::red);
    controller->window()->render(&picture);
    EXPECT_EQ(engine.finishedSearchCount(), 0);
}

TEST_F(SetUp, TypesAreAudioThenDataAndAudioIsCurrent) {
    open();
    EXPECT_EQ(typePopup()->count(), 2);
    EXPECT_EQ(typePopup()->itemText(0), QStringLiteral("Audio CD"));
    EXPECT_EQ(typePopup()->itemText(1), QStringLiteral("Data CD"));
    EXPECT_EQ(typePopup()->currentIndex(), 0);
    EXPECT_EQ(infoTitle(), "Time");
}

TEST_F(SetUp, WithoutDriveTheWindowSaysSoAndWatchesTheEmptyName) {
    open();
    EXPECT_TRUE(devicePopup()->isHidden());
    EXPECT_FALSE(noneDevice()->isHidden());
    EXPECT_EQ(noneDevice()->text(), QStringLiteral("Not found a disc drive."));
    EXPECT_EQ(tip(), "You should connect a disc drive!");
    EXPECT_EQ(usage.count("CDBurn_NoDrive"), 1);
    EXPECT_THAT(engine.handles, ElementsAre(""));
    EXPECT_EQ(engine.deviceDelegate(), controller.get());
}

TEST_F(SetUp, FirstOfTwoDrivesIsSelectedAndWatched) {
    engine.addDrive("First");
    engine.addDrive("Second");
    open();
    EXPECT_THAT(deviceTitles(), ElementsAre("First", "Second"));
    EXPECT_EQ(devicePopup()->currentIndex(), 0);
    EXPECT_TRUE(noneDevice()->isHidden());
    EXPECT_FALSE(devicePopup()->isHidden());
    EXPECT_THAT(engine.handles, ElementsAre("First"));
    EXPECT_EQ(engine.deviceDelegate(), controller.get());
    EXPECT_EQ(usage.count("CDBurn_NoDrive"), 0);
}

TEST_F(SetUp, BlankDiscIsReportedOnceForEachOpening) {
    openWithBlankDisc();
    EXPECT_EQ(usage.count("CDBurn_Blankdisk"), 1);
    controller->deviceStatusDidChanged();
    EXPECT_EQ(usage.count("CDBurn_Blankdisk"), 1);
}

TEST_F(SetUp, BlankDiscIsReportedWithoutAskingForADisc) {
    engine.addDrive("Drive").hasDisc = false;
    open();
    EXPECT_EQ(usage.count("CDBurn_Blankdisk"), 1);
}

TEST_F(SetUp, OtherDiscsAreNotReportedAsBlank) {
    engine.addDrive("Drive").isBlank = false;
    open();
    EXPECT_EQ(usage.count("CDBurn_Blankdisk"), 0);
}

TEST_F(SetUp, DeleteButtonIsThereAndHidden) {
    open();
    EXPECT_TRUE(deleteButton()->isHidden());
    EXPECT_EQ(deleteButton()->geometry(), QRect(0, 0, 18, 18));
    EXPECT_EQ(deleteButton()->parentWidget(), controller->window());
}

TEST_F(SetUp, ColumnsAreOfFixedWidthAndOrder) {
    open();
    const QHeaderView *const header = table()->horizontalHeader();
    EXPECT_NE(header->sectionResizeMode(FilesTableModel::filename), QHeaderView::Interactive);
    EXPECT_NE(header->sectionResizeMode(FilesTableModel::fileinfo), QHeaderView::Interactive);
    EXPECT_FALSE(header->sectionsMovable());
    EXPECT_EQ(table()->editTriggers(), QAbstractItemView::NoEditTriggers);
}

TEST_F(SetUp, ListTakesDropsUntilTheControllerIsGone) {
    open();
    FilesTableView *const view = table();
    const std::unique_ptr<MainWindow> window(controller->window());
    EXPECT_TRUE(view->acceptDrops());
    controller.reset();
    EXPECT_FALSE(view->acceptDrops());
    EXPECT_EQ(view->delegate(), nullptr);
}

TEST_F(SetUp, ItemsOfAnEarlierWindowAreShown) {
    engine.audio().append("Earlier", 75);
    open();
    EXPECT_EQ(rowCount(), 1);
    EXPECT_TRUE(find<VXDragImageView>("_dragImageView")->isHidden());
}

TEST_F(SetUp, NewWindowStartsOnAudioWhateverTheLastOneShowed) {
    open();
    chooseData();
    letGo();
    drainMainQueue();
    engine.handles.clear();
    open();
    EXPECT_EQ(typePopup()->currentIndex(), 0);
    EXPECT_EQ(infoTitle(), "Time");
}

TEST_F(SetUp, ClosingDuringTheSearchKeepsTheControllerUntilItIsDone) {
    engine.addDrive("Drive");
    engine.holdSearch();
    openWhileSearching();
    const std::weak_ptr<VXCDBurnerMainWindowController> watched = controller;
    letGo();
    EXPECT_FALSE(watched.expired());
    engine.releaseSearch();
    EXPECT_TRUE(runUntil([&watched] { return watched.expired(); }));
    EXPECT_EQ(usage.count("CDBurn_Blankdisk"), 1);
    EXPECT_EQ(engine.livingHandles, 0);
}

TEST_F(SetUp, ClosedWindowDoesNotTakeTheReportsOfDrivesFromItsSuccessor) {
    engine.addDrive("Drive");
    engine.holdSearch();
    openWhileSearching();
    const std::weak_ptr<VXCDBurnerMainWindowController> watched = controller;
    letGo();
    openWhileSearching();
    engine.releaseSearch();
    EXPECT_TRUE(runUntil([&] { return watched.expired() && engine.livingHandles == 1; }));
    drainMainQueue();
    EXPECT_EQ(engine.deviceDelegate(), controller.get());
}

TEST_F(SetUp, BurnersLetGoOfAControllerThatIsGone) {
    open();
    EXPECT_EQ(engine.audio().delegate(), controller.get());
    EXPECT_EQ(engine.data().delegate(), controller.get());
    letGo();
    EXPECT_EQ(engine.audio().delegate(), nullptr);
    EXPECT_EQ(engine.data().delegate(), nullptr);
    EXPECT_EQ(engine.deviceDelegate(), nullptr);
    EXPECT_EQ(engine.livingHandles, 0);
}
