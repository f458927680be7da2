// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/SongListView.h"

#include "crate/SongModel.h"
#include "crate/Translation.h"

#include <QHeaderView>
#include <QStyledItemDelegate>

#include <algorithm>

namespace crate {

namespace {

/// In widths of a digit, so that it follows the font.
constexpr int textColumnDigits = 24;
constexpr int trackColumnDigits = 8;
constexpr int lengthColumnDigits = 11;

/// Above and below a text, so that lines can be told apart and hit.
constexpr int rowPadding = 4;

class SongDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return {size.width(), size.height() + 2 * rowPadding};
    }
};

} // namespace

SongListView::SongListView(SongModel *model, QWidget *parent) : QTreeView(parent), songs_(model) {
    setObjectName(QStringLiteral("songList"));
    setAccessibleName(translated("Songs"));
    setModel(model);
    setItemDelegate(new SongDelegate(this));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true); // Without it each of 20 000 rows is measured.
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setFrameShape(NoFrame);
    setTextElideMode(Qt::ElideRight);
    setVerticalScrollMode(ScrollPerPixel);
    setDragEnabled(true);
    setDragDropMode(DragOnly);
    setDefaultDropAction(Qt::CopyAction);
    setUpHeader();
}

void SongListView::setUpHeader() {
    QHeaderView *columns = header();
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    columns->setStretchLastSection(false);
    columns->setHighlightSections(false);
    columns->setSectionsMovable(true);
    columns->setFixedHeight(columns->sizeHint().height() + rowPadding);
    columns->setMinimumSectionSize(digit * trackColumnDigits / 2);
    for (int column = 0; column < songColumnCount; ++column) {
        columns->resizeSection(column, digit * textColumnDigits);
    }
    columns->resizeSection(static_cast<int>(SongColumn::track), digit * trackColumnDigits);
    columns->resizeSection(static_cast<int>(SongColumn::length), digit * lengthColumnDigits);
    columns->setSectionResizeMode(static_cast<int>(SongColumn::title), QHeaderView::Stretch);
    columns->setSortIndicator(static_cast<int>(SongColumn::artist), Qt::AscendingOrder);
    setSortingEnabled(true);
}

std::vector<int> SongListView::selectedRows() const {
    std::vector<int> rows;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.push_back(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

SongList SongListView::selectedSongs() const {
    SongList songs;
    for (const int row : selectedRows()) {
        songs.append(songs_->songAt(row).asSong());
    }
    return songs;
}

int SongListView::selectedCount() const {
    return static_cast<int>(selectedRows().size());
}

QByteArray SongListView::headerState() const {
    return header()->saveState();
}

void SongListView::restoreHeaderState(const QByteArray &state) {
    if (header()->restoreState(state)) {
        sortByColumn(header()->sortIndicatorSection(), header()->sortIndicatorOrder());
    }
}

} // namespace crate
