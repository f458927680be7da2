// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/ErrorTipsView.h"

#include "CDBurnerPlugin/ResourceLocator.h"
#include "tests/CDBurnerPlugin/views/Picture.h"

#include <gtest/gtest.h>

namespace {

TEST(ErrorTipsLayout, SignAndTextAreCentredTogether) {
    const ErrorTipsLayout layout = errorTipsLayout({0, 0, 300, 40}, 100);
    EXPECT_EQ(layout.icon, QRectF(84, 12, 16, 16));
    EXPECT_EQ(layout.text, QRectF(116, 6, 184, 22));
}

TEST(ErrorTipsLayout, TheTextBoxEndsAtTheRightEdge) {
    for (const double width : {0.0, 50.0, 268.0, 400.0}) {
        EXPECT_DOUBLE_EQ(errorTipsLayout({0, 0, 300, 40}, width).text.right(), 300) << width;
    }
}

TEST(ErrorTipsLayout, ATextTooWidePushesTheSignOverTheLeftEdge) {
    EXPECT_EQ(errorTipsLayout({0, 0, 300, 40}, 268).icon.x(), 0);
    EXPECT_EQ(errorTipsLayout({0, 0, 300, 40}, 300).icon.x(), -16);
}

TEST(ErrorTipsLayout, WithoutATextTheSignStandsWithItsGap) {
    EXPECT_EQ(errorTipsLayout({0, 0, 300, 40}, 0).icon.x(), (300 - 32) * 0.5);
}

TEST(ErrorTipsLayout, TheTextBoxStartsSixPointsUnderTheSign) {
    const double height = 61;
    const ErrorTipsLayout layout = errorTipsLayout({0, 0, 300, height}, 100);
    EXPECT_DOUBLE_EQ(layout.icon.y(), (height - 16) / 2);
    EXPECT_DOUBLE_EQ(layout.text.y(), layout.icon.y() - 6);
    EXPECT_DOUBLE_EQ(layout.text.height(), 22);
}

TEST(ErrorTipsLayout, TheWidthIsRoundedToSinglePrecision) {
    const double textWidth = 100.00000123456;
    const auto total = static_cast<double>(static_cast<float>(32.0 + textWidth));
    EXPECT_EQ(errorTipsLayout({0, 0, 300, 40}, textWidth).icon.x(), (300 - total) * 0.5);
}

QImage drawnTips(const ErrorTipsView &view) {
    return drawn(view.size(), Qt::transparent,
                 [&view](QPainter &painter) { view.drawRect(painter, 1.0); });
}

/// The columns in which something was drawn.
std::pair<int, int> inkedColumns(const QImage &image) {
    std::pair<int, int> columns(image.width(), -1);
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (qAlpha(image.pixel(x, y)) != 0) {
                columns = {std::min(columns.first, x), x};
            }
        }
    }
    return columns;
}

TEST(ErrorTipsView, ANullTextKeepsTheOneBefore) {
    ErrorTipsView view;
    view.setErrorTips(QStringLiteral("Checking disk..."));
    view.setErrorTips(QString());
    EXPECT_EQ(view.errorTips(), QStringLiteral("Checking disk..."));
    EXPECT_EQ(view.displayRequests(), 1U);
}

TEST(ErrorTipsView, EachTextAsksForOneRepaint) {
    ErrorTipsView view;
    view.setErrorTips(QStringLiteral("a"));
    view.setErrorTips(QStringLiteral("b"));
    EXPECT_EQ(view.displayRequests(), 2U);
}

TEST(ErrorTipsView, TheTipIsItsAccessibleName) {
    ErrorTipsView view;
    view.setErrorTips(QStringLiteral("Checking disk..."));
    EXPECT_EQ(view.accessibleName(), QStringLiteral("Checking disk..."));
}

TEST(ErrorTipsView, BeforeAnyTextTheSignIsAlone) {
    ErrorTipsView view;
    view.resize(300, 40);
    const auto [first, last] = inkedColumns(drawnTips(view));
    EXPECT_GE(first, 134);
    EXPECT_LT(last, 150);
}

TEST(ErrorTipsView, ATextTooLongEndsWithAnEllipsisInsideTheView) {
    ErrorTipsView view;
    view.resize(120, 40);
    view.setErrorTips(QString(200, u'm'));
    const QImage longText = drawnTips(view);
    EXPECT_GT(inkedColumns(longText).second, 80);
    view.resize(200, 40);
    EXPECT_LT(inkedColumns(drawnTips(view)).second, 200);
    EXPECT_EQ(inkedColumns(longText).first, 0);
}

TEST(ErrorTipsView, TheTextHasTheThemesColour) {
    ErrorTipsView view;
    view.resize(300, 40);
    view.setErrorTips(QStringLiteral("MMMM"));
    QPalette colors = view.palette();
    colors.setColor(QPalette::WindowText, Qt::green);
    view.setPalette(colors);
    const QImage image = drawnTips(view);
    bool hasGreen = false;
    for (int x = 160; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            hasGreen = hasGreen || image.pixelColor(x, y) == QColor(Qt::green);
        }
    }
    EXPECT_TRUE(hasGreen);
}

TEST(ErrorTipsView, TheSignIsReadAnewForEachDrawing) {
    ErrorTipsView view;
    view.resize(300, 40);
    const QString file = QStringLiteral("image_warning.png");
    const int before = ResourceLocator::loadCount(file);
    drawnTips(view);
    drawnTips(view);
    EXPECT_EQ(ResourceLocator::loadCount(file), before + 2);
}

TEST(ErrorTipsView, RightToLeftTheSignStandsAtTheRight) {
    ErrorTipsView view;
    view.setLayoutDirection(Qt::RightToLeft);
    view.resize(300, 40);
    const auto [first, last] = inkedColumns(drawnTips(view));
    EXPECT_GE(first, 150);
    EXPECT_LT(last, 166);
}

} // namespace
