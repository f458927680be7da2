// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/window/WindowTest.h"

#include <QByteArray>
#include <QJsonDocument>

#include <cstdio>

namespace {

constexpr std::uint32_t bytesPerSecond = 44'100 * 4; // Of sound as a CD has it.

QRect rectFrom(const QJsonObject &place) {
    return {place["x"].toInt(), place["y"].toInt(), place["w"].toInt(), place["h"].toInt()};
}

std::string littleEndian(std::uint32_t value) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(value >> shift & 0xff);
    }
    return bytes;
}

/// The first bytes of a WAV file of 16 bit stereo; the sound comes after them.
std::string waveHeader(std::uint32_t dataBytes) {
    constexpr std::uint32_t headerBytes = 44;
    const std::string format = std::string("\1\0\2\0", 4) + littleEndian(44'100) +
                               littleEndian(bytesPerSecond) + std::string("\4\0\x10\0", 4);
    return "RIFF" + littleEndian(dataBytes + headerBytes - 8) + "WAVEfmt " + littleEndian(16) +
           format + "data" + littleEndian(dataBytes);
}

bool isNear(const QJsonValue &point, const QPoint &place) {
    const QJsonArray pair = point.toArray();
    return pair.size() == 2 &&
           (QPoint(pair[0].toInt(), pair[1].toInt()) - place).manhattanLength() <= 1;
}

} // namespace

WindowTest::WindowTest() : imageFolder_(folder_ / "images"), musicFolder_(folder_ / "music") {
    std::filesystem::create_directory(imageFolder_);
    std::filesystem::create_directory(musicFolder_);
}

WindowTest::~WindowTest() {
    if (host_ != nullptr && !HasFatalFailure()) {
        EXPECT_TRUE(host_->process().isRunning()) << "the host did not live to the end";
    }
}

void WindowTest::start(const std::vector<std::filesystem::path> &files) {
    launch(files, true);
    waitUntil("the disc is known", [this] {
        return isVisible("_volumeName") && text("_volumeName") == QLatin1String("Untitled");
    });
    waitUntil("the files are listed", [this, &files] {
        return list().size() == files.size() && !hasWindow("ProgressWindow") && isSettled();
    });
}

void WindowTest::startWithoutDrive() {
    launch({}, false);
    waitUntil("it is said that there is no drive", [this] { return isVisible("_txtNoneDevice"); });
}

void WindowTest::launch(const std::vector<std::filesystem::path> &files, bool hasDrive) {
    std::vector<std::string> arguments = {"env"};
    arguments.insert(arguments.end(), environment_.begin(), environment_.end());
    arguments.insert(arguments.end(),
                     {TEST_WINDOW_HOST, "--tool=CD Burner", "--music=" + musicFolder_.string()});
    if (hasDrive) {
        arguments.push_back("--image-drive=" + imageFolder_.string());
    }
    arguments.emplace_back("--");
    arguments.insert(arguments.end(), files.begin(), files.end());
    host_ = std::make_unique<Program>(arguments, desktop_.errorFile());
    waitUntil("the windows are up", [this] { return isSettled(); });
}

bool WindowTest::isSettled() {
    return hasKeyboard("MainWindow") &&
           desktop_.windowRect(windowId("MainWindow")) == placeOf("MainWindow");
}

bool WindowTest::hasKeyboard(const char *name) {
    const QJsonObject now = state();
    const auto id =
        static_cast<std::uint32_t>(now["windows"].toObject()[name].toObject()["id"].toInteger());
    return id != 0 && now["active"] == QLatin1String(name) && desktop_.activeWindow() == id &&
           desktop_.keyboardWindow() == id;
}

QRect WindowTest::placeOf(const char *window) {
    return rectFrom(part("windows")[window].toObject());
}

void WindowTest::moveWindow(const QPoint &corner) {
    const QRect before = placeOf("MainWindow");
    const std::uint32_t id = windowId("MainWindow");
    Hand::run(
        {"windowmove", std::to_string(id), std::to_string(corner.x()), std::to_string(corner.y())});
    waitUntil("the window has moved", [&] {
        const QRect now = placeOf("MainWindow");
        return now != before && now == desktop_.windowRect(id);
    });
}

void WindowTest::startWithSongs(int count) {
    std::vector<std::filesystem::path> songs;
    for (int number = 1; number <= count; ++number) {
        std::string name = "song 00";
        std::snprintf(name.data(), name.size() + 1, "song %02d", number % 100);
        songs.push_back(song(name));
    }
    start(songs);
}

void WindowTest::startNeighbour() {
    startNeighbourBeside();
    activate();
}

void WindowTest::activate() {
    Hand::run({"windowactivate", std::to_string(windowId("MainWindow"))});
    waitUntil("the tool's window is active again", [this] { return hasKeyboard("MainWindow"); });
}

void WindowTest::startNeighbourBeside() {
    neighbour_ = std::make_unique<Program>(std::vector<std::string>{TEST_WINDOW_NEIGHBOUR},
                                           desktop_.errorFile());
    waitUntil("the neighbour is up", [this] {
        const QJsonObject window = neighbour_->ask();
        const auto id = static_cast<std::uint32_t>(window["id"].toInteger());
        return window["active"].toBool() && desktop_.windowRect(id) == rectFrom(window);
    });
}

std::uint32_t WindowTest::windowId(const char *name) {
    return static_cast<std::uint32_t>(part("windows")[name].toObject()["id"].toInteger());
}

QRect WindowTest::rectOf(const char *name) {
    return rectFrom(widget(name));
}

QRect WindowTest::rectOfRow(int row) {
    return rectFrom(part("list")["rows"].toArray().at(row).toObject());
}

QPoint WindowTest::pointInRow(int row) {
    const QRect rect = rectOfRow(row);
    return {rect.x() + rect.width() / 4, rect.center().y()};
}

QPoint WindowTest::pointInSong(int row) {
    return rectFrom(part("songs")["rows"].toArray().at(row).toObject()).center();
}

std::vector<std::string> WindowTest::list() {
    std::vector<std::string> names;
    for (const QJsonValue row : part("list")["rows"].toArray()) {
        names.push_back(row["texts"].toArray().at(0).toString().toStdString());
    }
    return names;
}

std::vector<int> WindowTest::selection() {
    std::vector<int> rows;
    for (const QJsonValue row : part("list")["selected"].toArray()) {
        rows.push_back(row.toInt());
    }
    return rows;
}

void WindowTest::waitForList(const std::vector<std::string> &names) {
    EXPECT_TRUE(eventually([&] { return list() == names; }))
        << testing::PrintToString(list()) << " instead of " << testing::PrintToString(names);
}

void WindowTest::waitForSelection(const std::vector<int> &rows) {
    EXPECT_TRUE(eventually([&] { return selection() == rows; }))
        << testing::PrintToString(selection()) << " instead of " << testing::PrintToString(rows);
}

void WindowTest::clearVolumeName() {
    Hand::clickAt(middleOf("_volumeName"));
    Hand::keys({"ctrl+a", "Delete"});
    waitUntil("the name is empty", [this] {
        return focus() == QLatin1String("_volumeName") && text("_volumeName").isEmpty();
    });
}

void WindowTest::offer(const std::map<std::string, std::string> &formats) {
    QJsonObject data;
    for (const auto &[format, bytes] : formats) {
        data[QString::fromStdString(format)] =
            QString::fromLatin1(QByteArray::fromStdString(bytes).toBase64());
    }
    neighbour_->ask({{"offer", data}});
}

void WindowTest::dragFromNeighbour(const QPoint &to, Answer answer) {
    const QRect source = rectFrom(neighbour_->ask());
    Hand::moveTo(source.center());
    Hand::press();
    waitUntil("the drag begins", [&] {
        Hand::moveTo(source.center() + QPoint(30, 0));
        Hand::moveTo(source.center() + QPoint(31, 0));
        return neighbour_->ask()["isDragging"].toBool();
    });
    holdAt(to, answer, *neighbour_);
}

void WindowTest::dragInHost(const QPoint &from, const QPoint &to, Answer answer) {
    Hand::moveTo(from);
    Hand::press();
    waitUntil("the drag begins", [&] {
        Hand::moveTo(from + QPoint(15, 0));
        Hand::moveTo(from + QPoint(16, 0));
        return state()["cursor"].toInt() != -1;
    });
    holdAt(to, answer, *host_);
}

void WindowTest::dragOnTo(const QPoint &to, Answer answer) {
    holdAt(to, answer, *host_);
}

void WindowTest::holdAt(const QPoint &to, Answer answer, Program &source) {
    const bool isTaken = answer == Answer::taken;
    const QLatin1String expected(isTaken ? "taken" : "refused");
    const int pointer = isTaken ? Qt::DragCopyCursor : Qt::ForbiddenCursor;
    // The place is told again and again, for a program may miss it while it still answers about
    // the one before.
    waitUntil("the drag is answered at its place", [&] {
        Hand::moveTo(to + QPoint(1, 0));
        Hand::moveTo(to);
        const bool isAnswered = answer == Answer::blocked ? source.ask()["answer"] == expected
                                                          : isNear(state()["dragPoint"], to) &&
                                                                state()["dragAnswer"] == expected;
        return isAnswered && source.ask()["cursor"].toInt() == pointer;
    });
}

std::string WindowTest::dropFromNeighbour() {
    const int before = neighbour_->ask()["drags"].toInt();
    Hand::release();
    EXPECT_TRUE(eventually([&] { return neighbour_->ask()["drags"].toInt() > before; }));
    return neighbour_->ask()["result"].toString().toStdString();
}

std::string WindowTest::dropOn(const QPoint &place, Answer answer) {
    dragFromNeighbour(place, answer);
    return HasFatalFailure() ? std::string("no drag") : dropFromNeighbour();
}

void WindowTest::dropInHost() {
    Hand::release();
    waitUntil("the drag is over", [this] { return state()["cursor"].toInt() == -1; });
}

std::string WindowTest::address(const std::filesystem::path &path) {
    const QByteArray bytes = QByteArray::fromStdString(path.string());
    return "file://" + bytes.toPercentEncoding("/").toStdString() + "\r\n";
}

std::filesystem::path WindowTest::song(const std::string &name) const {
    return folder_.write("songs/" + name + ".wav",
                         waveHeader(bytesPerSecond) + std::string(bytesPerSecond, '\0'));
}

std::string WindowTest::description() {
    std::string text = "what the programs said:\n" + readFile(desktop_.errorFile());
    if (host_ != nullptr && host_->process().isRunning()) {
        text += QJsonDocument(state()).toJson(QJsonDocument::Compact).toStdString() + '\n';
    }
    if (neighbour_ != nullptr && neighbour_->process().isRunning()) {
        text += QJsonDocument(neighbour_->ask()).toJson(QJsonDocument::Compact).toStdString();
    }
    return text;
}
