// SPDX-License-Identifier: GPL-2.0-or-later
// Another program on the same screen: drags come from it, and it can be the active one.
#include "tests/window/LineServer.h"
#include "tests/window/neighbour/NeighbourWindow.h"

#include <QApplication>

int main(int argc, char *argv[]) {
    const QApplication application(argc, argv);
    NeighbourWindow window;
    const LineServer server(
        [&window](const QJsonObject &question) { return window.answer(question); });
    window.show();
    return QApplication::exec();
}
