// SPDX-License-Identifier: GPL-2.0-or-later
// The host application as it is, with a line on which a test asks what is on the screen. What a
// user does comes from the X server, as ever.
#include "crate/CommandLine.h"
#include "crate/Crate.h"
#include "tests/window/LineServer.h"
#include "tests/window/host/HostProbe.h"

#include <cstdio>
#include <span>
#include <string>

int main(int argc, char *argv[]) {
    const std::span<const char *const> arguments(argv, static_cast<std::size_t>(argc));
    const auto parsed = crate::parseCommandLine(arguments.subspan(1));
    if (const auto *error = std::get_if<crate::UsageError>(&parsed)) {
        std::fprintf(stderr, "%s\n", error->message.c_str());
        return 2;
    }
    int count = 1;
    const HostProbe application(count, argv);
    QApplication::setApplicationName(QStringLiteral("crate"));
    QApplication::setDesktopFileName(QStringLiteral("crate"));
    const LineServer server(
        [&application](const QJsonObject & /*question*/) { return application.state(); });
    std::string error;
    const auto program =
        crate::Crate::create(std::get<crate::CommandLine>(parsed), CDBURNER_TOOLS_DIR, error);
    if (program == nullptr) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    return QApplication::exec();
}
