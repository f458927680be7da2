// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/BurnItem.h"

#include <QAbstractTableModel>
#include <QStringList>
#include <QVariant>

#include <array>
#include <functional>
#include <memory>
#include <utility>

class Scorcher;

/// What the second column tells of an item.
enum class FileInfoKind { duration, fileSize };

/// The rows of one burner's list. Every answer is asked of the burner at that moment; the only
/// thing kept is the row count that the view was told last, since a view must hear of each change
/// of it before it asks for a row that is gone. Main thread.
class FilesTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    static constexpr const char *filenameColumn = "kFilename";
    static constexpr const char *fileinfoColumn = "kFileinfo";

    /// Positions of the two columns.
    enum Column : int { filename = 0, fileinfo = 1, columnTotal = 2 };

    /// The role under which a cell has its property unchanged: text, or a count as qint64.
    static constexpr int valueRole = Qt::UserRole;

    explicit FilesTableModel(QObject *parent = nullptr);

    /// Whose list to show and what of it; null for an empty list. The rows follow with the next
    /// reloadData; those of another burner are new to the view, which forgets what was selected.
    void setScorcher(std::shared_ptr<const Scorcher> scorcher, FileInfoKind kind);

    /// Tells the view how the list stands now: rows that came or went at its end, and that all
    /// others may have changed. Costs the same for any number of rows.
    void reloadData();

    /// To be told when the user has had the burner remove this row: the rows after it move up in
    /// the view with what is selected of them. Ignored for a row that the view does not have, and
    /// where the burner still has as many rows as the view.
    void rowDidLeave(qint64 row);

    /// The property that a column shows of a row, unchanged: the display name for "kFilename",
    /// duration or size for "kFileinfo", "" for any other column; nothing where the item or its
    /// property is missing.
    QVariant objectValue(const QString &columnIdentifier, qint64 row) const;

    /// The column's place; -1 for an unknown one.
    static int columnWithIdentifier(const QString &identifier);
    void setHeaderTitle(const QString &columnIdentifier, const QString &title);

    /// Fills what is dragged: a writer answers whether these rows can be. Without one none can.
    using RowWriter = std::function<bool(const IndexSet &rows, QMimeData *pasteboard)>;
    void setRowWriter(RowWriter writer) { rowWriter_ = std::move(writer); }
    /// The formats that drops are taken in; none at first.
    void setDropTypes(const QStringList &types) { dropTypes_ = types; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override { return dropTypes_; }
    /// Null where the rows cannot be dragged.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }
    Qt::DropActions supportedDropActions() const override { return Qt::CopyAction; }

private:
    int numberOfItems() const;
    QString text(const QModelIndex &index) const;

    std::shared_ptr<const Scorcher> scorcher_;
    FileInfoKind kind_ = FileInfoKind::duration;
    int knownRows_ = 0;
    std::array<QString, columnTotal> titles_;
    RowWriter rowWriter_;
    QStringList dropTypes_;
};
