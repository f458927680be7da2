// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/CommandLine.h"
#include "crate/Crate.h"
#include "crate/Translation.h"

#include <QApplication>

#include <array>
#include <cstdio>
#include <filesystem>
#include <span>
#include <string>
#include <system_error>

namespace {

constexpr int failed = 1;
constexpr int badUsage = 2;

/// The folder that the program lies in, as bytes.
std::filesystem::path programFolder() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
}

int run(const crate::CommandLine &commandLine, char *name) {
    // What Qt would take out of the command line is not for this program; its environment
    // variables do the same.
    int count = 1;
    std::array<char *, 2> arguments{name, nullptr};
    const QApplication application(count, arguments.data());
    QApplication::setApplicationName(QStringLiteral("crate"));
    QApplication::setApplicationVersion(QStringLiteral(CDBURNER_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("crate"));
    crate::speakLanguageOf(QLocale());
    std::string error;
    const auto program =
        crate::Crate::create(commandLine, crate::toolFolderFor(programFolder()), error);
    if (program == nullptr) {
        std::fprintf(stderr, "crate: %s\n", error.c_str());
        return failed;
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[]) {
    std::array<char, 6> noName{"crate"};
    char *name = argc > 0 ? argv[0] : noName.data();
    const std::span<const char *const> all(argv, static_cast<std::size_t>(argc));
    const auto parsed = crate::parseCommandLine(all.subspan(all.empty() ? 0 : 1));
    if (const auto *error = std::get_if<crate::UsageError>(&parsed)) {
        std::fprintf(stderr, "crate: %s\nTry 'crate --help'.\n", error->message.c_str());
        return badUsage;
    }
    const auto &commandLine = std::get<crate::CommandLine>(parsed);
    switch (commandLine.action) {
    case crate::CommandLine::Action::showHelp:
        std::fputs(crate::helpText().c_str(), stdout);
        return 0;
    case crate::CommandLine::Action::showVersion:
        std::puts("crate " CDBURNER_VERSION);
        return 0;
    case crate::CommandLine::Action::run:
        break;
    }
    return run(commandLine, name);
}
