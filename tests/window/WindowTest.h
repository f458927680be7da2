// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/support/Deadline.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/window/Desktop.h"
#include "tests/window/Hand.h"
#include "tests/window/Program.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRect>
#include <QString>

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

/// The host with the tool's window open on a desktop of the test's own, an image drive with a blank
/// disc, and, on demand, another program beside it. Hand is the only thing that acts; what the
/// programs then show is asked of them and waited for.
class WindowTest : public testing::Test {
protected:
    WindowTest();
    ~WindowTest() override;

    /// Starts the host, with files for the list if there are any, and waits until its two windows
    /// are up, the tool's window is active and its drive is found.
    void start(const std::vector<std::filesystem::path> &files = {});
    /// The same with a list of so many songs, "song 01" and on.
    void startWithSongs(int count);
    /// The same without any drive.
    void startWithoutDrive();
    /// Starts the other program beside them. The tool's window is active again when it returns.
    void startNeighbour();
    /// The same without making the tool's window active again.
    void startNeighbourBeside();
    /// Makes the tool's window the active one, as a click on its title does.
    void activate();

    QJsonObject state() { return host_->ask(); }
    /// A part of the state, as HostProbe names it.
    QJsonObject part(const char *name) { return state()[name].toObject(); }
    QJsonObject widget(const char *name) { return part("widgets")[name].toObject(); }
    QString text(const char *name) { return widget(name)["text"].toString(); }
    bool isVisible(const char *name) { return widget(name)["visible"].toBool(); }
    bool isEnabled(const char *name) { return widget(name)["enabled"].toBool(); }
    QString focus() { return state()["focus"].toString(); }
    /// Whether one of the host's windows is the active one for the program, for the window manager
    /// and for the X server alike, so that the next key goes there. Each alone may say so of a
    /// window that has just lost the keyboard, or is about to get it.
    bool hasKeyboard(const char *name);
    bool hasWindow(const char *name) { return part("windows").contains(name); }
    std::uint32_t windowId(const char *name);
    /// A window's place as the program sees it.
    QRect placeOf(const char *window);
    /// Has the window manager put the tool's window there, and waits until it stands.
    void moveWindow(const QPoint &corner);
    QRect rectOf(const char *name);
    QPoint middleOf(const char *name) { return rectOf(name).center(); }
    /// On the edge of a row's right end stands the delete button, so this is in its left half.
    QPoint pointInRow(int row);
    QRect rectOfRow(int row);
    /// The same in the host's own table.
    QPoint pointInSong(int row);

    /// The first column of the list, and the rows that are selected.
    std::vector<std::string> list();
    std::vector<int> selection();

    /// Waits until it is so; fails the test if it does not become so.
    template <typename Condition>
    void waitUntil(const char *what, const Condition &isSo) {
        ASSERT_TRUE(eventually(isSo)) << what << '\n' << description();
    }
    void waitForList(const std::vector<std::string> &names);
    void waitForSelection(const std::vector<int> &rows);

    /// Puts the text cursor into the empty volume name field, as a click and Ctrl+A, Delete do.
    void clearVolumeName();

    /// What the host answers to something that is held over it; blocked is a refusal before any
    /// widget was asked.
    enum class Answer { taken, refused, blocked };

    /// What the neighbour's next drag carries: formats and their data.
    void offer(const std::map<std::string, std::string> &formats);
    /// Presses the left button there and carries what is dragged to a place in the host, until the
    /// host has answered so, and the source has heard. The button stays down.
    void dragFromNeighbour(const QPoint &to, Answer answer);
    /// The same from one place of the host to another.
    void dragInHost(const QPoint &from, const QPoint &to, Answer answer);
    /// Carries what is dragged inside the host on to another place.
    void dragOnTo(const QPoint &to, Answer answer);
    /// Lets go, and what the neighbour hears of it: "copy", "move" or "ignore".
    std::string dropFromNeighbour();
    /// All of it: the drag, the drop, and its result.
    std::string dropOn(const QPoint &place, Answer answer = Answer::taken);
    /// Lets go of what is dragged inside the host.
    void dropInHost();

    /// A path as a line of a list of addresses (RFC 2483), its bytes kept.
    static std::string address(const std::filesystem::path &path);
    /// A song of a second, which is silence.
    std::filesystem::path song(const std::string &name) const;

    std::vector<std::string> environment_; ///< The host's own, as NAME=VALUE.
    TemporaryFolder folder_;
    std::filesystem::path imageFolder_;
    std::filesystem::path musicFolder_;
    Desktop desktop_;
    std::unique_ptr<Program> host_;
    std::unique_ptr<Program> neighbour_;

private:
    std::string description();
    void holdAt(const QPoint &to, Answer answer, Program &source);
    bool isSettled();
    void launch(const std::vector<std::filesystem::path> &files, bool hasDrive);
};
