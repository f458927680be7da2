// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/FilesTableView.h"

#include "CDBurnerPlugin/FilesTableHeader.h"
#include "CDBurnerPlugin/FilesTableItemDelegate.h"
#include "CDBurnerPlugin/FilesTableModel.h"
#include "CDBurnerPlugin/HoverTracker.h"
#include "CDBurnerPlugin/ResourceLocator.h"
#include "engine/ScorchString.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace {

const QColor rowColor(0xff, 0xff, 0xff);
const QColor alternateRowColor(0xf3, 0xf6, 0xfa);
const QColor rowTextColor(0x1e, 0x24, 0x2c);

/// Shared by all tables; read once.
ResourceImage &bgImage() {
    static ResourceImage image;
    return image;
}

/// The pattern on a colour: the picture is translucent, so that it suits light and dark themes.
QBrush patternBrush(const QColor &ground, double scale) {
    const QImage &pattern = bgImage().forRatio(scale);
    QImage tile(pattern.size(), QImage::Format_RGB32);
    tile.setDevicePixelRatio(pattern.devicePixelRatio());
    tile.fill(ground);
    QPainter painter(&tile);
    painter.drawImage(0, 0, pattern);
    painter.end();
    return tile;
}

} // namespace

FilesTableView::FilesTableView(QWidget *parent)
    : QTableView(parent), filesModel_(new FilesTableModel(this)) {
    filesModel_->setRowWriter([this](const IndexSet &rows, QMimeData *pasteboard) {
        return delegate() != nullptr &&
               delegate()->tableViewWriteRowsWithIndexesToPasteboard(this, rows, pasteboard);
    });
    setHorizontalHeader(new FilesTableHeader(deleteButtonSize, this));
    setItemDelegate(new FilesTableItemDelegate(deleteButtonSize, this));
    setModel(filesModel_);
    connect(filesModel_, &QAbstractItemModel::modelReset, this, [this] {
        scrollToTop();
        hoverAgain(); // The row under the pointer is another list's now.
    });
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setDragEnabled(true);
    setDragDropMode(DragDrop);
    setDragDropOverwriteMode(false);
    setDropIndicatorShown(false);
    setAcceptDrops(false);
    setUpColumns();
    hoverTracker_ = new HoverTracker(viewport(), {[this](const QPoint &point) {
                                                      if (!isDragFromHere_) {
                                                          mouseMoved(point);
                                                      }
                                                  },
                                                  [this] {
                                                      mouseExited();
                                                  }});
}

FilesTableView::~FilesTableView() = default;

void FilesTableView::setUpColumns() {
    horizontalHeader()->setSectionResizeMode(FilesTableModel::filename, QHeaderView::Stretch);
    horizontalHeader()->setSectionResizeMode(FilesTableModel::fileinfo, QHeaderView::Fixed);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    fitToFont();
}

void FilesTableView::fitToFont() {
    constexpr int roomAboveAndBelow = 8;
    constexpr int roomAroundText = 24;
    const QFontMetrics metrics(font());
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(
        std::max(metrics.height() + roomAboveAndBelow, deleteButtonSize + 4));
    constexpr std::int64_t longestSize = 888'800'000;
    const QString title =
        filesModel_->headerData(FilesTableModel::fileinfo, Qt::Horizontal, Qt::DisplayRole)
            .toString();
    const int textWidth =
        std::max(metrics.horizontalAdvance(QString::fromStdString(stringWithFilesize(longestSize))),
                 QFontMetrics(horizontalHeader()->font()).horizontalAdvance(title));
    horizontalHeader()->resizeSection(FilesTableModel::fileinfo,
                                      textWidth + deleteButtonSize + roomAroundText);
}

void FilesTableView::awakeFromNib() {
    _previousRow = -1;
    if (bgImage().isNull()) {
        bgImage() = ResourceLocator::imageNamed(QStringLiteral("table_bgcolor"));
        setAlternatingRowColors(false);
        if (bgImage().isNull()) {
            return;
        }
    }
    setBackground(Background::pattern);
    // On although the list is empty: the first reload reads it as "not yet the empty look".
    setAlternatingRowColors(true);
}

void FilesTableView::reloadData() {
    filesModel_->reloadData();
    const bool hasRows = filesModel_->rowCount() >= 1;
    if (!hasRows && _previousRow >= 0) {
        hoverAgain(); // The pointer rests, and there is no row under it any more.
    }
    if (hasRows == usesAlternatingRowBackgroundColors() || (!hasRows && bgImage().isNull())) {
        return;
    }
    setBackground(hasRows ? Background::white : Background::pattern);
    setAlternatingRowColors(hasRows);
}

void FilesTableView::setBackground(Background background) {
    if (background != background_) {
        background_ = background;
        applyBackground();
    }
}

void FilesTableView::applyBackground() {
    // The viewport alone: header and scroll bars keep the theme's colours.
    QPalette colors = palette();
    if (background_ == Background::pattern) {
        colors.setBrush(QPalette::Base,
                        patternBrush(colors.color(QPalette::Base), devicePixelRatioF()));
    } else if (background_ == Background::white) {
        colors.setColor(QPalette::Base, rowColor);
        colors.setColor(QPalette::AlternateBase, alternateRowColor);
        colors.setColor(QPalette::Text, rowTextColor);
        colors.setColor(QPalette::WindowText, rowTextColor);
    }
    viewport()->setPalette(colors);
}

QBrush FilesTableView::backgroundBrush() const {
    return viewport()->palette().base();
}

void FilesTableView::initViewItemOption(QStyleOptionViewItem *option) const {
    QTableView::initViewItemOption(option);
    option->palette = viewport()->palette();
}

void FilesTableView::setHeaderTitle(const QString &columnIdentifier, const QString &title) {
    const int column = FilesTableModel::columnWithIdentifier(columnIdentifier);
    if (column < 0 ||
        filesModel_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString() == title) {
        return;
    }
    filesModel_->setHeaderTitle(columnIdentifier, title);
    fitToFont();
}

IndexSet FilesTableView::selectedRowIndexes() const {
    IndexSet rows;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.insert(rows.end(), row); // The ranges mostly come in order.
        }
    }
    return rows;
}

void FilesTableView::selectRowIndexes(const IndexSet &rows) {
    // A range for each run of rows: the cost of a selection grows with the square of its ranges.
    QItemSelection selection;
    auto row = rows.lower_bound(0);
    const auto end = rows.lower_bound(filesModel_->rowCount());
    while (row != end) {
        const int first = static_cast<int>(*row);
        int last = first;
        while (++row != end && *row == last + 1) {
            ++last;
        }
        selection.append(
            QItemSelectionRange(filesModel_->index(first, 0),
                                filesModel_->index(last, FilesTableModel::columnTotal - 1)));
    }
    if (!selection.isEmpty()) {
        // Where the keyboard goes on from, and what Shift then selects from.
        selectionStart_ = selection.first().topLeft();
        selectionModel()->setCurrentIndex(selectionStart_, QItemSelectionModel::NoUpdate);
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

QRect FilesTableView::rectOfRow(qint64 row) const {
    if (row < 0 || row >= filesModel_->rowCount()) {
        return {0, 0, 0, 0};
    }
    const int position = static_cast<int>(row);
    return {0, rowViewportPosition(position), viewport()->width(), rowHeight(position)};
}

qint64 FilesTableView::rowAtPoint(const QPoint &point) const {
    return viewport()->rect().contains(point) ? rowAt(point.y()) : -1;
}

void FilesTableView::reportRow(qint64 row) {
    if (delegate() != nullptr) {
        delegate()->tableViewMouseOverRow(this, row);
    }
    _previousRow = row;
}

void FilesTableView::mouseMoved(const QPoint &point) {
    const qint64 row = rowAtPoint(point);
    if (row != _previousRow) {
        reportRow(row);
    }
}

void FilesTableView::mouseExited() {
    _previousRow = -1;
    if (delegate() != nullptr) {
        delegate()->tableViewMouseOverRow(this, -1);
    }
}

void FilesTableView::deleteBackward() {
    if (delegate() != nullptr) {
        delegate()->tableViewWillDeleteRowIndexes(this, selectedRowIndexes());
    }
}

void FilesTableView::hoverAgain() {
    // The rows have moved under the pointer, or away from the button of the row reported last: it
    // is reported again even if it is the same one.
    const bool isHovering = hoverTracker_->isInside() && !isDragFromHere_;
    reportRow(isHovering ? rowAtPoint(hoverTracker_->point()) : -1);
}

void FilesTableView::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    hoverAgain();
}

void FilesTableView::resizeEvent(QResizeEvent *event) {
    QTableView::resizeEvent(event);
    if (event->size() != event->oldSize()) {
        hoverAgain();
    }
}

void FilesTableView::changeEvent(QEvent *event) {
    QTableView::changeEvent(event);
    switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
        applyBackground();
        break;
    case QEvent::FontChange:
        fitToFont();
        break;
    default:
        break;
    }
}

void FilesTableView::keyPressEvent(QKeyEvent *event) {
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const bool isDelete = event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace;
    const bool isUp = event->key() == Qt::Key_Up;
    if (isDelete && modifiers == Qt::NoModifier) {
        deleteBackward();
        return;
    }
    if ((isUp || event->key() == Qt::Key_Down) && modifiers == Qt::AltModifier) {
        const IndexSet rows = selectedRowIndexes();
        const auto destination = keyboardMoveDestination(rows, filesModel_->rowCount(), isUp);
        if (destination && delegate() != nullptr) {
            delegate()->tableViewMoveRowIndexesTo(this, rows, *destination);
        }
        return;
    }
    QTableView::keyPressEvent(event);
}

std::optional<qint64> keyboardMoveDestination(const IndexSet &rows, qint64 rowCount, bool isUp) {
    if (rows.empty()) {
        return std::nullopt;
    }
    const qint64 first = *rows.begin();
    const qint64 last = *rows.rbegin();
    const bool standTogether = last - first + 1 == static_cast<qint64>(rows.size());
    const bool isAtEnd = isUp ? first == 0 : last + 1 >= rowCount;
    if (standTogether && isAtEnd) {
        return std::nullopt;
    }
    return isUp ? std::max<qint64>(first - 1, 0) : std::min(last + 2, rowCount);
}
