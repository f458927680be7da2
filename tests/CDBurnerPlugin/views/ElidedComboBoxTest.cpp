// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/ElidedComboBox.h"
#include "tests/CDBurnerPlugin/EventLoop.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QToolTip>

namespace {

const QString longName = QStringLiteral("A drive of a maker with a long name and model <1> (sr1)");

class PopupTitle : public testing::Test {
protected:
    PopupTitle() {
        popup_.addItem(longName);
        popup_.resize(150, 28);
        showActive(popup_);
    }
    ~PopupTitle() override { QToolTip::hideText(); }

    void askForTip() {
        QHelpEvent event(QEvent::ToolTip, {5, 5}, popup_.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&popup_, &event);
    }

    ElidedComboBox popup_;
};

TEST_F(PopupTitle, IsCutInItsMiddle) {
    const QString shown = popup_.shownText();
    EXPECT_TRUE(shown.startsWith(QStringLiteral("A dr"))) << shown.toStdString();
    EXPECT_TRUE(shown.endsWith(QStringLiteral("(sr1)"))) << shown.toStdString();
    EXPECT_LE(popup_.fontMetrics().horizontalAdvance(shown), popup_.width() - 20);
}

TEST_F(PopupTitle, ThatFitsIsWhole) {
    popup_.setItemText(0, QStringLiteral("CD (sr1)"));
    EXPECT_EQ(popup_.shownText(), QStringLiteral("CD (sr1)"));
    popup_.setToolTip(QStringLiteral("Own"));
    askForTip();
    EXPECT_EQ(QToolTip::text(), QStringLiteral("Own"));
}

TEST_F(PopupTitle, ThatIsCutIsToldByATip) {
    popup_.setToolTip(QStringLiteral("Own"));
    askForTip();
    ASSERT_TRUE(Qt::mightBeRichText(QToolTip::text()));
    EXPECT_EQ(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText(), longName);
}

TEST_F(PopupTitle, IsDrawnAsItIsCut) {
    const QImage cut = popup_.grab().toImage();
    popup_.setItemText(0, popup_.shownText());
    EXPECT_EQ(popup_.grab().toImage(), cut);
}

} // namespace
