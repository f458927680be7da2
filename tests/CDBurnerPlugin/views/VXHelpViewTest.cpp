// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/VXHelpView.h"

#include "CDBurnerPlugin/ResourceLocator.h"
#include "tests/CDBurnerPlugin/views/Picture.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

class HelpBackground : public testing::Test {
protected:
    HelpBackground() {
        writePicture(folder_ / "popup_right_top.png", {100, 20}, Qt::red);
        writePicture(folder_ / "popup_right_middle.png", {100, 4}, Qt::green);
        writePicture(folder_ / "popup_right_bottom.png", {100, 10}, Qt::blue);
        ResourceLocator::setFolder(QString::fromStdString(folder_.path().string()));
    }
    ~HelpBackground() override { ResourceLocator::setFolder({}); }

    static QImage drawnView() {
        VXHelpView view;
        view.resize(100, 90);
        return drawn(view.size(), Qt::transparent,
                     [&view](QPainter &painter) { view.drawRect(painter, 1.0); });
    }

    TemporaryFolder folder_;
};

TEST_F(HelpBackground, TheMiddleIsStretchedBetweenTopAndBottom) {
    const QImage image = drawnView();
    EXPECT_EQ(image.pixelColor(50, 0), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(50, 19), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(50, 20), QColor(Qt::green));
    EXPECT_EQ(image.pixelColor(50, 79), QColor(Qt::green));
    EXPECT_EQ(image.pixelColor(50, 80), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(50, 89), QColor(Qt::blue));
}

TEST_F(HelpBackground, WithAPictureMissingItIsTransparent) {
    for (const char *name : {"popup_right_top", "popup_right_middle", "popup_right_bottom"}) {
        const std::filesystem::path file = folder_ / (std::string(name) + ".png");
        std::filesystem::rename(file, folder_ / "away");
        const QImage image = drawnView();
        EXPECT_EQ(qAlpha(image.pixel(50, 5)), 0) << name;
        EXPECT_EQ(qAlpha(image.pixel(50, 50)), 0) << name;
        std::filesystem::rename(folder_ / "away", file);
    }
}

TEST_F(HelpBackground, EachViewReadsThePicturesAnew) {
    const QString file = QStringLiteral("popup_right_top.png");
    const VXHelpView first;
    const int before = ResourceLocator::loadCount(file);
    const VXHelpView second;
    EXPECT_EQ(ResourceLocator::loadCount(file), before + 1);
}

TEST(HelpShape, LeavesOutTheCornersAndAllBesideThePointer) {
    VXHelpView view;
    view.resize(300, 350);
    const int pointer = VXHelpView::pointerFromEnd;
    const QRegion shape = view.shape();
    EXPECT_TRUE(shape.contains(QPoint(150, 175)));
    EXPECT_TRUE(shape.contains(QPoint(300 - pointer, 4)));
    EXPECT_FALSE(shape.contains(QPoint(pointer, 4)));
    EXPECT_FALSE(shape.contains(QPoint(0, VXHelpView::pointerHeight)));
    EXPECT_FALSE(shape.contains(QPoint(299, 349)));
    view.setLayoutDirection(Qt::RightToLeft);
    EXPECT_TRUE(view.shape().contains(QPoint(pointer, 4)));
    EXPECT_FALSE(view.shape().contains(QPoint(300 - pointer, 4)));
}

} // namespace
