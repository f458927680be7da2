// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "CDBurnerPlugin/FilesTableModel.h"
#include "CDBurnerPlugin/FilesTableView.h"
#include "tests/support/FakeEngine.h"

#include <QMimeData>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// Notes what a table tells it.
class TableRecorder : public FilesTableViewDelegate {
public:
    void tableViewMouseOverRow(FilesTableView * /*table*/, qint64 row) override {
        hovered.push_back(row);
    }
    void tableViewWillDeleteRowIndexes(FilesTableView * /*table*/, const IndexSet &rows) override {
        deleted.push_back(rows);
    }
    void tableViewMoveRowIndexesTo(FilesTableView * /*table*/, const IndexSet &rows,
                                   qint64 destination) override {
        moved.emplace_back(rows, destination);
    }
    bool tableViewWriteRowsWithIndexesToPasteboard(FilesTableView * /*table*/, const IndexSet &rows,
                                                   QMimeData *pasteboard) override {
        written.push_back(rows);
        pasteboard->setData(QLatin1String(FilesTableView::rowsMimeType), "rows");
        return canDrag;
    }
    Qt::DropAction tableViewValidateDrop(FilesTableView * /*table*/,
                                         const QMimeData & /*data*/) override {
        return canDrop ? Qt::CopyAction : Qt::IgnoreAction;
    }
    bool tableViewAcceptDropRow(FilesTableView * /*table*/, const QMimeData & /*data*/,
                                qint64 row) override {
        dropped.push_back(row);
        return takesDrop;
    }

    bool canDrag = true;
    bool canDrop = true;
    bool takesDrop = true;
    std::vector<qint64> hovered;
    std::vector<IndexSet> deleted;
    std::vector<std::pair<IndexSet, qint64>> moved;
    std::vector<IndexSet> written;
    std::vector<qint64> dropped;
};

/// A table over a burner of its own, with a recorder as its delegate.
struct TableFixture {
    explicit TableFixture(int rows = 0) {
        append(rows);
        table.filesModel()->setScorcher(burner, FileInfoKind::duration);
        table.setDelegate(&recorder);
        table.awakeFromNib();
        table.reloadData(); // As a window does before there is a row.
        table.resize(300, 240);
    }

    void append(int rows) {
        for (int i = 0; i < rows; ++i) {
            burner->append("song " + std::to_string(burner->numberOfChildrenOfBurnItem(nullptr)),
                           75);
        }
    }
    void keep(std::int64_t rows) {
        std::vector<BurnItemRef> items;
        for (std::int64_t i = rows; i < burner->numberOfChildrenOfBurnItem(nullptr); ++i) {
            items.push_back(burner->childOfBurnItem(i, nullptr));
        }
        burner->removeItems(items);
    }

    std::shared_ptr<FakeScorcher> burner = std::make_shared<FakeScorcher>();
    TableRecorder recorder;
    FilesTableView table;
};
