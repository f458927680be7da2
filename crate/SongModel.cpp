// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/SongModel.h"

#include "crate/Translation.h"

#include <QFile>
#include <QMimeData>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

namespace crate {

SongModel::SongModel(QObject *parent) : QAbstractTableModel(parent) {}

void SongModel::addSongs(const std::vector<SongRow> &songs) {
    std::vector<SongIndex> added(songs.size());
    std::iota(added.begin(), added.end(), songs_.size());
    songs_.insert(songs_.end(), songs.begin(), songs.end());
    sortSongs(added);
    mergeInto(sorted_, added);
    const std::vector<SongIndex> shown = matching(added);
    if (!shown.empty()) {
        std::vector<SongIndex> merged = words_.isEmpty() ? sorted_ : visible_;
        if (!words_.isEmpty()) {
            mergeInto(merged, shown);
        }
        // Views know rows at the end more cheaply than many single ones in between; nothing is
        // painted before they stand in their places.
        beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(shown.size()) - 1);
        visible_.insert(visible_.end(), shown.begin(), shown.end());
        endInsertRows();
        reorder(std::move(merged));
        addLengthOf(shown);
    }
    emit contentChanged();
}

void SongModel::clear() {
    beginResetModel();
    songs_.clear();
    sorted_.clear();
    visible_.clear();
    visibleLength_ = {};
    endResetModel();
    emit contentChanged();
}

void SongModel::setSearch(const QString &text) {
    const QStringList words = foldedForSearch(text).simplified().split(u' ', Qt::SkipEmptyParts);
    if (words == words_) {
        return;
    }
    words_ = words;
    beginResetModel();
    visible_ = matching(sorted_);
    visibleLength_ = {};
    addLengthOf(visible_);
    endResetModel();
    emit contentChanged();
}

const LibrarySong &SongModel::songAt(int row) const {
    return songs_[visible_[static_cast<std::size_t>(row)]].song;
}

int SongModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(visible_.size());
}

int SongModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : songColumnCount;
}

QVariant SongModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const LibrarySong &song = songAt(index.row());
    const auto column = static_cast<SongColumn>(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return textAt(song, column);
    case Qt::ToolTipRole:
        return QFile::decodeName(song.path);
    case Qt::TextAlignmentRole:
        if (column == SongColumn::track || column == SongColumn::length) {
            return QVariant::fromValue(Qt::AlignTrailing | Qt::AlignVCenter);
        }
        return {};
    default:
        return {};
    }
}

QVariant SongModel::textAt(const LibrarySong &song, SongColumn column) const {
    switch (column) {
    case SongColumn::title:
        return song.displayTitle();
    case SongColumn::artist:
        return song.artist;
    case SongColumn::album:
        return song.album;
    case SongColumn::track:
        return song.track > 0 ? QVariant(song.track) : QVariant();
    case SongColumn::length:
        return songLengthText(song.length);
    }
    return {};
}

QVariant SongModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) {
        return {};
    }
    const auto column = static_cast<SongColumn>(section);
    const bool isNumber = column == SongColumn::track || column == SongColumn::length;
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue((isNumber ? Qt::AlignTrailing : Qt::AlignLeading) |
                                   Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (column) {
    case SongColumn::title:
        return translated("Title");
    case SongColumn::artist:
        return translated("Artist");
    case SongColumn::album:
        return translated("Album");
    case SongColumn::track:
        return translated("Track");
    case SongColumn::length:
        return translated("Length");
    }
    return {};
}

Qt::ItemFlags SongModel::flags(const QModelIndex &index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() ? flags | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren : flags;
}

void SongModel::sort(int column, Qt::SortOrder order) {
    if (column < 0 || column >= songColumnCount) {
        return;
    }
    sortColumn_ = static_cast<SongColumn>(column);
    sortOrder_ = order;
    sortSongs(sorted_);
    reorder(matching(sorted_));
}

bool SongModel::isBefore(SongIndex a, SongIndex b) const {
    const int order = compareSongRows(songs_[a], songs_[b], sortColumn_);
    return sortOrder_ == Qt::AscendingOrder ? order < 0 : order > 0;
}

void SongModel::sortSongs(std::vector<SongIndex> &songs) const {
    std::sort(songs.begin(), songs.end(),
              [this](SongIndex a, SongIndex b) { return isBefore(a, b); });
}

void SongModel::mergeInto(std::vector<SongIndex> &songs,
                          const std::vector<SongIndex> &added) const {
    std::vector<SongIndex> merged;
    merged.reserve(songs.size() + added.size());
    auto rest = songs.cbegin();
    for (const SongIndex song : added) {
        // A look-up, since comparing songs costs more than copying their places.
        const auto place = std::upper_bound(
            rest, songs.cend(), song, [this](SongIndex a, SongIndex b) { return isBefore(a, b); });
        merged.insert(merged.end(), rest, place);
        merged.push_back(song);
        rest = place;
    }
    merged.insert(merged.end(), rest, songs.cend());
    songs = std::move(merged);
}

std::vector<SongModel::SongIndex> SongModel::matching(const std::vector<SongIndex> &songs) const {
    if (words_.isEmpty()) {
        return songs;
    }
    std::vector<SongIndex> found;
    std::copy_if(songs.begin(), songs.end(), std::back_inserter(found),
                 [this](SongIndex song) { return matches(songs_[song], words_); });
    return found;
}

void SongModel::reorder(std::vector<SongIndex> order) {
    if (order == visible_) {
        return;
    }
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    if (!before.isEmpty()) {
        std::vector<int> rowOf(songs_.size(), -1);
        for (std::size_t row = 0; row < order.size(); ++row) {
            rowOf[order[row]] = static_cast<int>(row);
        }
        QModelIndexList after;
        after.reserve(before.size());
        for (const QModelIndex &index : before) {
            const SongIndex song = visible_[static_cast<std::size_t>(index.row())];
            after.append(createIndex(rowOf[song], index.column()));
        }
        changePersistentIndexList(before, after);
    }
    visible_ = std::move(order);
    emit layoutChanged({}, VerticalSortHint);
}

void SongModel::addLengthOf(const std::vector<SongIndex> &songs) {
    for (const SongIndex index : songs) {
        visibleLength_ += songs_[index].song.length.value_or(std::chrono::milliseconds(0));
    }
}

QStringList SongModel::mimeTypes() const {
    return {QString::fromLatin1(songListMimeType)};
}

QMimeData *SongModel::mimeData(const QModelIndexList &indexes) const {
    std::vector<int> rows;
    rows.reserve(static_cast<std::size_t>(indexes.size()));
    for (const QModelIndex &index : indexes) {
        if (index.isValid()) {
            rows.push_back(index.row());
        }
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    if (rows.empty()) {
        return nullptr;
    }
    SongList songs;
    songs.reserve(static_cast<qsizetype>(rows.size()));
    for (const int row : rows) {
        songs.append(songAt(row).asSong());
    }
    auto *data = new QMimeData; // The caller's, as Qt has it.
    data->setData(QString::fromLatin1(songListMimeType), encodeSongList(songs));
    return data;
}

Qt::DropActions SongModel::supportedDragActions() const {
    return Qt::CopyAction;
}

} // namespace crate
