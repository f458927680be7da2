// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/SongListView.h"
#include "crate/SongRow.h"
#include "tests/system/host/HostTest.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>

#include <gmock/gmock.h>

namespace {

class HostDragging : public HostTest {
protected:
    crate::SongListView &songs() { return *crate().window().findChild<crate::SongListView *>(); }

    /// The data of a drag of the first row, as the host's list makes it.
    std::unique_ptr<QMimeData> dragOfFirstSong() {
        return std::unique_ptr<QMimeData>(
            songs().model()->mimeData({songs().model()->index(0, 0)}));
    }

    /// Whether the widget took the drop.
    static bool drop(QWidget *target, const QMimeData *data) {
        const QPoint middle = target->rect().center();
        QDragEnterEvent enter(middle, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &enter);
        QDragMoveEvent move(middle, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &move);
        QDropEvent dropped(middle, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &dropped);
        return enter.isAccepted() && dropped.isAccepted();
    }
};

TEST_F(HostDragging, SongsFromTheLibraryAreListedByArtistAndTitle) {
    std::filesystem::copy(medium("song-vbr.mp3"), musicFolder_ / "a.mp3");
    start();
    waitUntil("library read", [this] { return songs().model()->rowCount() == 1; });
    const auto text = [this](crate::SongColumn column) {
        return songs().model()->index(0, static_cast<int>(column)).data().toString();
    };
    const QString expected =
        text(crate::SongColumn::artist) + QStringLiteral(" - ") + text(crate::SongColumn::title);
    ASSERT_FALSE(text(crate::SongColumn::artist).isEmpty());
    EXPECT_TRUE(drop(part<QWidget>("_dragImageView"), dragOfFirstSong().get()));
    waitUntil("song listed", [this] { return rows() == 1 && sheet() == nullptr; });
    EXPECT_EQ(part<QAbstractItemView>("_filesTableView")->model()->index(0, 0).data().toString(),
              expected);
    EXPECT_THAT(usageEvents(), testing::Contains("CDBurn_AddFile"));
}

TEST_F(HostDragging, SendButtonDoesTheSame) {
    std::filesystem::copy(medium("short.wav"), musicFolder_ / "a.wav");
    start();
    waitUntil("library read", [this] { return songs().model()->rowCount() == 1; });
    songs().selectAll();
    crate().window().findChild<QPushButton *>(QStringLiteral("send:cd-burner:button"))->click();
    waitUntil("song listed", [this] { return rows() == 1 && sheet() == nullptr; });
}

} // namespace
