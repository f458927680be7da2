// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QWidget>

#include <cstddef>
#include <optional>

class QLabel;
class QPushButton;

namespace crate {

/// What the song list is about to show, as far as it matters when that is nothing.
struct ListState {
    bool isScanning = false;
    QString folder; ///< For a person.
    QString error;  ///< Why the folder cannot be read; empty when it can.
    std::size_t totalSongs = 0;
    std::size_t visibleSongs = 0;
    QString search;
};

/// The texts in the place of a list with no rows.
struct EmptyText {
    QString heading;
    QString text;
    bool offersFolder = false; ///< Whether another folder may be the answer.

    bool operator==(const EmptyText &) const = default;
};

/// Nothing when there are rows to show.
std::optional<EmptyText> emptyTextFor(const ListState &state);

/// A picture, a heading, a text and the way on, in the middle of an empty list.
class EmptyPage : public QWidget {
    Q_OBJECT

public:
    explicit EmptyPage(QWidget *parent = nullptr);

    void setText(const EmptyText &text);

signals:
    void folderWanted();

private:
    EmptyText shown_;
    QLabel *heading_;
    QLabel *text_;
    QPushButton *choose_;
};

} // namespace crate
