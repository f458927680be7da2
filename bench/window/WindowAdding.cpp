// SPDX-License-Identifier: GPL-2.0-or-later
// Measures the real tool, loaded as a host loads it, while files are added to its data list: the
// time from handing them over to the end of the check (the sheet closes), and the longest time that
// the main loop did not answer meanwhile.
//
//   window_adding LIBRARY PATH...     prints "SECONDS LONGEST_GAP_MS ROWS"
//   window_adding LIBRARY --each DIR  hands over each file of DIR as an item of its own
#include "host/VXUtilitiesTool.h"
#include "tests/support/Heartbeat.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QPluginLoader>
#include <QTableView>
#include <QTimer>

#include <cstdio>
#include <filesystem>

namespace {

class NoEvents final : public VXUtilitiesToolContext {
public:
    VXUserDataCollector *userDataCollector() override { return nullptr; }
};

SongList filesFromArguments(int count, char **values) {
    SongList files;
    if (count == 2 && QByteArray(values[0]) == "--each") {
        for (const auto &entry : std::filesystem::directory_iterator(values[1])) {
            files.append({QByteArray(entry.path().c_str()), {}, {}});
        }
        return files;
    }
    for (int i = 0; i < count; ++i) {
        files.append({QByteArray(values[i]), {}, {}});
    }
    return files;
}

/// Runs the event loop until the condition holds.
template <class Condition>
void runUntil(Condition condition) {
    while (!condition()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
}

} // namespace

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "window_adding LIBRARY (PATH... | --each DIR)\n");
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
    QWidget *window = tool->mainWindow();
    window->show();

    auto *type = window->findChild<QComboBox *>(QStringLiteral("_cdTypePopup"));
    auto *sheet = window->findChild<QDialog *>();
    auto *table = window->findChild<QTableView *>();
    if (type == nullptr || sheet == nullptr || table == nullptr) {
        std::fprintf(stderr, "the window is not the one that this program knows\n");
        return 1;
    }
    QElapsedTimer settled;
    settled.start();
    runUntil([&] {
        QTimer::singleShot(10, [] {});
        return settled.elapsed() > 300;
    });
    type->setCurrentIndex(1);
    emit type->activated(1);

    const SongList files = filesFromArguments(argc - 2, argv + 2);
    Heartbeat heartbeat;
    QElapsedTimer elapsed;
    elapsed.start();
    tool->addFiles(files);
    runUntil([sheet] { return sheet->isVisible(); });
    runUntil([sheet] { return !sheet->isVisible(); });
    std::printf("%.3f %.1f %d\n", static_cast<double>(elapsed.nsecsElapsed()) / 1e9,
                heartbeat.longestMilliseconds(), table->model()->rowCount());
    tool->shutdown();
    return 0;
}
