// SPDX-License-Identifier: GPL-2.0-or-later
//
// How long the main thread is held by a large music library: each step is what one event of the
// user or of the scan does, with the list shown and painted.
//
//   bench_library [SONGS]        (20000 without a number; offscreen)
//
// Prints the longest time of each kind of step in milliseconds.

#include "crate/SongListView.h"
#include "crate/SongModel.h"

#include <QApplication>
#include <QMimeData>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t portion = 200; // What the scan hands over at once.

/// As songs of many artists arrive, which is in no order.
std::vector<crate::SongRow> makeSongs(std::size_t count) {
    const crate::SongRowMaker maker;
    std::mt19937 random(1);
    std::vector<crate::SongRow> songs;
    for (std::size_t index = 0; index < count; ++index) {
        crate::LibrarySong song;
        const auto number = static_cast<unsigned long long>(index);
        song.path = "/music/" + QByteArray::number(number) + ".flac";
        song.title = QStringLiteral("Song %1 of the list").arg(random() % 5000);
        song.artist = QStringLiteral("Artist number %1").arg(random() % 700);
        song.album = QStringLiteral("Album %1").arg(random() % 2000);
        song.track = static_cast<int>(random() % 20);
        song.length = std::chrono::seconds(random() % 400);
        songs.push_back(maker.make(song));
    }
    return songs;
}

/// The longest step of a kind so far.
class Longest {
public:
    explicit Longest(const char *name) : name_(name) {}
    ~Longest() { std::printf("%-28s %7.1f ms\n", name_, milliseconds_); }
    Longest(const Longest &) = delete;
    Longest &operator=(const Longest &) = delete;

    template <typename Step>
    void time(const Step &step) {
        const Clock::time_point start = Clock::now();
        step();
        QApplication::processEvents(); // Layout and paint belong to it.
        const std::chrono::duration<double, std::milli> taken = Clock::now() - start;
        milliseconds_ = std::max(milliseconds_, taken.count());
    }

private:
    const char *name_;
    double milliseconds_ = 0;
};

} // namespace

int main(int argc, char *argv[]) {
    const std::size_t count = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 20'000;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const std::vector<crate::SongRow> songs = makeSongs(count);
    crate::SongModel model;
    crate::SongListView view(&model);
    view.resize(900, 600);
    view.show();
    QApplication::processEvents();

    {
        Longest adding("adding 200 found songs");
        for (std::size_t at = 0; at < songs.size(); at += portion) {
            const auto first = songs.begin() + static_cast<std::ptrdiff_t>(at);
            const auto last =
                songs.begin() + static_cast<std::ptrdiff_t>(std::min(at + portion, songs.size()));
            adding.time([&] { model.addSongs({first, last}); });
        }
    }
    {
        Longest sorting("sorting by a column");
        for (int column = 0; column < crate::songColumnCount; ++column) {
            sorting.time([&] { view.sortByColumn(column, Qt::DescendingOrder); });
        }
    }
    {
        Longest searching("a letter of a search");
        for (const char *text : {"a", "ar", "art", "art 7", "art 77", ""}) {
            searching.time([&] { model.setSearch(QString::fromLatin1(text)); });
        }
    }
    {
        Longest selecting("selecting all");
        selecting.time([&] { view.selectAll(); });
    }
    {
        Longest dragging("data of a drag of all");
        dragging.time([&] {
            const std::unique_ptr<QMimeData> data(
                model.mimeData(view.selectionModel()->selectedIndexes()));
        });
    }
    {
        Longest scrolling("scrolling a page");
        for (int row = 0; row < model.rowCount(); row += model.rowCount() / 50 + 1) {
            scrolling.time([&] { view.scrollTo(model.index(row, 0)); });
        }
    }
    return 0;
}
