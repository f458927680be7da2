// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/SongListView.h"
#include "crate/SongModel.h"

#include "tests/crate/support/Songs.h"

#include <QAbstractItemModelTester>
#include <QItemSelectionModel>
#include <QMimeData>

#include <gmock/gmock.h>

#include <memory>

namespace {

using namespace std::chrono_literals;
using crate::SongColumn;
using crate::SongListView;
using crate::SongModel;
using crate::SongRow;
using testing::ElementsAre;

SongRow song(const char *artist, const char *title) {
    return songRow("/" + QByteArray(artist) + "/" + title, QString::fromUtf8(artist),
                   QString::fromUtf8(title));
}

class SongModelTest : public testing::Test {
protected:
    SongModelTest() {
        model_.addSongs({song("B", "two"), song("A", "one")});
        model_.addSongs({song("A", "three"), song("C", "one")});
    }

    std::vector<std::string> paths() const {
        std::vector<std::string> all;
        for (int row = 0; row < model_.rowCount(); ++row) {
            all.push_back(model_.songAt(row).path.toStdString());
        }
        return all;
    }

    QModelIndexList cells(std::initializer_list<int> rows) const {
        QModelIndexList list;
        for (const int row : rows) {
            list << model_.index(row, 0) << model_.index(row, 2);
        }
        return list;
    }

    SongModel model_;
    QAbstractItemModelTester tester_{&model_,
                                     QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(SongModelTest, PortionsAreSortedIntoOneList) {
    EXPECT_THAT(paths(), ElementsAre("/A/one", "/A/three", "/B/two", "/C/one"));
}

TEST_F(SongModelTest, ColumnsSortBothWays) {
    model_.sort(static_cast<int>(SongColumn::title), Qt::AscendingOrder);
    EXPECT_THAT(paths(), ElementsAre("/A/one", "/C/one", "/A/three", "/B/two"));
    model_.sort(static_cast<int>(SongColumn::title), Qt::DescendingOrder);
    EXPECT_THAT(paths(), ElementsAre("/B/two", "/A/three", "/C/one", "/A/one"));
    model_.addSongs({song("D", "twa")});
    EXPECT_THAT(paths(), ElementsAre("/B/two", "/D/twa", "/A/three", "/C/one", "/A/one"));
}

TEST_F(SongModelTest, SearchKeepsWhatMatchesAndWhatArrives) {
    model_.setSearch(QStringLiteral("  ONE "));
    EXPECT_THAT(paths(), ElementsAre("/A/one", "/C/one"));
    model_.addSongs({song("B", "one more"), song("B", "other")});
    EXPECT_THAT(paths(), ElementsAre("/A/one", "/B/one more", "/C/one"));
    EXPECT_EQ(model_.totalSongs(), 6U);
    model_.setSearch(QString());
    EXPECT_EQ(model_.rowCount(), 6);
}

TEST_F(SongModelTest, SearchKeepsTheSortOrder) {
    model_.sort(static_cast<int>(SongColumn::artist), Qt::DescendingOrder);
    model_.setSearch(QStringLiteral("one"));
    EXPECT_THAT(paths(), ElementsAre("/C/one", "/A/one"));
}

TEST_F(SongModelTest, SelectionStaysOnItsSongsWhenOthersArrive) {
    SongListView view(&model_);
    view.selectionModel()->select(model_.index(2, 0),
                                  QItemSelectionModel::Select | QItemSelectionModel::Rows);
    model_.addSongs({song("A", "zero"), song("B", "a")});
    EXPECT_THAT(view.selectedSongs(),
                ElementsAre(Song{"/B/two", QStringLiteral("B"), QStringLiteral("two")}));
}

TEST_F(SongModelTest, RowsAreDraggedAsASongListAlone) {
    const std::unique_ptr<QMimeData> data(model_.mimeData(cells({0, 3})));
    ASSERT_NE(data, nullptr);
    EXPECT_THAT(data->formats(), ElementsAre(QStringLiteral("CrateSongItemType")));
    EXPECT_THAT(model_.mimeTypes(), ElementsAre(QStringLiteral("CrateSongItemType")));
    EXPECT_FALSE(data->hasUrls() || data->hasText());
    for (int row = 0; row < model_.rowCount(); ++row) {
        EXPECT_TRUE(model_.flags(model_.index(row, 0)).testFlag(Qt::ItemIsDragEnabled));
    }
    EXPECT_EQ(model_.supportedDragActions(), Qt::CopyAction);
}

TEST_F(SongModelTest, DragHasEachSongOnceFromTopToBottom) {
    const std::unique_ptr<QMimeData> data(model_.mimeData(cells({3, 0, 2})));
    const auto songs = decodeSongList(data->data(QStringLiteral("CrateSongItemType")));
    ASSERT_TRUE(songs);
    EXPECT_EQ(*songs, (SongList{{"/A/one", QStringLiteral("A"), QStringLiteral("one")},
                                {"/B/two", QStringLiteral("B"), QStringLiteral("two")},
                                {"/C/one", QStringLiteral("C"), QStringLiteral("one")}}));
}

TEST_F(SongModelTest, DragOfNothingIsNoDrag) {
    EXPECT_EQ(model_.mimeData({}), nullptr);
}

TEST_F(SongModelTest, ClearedModelIsEmpty) {
    int changes = 0;
    QObject::connect(&model_, &SongModel::contentChanged, [&changes] { ++changes; });
    model_.clear();
    EXPECT_EQ(model_.rowCount(), 0);
    EXPECT_EQ(model_.totalSongs(), 0U);
    EXPECT_EQ(changes, 1);
}

TEST(SongModelLength, IsOfTheSongsThatAreShown) {
    SongModel model;
    crate::LibrarySong known = librarySong("/a", {}, QStringLiteral("a"));
    known.length = 90s;
    model.addSongs({songRow(known), song("B", "unknown length")});
    EXPECT_EQ(model.visibleLength(), 90s);
    model.setSearch(QStringLiteral("unknown"));
    EXPECT_EQ(model.visibleLength(), 0s);
}

TEST(SongModelCells, SayWhatTheSongSays) {
    SongModel model;
    crate::LibrarySong full = librarySong("/x/a.flac", QStringLiteral("A"), QStringLiteral("T"));
    full.album = QStringLiteral("L");
    full.track = 3;
    full.length = 61s;
    model.addSongs({songRow(full)});
    const auto cell = [&model](SongColumn column) {
        return model.index(0, static_cast<int>(column)).data().toString();
    };
    EXPECT_EQ(cell(SongColumn::title), QStringLiteral("T"));
    EXPECT_EQ(cell(SongColumn::artist), QStringLiteral("A"));
    EXPECT_EQ(cell(SongColumn::album), QStringLiteral("L"));
    EXPECT_EQ(cell(SongColumn::track), QStringLiteral("3"));
    EXPECT_EQ(cell(SongColumn::length), QStringLiteral("1:01"));
    EXPECT_EQ(model.index(0, 0).data(Qt::ToolTipRole).toString(), QStringLiteral("/x/a.flac"));
}

TEST(SongListViewHeader, StateComesBackAndJunkChangesNothing) {
    SongModel model;
    SongListView first(&model);
    first.sortByColumn(static_cast<int>(SongColumn::length), Qt::DescendingOrder);
    const QByteArray state = first.headerState();
    model.addSongs({song("A", "a"), song("B", "b")});
    SongListView second(&model);
    second.restoreHeaderState("junk");
    EXPECT_EQ(model.songAt(0).artist, QStringLiteral("A"));
    second.restoreHeaderState(state);
    EXPECT_EQ(second.headerState(), state);
    EXPECT_EQ(model.songAt(0).artist, QStringLiteral("B"));
}

} // namespace
