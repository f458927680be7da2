// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/FilesTableModel.h"

#include "CDBurnerPlugin/Localization.h"
#include "CDBurnerPlugin/ToolTipText.h"
#include "engine/ScorchString.h"
#include "engine/Scorcher.h"

#include <QMimeData>

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

namespace {

QVariant toVariant(const ItemValue &value) {
    if (const auto *text = std::get_if<std::string>(&value)) {
        return QString::fromStdString(*text);
    }
    return QVariant::fromValue<qint64>(std::get<std::int64_t>(value));
}

} // namespace

FilesTableModel::FilesTableModel(QObject *parent) : QAbstractTableModel(parent) {}

void FilesTableModel::setScorcher(std::shared_ptr<const Scorcher> scorcher, FileInfoKind kind) {
    kind_ = kind;
    if (scorcher == scorcher_) {
        return;
    }
    beginResetModel();
    scorcher_ = std::move(scorcher);
    knownRows_ = 0;
    endResetModel();
}

int FilesTableModel::numberOfItems() const {
    const std::int64_t count =
        scorcher_ != nullptr ? scorcher_->numberOfChildrenOfBurnItem(nullptr) : 0;
    return static_cast<int>(std::clamp<std::int64_t>(count, 0, std::numeric_limits<int>::max()));
}

void FilesTableModel::reloadData() {
    const int rows = numberOfItems();
    const int common = std::min(rows, knownRows_);
    if (rows > knownRows_) {
        beginInsertRows({}, knownRows_, rows - 1);
        knownRows_ = rows;
        endInsertRows();
    } else if (rows < knownRows_) {
        beginRemoveRows({}, rows, knownRows_ - 1);
        knownRows_ = rows;
        endRemoveRows();
    }
    if (common > 0) {
        emit dataChanged(index(0, 0), index(common - 1, columnTotal - 1));
    }
}

void FilesTableModel::rowDidLeave(qint64 row) {
    if (row < 0 || row >= knownRows_ || numberOfItems() >= knownRows_) {
        return;
    }
    const int position = static_cast<int>(row);
    beginRemoveRows({}, position, position);
    --knownRows_;
    endRemoveRows();
}

QVariant FilesTableModel::objectValue(const QString &columnIdentifier, qint64 row) const {
    if (row < 0 || row >= numberOfItems()) {
        return {}; // The view hears of rows that have gone a moment after the burner.
    }
    const ItemProperties properties =
        scorcher_->propertyOfBurnItem(scorcher_->childOfBurnItem(row, nullptr));
    std::string_view key;
    switch (columnWithIdentifier(columnIdentifier)) {
    case filename:
        key = kScorchItemDisplayNameKey;
        break;
    case fileinfo:
        key = kind_ == FileInfoKind::duration ? kScorchItemDurationKey : kScorchItemFileSizeKey;
        break;
    default:
        return QString(QLatin1String(""));
    }
    const auto property = properties.find(key);
    return property != properties.end() ? toVariant(property->second) : QVariant();
}

int FilesTableModel::columnWithIdentifier(const QString &identifier) {
    if (identifier == QLatin1String(filenameColumn)) {
        return filename;
    }
    return identifier == QLatin1String(fileinfoColumn) ? fileinfo : -1;
}

void FilesTableModel::setHeaderTitle(const QString &columnIdentifier, const QString &title) {
    const int column = columnWithIdentifier(columnIdentifier);
    if (column < 0 || titles_.at(static_cast<std::size_t>(column)) == title) {
        return;
    }
    titles_.at(static_cast<std::size_t>(column)) = title;
    emit headerDataChanged(Qt::Horizontal, column, column);
}

int FilesTableModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : knownRows_;
}

int FilesTableModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : columnTotal;
}

QString FilesTableModel::text(const QModelIndex &index) const {
    const bool isName = index.column() == filename;
    const QVariant value =
        objectValue(QLatin1String(isName ? filenameColumn : fileinfoColumn), index.row());
    if (isName || !value.isValid()) {
        return value.toString();
    }
    const qint64 count = value.toLongLong();
    return QString::fromStdString(kind_ == FileInfoKind::duration
                                      ? stringWithDurationFramesEnabled(count, false)
                                      : stringWithFilesize(count));
}

QVariant FilesTableModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || index.row() >= knownRows_) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return text(index);
    case Qt::ToolTipRole:
        // A name may be longer than its column.
        return index.column() == filename ? toolTipText(text(index)) : QVariant();
    case Qt::AccessibleTextRole:
        // The cell of the name speaks for its row, which is what the keyboard moves by.
        return index.column() == filename
                   ? filledFormat(localizedString("%@, %@"),
                                  {text(index), text(index.siblingAtColumn(fileinfo))})
                   : QVariant();
    case Qt::TextAlignmentRole: {
        const Qt::Alignment side = index.column() == fileinfo ? Qt::AlignRight : Qt::AlignLeft;
        return QVariant::fromValue(side | Qt::AlignVCenter);
    }
    case valueRole:
        return objectValue(
            QLatin1String(index.column() == filename ? filenameColumn : fileinfoColumn),
            index.row());
    default:
        return {};
    }
}

QVariant FilesTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnTotal) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return titles_.at(static_cast<std::size_t>(section));
    }
    if (role == Qt::TextAlignmentRole) {
        const Qt::Alignment side = section == fileinfo ? Qt::AlignRight : Qt::AlignLeft;
        return QVariant::fromValue(side | Qt::AlignVCenter);
    }
    return {};
}

Qt::ItemFlags FilesTableModel::flags(const QModelIndex &index) const {
    // What is dropped on a row goes to the list, so that every place takes drops.
    const Qt::ItemFlags everywhere = Qt::ItemIsDropEnabled;
    return index.isValid() ? everywhere | Qt::ItemIsEnabled | Qt::ItemIsSelectable |
                                 Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren
                           : everywhere;
}

QMimeData *FilesTableModel::mimeData(const QModelIndexList &indexes) const {
    IndexSet rows;
    for (const QModelIndex &index : indexes) {
        rows.insert(index.row());
    }
    auto data = std::make_unique<QMimeData>();
    const bool isWritten = rowWriter_ && rowWriter_(rows, data.get());
    return isWritten ? data.release() : nullptr;
}
