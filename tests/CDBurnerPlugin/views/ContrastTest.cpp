// SPDX-License-Identifier: GPL-2.0-or-later
// What we paint ourselves can be read in light and dark themes: the contrast that WCAG 2 asks of
// texts (level AA).
#include "CDBurnerPlugin/ElidedLabel.h"
#include "CDBurnerPlugin/ErrorTipsView.h"
#include "CDBurnerPlugin/VXHelpWindow.h"
#include "tests/CDBurnerPlugin/EventLoop.h"
#include "tests/CDBurnerPlugin/views/Picture.h"
#include "tests/CDBurnerPlugin/views/TableRecorder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QLabel>

#include <algorithm>
#include <cmath>
#include <map>

namespace {

constexpr double enough = 4.5;
constexpr double large = 4.0; // Pixels a point: strokes are then thicker than their soft edges.

double luminance(QRgb color) {
    const auto linear = [](int channel) {
        const double value = channel / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) +
           0.0722 * linear(qBlue(color));
}

double contrast(QRgb a, QRgb b) {
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

/// Between the commonest colour of a picture and the one that stands out most from it.
double textContrast(const QImage &picture) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    const QRgb ground = std::max_element(counts.begin(), counts.end(), [](auto &a, auto &b) {
                            return a.second < b.second;
                        })->first;
    double most = 1.0;
    for (const auto &[color, count] : counts) {
        most = std::max(most, contrast(ground, color));
    }
    return most;
}

QPalette darkPalette() {
    QPalette palette;
    for (const auto role : {QPalette::Window, QPalette::Button}) {
        palette.setColor(role, QColor(0x2d, 0x2d, 0x30));
    }
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x20));
    palette.setColor(QPalette::AlternateBase, QColor(0x25, 0x25, 0x28));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, QColor(0xf0, 0xf0, 0xf0));
    }
    palette.setColor(QPalette::Highlight, QColor(0x1f, 0x5f, 0xa8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

/// Runs under both kinds of theme.
class Contrast : public testing::TestWithParam<bool> {
protected:
    Contrast() {
        if (GetParam()) {
            QApplication::setPalette(darkPalette());
        }
    }
    ~Contrast() override { QApplication::setPalette(light_); }

    static QImage pictureOf(QWidget &widget, const QRect &part = {}) {
        const QRect source = part.isNull() ? widget.rect() : part;
        const QColor ground = QApplication::palette().color(QPalette::Window);
        return drawn(
            source.size(), ground,
            [&](QPainter &painter) { widget.render(&painter, QPoint(), source); }, large);
    }

private:
    const QPalette light_ = QApplication::palette();
};

TEST_P(Contrast, OfATip) {
    ErrorTipsView tips;
    tips.resize(400, 40);
    tips.setErrorTips(QStringLiteral("HHHH"));
    const QRect text(tips.width() / 2, 0, tips.width() / 2, tips.height()); // Without the sign.
    EXPECT_GE(textContrast(pictureOf(tips, text)), enough);
}

TEST_P(Contrast, OfTheSheetsLines) {
    ElidedLabel label;
    label.setText(QStringLiteral("HHHH"));
    label.resize(200, 30);
    EXPECT_GE(textContrast(pictureOf(label)), enough);
}

TEST_P(Contrast, OfTheRows) {
    TableFixture fixture;
    fixture.append(2);
    fixture.table.reloadData();
    for (const int row : {0, 1}) {
        const QRect place = fixture.table.rectOfRow(row);
        EXPECT_GE(textContrast(pictureOf(*fixture.table.viewport(), place)), enough) << row;
    }
}

TEST_P(Contrast, OfTheHeader) {
    TableFixture fixture(1);
    fixture.table.setHeaderTitle(QStringLiteral("kFilename"), QStringLiteral("HHHH"));
    EXPECT_GE(textContrast(pictureOf(*fixture.table.horizontalHeader()->viewport())), enough);
}

TEST_P(Contrast, OfTheCaptionOnTheEmptyList) {
    TableFixture fixture;
    fixture.table.show();
    QLabel caption(QStringLiteral("HHHH"), fixture.table.viewport());
    caption.show();
    const QImage picture = pictureOf(*fixture.table.viewport(), caption.geometry());
    // On each colour of the pattern.
    EXPECT_GE(textContrast(picture), enough);
}

TEST_P(Contrast, OfTheHelp) {
    QWidget main;
    showActive(main);
    VXHelpWindow help(&main);
    help.beginFakeMenu();
    const QImage picture = pictureOf(help, help.rect().adjusted(18, 40, -18, -18));
    help.endFakeMenu();
    EXPECT_GE(textContrast(picture), enough);
}

INSTANTIATE_TEST_SUITE_P(Themes, Contrast, testing::Bool(), [](const auto &dark) {
    return dark.param ? std::string("Dark") : std::string("Light");
});

TEST(ContrastOfColours, IsWhatTheStandardSays) {
    EXPECT_NEAR(contrast(qRgb(0, 0, 0), qRgb(255, 255, 255)), 21.0, 0.01);
    EXPECT_NEAR(contrast(qRgb(0x77, 0x77, 0x77), qRgb(255, 255, 255)), 4.48, 0.01);
}

} // namespace
