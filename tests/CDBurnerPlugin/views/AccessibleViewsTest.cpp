// SPDX-License-Identifier: GPL-2.0-or-later
// What views are to assistive technologies. That they hear of it is tested over the real bus.
#include "CDBurnerPlugin/AccessibleViews.h"

#include "CDBurnerPlugin/AnnouncedLabel.h"
#include "CDBurnerPlugin/CapacityView.h"
#include "CDBurnerPlugin/ErrorTipsView.h"
#include "CDBurnerPlugin/ProgressIndicator.h"
#include "CDBurnerPlugin/ProgressWindow.h"
#include "CDBurnerPlugin/VXDragImageView.h"
#include "CDBurnerPlugin/VXHelpView.h"
#include "CDBurnerPlugin/VXHelpWindow.h"
#include "tests/CDBurnerPlugin/EventLoop.h"
#include "tests/CDBurnerPlugin/views/TableRecorder.h"

#include <gmock/gmock.h>

#include <QAccessible>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

QAccessibleInterface *interfaceOf(QWidget *view) {
    return QAccessible::queryAccessibleInterface(view);
}

class AccessibleView : public testing::Test {
protected:
    static void SetUpTestSuite() { installAccessibleViews(); } // Before the first view is made.
};

class AnnouncingSheet : public AccessibleView {
protected:
    AnnouncingSheet() {
        showActive(main_);
        sheet_.setType(ProgressWindow::burningType);
        sheet_.runSheetForWindow(&main_);
    }

    void step(const char *tips) {
        sheet_.updateNameTips(name_, QLatin1String(tips));
        note();
    }
    void progress(float progress, const QString &tips) {
        sheet_.updateProgressByNameTips(progress, name_, tips);
        note();
    }
    AnnouncedLabel *label(const char *name) const {
        return sheet_.findChild<AnnouncedLabel *>(QLatin1String(name));
    }
    ProgressIndicator *bar() const { return sheet_.findChild<ProgressIndicator *>(); }

    QString name_ = QStringLiteral("Burning");
    std::vector<std::string> announced_; ///< Of the tips line, one for each that is another one.

private:
    void note() {
        drainMainQueue();
        const std::string text = label("txtTips")->announcedText().toStdString();
        if (announced_.empty() || announced_.back() != text) {
            announced_.push_back(text);
        }
    }

    QWidget main_;
    ProgressWindow sheet_{&main_};
};

TEST_F(AnnouncingSheet, AnnouncesEachStep) {
    step("Prepare");
    step("Prepare");
    step("Verify");
    EXPECT_THAT(announced_, ElementsAre("Prepare", "Verify"));
    EXPECT_EQ(label("txtName")->announcedText(), name_);
}

TEST_F(AnnouncingSheet, AnnouncesWhatPassesWithEachTenth) {
    int reported = 0;
    QObject::connect(bar(), &QProgressBar::valueChanged, [&reported] { ++reported; });
    for (int percent = 0; percent <= 100; ++percent) {
        progress(static_cast<float>(percent) / 100.0F, QString::number(percent));
    }
    EXPECT_THAT(announced_, SizeIs(11U));
    EXPECT_EQ(announced_.front(), "0");
    EXPECT_EQ(announced_.back(), "100");
    EXPECT_EQ(reported, 10);
}

TEST_F(AnnouncingSheet, AnnouncesTheFirstOfAnotherWork) {
    progress(0.51F, QStringLiteral("1:00"));
    progress(0.52F, QStringLiteral("0:59"));
    name_ = QStringLiteral("Checking");
    progress(0.52F, QStringLiteral("a.wav"));
    EXPECT_THAT(announced_, ElementsAre("1:00", "a.wav"));
    EXPECT_EQ(label("txtName")->announcedText(), name_);
}

TEST_F(AnnouncingSheet, TellsWhatItShowsBetweenAnnouncements) {
    progress(0.51F, QStringLiteral("1:00"));
    progress(0.52F, QStringLiteral("0:59"));
    QAccessibleInterface *tips = interfaceOf(label("txtTips"));
    EXPECT_EQ(tips->role(), QAccessible::Notification);
    EXPECT_EQ(tips->text(QAccessible::Name), QStringLiteral("1:00"));
    EXPECT_EQ(tips->text(QAccessible::Description), QStringLiteral("0:59"));
    EXPECT_EQ(interfaceOf(bar())->valueInterface()->currentValue().toInt(), 52);
}

TEST_F(AccessibleView, CapacityIsABarOfPercents) {
    CapacityView bar;
    bar.setMaxValue(4000);
    bar.setDoubleValue(1000);
    QAccessibleInterface *interface = interfaceOf(&bar);
    EXPECT_EQ(interface->role(), QAccessible::ProgressBar);
    EXPECT_EQ(interface->valueInterface()->currentValue().toInt(), 25);
    EXPECT_EQ(interface->valueInterface()->maximumValue().toInt(), 100);
    EXPECT_TRUE(interface->state().readOnly);
    bar.setDoubleValue(9000);
    EXPECT_EQ(bar.percent(), 100);
    bar.setMaxValue(0);
    EXPECT_EQ(bar.percent(), 0);
}

TEST_F(AccessibleView, TipsAreANotification) {
    ErrorTipsView tips;
    tips.setErrorTips(QStringLiteral("Checking disk..."));
    EXPECT_EQ(interfaceOf(&tips)->role(), QAccessible::Notification);
    EXPECT_EQ(interfaceOf(&tips)->text(QAccessible::Name), QStringLiteral("Checking disk..."));
}

TEST_F(AccessibleView, HelpIsANotificationOfPlainText) {
    VXHelpWindow help;
    auto *bubble = help.findChild<VXHelpView *>();
    EXPECT_EQ(interfaceOf(bubble)->role(), QAccessible::Notification);
    const std::string text = interfaceOf(bubble)->text(QAccessible::Name).toStdString();
    EXPECT_THAT(text, HasSubstr("Plays in CD players"));
    EXPECT_THAT(text, Not(HasSubstr("<")));
}

TEST_F(AccessibleView, DropTargetIsAPicture) {
    VXDragImageView picture;
    EXPECT_EQ(interfaceOf(&picture)->role(), QAccessible::Graphic);
}

TEST_F(AccessibleView, RowIsReadByTheCellOfItsName) {
    const TableFixture fixture(1);
    const auto *model = fixture.table.filesModel();
    EXPECT_EQ(model->index(0, 0).data(Qt::AccessibleTextRole).toString(),
              QStringLiteral("song 0, 0:01"));
    EXPECT_FALSE(model->index(0, 1).data(Qt::AccessibleTextRole).isValid());
}

} // namespace
