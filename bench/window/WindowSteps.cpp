// SPDX-License-Identifier: GPL-2.0-or-later
// Measures the real tool, loaded as a host loads it, with a long burn list: how long each step of a
// user at the list holds the main thread. Prints one Markdown table; a step's time is all that the
// main thread works from the event to its being idle again, painting included.
//
//   window_steps LIBRARY [ROWS]     10 000 rows without the number
//
// Exits with 1 where a step took 16 ms of the processor or more: a frame at 60 frames a second.
#include "host/VXUtilitiesTool.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QPluginLoader>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QWheelEvent>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr double frameMilliseconds = 16.0;

class NoEvents final : public VXUtilitiesToolContext {
public:
    VXUserDataCollector *userDataCollector() override { return nullptr; }
};

double processorMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
}

struct Held {
    double milliseconds = 0;
    double processor = 0; // What it would have been had no other program run.
};

/// Adds up the time that it spends on events.
class TimedApplication final : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override {
        if (isInside_) {
            return QApplication::notify(receiver, event);
        }
        isInside_ = true;
        QElapsedTimer timer;
        timer.start();
        const double start = processorMilliseconds();
        const bool result = QApplication::notify(receiver, event);
        held_.processor += processorMilliseconds() - start;
        held_.milliseconds += static_cast<double>(timer.nsecsElapsed()) * 1e-6;
        isInside_ = false;
        sinceLast_.start();
        return result;
    }

    /// Runs the loop until nothing has happened for this long; what the events took since the
    /// last time.
    Held untilIdle(qint64 quietMilliseconds) {
        sinceLast_.start();
        while (sinceLast_.elapsed() < quietMilliseconds) {
            QCoreApplication::processEvents();
            std::this_thread::sleep_for(std::chrono::microseconds(500));
        }
        return std::exchange(held_, {});
    }

private:
    bool isInside_ = false;
    Held held_;
    QElapsedTimer sinceLast_;
};

/// The window with the rows in its data list.
struct Bench {
    TimedApplication &application;
    QWidget *window;
    QTableView *table;
    QAbstractButton *deleteButton;
    bool isWithinFrame = true;
    bool didEverything = true; // Each step had its effect.

    void key(int code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QKeyEvent press(QEvent::KeyPress, code, modifiers);
        QCoreApplication::sendEvent(table, &press);
        QKeyEvent release(QEvent::KeyRelease, code, modifiers);
        QCoreApplication::sendEvent(table, &release);
    }
    void wheel(int notches) const {
        const QPointF middle = QRectF(table->viewport()->rect()).center();
        QWheelEvent event(middle, table->viewport()->mapToGlobal(middle), {},
                          QPoint(0, 120 * notches), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(table->viewport(), &event);
    }
    void hover(int y) const { QCursor::setPos(table->viewport()->mapToGlobal(QPoint(40, y))); }
    /// Selects `count` rows from `first` on, each `every`th.
    void select(int first, int count, int every = 1) const {
        QItemSelection selection;
        for (int i = 0; i < count; ++i) {
            const QModelIndex row = table->model()->index(first + i * every, 0);
            selection.select(row, row.siblingAtColumn(1));
        }
        table->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
        application.untilIdle(50);
    }

    /// Does a step several times and prints its line; `prepare` comes before each and is not
    /// measured.
    void measure(
        const char *name, int times, qint64 quietMilliseconds, const std::function<void(int)> &step,
        const std::function<void(int)> &prepare = [](int) {}) {
        std::vector<double> each;
        Held longest;
        for (int i = 0; i < times; ++i) {
            prepare(i);
            application.untilIdle(50);
            step(i);
            const Held held = application.untilIdle(quietMilliseconds);
            each.push_back(held.milliseconds);
            longest.milliseconds = std::max(longest.milliseconds, held.milliseconds);
            longest.processor = std::max(longest.processor, held.processor);
        }
        std::sort(each.begin(), each.end());
        std::printf("| %s | %d | %.1f | %.1f | %.1f |\n", name, times, each[each.size() / 2],
                    longest.milliseconds, longest.processor);
        std::fflush(stdout);
        isWithinFrame = isWithinFrame && longest.processor < frameMilliseconds;
    }
};

void measureScrolling(Bench &bench) {
    QScrollBar *bar = bench.table->verticalScrollBar();
    bench.measure("wheel, one notch", 60, 20, [&](int i) { bench.wheel(i < 40 ? -1 : 1); });
    bench.measure("page step", 60, 20, [&](int i) {
        bar->triggerAction(i < 40 ? QScrollBar::SliderPageStepAdd : QScrollBar::SliderPageStepSub);
    });
    bench.measure("scroll bar dragged", 40, 20,
                  [&](int i) { bar->setValue(bar->maximum() / 40 * ((i * 17) % 40)); });
    bench.measure("key End, key Home", 20, 20,
                  [&](int i) { bench.key(i % 2 == 0 ? Qt::Key_End : Qt::Key_Home); });
    bar->setValue(bar->maximum() / 2);
}

bool measureHovering(Bench &bench) {
    const int height = bench.table->viewport()->height();
    bench.measure("pointer over another row, with its button", 60, 30,
                  [&](int i) { bench.hover(5 + (i * 37) % (height - 10)); });
    const bool isShown = bench.deleteButton->isVisible();
    bench.measure("wheel under a resting pointer", 40, 20, [&](int) { bench.wheel(-1); });
    return isShown;
}

void measureMoving(Bench &bench) {
    const int middle = bench.table->model()->rowCount() / 2;
    const auto move = [&bench](int i) {
        bench.key(i % 2 == 0 ? Qt::Key_Down : Qt::Key_Up, Qt::AltModifier);
    };
    const auto nameAt = [&bench](int row) {
        return bench.table->model()->index(row, 0).data().toString();
    };
    for (const int count : {1, 1000}) {
        bench.select(middle, count);
        const QString below = nameAt(middle + count);
        bench.measure(count == 1 ? "move of 1 row" : "move of 1000 rows", 31, 40, move);
        bench.didEverything = bench.didEverything && nameAt(middle) == below;
    }
    bench.measure(
        "gathering of 1000 single rows", 6, 40,
        [&](int) { bench.key(Qt::Key_Up, Qt::AltModifier); },
        [&](int) { bench.select(0, 1000, bench.table->model()->rowCount() / 1000); });
}

void measureSelecting(Bench &bench) {
    bench.measure(
        "selection of all rows", 20, 40, [&](int) { bench.key(Qt::Key_A, Qt::ControlModifier); },
        [&](int) { bench.select(10, 1); });
    bench.measure(
        "scroll with all rows selected", 20, 20, [&](int) { bench.wheel(-1); }, [](int) {});
}

/// The engine answers a removal once it knows the size of what is left: some time later.
void measureRemoving(Bench &bench) {
    constexpr qint64 quiet = 400;
    const int rows = bench.table->model()->rowCount();
    bench.select(rows / 2, 3);
    bench.measure(
        "removal of 1 row by its button", 8, quiet, [&](int) { bench.deleteButton->click(); },
        [&](int i) { bench.hover(40 + i); });
    bench.measure(
        "removal of 1 row by key", 8, quiet, [&](int) { bench.key(Qt::Key_Delete); },
        [&](int) { bench.select(20, 1); });
    bench.measure(
        "removal of 1000 rows by key", 3, quiet, [&](int) { bench.key(Qt::Key_Delete); },
        [&](int) { bench.select(20, 1000); });
    constexpr int removed = 8 + 8 + 3 * 1000;
    bench.didEverything =
        bench.didEverything && bench.table->model()->rowCount() == std::max(rows - removed, 0);
    bench.measure(
        "removal of the rest by key", 1, quiet, [&](int) { bench.key(Qt::Key_Delete); },
        [&](int) { bench.key(Qt::Key_A, Qt::ControlModifier); });
}

SongList filesIn(const QTemporaryDir &folder, int count) {
    SongList files;
    for (int i = 0; i < count; ++i) {
        const QString path =
            folder.filePath(QStringLiteral("%1 A name of the length that names have.txt")
                                .arg(i, 5, 10, QLatin1Char('0')));
        QFile file(path);
        if (file.open(QIODevice::WriteOnly)) {
            file.write("x");
        }
        files.append({path.toUtf8(), {}, {}});
    }
    return files;
}

void fill(Bench &bench, VXUtilitiesTool &tool, const SongList &files) {
    auto *type = bench.window->findChild<QComboBox *>(QStringLiteral("_cdTypePopup"));
    bench.application.untilIdle(300);
    type->setCurrentIndex(1);
    emit type->activated(1);
    tool.addFiles(files);
    auto *sheet = bench.window->findChild<QDialog *>();
    do {
        bench.application.untilIdle(100);
    } while (sheet->isVisible());
}

int run(TimedApplication &application, VXUtilitiesTool &tool, int rows) {
    QWidget *window = tool.mainWindow();
    window->show();
    window->activateWindow();
    Bench bench{application, window, window->findChild<QTableView *>(),
                window->findChild<QAbstractButton *>(QStringLiteral("_btnDelete"))};
    const QTemporaryDir folder;
    fill(bench, tool, filesIn(folder, rows));
    if (bench.table->model()->rowCount() != rows) {
        std::fprintf(stderr, "the list has %d rows\n", bench.table->model()->rowCount());
        return 1;
    }
    std::printf("| step, with %d rows | times | median ms | longest ms | longest, of the processor "
                "|\n|---|---:|---:|---:|---:|\n",
                rows);
    measureScrolling(bench);
    if (!measureHovering(bench)) {
        std::fprintf(stderr, "no button came up: is the window the active one?\n");
        return 1;
    }
    measureMoving(bench);
    measureSelecting(bench);
    measureRemoving(bench);
    if (!bench.didEverything || bench.table->model()->rowCount() != 0) {
        std::fprintf(stderr, "not every step moved or removed its rows\n");
        return 1;
    }
    return bench.isWithinFrame ? 0 : 1;
}

} // namespace

int main(int argc, char **argv) {
    TimedApplication application(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "window_steps LIBRARY [ROWS]\n");
        return 2;
    }
    QPluginLoader loader(QString::fromLocal8Bit(argv[1]));
    auto *factory = qobject_cast<VXUtilitiesToolFactory *>(loader.instance());
    if (factory == nullptr) {
        std::fprintf(stderr, "%s\n", qPrintable(loader.errorString()));
        return 1;
    }
    NoEvents context;
    const auto tool = factory->initWithUtilitiesToolContext(&context);
    tool->startup();
    const int rows = argc > 2 ? std::max(1, std::atoi(argv[2])) : 10000;
    const int result = run(application, *tool, rows);
    tool->shutdown();
    return result;
}
