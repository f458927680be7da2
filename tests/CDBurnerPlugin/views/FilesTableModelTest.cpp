// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/FilesTableModel.h"
#include "tests/support/FakeEngine.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QMimeData>
#include <QPersistentModelIndex>
#include <QSignalSpy>

namespace {

class FilesTableModelTest : public testing::Test {
protected:
    FilesTableModelTest() { show(FileInfoKind::duration); }

    void show(FileInfoKind kind) {
        model_.setScorcher(burner_, kind);
        model_.reloadData();
    }
    QString textAt(int row, int column) const {
        return model_.data(model_.index(row, column), Qt::DisplayRole).toString();
    }

    std::shared_ptr<FakeScorcher> burner_ = std::make_shared<FakeScorcher>();
    FilesTableModel model_;
    QAbstractItemModelTester tester_{&model_,
                                     QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(FilesTableModelTest, RowsAreTheBurnersListOnceReloaded) {
    burner_->append("b", 75);
    burner_->append("a", 75);
    EXPECT_EQ(model_.rowCount(), 0);
    model_.reloadData();
    EXPECT_EQ(model_.rowCount(), 2);
    EXPECT_EQ(textAt(0, 0), QStringLiteral("b"));
    EXPECT_EQ(textAt(1, 0), QStringLiteral("a"));
}

TEST_F(FilesTableModelTest, InfoIsTheDurationOrTheSize) {
    burner_->append("a", 79 * 60 * 75 + 57 * 75);
    model_.reloadData();
    EXPECT_EQ(textAt(0, 1), QStringLiteral("79:57"));
    show(FileInfoKind::fileSize);
    EXPECT_EQ(textAt(0, 1), QStringLiteral("359.8 kB"));
}

TEST_F(FilesTableModelTest, ValuesAreThePropertiesUnchanged) {
    burner_->append("a", 1234);
    EXPECT_EQ(model_.objectValue(QStringLiteral("kFilename"), 0), QStringLiteral("a"));
    EXPECT_EQ(model_.objectValue(QStringLiteral("kFileinfo"), 0), QVariant(qint64{1234}));
}

TEST_F(FilesTableModelTest, AnyOtherColumnIsEmptyText) {
    burner_->append("a", 1234);
    const QVariant value = model_.objectValue(QStringLiteral("kSomething"), 0);
    EXPECT_EQ(value.metaType().id(), QMetaType::QString);
    EXPECT_EQ(value.toString(), QString());
}

TEST_F(FilesTableModelTest, ARowThatIsGoneIsNotShownBeforeTheReload) {
    const BurnItemRef item = burner_->append("a", 75);
    model_.reloadData();
    burner_->removeItem(item);
    EXPECT_EQ(model_.rowCount(), 1);
    EXPECT_EQ(textAt(0, 0), QString());
    EXPECT_EQ(textAt(0, 1), QString());
    EXPECT_EQ(burner_->childOutsideCount, 0); // Nor asked for.
    model_.reloadData();
    EXPECT_EQ(model_.rowCount(), 0);
}

TEST_F(FilesTableModelTest, AReloadTellsOfRowsAtTheEndAndOfChangesBefore) {
    burner_->append("a", 75);
    model_.reloadData();
    burner_->append("b", 75);
    burner_->append("c", 75);
    const QSignalSpy inserted(&model_, &QAbstractItemModel::rowsInserted);
    const QSignalSpy changed(&model_, &QAbstractItemModel::dataChanged);
    const QSignalSpy reset(&model_, &QAbstractItemModel::modelReset);
    model_.reloadData();
    ASSERT_EQ(inserted.size(), 1);
    EXPECT_EQ(inserted[0][1].toInt(), 1);
    EXPECT_EQ(inserted[0][2].toInt(), 2);
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed[0][1].toModelIndex().row(), 0);
    EXPECT_EQ(reset.size(), 0);
}

/// Without the model tester, which expects a row that leaves to have its data until then: here the
/// burner has given it up before.
struct LeavingRow : testing::Test {
    LeavingRow() {
        for (const char *name : {"a", "b", "c"}) {
            burner->append(name, 75);
        }
        model.setScorcher(burner, FileInfoKind::duration);
        model.reloadData();
    }

    std::shared_ptr<FakeScorcher> burner = std::make_shared<FakeScorcher>();
    FilesTableModel model;
};

TEST_F(LeavingRow, IsTakenOutInItsPlace) {
    const QPersistentModelIndex last = model.index(2, 0);
    burner->removeItem(burner->childOfBurnItem(1, nullptr));
    model.rowDidLeave(1);
    EXPECT_EQ(last.row(), 1);
    EXPECT_EQ(model.rowCount(), 2);
}

TEST_F(LeavingRow, StaysWhereTheBurnerStillHasIt) {
    model.rowDidLeave(0);
    EXPECT_EQ(model.rowCount(), 3);
}

TEST_F(LeavingRow, IsIgnoredWhereTheViewHasNone) {
    burner->removeItem(burner->childOfBurnItem(1, nullptr));
    model.rowDidLeave(3);
    model.rowDidLeave(-1);
    EXPECT_EQ(model.rowCount(), 3);
}

TEST_F(FilesTableModelTest, RowsOfAnotherBurnerAreNewOnes) {
    burner_->append("a", 75);
    model_.reloadData();
    const QPersistentModelIndex first = model_.index(0, 0);
    const auto other = std::make_shared<FakeScorcher>();
    other->append("b", 75);
    model_.setScorcher(burner_, FileInfoKind::fileSize);
    EXPECT_TRUE(first.isValid());
    model_.setScorcher(other, FileInfoKind::fileSize);
    EXPECT_FALSE(first.isValid());
    model_.reloadData();
    EXPECT_EQ(textAt(0, 0), QStringLiteral("b"));
}

TEST(FilesTableModel, AReloadOfTheSameRowsAsksTheEngineForTheirNumberAlone) {
    const auto burner = std::make_shared<FakeScorcher>();
    for (int i = 0; i < 1000; ++i) {
        burner->append("a", 75);
    }
    FilesTableModel model;
    model.setScorcher(burner, FileInfoKind::duration);
    model.reloadData();
    model.reloadData();
    EXPECT_EQ(burner->childCount, 0);
}

TEST_F(FilesTableModelTest, NoBurnerIsAnEmptyList) {
    burner_->append("a", 75);
    model_.reloadData();
    model_.setScorcher(nullptr, FileInfoKind::duration);
    EXPECT_EQ(textAt(0, 0), QString());
    model_.reloadData();
    EXPECT_EQ(model_.rowCount(), 0);
}

TEST_F(FilesTableModelTest, InfoIsAlignedRight) {
    burner_->append("a", 75);
    model_.reloadData();
    const auto alignment = [this](int column) {
        return Qt::Alignment(model_.data(model_.index(0, column), Qt::TextAlignmentRole).toInt());
    };
    EXPECT_TRUE(alignment(0).testFlag(Qt::AlignLeft));
    EXPECT_TRUE(alignment(1).testFlag(Qt::AlignRight));
}

TEST_F(FilesTableModelTest, HeadersAreSetByColumn) {
    model_.setHeaderTitle(QStringLiteral("kFileinfo"), QStringLiteral("Time"));
    model_.setHeaderTitle(QStringLiteral("kOther"), QStringLiteral("x"));
    EXPECT_EQ(model_.headerData(1, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("Time"));
    EXPECT_EQ(model_.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), QString());
}

TEST_F(FilesTableModelTest, CellsAreNotEdited) {
    burner_->append("a", 75);
    model_.reloadData();
    EXPECT_FALSE(model_.flags(model_.index(0, 0)).testFlag(Qt::ItemIsEditable));
}

TEST_F(FilesTableModelTest, ARefusedDragCarriesNothing) {
    burner_->append("a", 75);
    model_.reloadData();
    EXPECT_EQ(model_.mimeData({model_.index(0, 0)}), nullptr);
    IndexSet asked;
    model_.setRowWriter([&asked](const IndexSet &rows, QMimeData *) {
        asked = rows;
        return false;
    });
    EXPECT_EQ(model_.mimeData({model_.index(0, 0), model_.index(0, 1)}), nullptr);
    EXPECT_EQ(asked, IndexSet{0});
}

} // namespace
