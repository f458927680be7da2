// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/DragPicture.h"

#include <gtest/gtest.h>

#include <QWidget>

namespace {

TEST(DragPicture, StaysSmallWhateverTheName) {
    const QWidget widget;
    const DragPicture picture = dragPicture(QString(500, u'x'), 1, widget);
    EXPECT_LE(picture.pixmap.deviceIndependentSize().width(), 270);
    EXPECT_LE(picture.pixmap.deviceIndependentSize().height(), 3 * widget.fontMetrics().height());
}

TEST(DragPicture, LiesBesideThePointer) {
    QWidget widget;
    const DragPicture picture = dragPicture(QStringLiteral("song"), 1, widget);
    EXPECT_LT(picture.hotSpot.x(), 0);
    EXPECT_LT(picture.hotSpot.y(), 0);
    widget.setLayoutDirection(Qt::RightToLeft);
    const DragPicture mirrored = dragPicture(QStringLiteral("song"), 1, widget);
    EXPECT_GT(mirrored.hotSpot.x(), mirrored.pixmap.deviceIndependentSize().width());
}

TEST(DragPicture, TellsHowManyRowsIfMoreThanOne) {
    const QWidget widget;
    const auto widthFor = [&widget](qsizetype rows) {
        return dragPicture(QStringLiteral("song"), rows, widget).pixmap.width();
    };
    EXPECT_GT(widthFor(2), widthFor(1));
    EXPECT_GT(widthFor(1000), widthFor(2));
}

TEST(DragPicture, HasTheColoursOfASelectedRow) {
    QWidget widget;
    QPalette colors;
    colors.setColor(QPalette::Highlight, Qt::darkGreen);
    widget.setPalette(colors);
    const QImage image = dragPicture(QStringLiteral("song"), 1, widget).pixmap.toImage();
    EXPECT_EQ(image.pixelColor(4, image.height() / 2), QColor(Qt::darkGreen));
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
}

} // namespace
