// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/controller/ControllerTest.h"

#include "CDBurnerPlugin/VXUtilitiesToolContextContainer.h"

ControllerTest::ControllerTest() {
    VXUtilitiesToolContextContainer::defaultContainer().setUtilitiesToolContext(
        UsageLog::context());
}

ControllerTest::~ControllerTest() {
    engine.releaseSearch();
    // A search that still runs asks the engine.
    EXPECT_TRUE(runUntil([this] { return engine.finishedSearchCount() == openings_; }));
    const std::weak_ptr<VXCDBurnerMainWindowController> watched = controller;
    letGo();
    EXPECT_TRUE(runUntil([&watched] { return watched.expired(); }));
    drainMainQueue();
}

void ControllerTest::inEachStateOfTheDrive(const std::function<void()> &check) {
    FakeDrive &drive = engine.drives.front();
    for (int state = 0; state < 4; ++state) {
        drive.hasDisc = state != 0;
        drive.isBlank = state != 1;
        drive.isChecking = state == 2;
        drive.cannotBurn = state == 3;
        controller->deviceStatusDidChanged();
        check();
    }
}

void ControllerTest::letGo() {
    if (controller != nullptr) {
        controller->detach();
        controller.reset();
    }
}

void ControllerTest::openWhileSearching() {
    controller = VXCDBurnerMainWindowController::init();
    ++openings_;
    controller->window()->show();
}

void ControllerTest::open() {
    openWhileSearching();
    ASSERT_TRUE(runUntil([this] { return !engine.handles.empty(); }));
    drainMainQueue();
}

void ControllerTest::openWithBlankDisc() {
    engine.addDrive("Drive");
    open();
}

void ControllerTest::openWithSongs(int count) {
    for (int number = 1; number <= count; ++number) {
        engine.audio().append("Song " + std::to_string(number), INT64_C(75) * number);
    }
    openWithBlankDisc();
}

ProgressWindow *ControllerTest::sheet() const {
    auto *const window = controller->window()->findChild<ProgressWindow *>();
    EXPECT_NE(window, nullptr);
    return window;
}

bool ControllerTest::showsVolumeName() const {
    return find<QStackedWidget>("_discSetStack")->currentWidget() == find<QWidget>("_discSetView");
}

std::string ControllerTest::tip() const {
    return showsVolumeName() ? std::string()
                             : find<ErrorTipsView>("_errorTipsView")->errorTips().toStdString();
}

std::string ControllerTest::infoTitle() const {
    return table()
        ->filesModel()
        ->headerData(FilesTableModel::fileinfo, Qt::Horizontal, Qt::DisplayRole)
        .toString()
        .toStdString();
}

std::vector<std::string> ControllerTest::deviceTitles() const {
    std::vector<std::string> titles;
    titles.reserve(static_cast<std::size_t>(devicePopup()->count()));
    for (int index = 0; index < devicePopup()->count(); ++index) {
        titles.push_back(devicePopup()->itemText(index).toStdString());
    }
    return titles;
}

void ControllerTest::choose(QComboBox *popup, const char *title) {
    const int index = popup->findText(QLatin1String(title));
    ASSERT_GE(index, 0) << title;
    popup->setCurrentIndex(index);
    emit popup->activated(index);
}

void ControllerTest::startBurn() {
    send(engine.audio(), [](ScorchDelegate &delegate) { delegate.burnProgressDidStarted(); });
}

namespace {

void catchLine(QtMsgType /*type*/, const QMessageLogContext &context, const QString &message) {
    if (std::string(context.category) == "cdburner") {
        LogCatcher::lines().push_back(message.toStdString());
    }
}

} // namespace

LogCatcher::LogCatcher() : previous_(qInstallMessageHandler(&catchLine)) {
    lines().clear();
}

LogCatcher::~LogCatcher() {
    qInstallMessageHandler(previous_);
}

std::vector<std::string> &LogCatcher::lines() {
    static std::vector<std::string> caught;
    return caught;
}
