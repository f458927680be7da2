// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/controller/ControllerTest.h"

#include "CDBurnerPlugin/RowIndexSetCodec.h"

#include <QMimeData>
#include <QScrollBar>
#include <QTest>

using testing::ElementsAre;

namespace {

QMimeData *filesData(const QByteArray &list) {
    auto *const data = new QMimeData;
    data->setData(QStringLiteral("text/uri-list"), list);
    return data;
}

struct Drop {
    bool isWritten = false;
    bool isAccepted = false;
    Qt::DropAction action = Qt::IgnoreAction;
    QStringList formats;
};

/// Stands between table and controller while rows are picked up, and drops them at once: that is
/// when the table says that its own rows are being dragged.
class PickedUp final : public FilesTableViewDelegate {
public:
    PickedUp(VXCDBurnerMainWindowController &controller, qint64 row)
        : controller_(controller), row_(row) {}

    bool tableViewWriteRowsWithIndexesToPasteboard(FilesTableView *table, const IndexSet &rows,
                                                   QMimeData *pasteboard) override {
        drop.isWritten =
            controller_.tableViewWriteRowsWithIndexesToPasteboard(table, rows, pasteboard);
        drop.formats = pasteboard->formats();
        drop.action = controller_.tableViewValidateDrop(table, *pasteboard);
        drop.isAccepted = controller_.tableViewAcceptDropRow(table, *pasteboard, row_);
        return false; // And no drag after all.
    }

    Drop drop;

private:
    VXCDBurnerMainWindowController &controller_;
    qint64 row_;
};

struct DragStarter : FilesTableView {
    static constexpr auto start = &DragStarter::startDrag;
};

} // namespace

class BurnList : public ControllerTest {
protected:
    /// Selects rows, picks them up and drops them at an insertion point.
    Drop dragRows(const IndexSet &rows, qint64 row) {
        table()->selectRowIndexes(rows);
        PickedUp drag(*controller, row);
        table()->setDelegate(&drag);
        (table()->*DragStarter::start)(Qt::CopyAction);
        table()->setDelegate(controller.get());
        return drag.drop;
    }
    void deleteRows(const IndexSet &rows) {
        table()->selectRowIndexes(rows);
        QTest::keyClick(table(), Qt::Key_Delete);
    }
    QRect expectedButton(qint64 row) {
        const QRect place = table()->rectOfRow(row);
        const QPoint corner = table()->viewport()->mapTo(controller->window(), place.topLeft());
        return {corner.x() + place.width() - 22, corner.y() + (place.height() - 22) / 2, 22, 22};
    }
    bool accept(QMimeData *data, qint64 row = 0) {
        const std::unique_ptr<QMimeData> owned(data);
        return controller->tableViewAcceptDropRow(table(), *data, row);
    }
    Qt::DropAction validate(QMimeData *data) {
        const std::unique_ptr<QMimeData> owned(data);
        return controller->tableViewValidateDrop(table(), *data);
    }
};

TEST_F(BurnList, RowsAreTheEnginesItems) {
    openWithSongs(3);
    const FilesTableModel *const model = table()->filesModel();
    EXPECT_EQ(model->objectValue(QStringLiteral("kFilename"), 1).toString(),
              QStringLiteral("Song 2"));
    EXPECT_EQ(model->objectValue(QStringLiteral("kFileinfo"), 1).toLongLong(), 150);
    EXPECT_EQ(model->objectValue(QStringLiteral("other"), 1).toString(), QString());
}

struct MoveCase {
    const char *name;
    IndexSet rows;
    qint64 destination;
    IndexSet selected;

    friend std::ostream &operator<<(std::ostream &stream, const MoveCase &move) {
        return stream << move.name;
    }
};

class BurnListMove : public BurnList, public testing::WithParamInterface<MoveCase> {};

TEST_P(BurnListMove, AsksTheEngineAndSelectsWhereTheBlockLands) {
    openWithSongs(8);
    const Drop drag = dragRows(GetParam().rows, GetParam().destination);
    EXPECT_TRUE(drag.isAccepted);
    EXPECT_THAT(engine.audio().moves,
                ElementsAre(std::pair(GetParam().rows, std::int64_t(GetParam().destination))));
    EXPECT_EQ(table()->selectedRowIndexes(), GetParam().selected);
}

INSTANTIATE_TEST_SUITE_P(Examples, BurnListMove,
                         testing::Values(MoveCase{"DownPastOthers", {1, 2}, 5, {3, 4}},
                                         MoveCase{"UpPastOthers", {4, 5}, 1, {1, 2}},
                                         MoveCase{"JustAboveItself", {3}, 3, {2}},
                                         MoveCase{"JustBelowItself", {3}, 4, {3}},
                                         MoveCase{"FromBothSides", {1, 6}, 3, {3, 4}},
                                         MoveCase{"FirstRowAboveItself", {0}, 0, {0}},
                                         MoveCase{"FirstRowsAmongThemselves", {0, 1}, 1, {0, 1}},
                                         MoveCase{"BeyondTheEnd", {0, 1, 7}, 6, {5, 6, 7}}),
                         [](const auto &testInfo) { return std::string(testInfo.param.name); });

TEST_F(BurnList, DraggedRowsCarryOneFormatAndAreAnnouncedAsACopy) {
    openWithSongs(3);
    const Drop drag = dragRows({1}, 0);
    EXPECT_TRUE(drag.isWritten);
    EXPECT_EQ(drag.formats, QStringList{QStringLiteral("SelfDataSourceItemType")});
    EXPECT_EQ(drag.action, Qt::CopyAction);
}

TEST_F(BurnList, MoveReloadsTheTableAndNothingElse) {
    openWithSongs(3);
    dragRows({2}, 0);
    const int asked = engine.audio().usedCapacityCount;
    send(engine.audio(), [](ScorchDelegate &delegate) { delegate.burnItemDidSorted(); });
    EXPECT_THAT(engine.audio().names(), ElementsAre("Song 3", "Song 1", "Song 2"));
    EXPECT_EQ(engine.audio().usedCapacityCount, asked);
    EXPECT_EQ(table()->selectedRowIndexes(), IndexSet{0});
}

TEST_F(BurnList, KeyboardMovesTheSelectedRows) {
    openWithSongs(3);
    table()->selectRowIndexes({2});
    QTest::keyClick(table(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_THAT(engine.audio().names(), ElementsAre("Song 1", "Song 3", "Song 2"));
    EXPECT_EQ(table()->selectedRowIndexes(), IndexSet{1});
}

TEST_F(BurnList, RowsOfAnotherListAreNoData) {
    openWithSongs(3);
    const auto foreign = [] {
        auto *const data = new QMimeData;
        data->setData(QStringLiteral("SelfDataSourceItemType"), encodeRowIndexSet({1}));
        return data;
    };
    EXPECT_EQ(validate(foreign()), Qt::IgnoreAction);
    EXPECT_FALSE(accept(foreign()));
    EXPECT_TRUE(engine.audio().moves.empty());
}

TEST_F(BurnList, FilesAreAddedWhereverTheyAreDropped) {
    openWithSongs(3);
    EXPECT_EQ(validate(filesData("file:///m/a\r\n")), Qt::CopyAction);
    EXPECT_TRUE(accept(filesData("file:///m/a\r\nhttps://example.org/b\r\nfile:///m/%ff\r\n"), 2));
    ASSERT_EQ(engine.audio().addedFiles.size(), 1U);
    ASSERT_EQ(engine.audio().addedFiles[0].size(), 2U);
    EXPECT_EQ(engine.audio().addedFiles[0][0].path, "/m/a");
    EXPECT_EQ(engine.audio().addedFiles[0][1].path.native(), "/m/\xff");
    EXPECT_TRUE(engine.audio().moves.empty());
}

TEST_F(BurnList, SongsOfTheHostAreAdded) {
    openWithSongs(1);
    auto *const data = new QMimeData;
    data->setData(QLatin1String(songListMimeType),
                  encodeSongList({{"/m/a", QStringLiteral("Artist"), {}}}));
    EXPECT_TRUE(accept(data));
    EXPECT_EQ(engine.audio().addedFiles.at(0).at(0).artist, "Artist");
}

TEST_F(BurnList, DropWithoutAnythingToAddIsRefused) {
    openWithSongs(1);
    EXPECT_FALSE(accept(filesData("smb://server/a\r\n")));
    auto *const damaged = new QMimeData;
    damaged->setData(QLatin1String(songListMimeType), "\x9b\xff\xff");
    EXPECT_FALSE(accept(damaged));
    EXPECT_FALSE(accept(new QMimeData));
    EXPECT_TRUE(engine.audio().addedFiles.empty());
}

TEST_F(BurnList, DropIsRefusedWhereTheEngineRefuses) {
    openWithSongs(1);
    engine.audio().acceptsFiles = false;
    EXPECT_FALSE(accept(filesData("file:///m/a\r\n")));
}

TEST_F(BurnList, NothingIsTakenWhileTheSheetIsUp) {
    openWithSongs(1);
    startBurn();
    EXPECT_EQ(validate(filesData("file:///m/a\r\n")), Qt::IgnoreAction);
}

TEST_F(BurnList, NothingIsTakenWhileAnotherWindowIsModal) {
    openWithSongs(1);
    QDialog modal;
    modal.setModal(true);
    modal.show();
    EXPECT_EQ(validate(filesData("file:///m/a\r\n")), Qt::IgnoreAction);
}

TEST_F(BurnList, OtherFormatsAreNotTaken) {
    openWithSongs(1);
    auto *const text = new QMimeData;
    text->setText(QStringLiteral("/m/a"));
    EXPECT_EQ(validate(text), Qt::IgnoreAction);
}

TEST_F(BurnList, DeleteButtonFloatsOverTheEndOfItsRow) {
    openWithSongs(3);
    controller->tableViewMouseOverRow(table(), 1);
    EXPECT_FALSE(deleteButton()->isHidden());
    EXPECT_EQ(deleteButton()->geometry(), expectedButton(1));
    controller->tableViewMouseOverRow(table(), -1);
    EXPECT_TRUE(deleteButton()->isHidden());
}

TEST_F(BurnList, DeleteButtonRemovesItsRowWhateverIsSelected) {
    openWithSongs(3);
    const BurnItemRef item = engine.audio().childOfBurnItem(1, nullptr);
    table()->selectRowIndexes({0, 2});
    controller->tableViewMouseOverRow(table(), 1);
    deleteButton()->click();
    EXPECT_THAT(engine.audio().removed, ElementsAre(std::vector<BurnItemRef>{item}));
    EXPECT_FALSE(deleteButton()->isHidden()) << "it is over the row that moved up";
}

TEST_F(BurnList, DeleteButtonOverTheLastRowHides) {
    openWithSongs(3);
    controller->tableViewMouseOverRow(table(), 2);
    deleteButton()->click();
    EXPECT_TRUE(deleteButton()->isHidden());
    EXPECT_EQ(engine.audio().count("removeItem"), 1);
}

TEST_F(BurnList, DeleteButtonKeepsTheSameSongsSelected) {
    openWithSongs(6);
    table()->selectRowIndexes({0, 3, 4});
    controller->tableViewMouseOverRow(table(), 1);
    deleteButton()->click();
    EXPECT_EQ(table()->selectedRowIndexes(), (IndexSet{0, 2, 3}));
    send(engine.audio(), [](ScorchDelegate &delegate) { delegate.burnItemDidDelete(nullptr); });
    EXPECT_EQ(table()->selectedRowIndexes(), (IndexSet{0, 2, 3}));
    EXPECT_EQ(rowCount(), 5);
}

TEST_F(BurnList, TwoClicksBeforeTheEngineAnswersKeepTheSameSongsSelected) {
    openWithSongs(6);
    table()->selectRowIndexes({4});
    controller->tableViewMouseOverRow(table(), 1);
    deleteButton()->click();
    deleteButton()->click();
    for (int answer = 0; answer < 2; ++answer) {
        send(engine.audio(), [](ScorchDelegate &delegate) { delegate.burnItemDidDelete(nullptr); });
    }
    EXPECT_THAT(engine.audio().names(), ElementsAre("Song 1", "Song 4", "Song 5", "Song 6"));
    EXPECT_EQ(table()->selectedRowIndexes(), IndexSet{2});
}

TEST_F(BurnList, ASelectedRowThatItsButtonRemovesLeavesNoOtherSelected) {
    openWithSongs(3);
    table()->selectRowIndexes({1});
    controller->tableViewMouseOverRow(table(), 1);
    deleteButton()->click();
    EXPECT_EQ(table()->selectedRowIndexes(), IndexSet{});
}

TEST_F(BurnList, TheOtherBurnersListStartsAtItsTopWithNothingSelected) {
    for (int number = 0; number < 100; ++number) {
        engine.data().append("file", 1);
    }
    openWithSongs(100);
    table()->selectRowIndexes({50});
    table()->verticalScrollBar()->setValue(400);
    chooseData();
    QApplication::processEvents();
    EXPECT_EQ(table()->selectedRowIndexes(), IndexSet{});
    EXPECT_EQ(table()->verticalScrollBar()->value(), 0);
}

TEST_F(BurnList, ButtonThatIsLeftOverAnEmptyListDoesNothing) {
    openWithSongs(2);
    deleteRows({0, 1});
    const int outside = engine.audio().childOutsideCount;
    deleteButton()->click();
    EXPECT_EQ(engine.audio().count("removeItem"), 0);
    EXPECT_EQ(engine.audio().childOutsideCount, outside);
}

TEST_F(BurnList, DeleteKeyRemovesTheSelectionInOneCall) {
    openWithSongs(6);
    deleteRows({1, 2, 4});
    ASSERT_EQ(engine.audio().removed.size(), 1U);
    EXPECT_EQ(engine.audio().removed[0].size(), 3U);
    EXPECT_THAT(engine.audio().names(), ElementsAre("Song 1", "Song 4", "Song 6"));
    EXPECT_EQ(table()->selectedRowIndexes(), IndexSet{1});
    EXPECT_EQ(deleteButton()->geometry(), expectedButton(1));
    send(engine.audio(), [](ScorchDelegate &delegate) { delegate.burnItemsDidDelete({}); });
    EXPECT_EQ(rowCount(), 3);
    EXPECT_EQ(table()->selectedRowIndexes(), IndexSet{1});
}

TEST_F(BurnList, RemovingTheEndSelectsTheNewLastRow) {
    openWithSongs(4);
    deleteRows({2, 3});
    send(engine.audio(), [](ScorchDelegate &delegate) { delegate.burnItemsDidDelete({}); });
    EXPECT_EQ(table()->selectedRowIndexes(), IndexSet{1});
}

TEST_F(BurnList, RemovingEverythingPlacesTheButtonForTheFirstRemovedRow) {
    openWithSongs(3);
    deleteRows({1, 2});
    send(engine.audio(), [](ScorchDelegate &delegate) { delegate.burnItemsDidDelete({}); });
    deleteRows({0});
    EXPECT_FALSE(deleteButton()->isHidden());
    EXPECT_EQ(deleteButton()->geometry(), expectedButton(0));
    send(engine.audio(), [](ScorchDelegate &delegate) { delegate.burnItemsDidDelete({}); });
    EXPECT_EQ(rowCount(), 0);
    EXPECT_EQ(table()->selectedRowIndexes(), IndexSet{});
}

TEST_F(BurnList, DeleteKeyWithoutSelectionDoesNothing) {
    openWithSongs(2);
    deleteRows({});
    EXPECT_TRUE(engine.audio().removed.empty());
}

TEST_F(BurnList, RowsThatTheListHasLostAreNotAskedFor) {
    openWithSongs(2);
    engine.audio().clearAll(); // Its callback is still on its way; the table shows two rows.
    const int outside = engine.audio().childOutsideCount;
    controller->tableViewWillDeleteRowIndexes(table(), {0, 1});
    EXPECT_EQ(engine.audio().childOutsideCount, outside);
}

TEST_F(BurnList, RemovalRefreshesTheWindow) {
    openWithSongs(1);
    engine.audio().clearAll();
    send(engine.audio(), [](ScorchDelegate &delegate) { delegate.burnItemDidDelete(nullptr); });
    EXPECT_EQ(rowCount(), 0);
    EXPECT_FALSE(burnButton()->isEnabled());
}
