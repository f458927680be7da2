// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/AmountLabel.h"
#include "tests/CDBurnerPlugin/views/Picture.h"

#include <gtest/gtest.h>

namespace {

class AmountOnAPlate : public testing::Test {
protected:
    AmountOnAPlate() {
        label_.setText(QStringLiteral("Remaining Time: 12:34"));
        label_.setAlignment(Qt::AlignRight | Qt::AlignTrailing | Qt::AlignVCenter);
        label_.resize(400, label_.fontMetrics().height());
    }

    void setGround(const QColor &ground) {
        QPalette colors = label_.palette();
        colors.setColor(QPalette::Window, ground);
        colors.setColor(QPalette::WindowText, Qt::darkGreen);
        label_.setPalette(colors);
    }
    QImage shown() {
        return drawn(label_.size(), Qt::black, [this](QPainter &painter) {
            label_.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
        });
    }

    AmountLabel label_;
};

TEST_F(AmountOnAPlate, StandsOnOneInADarkThemeAlone) {
    setGround(QColor(0xf0, 0xf0, 0xf0));
    EXPECT_TRUE(label_.plate().isEmpty());
    EXPECT_EQ(shown().pixelColor(395, 3), QColor(Qt::black));
    setGround(QColor(0x2a, 0x2e, 0x32));
    ASSERT_FALSE(label_.plate().isEmpty());
    EXPECT_GT(shown().pixelColor(label_.plate().left() + 3, label_.height() / 2).lightness(), 230);
}

TEST_F(AmountOnAPlate, HasNoneWithoutAText) {
    setGround(Qt::black);
    label_.clear();
    EXPECT_TRUE(label_.plate().isEmpty());
}

TEST_F(AmountOnAPlate, EndsWhereTheLabelDoes) {
    setGround(Qt::black);
    EXPECT_EQ(label_.plate().right(), 399);
    EXPECT_EQ(label_.plate().width(),
              label_.fontMetrics().horizontalAdvance(label_.text()) + 2 * AmountLabel::sideMargin);
    label_.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(label_.plate().left(), 0);
}

TEST_F(AmountOnAPlate, KeepsTheTextsColour) {
    setGround(Qt::black);
    const QImage image = shown();
    bool hasGreen = false;
    for (int x = label_.plate().left(); x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            const QColor pixel = image.pixelColor(x, y);
            hasGreen = hasGreen || (pixel.green() > 100 && pixel.red() < 90 && pixel.blue() < 90);
        }
    }
    EXPECT_TRUE(hasGreen);
}

} // namespace
