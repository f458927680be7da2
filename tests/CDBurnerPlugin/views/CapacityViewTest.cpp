// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/CapacityView.h"

#include "CDBurnerPlugin/ResourceLocator.h"
#include "tests/CDBurnerPlugin/views/Picture.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

const QColor startColor(200, 0, 0);
const QColor centerColor(0, 200, 0);
const QColor endColor(0, 0, 200);
const QColor blankColor(120, 120, 120);
const QColor groundColor(10, 20, 30);

/// Bars are drawn with pictures of one colour each, in a process of their own for each test: the
/// pictures are loaded once for all bars.
class CapacityViewTest : public testing::Test {
protected:
    CapacityViewTest() {
        for (const char *name : {"startcap", "centerfill", "endcap"}) {
            writePicture(folder_ / (std::string("image_blank_") + name + ".png"), {5, 14},
                         blankColor);
        }
        writePicture(folder_ / "image_blue_startcap.png", {5, 14}, startColor);
        writePicture(folder_ / "image_blue_centerfill.png", {5, 14}, centerColor);
        writePicture(folder_ / "image_blue_endcap.png", {5, 14}, endColor);
        ResourceLocator::setFolder(QString::fromStdString(folder_.path().string()));
    }
    void SetUp() override {
        if (ResourceLocator::loadCount(QStringLiteral("image_blank_startcap.png")) > 0) {
            GTEST_SKIP() << "needs a process in which no bar was made before";
        }
    }
    ~CapacityViewTest() override { ResourceLocator::setFolder({}); }

    static QImage drawnBar(double value, double maximum, int height = 14) {
        CapacityView view;
        QPalette colors = view.palette();
        colors.setColor(QPalette::Window, groundColor);
        view.setPalette(colors);
        view.resize(100, height);
        view.setMaxValue(maximum);
        view.setDoubleValue(value);
        return drawn(view.size(), Qt::white,
                     [&view](QPainter &painter) { view.drawRect(painter, 1.0); });
    }

    TemporaryFolder folder_;
};

TEST_F(CapacityViewTest, StartsEmpty) {
    const CapacityView view;
    EXPECT_EQ(view.maxValue(), 0.0);
    EXPECT_EQ(view.doubleValue(), 0.0);
}

TEST_F(CapacityViewTest, TheSameValueTwiceAsksForOneRepaint) {
    CapacityView view;
    view.setMaxValue(10);
    view.setMaxValue(10);
    view.setDoubleValue(4);
    view.setDoubleValue(4);
    EXPECT_EQ(view.displayRequests(), 2U);
    view.setDoubleValue(0);
    EXPECT_EQ(view.displayRequests(), 3U);
}

TEST_F(CapacityViewTest, AnEmptyBarIsTheTrack) {
    const QImage image = drawnBar(0, 1);
    for (const int x : {0, 50, 99}) {
        EXPECT_EQ(image.pixelColor(x, 7), blankColor) << x;
    }
}

TEST_F(CapacityViewTest, TheFilledPartHasCapsAndCentre) {
    const QImage image = drawnBar(50, 100);
    EXPECT_EQ(image.pixelColor(0, 7), startColor);
    EXPECT_EQ(image.pixelColor(5, 7), centerColor);
    EXPECT_EQ(image.pixelColor(44, 7), centerColor);
    EXPECT_EQ(image.pixelColor(45, 7), endColor);
    EXPECT_EQ(image.pixelColor(49, 7), endColor);
    EXPECT_EQ(image.pixelColor(50, 7), blankColor);
}

TEST_F(CapacityViewTest, AnOverflowFillsTheWholeWidth) {
    const QImage image = drawnBar(800, 700);
    EXPECT_EQ(image.pixelColor(0, 7), startColor);
    EXPECT_EQ(image.pixelColor(99, 7), endColor);
}

TEST_F(CapacityViewTest, AShortFillIsCutFromTheLeftOfTheCap) {
    const QImage image = drawnBar(3, 100);
    EXPECT_EQ(image.pixelColor(2, 7), startColor);
    EXPECT_EQ(image.pixelColor(3, 7), blankColor);
}

TEST_F(CapacityViewTest, FivePointsDrawNoCentre) {
    const QImage image = drawnBar(5, 100);
    EXPECT_EQ(image.pixelColor(4, 7), startColor);
    EXPECT_EQ(image.pixelColor(5, 7), blankColor);
}

TEST_F(CapacityViewTest, ThreePiecesEndWithTheLeftOfTheEndCap) {
    const QImage image = drawnBar(12, 100);
    EXPECT_EQ(image.pixelColor(9, 7), centerColor);
    EXPECT_EQ(image.pixelColor(11, 7), endColor);
    EXPECT_EQ(image.pixelColor(12, 7), blankColor);
}

TEST_F(CapacityViewTest, ShortFillsStandAtTheLowerEdgeInTheirOwnHeight) {
    const QImage image = drawnBar(7, 100, 20);
    EXPECT_EQ(image.pixelColor(2, 5), blankColor);
    EXPECT_EQ(image.pixelColor(2, 6), startColor);
    EXPECT_EQ(image.pixelColor(2, 19), startColor);
}

TEST_F(CapacityViewTest, AMissingTrackPictureLeavesOutTheTrackAlone) {
    std::filesystem::remove(folder_ / "image_blank_endcap.png");
    const QImage image = drawnBar(50, 100);
    EXPECT_EQ(image.pixelColor(20, 7), centerColor);
    EXPECT_EQ(image.pixelColor(80, 7), groundColor);
}

TEST_F(CapacityViewTest, AMissingBluePictureLeavesTheOthers) {
    std::filesystem::remove(folder_ / "image_blue_startcap.png");
    const QImage image = drawnBar(50, 100);
    EXPECT_EQ(image.pixelColor(20, 7), centerColor);
    EXPECT_EQ(image.pixelColor(49, 7), endColor);
}

TEST_F(CapacityViewTest, WithoutTheFirstPictureNothingIsLoaded) {
    std::filesystem::remove(folder_ / "image_blank_startcap.png");
    const QImage image = drawnBar(50, 100);
    EXPECT_EQ(image.pixelColor(20, 7), groundColor);
    EXPECT_EQ(image.pixelColor(80, 7), groundColor);
    EXPECT_EQ(ResourceLocator::loadCount(QStringLiteral("image_blue_startcap.png")), 0);
}

TEST_F(CapacityViewTest, PicturesAreLoadedOnceForAllBars) {
    const CapacityView first;
    const CapacityView second;
    drawnBar(50, 100);
    EXPECT_EQ(ResourceLocator::loadCount(QStringLiteral("image_blank_startcap.png")), 1);
    EXPECT_EQ(ResourceLocator::loadCount(QStringLiteral("image_blue_endcap.png")), 1);
}

TEST_F(CapacityViewTest, AtTwoPixelsAPointTheFinePicturesAreCutInTheirOwnPixels) {
    writePicture(folder_ / "image_blue_startcap@2x.png", {10, 28}, Qt::magenta);
    CapacityView view;
    view.resize(100, 14);
    view.setMaxValue(100);
    view.setDoubleValue(3);
    const QImage image = drawn(
        view.size(), Qt::white, [&view](QPainter &painter) { view.drawRect(painter, 2.0); }, 2.0);
    EXPECT_EQ(image.pixelColor(5, 14), QColor(Qt::magenta));
    EXPECT_EQ(image.pixelColor(6, 14), blankColor);
}

} // namespace
