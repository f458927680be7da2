// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/VXDragImageView.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>

namespace {

class Receiver : public VXDragImageViewDelegate {
public:
    bool filesDidDragHere(const SongList &files) override {
        received.append(files);
        return answer;
    }
    QList<SongList> received;
    bool answer = true;
};

class NothingTaker : public VXDragImageViewDelegate {};

const SongList oneFile = {{"/a", {}, {}}};

void setFiles(QMimeData &data, const QByteArray &list) {
    data.setData(QStringLiteral("text/uri-list"), list);
}

void setSongs(QMimeData &data, const QByteArray &bytes) {
    data.setData(QString::fromLatin1(songListMimeType), bytes);
}

TEST(DropPicture, TakesDropsOnlyOnceItIsSetUp) {
    VXDragImageView view;
    EXPECT_FALSE(view.acceptDrops());
    view.awakeFromNib();
    EXPECT_TRUE(view.acceptDrops());
}

TEST(DropPicture, OffersACopyForFilesAndSongsAlone) {
    QMimeData files;
    setFiles(files, "file:///a");
    QMimeData songs;
    setSongs(songs, "x");
    QMimeData rows;
    rows.setData(QStringLiteral("SelfDataSourceItemType"), "x");
    EXPECT_EQ(VXDragImageView::draggingEntered(files), Qt::CopyAction);
    EXPECT_EQ(VXDragImageView::draggingEntered(songs), Qt::CopyAction);
    EXPECT_EQ(VXDragImageView::draggingEntered(rows), Qt::IgnoreAction);
    EXPECT_EQ(VXDragImageView::draggingEntered(QMimeData()), Qt::IgnoreAction);
}

TEST(DropPicture, HandsTheFilesToItsDelegateAndItsAnswerBack) {
    VXDragImageView view;
    Receiver receiver;
    view.setDelegate(&receiver);
    QMimeData data;
    setFiles(data, "file:///a");
    EXPECT_TRUE(view.performDragOperation(data));
    receiver.answer = false;
    EXPECT_FALSE(view.performDragOperation(data));
    EXPECT_EQ(receiver.received, QList({oneFile, oneFile}));
}

TEST(DropPicture, ReadsADragWithFilesAndSongsAsFiles) {
    VXDragImageView view;
    Receiver receiver;
    view.setDelegate(&receiver);
    QMimeData data;
    setSongs(data, encodeSongList({{"/song", {}, {}}}));
    setFiles(data, "file:///a");
    EXPECT_TRUE(view.performDragOperation(data));
    EXPECT_EQ(receiver.received, QList({oneFile}));
}

TEST(DropPicture, RefusesMissingAndEmptySongs) {
    VXDragImageView view;
    Receiver receiver;
    view.setDelegate(&receiver);
    for (const QByteArray &bytes : {QByteArray(), encodeSongList({}), QByteArray("damaged")}) {
        QMimeData data;
        setSongs(data, bytes);
        EXPECT_FALSE(view.performDragOperation(data));
    }
    EXPECT_TRUE(receiver.received.isEmpty());
}

TEST(DropPicture, RefusesADropWithoutLocalFiles) {
    VXDragImageView view;
    Receiver receiver;
    view.setDelegate(&receiver);
    QMimeData data;
    setFiles(data, "https://example.org/a.mp3\r\nsmb://server/b.mp3");
    EXPECT_FALSE(view.performDragOperation(data));
    EXPECT_TRUE(receiver.received.isEmpty());
}

TEST(DropPicture, RefusesWithoutADelegateThatCanTakeIt) {
    VXDragImageView view;
    QMimeData data;
    setFiles(data, "file:///a");
    EXPECT_FALSE(view.performDragOperation(data));
    NothingTaker nothingTaker;
    view.setDelegate(&nothingTaker);
    EXPECT_FALSE(view.performDragOperation(data));
}

TEST(DropPicture, ADestroyedDelegateHearsNothing) {
    VXDragImageView view;
    {
        Receiver receiver;
        view.setDelegate(&receiver);
    }
    EXPECT_EQ(view.delegate(), nullptr);
}

TEST(DropPicture, TheDragsSourceSeesWhetherTheDropWasTaken) {
    VXDragImageView view;
    view.awakeFromNib();
    Receiver receiver;
    view.setDelegate(&receiver);
    QMimeData data;
    setFiles(data, "file:///a");
    QDragEnterEvent enter({5, 5}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    QApplication::sendEvent(&view, &enter);
    EXPECT_TRUE(enter.isAccepted());
    EXPECT_EQ(enter.dropAction(), Qt::CopyAction);
    for (const bool answer : {true, false}) {
        receiver.answer = answer;
        QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&view, &drop);
        EXPECT_EQ(drop.isAccepted(), answer);
    }
}

} // namespace
