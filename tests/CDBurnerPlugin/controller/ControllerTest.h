// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "CDBurnerPlugin/CapacityView.h"
#include "CDBurnerPlugin/ErrorTipsView.h"
#include "CDBurnerPlugin/FilesTableModel.h"
#include "CDBurnerPlugin/FilesTableView.h"
#include "CDBurnerPlugin/MainWindow.h"
#include "CDBurnerPlugin/ProgressWindow.h"
#include "CDBurnerPlugin/VXCDBurnerMainWindowController.h"
#include "CDBurnerPlugin/VolumeNameEdit.h"
#include "tests/CDBurnerPlugin/EventLoop.h"
#include "tests/CDBurnerPlugin/controller/AlertAnswer.h"
#include "tests/CDBurnerPlugin/controller/UsageLog.h"
#include "tests/support/FakeEngine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>

#include <functional>
#include <memory>
#include <string>

/// A controller with its real window on a fake engine.
class ControllerTest : public testing::Test {
protected:
    ControllerTest();
    ~ControllerTest() override;

    /// Makes the controller, shows its window, and waits until the drives are set up.
    void open();
    /// The same, but the search for drives is still running.
    void openWhileSearching();
    /// open() with one drive ("Drive") that holds a blank CD.
    void openWithBlankDisc();
    /// openWithBlankDisc() with that many songs in the audio list.
    void openWithSongs(int count);
    void letGo();

    /// Has the first drive be in each state in turn that the box has a tip for, and checks.
    void inEachStateOfTheDrive(const std::function<void()> &check);

    template <class Widget>
    Widget *find(const char *name) const {
        auto *const widget = controller->window()->findChild<Widget *>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }

    QPushButton *burnButton() const { return find<QPushButton>("_btnBurn"); }
    QComboBox *devicePopup() const { return find<QComboBox>("_devicePopup"); }
    QComboBox *typePopup() const { return find<QComboBox>("_cdTypePopup"); }
    QLabel *noneDevice() const { return find<QLabel>("_txtNoneDevice"); }
    FilesTableView *table() const { return find<FilesTableView>("_filesTableView"); }
    QAbstractButton *deleteButton() const { return find<QAbstractButton>("_btnDelete"); }
    VolumeNameEdit *volumeName() const { return find<VolumeNameEdit>("_volumeName"); }
    QLabel *usedLabel() const { return find<QLabel>("_txtUsedCapacity"); }
    QLabel *retainedLabel() const { return find<QLabel>("_txtRetainedCapacity"); }
    CapacityView *bar() const { return find<CapacityView>("_capacityView"); }
    ProgressWindow *sheet() const;

    /// The tip that the box shows; "" while it shows the volume name.
    std::string tip() const;
    bool showsVolumeName() const;
    std::string infoTitle() const;
    /// The titles of the drives in the popup.
    std::vector<std::string> deviceTitles() const;
    int rowCount() const { return table()->filesModel()->rowCount(); }

    /// What a user does with a popup.
    void choose(QComboBox *popup, const char *title);
    void chooseData() { choose(typePopup(), "Data CD"); }
    void chooseAudio() { choose(typePopup(), "Audio CD"); }

    /// Sends a callback as the engine would, and lets what follows from it happen.
    template <class Callback>
    void send(FakeScorcher &burner, Callback callback) {
        ASSERT_NE(burner.delegate(), nullptr);
        callback(*burner.delegate());
        drainMainQueue();
    }
    void startBurn();

    FakeEngine engine;
    UsageLog usage;
    std::shared_ptr<VXCDBurnerMainWindowController> controller;

private:
    int openings_ = 0; // Each starts one search for drives.
};

/// Catches the tool's log lines while it exists.
class LogCatcher {
public:
    LogCatcher();
    ~LogCatcher();
    LogCatcher(const LogCatcher &) = delete;
    LogCatcher &operator=(const LogCatcher &) = delete;

    static std::vector<std::string> &lines();

private:
    QtMessageHandler previous_;
};
