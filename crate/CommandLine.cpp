// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/CommandLine.h"

#include <array>
#include <string_view>

namespace crate {

namespace {

/// Against the current folder; as it stands where there is none any more.
std::filesystem::path absolutePath(std::string_view path) {
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    return error ? std::filesystem::path(path) : absolute;
}

using Setter = void (*)(CommandLine &, std::string_view);

struct ValueOption {
    std::string_view name;
    Setter set;
};

constexpr std::array<ValueOption, 4> valueOptions{{
    {"--music",
     [](CommandLine &line, std::string_view value) {
         line.musicFolder = absolutePath(value);
     }},
    {"--image-drive",
     [](CommandLine &line, std::string_view value) {
         line.imageDrive = QByteArray(value.data(), static_cast<qsizetype>(value.size()));
     }},
    {"--tool",
     [](CommandLine &line, std::string_view value) {
         line.toolName = QString::fromLocal8Bit(value.data(), static_cast<qsizetype>(value.size()));
     }},
    {"--usage-log",
     [](CommandLine &line, std::string_view value) {
         line.usageLog = absolutePath(value);
     }},
}};

const ValueOption *findValueOption(std::string_view name) {
    for (const ValueOption &option : valueOptions) {
        if (option.name == name) {
            return &option;
        }
    }
    return nullptr;
}

/// The arguments, taken one by one.
class Parser {
public:
    explicit Parser(std::span<const char *const> arguments) : rest_(arguments) {}

    std::variant<CommandLine, UsageError> parse() {
        while (!rest_.empty()) {
            if (auto error = parseOne(takeNext())) {
                return *error;
            }
        }
        return line_;
    }

private:
    std::string_view takeNext() {
        const std::string_view next = rest_.front();
        rest_ = rest_.subspan(1);
        return next;
    }

    std::optional<UsageError> parseOne(std::string_view argument) {
        if (onlyFilesFollow_ || argument.size() < 2 || argument.front() != '-') {
            return addFile(argument);
        }
        if (argument == "--") {
            onlyFilesFollow_ = true;
            return std::nullopt;
        }
        if (argument == "--help" || argument == "-h") {
            line_.action = CommandLine::Action::showHelp;
            return std::nullopt;
        }
        if (argument == "--version") {
            line_.action = CommandLine::Action::showVersion;
            return std::nullopt;
        }
        return parseValueOption(argument);
    }

    std::optional<UsageError> addFile(std::string_view argument) {
        if (argument.empty()) {
            return UsageError{"a file name is empty"};
        }
        line_.files.push_back(absolutePath(argument));
        return std::nullopt;
    }

    std::optional<UsageError> parseValueOption(std::string_view argument) {
        const std::size_t equals = argument.find('=');
        const std::string name(argument.substr(0, equals));
        const ValueOption *option = findValueOption(name);
        if (option == nullptr) {
            return UsageError{"unknown option " + name};
        }
        std::string_view value;
        if (equals != std::string_view::npos) {
            value = argument.substr(equals + 1);
        } else if (!rest_.empty()) {
            value = takeNext();
        }
        if (value.empty()) {
            return UsageError{"option " + name + " needs a value"};
        }
        option->set(line_, value);
        return std::nullopt;
    }

    std::span<const char *const> rest_;
    CommandLine line_;
    bool onlyFilesFollow_ = false;
};

} // namespace

std::variant<CommandLine, UsageError> parseCommandLine(std::span<const char *const> arguments) {
    return Parser(arguments).parse();
}

std::string helpText() {
    return "Usage: crate [OPTION]... [FILE]...\n"
           "A music library with tools. FILEs are passed to the tool that is opened.\n"
           "\n"
           "  --music DIR        list the songs of this folder\n"
           "  --tool NAME        open this tool, for example \"CD Burner\"\n"
           "  --image-drive DIR  add a drive that burns disc images into this folder\n"
           "  --usage-log FILE   append what the tools report about their use to FILE\n"
           "  -h, --help         print this and exit\n"
           "      --version      print the version and exit\n";
}

} // namespace crate
