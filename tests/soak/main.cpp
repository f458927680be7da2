// SPDX-License-Identifier: GPL-2.0-or-later
// The real tool in the real host on the emulated recorder, for longer than a test may take:
//
//   soak_tool matrix [FAULT]     each fault at each stage
//   soak_tool random COUNT SEED  burns at which something random happens
//
// CD_RECORDER names the recorder's folder, and its library is preloaded.
#include "tests/soak/Matrix.h"
#include "tests/soak/RandomRuns.h"
#include "tests/support/TemporaryFolder.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

int usage() {
    std::fprintf(stderr, "CD_RECORDER=FOLDER soak_tool (matrix [FAULT] | random COUNT SEED)\n");
    return 2;
}

int finish(int failures) {
    std::printf("%d not as it has to be\n", failures);
    return failures == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[]) {
    const char *const root = std::getenv("CD_RECORDER");
    const std::string what = argc > 1 ? argv[1] : "";
    const bool isMatrix = what == "matrix" && argc <= 3;
    if (root == nullptr || (!isMatrix && (what != "random" || argc != 4))) {
        return usage();
    }
    const TemporaryFolder folder; // Nobody's settings are read or written.
    qputenv("HOME", folder.path().c_str());
    qputenv("XDG_CONFIG_HOME", (folder / "config").c_str());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);

    SoakScene scene(root, folder.path());
    ToolSession session(scene);
    crate::CommandLine commandLine;
    commandLine.toolName = QStringLiteral("CD Burner");
    std::filesystem::create_directory(folder / "music");
    commandLine.musicFolder = folder / "music";
    std::string error;
    if (!session.open(commandLine, error)) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    if (isMatrix) {
        return finish(Matrix(scene, session).run(argc == 3 ? argv[2] : ""));
    }
    const auto seed = static_cast<std::uint32_t>(std::stoul(argv[3]));
    return finish(RandomRuns(scene, session, seed).run(std::stoi(argv[2])));
}
