// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "crate/SongRow.h"

#include <QAbstractTableModel>

#include <chrono>
#include <cstddef>
#include <deque>
#include <vector>

namespace crate {

/// The songs of the library: those that match the search, in the order that the user chose. Holds
/// the songs and sorts them itself, by keys computed beforehand: adding a portion to a list of
/// 20 000 looks up a place for each and sorts nothing. Main thread.
class SongModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit SongModel(QObject *parent = nullptr);

    /// New songs, into their places among the others.
    void addSongs(const std::vector<SongRow> &songs);
    void clear();
    /// Shows the songs that have each of the words of `text` in artist, title, album or file name.
    void setSearch(const QString &text);

    const LibrarySong &songAt(int row) const;
    /// How many songs there are, whether they match or not.
    std::size_t totalSongs() const { return songs_.size(); }
    /// Of the songs that match.
    std::chrono::milliseconds visibleLength() const { return visibleLength_; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    void sort(int column, Qt::SortOrder order) override;

    /// Rows are dragged as a song list alone: tools get songs, and nobody gets bare files.
    QStringList mimeTypes() const override;
    /// The songs of the rows of `indexes`, each once, from top to bottom.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    Qt::DropActions supportedDragActions() const override;

signals:
    /// The number of songs, of all or of those that match, has changed.
    void contentChanged();

private:
    using SongIndex = std::size_t;

    bool isBefore(SongIndex a, SongIndex b) const;
    void sortSongs(std::vector<SongIndex> &songs) const;
    /// `added`, which are sorted, into their places in `songs`, which are too.
    void mergeInto(std::vector<SongIndex> &songs, const std::vector<SongIndex> &added) const;
    /// Those of `songs` that match, in the same order.
    std::vector<SongIndex> matching(const std::vector<SongIndex> &songs) const;
    /// Another order of the same visible songs.
    void reorder(std::vector<SongIndex> order);
    void addLengthOf(const std::vector<SongIndex> &songs);
    QVariant textAt(const LibrarySong &song, SongColumn column) const;

    std::deque<SongRow> songs_;      ///< In the order of arrival; never moved.
    std::vector<SongIndex> sorted_;  ///< All of them, so that a search need not sort.
    std::vector<SongIndex> visible_; ///< Row by row.
    QStringList words_;
    SongColumn sortColumn_ = SongColumn::artist;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
    std::chrono::milliseconds visibleLength_{0};
};

} // namespace crate
