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

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    int roomAtEnd_; // Points.
};
