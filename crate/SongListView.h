// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/SongList.h"

#include <QTreeView>

#include <vector>

namespace crate {

class SongModel;

/// The list of songs: sorted by a click on a column, dragged by rows. Shows one SongModel, which
/// must outlive it.
class SongListView : public QTreeView {
    Q_OBJECT

public:
    explicit SongListView(SongModel *model, QWidget *parent = nullptr);

    /// From top to bottom.
    SongList selectedSongs() const;
    int selectedCount() const;

    /// The widths and order of the columns and what they are sorted by.
    QByteArray headerState() const;
    /// Leaves everything as it is for a state that is not one.
    void restoreHeaderState(const QByteArray &state);

private:
    void setUpHeader();
    std::vector<int> selectedRows() const;

    SongModel *songs_;
};

} // namespace crate
