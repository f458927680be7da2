// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "CDBurnerPlugin/FilesTableViewDelegate.h"
#include "engine/BurnItem.h"

#include <QItemSelectionModel>
#include <QPersistentModelIndex>
#include <QTableView>

#include <optional>

class FilesTableModel;
class HoverTracker;

/// The table of the burn list: over an empty list a pattern, over rows white with alternating
/// rows; tells its delegate which row is under the pointer and when a delete key is pressed, and
/// hands drags and drops to it. Has a FilesTableModel of its own, which knows the list. Main
/// thread.
class FilesTableView : public QTableView {
    Q_OBJECT

public:
    /// Under which rows are dragged inside the table; what it carries is the delegate's affair.
    static constexpr const char *rowsMimeType = "SelfDataSourceItemType";

    /// The side of the square delete button that floats over a row's end.
    static constexpr int deleteButtonSize = 22;

    explicit FilesTableView(QWidget *parent = nullptr);
    ~FilesTableView() override;

    FilesTableViewDelegate *delegate() const { return delegate_.get(); }
    void setDelegate(FilesTableViewDelegate *delegate) { delegate_.set(delegate); }
    FilesTableModel *filesModel() const { return filesModel_; }

    /// Called once the window's form is built: the first look.
    void awakeFromNib();

    /// Takes drops that have one of these formats from now on; at first, and after
    /// unregisterDraggedTypes, none.
    void registerForDraggedTypes(const QStringList &types);
    void unregisterDraggedTypes();

    /// Shows the list as it is now. Selection and scroll position stay where their rows still
    /// exist: rows are taken to have come or gone at the end, so whoever has one removed or moved
    /// elsewhere says so (FilesTableModel::rowDidLeave, selectRowIndexes). Changes between the two
    /// looks when the list becomes empty or gets its first row.
    void reloadData();

    /// On in the list's look; the memory of which look is showing.
    bool usesAlternatingRowBackgroundColors() const { return alternatingRowColors(); }
    /// What the table stands on: a pattern or a colour.
    QBrush backgroundBrush() const;

    void setHeaderTitle(const QString &columnIdentifier, const QString &title);

    IndexSet selectedRowIndexes() const;
    /// Replaces the selection. Rows that do not exist are left out.
    void selectRowIndexes(const IndexSet &rows);

    /// The row's place over the whole width, in the viewport's coordinates; an empty rectangle at
    /// the origin for a row that does not exist.
    QRect rectOfRow(qint64 row) const;
    /// -1 where there is no row. In the viewport's coordinates.
    qint64 rowAtPoint(const QPoint &point) const;

    /// True while rows of this very table are being dragged.
    bool isDragFromHere() const { return isDragFromHere_; }

    /// The insertion point for a drop at this height of the viewport: above a row in its upper
    /// half, below it in its lower half, the row count below the last row.
    qint64 dropRowAt(int y) const;

    /// The events' logic, in the viewport's coordinates.
    void mouseMoved(const QPoint &point);
    void mouseEntered(const QPoint &point) { mouseMoved(point); }
    void mouseExited();
    void deleteBackward();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void changeEvent(QEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    QItemSelectionModel::SelectionFlags
    selectionCommand(const QModelIndex &index, const QEvent *event = nullptr) const override;
    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void startDrag(Qt::DropActions supportedActions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void initViewItemOption(QStyleOptionViewItem *option) const override;

private:
    enum class Background { theme, pattern, white };

    void setBackground(Background background);
    void applyBackground();
    void setUpColumns();
    void fitToFont();
    void reportRow(qint64 row);
    void hoverAgain();
    void drawFocus();
    void dragSelectedRows(Qt::DropActions supportedActions);
    void answerDrag(QDragMoveEvent *event);
    void clearDropFeedback();

    DelegateSlot<FilesTableViewDelegate> delegate_;
    FilesTableModel *filesModel_;
    HoverTracker *hoverTracker_ = nullptr;
    qint64 _previousRow = -1;
    Background background_ = Background::theme;
    // Where the selection begins that was set last by selectRowIndexes, until the user begins
    // another.
    mutable QPersistentModelIndex selectionStart_;
    std::optional<qint64> dropRow_; // Where a line shows that dragged rows would land.
    bool isDropTarget_ = false;     // Dragged files would be taken, wherever they are dropped.
    bool isDragFromHere_ = false;
};

/// Where rows that the user moves by keyboard are dropped: one place up or down; rows that do not
/// stand together are gathered there. Nothing when they cannot go further.
std::optional<qint64> keyboardMoveDestination(const IndexSet &rows, qint64 rowCount, bool isUp);
