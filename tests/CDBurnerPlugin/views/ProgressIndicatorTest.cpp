// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/ProgressIndicator.h"

#include "CDBurnerPlugin/ProgressWindow.h"
#include "tests/CDBurnerPlugin/EventLoop.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPushButton>

#include <limits>

namespace {

QImage pictureAt(double progress) {
    ProgressIndicator bar;
    bar.resize(400, 20);
    bar.setProgress(progress);
    return bar.grab().toImage();
}

TEST(ProgressIndicator, MovesInStepsFinerThanAPercent) {
    EXPECT_NE(pictureAt(0.500), pictureAt(0.504));
    EXPECT_EQ(pictureAt(-3.0), pictureAt(0.0));
    EXPECT_EQ(pictureAt(7.0), pictureAt(1.0));
    EXPECT_EQ(pictureAt(std::numeric_limits<double>::quiet_NaN()), pictureAt(0.0));
}

TEST(ProgressIndicator, PercentsAreWhole) {
    ProgressIndicator bar;
    bar.setProgress(0.999);
    EXPECT_EQ(bar.percent(), 99);
    bar.setProgress(1.0);
    EXPECT_EQ(bar.percent(), 100);
}

class SheetAtWork : public testing::Test {
protected:
    void update(float progress) {
        sheet_.updateProgressByNameTips(progress, QStringLiteral("Burning"), {});
        drainMainQueue();
    }
    bool isBusy() const { return sheet_.findChild<ProgressIndicator *>()->isBusy(); }

    ProgressWindow sheet_;
};

TEST_F(SheetAtWork, ShowsItBeforeThereIsAProgress) {
    EXPECT_FALSE(isBusy());
    update(0.0F);
    EXPECT_TRUE(isBusy());
    update(0.1F);
    EXPECT_FALSE(isBusy());
}

TEST_F(SheetAtWork, ShowsItWhileItIsBeingStopped) {
    update(0.5F);
    sheet_.defaultButton()->setEnabled(false);
    EXPECT_TRUE(isBusy());
    update(1.0F); // It was done before it could be stopped.
    EXPECT_FALSE(isBusy());
}

TEST_F(SheetAtWork, ShowsNoneWhileTheQuestionIsAsked) {
    update(0.0F);
    sheet_.clickCancel();
    EXPECT_FALSE(isBusy());
}

} // namespace
