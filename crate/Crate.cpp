// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/Crate.h"

#include "crate/HostContext.h"
#include "crate/Settings.h"
#include "crate/Translation.h"

#include <QCoreApplication>

namespace crate {

namespace {

SongList asSongs(const std::vector<std::filesystem::path> &files) {
    SongList songs;
    for (const std::filesystem::path &file : files) {
        songs.append({QByteArray::fromStdString(file.string()), {}, {}});
    }
    return songs;
}

} // namespace

std::unique_ptr<Crate> Crate::create(const CommandLine &commandLine,
                                     const std::filesystem::path &toolFolder, std::string &error) {
    if (commandLine.usageLog) {
        error = HostContext::instance().collector.openLog(*commandLine.usageLog);
        if (!error.empty()) {
            return nullptr;
        }
    }
    if (commandLine.imageDrive) {
        // The tool's engine reads it when it is loaded.
        qputenv("SCORCH_IMAGE_DRIVE", *commandLine.imageDrive);
    }
    return std::unique_ptr<Crate>(new Crate(commandLine, toolFolder));
}

Crate::Crate(const CommandLine &commandLine, const std::filesystem::path &toolFolder)
    : utilities_(loadTools(toolFolder, &HostContext::instance())),
      window_(utilities_,
              commandLine.musicFolder ? *commandLine.musicFolder : settings::musicFolder()) {
    // Not quit, which would ask every window: who sends a signal does not wait for an answer.
    QObject::connect(&signals_, &QuitSignals::arrived, &window_, [] { QCoreApplication::exit(0); });
    QObject::connect(&window_, &MainWindow::quitAgreed, &window_,
                     [] { QCoreApplication::exit(0); });
    window_.show();
    openFirstTool(commandLine);
}

void Crate::openFirstTool(const CommandLine &commandLine) {
    if (!commandLine.toolName && commandLine.files.empty()) {
        return;
    }
    const auto index =
        commandLine.toolName ? utilities_.find(*commandLine.toolName) : utilities_.firstLoaded();
    if (!index) {
        window_.showMessage(
            commandLine.toolName
                ? translated("There is no tool named “%1”.").arg(*commandLine.toolName)
                : translated("There is no tool that the files could be passed to."));
    } else if (commandLine.files.empty()) {
        window_.openTool(*index);
    } else {
        window_.sendToTool(*index, asSongs(commandLine.files));
    }
}

} // namespace crate
