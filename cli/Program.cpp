// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/Program.h"

#include "cli/BurnCommand.h"
#include "cli/CommandLine.h"
#include "cli/DrivesCommand.h"
#include "cli/JsonReporter.h"
#include "cli/MainLoop.h"
#include "cli/Output.h"
#include "cli/TerminalReporter.h"
#include "cli/TextReporter.h"
#include "engine/ScorchHooks.h"
#include "engine/Scorcher.h"

#include <clocale>
#include <csignal>
#include <cstdlib>
#include <langinfo.h>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <unistd.h>

namespace cli {
namespace {

/// The user's decimal mark in UTF-8. The process itself stays in the "C" locale, so that no number
/// in a file or in JSON ever depends on the user's.
std::string userDecimalMark() {
    const locale_t locale = newlocale(LC_NUMERIC_MASK | LC_CTYPE_MASK, "", nullptr);
    if (locale == nullptr) {
        return ".";
    }
    const bool utf8 = std::string(nl_langinfo_l(CODESET, locale)) == "UTF-8";
    const std::string mark = nl_langinfo_l(RADIXCHAR, locale);
    freelocale(locale);
    return utf8 && !mark.empty() ? mark : mark == "," ? "," : ".";
}

/// The engine reads its settings from the environment, at its first use.
void setEnvironment(const std::optional<ImageDriveOption> &imageDrive, bool verify) {
    if (imageDrive) {
        setenv("SCORCH_IMAGE_DRIVE", // NOLINT(*-mt-unsafe): there is one thread so far
               imageDriveSetting(*imageDrive).c_str(), 1);
    }
    if (!verify) {
        setenv("SCORCH_VERIFY", "0", 1); // NOLINT(*-mt-unsafe): the same
    }
}

void fillHooks(MainLoop &loop, Output &errors) {
    ScorchHooks &hooks = ScorchHooks::shared();
    hooks.postToMainThread = [&loop](std::function<void()> task) {
        loop.post(std::move(task));
    };
    hooks.log = [&loop, &errors](std::string_view line) {
        loop.post([&errors, text = "scorch: " + std::string(line) + '\n'] { errors.write(text); });
    };
    hooks.decimalMark = [mark = userDecimalMark()] {
        return mark;
    };
}

std::unique_ptr<Reporter> makeReporter(const BurnRequest &request, Output &output, Output &errors) {
    if (request.json) {
        return std::make_unique<JsonReporter>(output, errors);
    }
    if (output.isTerminal()) {
        return std::make_unique<TerminalReporter>(output, errors);
    }
    return std::make_unique<TextReporter>(output, errors);
}

ExitCode runBurnCommand(const BurnRequest &request, MainLoop &loop, Output &output,
                        Output &errors) {
    const std::unique_ptr<Reporter> reporter = makeReporter(request, output, errors);
    const auto quit = [&loop](ExitCode code) {
        loop.quit(static_cast<int>(code));
    };
    BurnCommand command(request, *reporter, quit);
    loop.setSignalHandler([&command] { command.cancel(); });
    loop.post([&command] { command.start(); });
    return static_cast<ExitCode>(loop.run());
}

ExitCode printed(Output &output, const std::string &text) {
    output.write(text);
    return output.failed() ? ExitCode::failed : ExitCode::done;
}

} // namespace

ExitCode runProgram(const std::vector<std::string> &arguments) {
    std::signal(SIGPIPE, SIG_IGN); // A reader that has gone must not end a burn.
    Output output(STDOUT_FILENO);
    Output errors(STDERR_FILENO);
    const CommandLine commandLine = parseCommandLine(arguments);
    if (const auto *error = std::get_if<UsageError>(&commandLine)) {
        errors.write("scorch: " + error->text + "\nTry 'scorch --help'.\n");
        return ExitCode::usage;
    }
    if (std::holds_alternative<HelpRequest>(commandLine)) {
        return printed(output, helpText());
    }
    if (std::holds_alternative<VersionRequest>(commandLine)) {
        return printed(output, "scorch " CDBURNER_VERSION "\n");
    }
    ExitCode exitCode = ExitCode::done;
    if (const auto *drives = std::get_if<DrivesRequest>(&commandLine)) {
        // Nothing is at stake here, so Ctrl-C simply ends the program.
        MainLoop loop({});
        setEnvironment(drives->imageDrive, true);
        fillHooks(loop, errors);
        exitCode = runDrivesCommand(*drives, output, errors);
        Scorcher::shutDownAll();
    } else {
        const auto &burn = std::get<BurnRequest>(commandLine);
        MainLoop loop({SIGINT, SIGTERM, SIGHUP});
        setEnvironment(burn.imageDrive, burn.verify);
        fillHooks(loop, errors);
        exitCode = runBurnCommand(burn, loop, output, errors);
        Scorcher::shutDownAll();
    }
    return exitCode;
}

} // namespace cli
