// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QHeaderView>

/// The burn list's header. Its titles start and end where the columns' texts do: a little off the
/// edge, and before the room that each row keeps for its delete button.
class FilesTableHeader : public QHeaderView {
    Q_OBJECT

public:
    FilesTableHeader(int roomAtEnd, QWidget *parent);

protected:
    void paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const override;

private:
    int roomAtEnd_; // Points.
};
