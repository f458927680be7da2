// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStyledItemDelegate>

/// Draws the burn list's cells. The first column starts a little off the edge; the last one keeps
/// room at its end for the delete button, which would cover its text otherwise.
class FilesTableItemDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    FilesTableItemDelegate(int roomAtEnd, QObject *parent)
        : QStyledItemDelegate(parent), roomAtEnd_(roomAtEnd) {}

    /// Shows a tip only over a text that is cut off: over one that can be read it would be in the
    /// way.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    int roomAtEnd_; // Points.
};
