// SPDX-License-Identifier: GPL-2.0-or-later
// What a window manager sends for the close box, sent by the test itself: needs a display, no
// window manager.
#include "tests/CDBurnerPlugin/controller/ControllerTest.h"

#include "CDBurnerPlugin/VXCDBurner.h"

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>

#include <cstdlib>
#include <xcb/xcb.h>

/// Counts the close requests that have come back from the X server.
class CloseRequests final : public QAbstractNativeEventFilter {
public:
    CloseRequests() { qApp->installNativeEventFilter(this); }

    bool nativeEventFilter(const QByteArray & /*type*/, void *message, qintptr *) override {
        const auto *const event = static_cast<const xcb_generic_event_t *>(message);
        count_ += (event->response_type & 0x7fU) == XCB_CLIENT_MESSAGE ? 1 : 0;
        return false;
    }
    int count() const { return count_; }

private:
    int count_ = 0;
};

class X11Close : public testing::Test {
protected:
    void SetUp() override {
        tool.startup();
        tool.mainWindow()->show();
        ASSERT_TRUE(runUntil([this] { return !engine.handles.empty(); }));
        drainMainQueue();
    }
    void TearDown() override {
        tool.shutdown();
        EXPECT_TRUE(runUntil([this] { return engine.finishedSearchCount() == 1; }));
        drainMainQueue();
    }

    static xcb_connection_t *connection() {
        return qApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    }
    static xcb_atom_t atom(const std::string &name) {
        const auto cookie =
            xcb_intern_atom(connection(), 0, static_cast<std::uint16_t>(name.size()), name.c_str());
        xcb_intern_atom_reply_t *const reply = xcb_intern_atom_reply(connection(), cookie, nullptr);
        const xcb_atom_t result = reply->atom;
        std::free(reply); // NOLINT: the library allocates it
        return result;
    }
    /// A click on the main window's close box.
    void requestClose() {
        xcb_client_message_event_t event{};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 32;
        event.window = static_cast<xcb_window_t>(tool.mainWindow()->winId());
        event.type = atom("WM_PROTOCOLS");
        event.data.data32[0] = atom("WM_DELETE_WINDOW");
        xcb_send_event(connection(), 0, event.window, XCB_EVENT_MASK_NO_EVENT,
                       reinterpret_cast<const char *>(&event));
        xcb_flush(connection());
    }
    void startBurn() {
        engine.audio().delegate()->burnProgressDidStarted();
        drainMainQueue();
    }

    FakeEngine engine;
    UsageLog usage;
    VXCDBurner tool{UsageLog::context()};
};

TEST_F(X11Close, CloseBoxOfTheMainWindowAsksWhileTheSheetIsUp) {
    startBurn();
    const AlertAnswer answer(QStringLiteral("No"));
    requestClose();
    EXPECT_TRUE(runUntil([&answer] { return answer.count() == 1; }));
    drainMainQueue();
    EXPECT_TRUE(tool.isStartuped());
    EXPECT_EQ(engine.audio().count("stopBurn"), 0);
}

TEST_F(X11Close, YesStopsTheBurnAndCloses) {
    startBurn();
    const AlertAnswer answer(QStringLiteral("Yes"));
    requestClose();
    EXPECT_TRUE(runUntil([this] { return !tool.isStartuped(); }));
    EXPECT_EQ(answer.count(), 1);
    EXPECT_EQ(engine.audio().count("stopBurn"), 1);
}

TEST_F(X11Close, IdleWindowCloses) {
    requestClose();
    EXPECT_TRUE(runUntil([this] { return !tool.isStartuped(); }));
}

TEST_F(X11Close, CloseBoxIsDeadBehindAnotherAlert) {
    engine.audio().delegate()->burnProgressDidError(
        ScorchError(ScorchErrorCode::writeFailed, "Broken."));
    const AlertAnswer answer([this](QMessageBox *alert) {
        const CloseRequests arrived;
        requestClose();
        EXPECT_TRUE(runUntil([&arrived] { return arrived.count() > 0; }));
        drainMainQueue();
        EXPECT_TRUE(tool.isStartuped());
        AlertAnswer::press(alert, QStringLiteral("OK"));
    });
    EXPECT_TRUE(runUntil([&answer] { return answer.count() == 1; }));
    drainMainQueue();
    EXPECT_TRUE(tool.isStartuped());
}
