// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/CommandLine.h"

#include "cli/DisplayText.h"

#include <charconv>
#include <cstddef>
#include <string_view>
#include <utility>

namespace cli {
namespace {

constexpr int longestDisc = 99; ///< Minutes; a table of contents holds no more.

/// The arguments, handed out one by one.
class Arguments {
public:
    explicit Arguments(const std::vector<std::string> &arguments) : arguments_(arguments) {}

    bool atEnd() const { return next_ == arguments_.size(); }

    /// Moves on to the next argument and takes it apart: "--name=value" into name and value. What
    /// is no option has an empty name.
    void advance() {
        const std::string &argument = arguments_[next_++];
        name_.clear();
        inlineValue_.reset();
        whole_ = argument;
        if (optionsEnded_ || argument.size() < 2 || argument[0] != '-') {
            return;
        }
        if (argument == "--") {
            optionsEnded_ = true;
            name_ = argument;
            return;
        }
        const std::size_t equals = argument.find('=');
        name_ = argument.substr(0, equals);
        if (equals != std::string::npos && argument[1] == '-') {
            inlineValue_ = argument.substr(equals + 1);
        }
    }

    const std::string &name() const { return name_; }
    const std::string &whole() const { return whole_; }
    bool hasInlineValue() const { return inlineValue_.has_value(); }

    /// The value of the present option; nothing if there is none.
    std::optional<std::string> value() {
        if (inlineValue_) {
            return inlineValue_;
        }
        if (atEnd()) {
            return std::nullopt;
        }
        return arguments_[next_++];
    }

private:
    const std::vector<std::string> &arguments_;
    std::size_t next_ = 0;
    bool optionsEnded_ = false;
    std::string name_;
    std::string whole_;
    std::optional<std::string> inlineValue_;
};

/// Everything that can be said on the command line, before it is judged.
struct Parsed {
    std::optional<UsageError> error;
    bool help = false;
    bool version = false;
    bool audio = false;
    bool data = false;
    bool noVerify = false;
    bool json = false;
    std::optional<std::string> name;
    std::optional<std::string> drive;
    std::optional<ImageDriveOption> imageDrive;
    std::vector<std::string> operands;
    std::vector<std::string> burnOnly; ///< Options given that only `burn` has.
};

/// Takes ",minutes=N" and ",create" off the end. What else has a comma is part of the path: a
/// folder may well be called "Bach, J. S.".
std::variant<UsageError, ImageDriveOption> parseImageDrive(std::string text) {
    static constexpr std::string_view createOption = ",create";
    static constexpr std::string_view minutesOption = ",minutes=";
    ImageDriveOption option;
    for (;;) {
        const std::size_t comma = text.rfind(',');
        const std::string_view last =
            comma == std::string::npos ? std::string_view() : std::string_view(text).substr(comma);
        if (last == createOption) {
            option.create = true;
        } else if (last.substr(0, minutesOption.size()) == minutesOption) {
            const std::string_view digits = last.substr(minutesOption.size());
            int minutes = 0;
            const auto [end, error] =
                std::from_chars(digits.data(), digits.data() + digits.size(), minutes);
            if (error != std::errc() || end != digits.data() + digits.size() || minutes < 1 ||
                minutes > longestDisc) {
                return UsageError{"the minutes of a disc are a whole number from 1 to 99, not '" +
                                  displayText(digits) + "'"};
            }
            option.minutes = minutes;
        } else {
            break;
        }
        text.resize(comma);
    }
    if (text.empty()) {
        return UsageError{"--image-drive needs a folder"};
    }
    option.folder = std::move(text);
    return option;
}

/// Options that stand alone. False if the name is none of them.
bool takeSwitch(const std::string &name, Parsed &parsed) {
    const std::pair<std::string_view, bool Parsed::*> switches[] = {
        {"--help", &Parsed::help},          {"-h", &Parsed::help},
        {"--version", &Parsed::version},    {"--audio", &Parsed::audio},
        {"--data", &Parsed::data},          {"--json", &Parsed::json},
        {"--no-verify", &Parsed::noVerify},
    };
    for (const auto &[spelling, member] : switches) {
        if (name == spelling) {
            parsed.*member = true;
            return true;
        }
    }
    return false;
}

/// Options that have a value. False if the name is none of them.
bool takeOption(Arguments &arguments, Parsed &parsed) {
    const std::string name = arguments.name();
    if (name != "--name" && name != "--drive" && name != "--image-drive") {
        return false;
    }
    std::optional<std::string> value = arguments.value();
    if (!value) {
        parsed.error = UsageError{name + " needs a value"};
    } else if (name == "--name") {
        parsed.name = std::move(value);
    } else if (name == "--drive") {
        parsed.drive = std::move(value);
    } else {
        auto option = parseImageDrive(std::move(*value));
        if (auto *error = std::get_if<UsageError>(&option)) {
            parsed.error = std::move(*error);
        } else {
            parsed.imageDrive = std::get<ImageDriveOption>(std::move(option));
        }
    }
    return true;
}

Parsed readArguments(const std::vector<std::string> &list) {
    Parsed parsed;
    Arguments arguments(list);
    while (!arguments.atEnd() && !parsed.error) {
        arguments.advance();
        const std::string &name = arguments.name();
        if (name.empty()) {
            parsed.operands.push_back(arguments.whole());
            continue;
        }
        if (name == "--") {
            continue;
        }
        if (takeSwitch(name, parsed)) {
            if (arguments.hasInlineValue()) {
                parsed.error = UsageError{name + " takes no value"};
            }
        } else if (!takeOption(arguments, parsed)) {
            parsed.error = UsageError{"there is no option " + displayText(arguments.whole())};
        }
        if (name != "--json" && name != "--image-drive") {
            parsed.burnOnly.push_back(name);
        }
    }
    return parsed;
}

CommandLine judgeBurn(Parsed parsed) {
    if (parsed.audio == parsed.data) {
        return UsageError{parsed.audio ? "--audio and --data exclude each other"
                                       : "say what to burn: --audio or --data"};
    }
    if (parsed.drive && parsed.imageDrive) {
        return UsageError{"--drive and --image-drive exclude each other"};
    }
    if (parsed.drive && parsed.drive->empty()) {
        return UsageError{"--drive needs a name"};
    }
    if (parsed.name && !isUtf8(*parsed.name)) {
        return UsageError{"the name '" + displayText(*parsed.name) + "' is not valid UTF-8"};
    }
    if (parsed.operands.size() < 2) {
        return UsageError{"say which files to burn"};
    }
    BurnRequest request;
    request.kind = parsed.audio ? DiscKind::audio : DiscKind::data;
    request.name = std::move(parsed.name).value_or(std::move(request.name));
    request.drive = std::move(parsed.drive).value_or("");
    request.imageDrive = std::move(parsed.imageDrive);
    request.verify = !parsed.noVerify;
    request.json = parsed.json;
    for (std::size_t i = 1; i < parsed.operands.size(); ++i) {
        if (parsed.operands[i].empty()) {
            return UsageError{"a file name is empty"};
        }
        request.files.emplace_back(std::move(parsed.operands[i]));
    }
    return request;
}

CommandLine judgeDrives(Parsed parsed) {
    if (parsed.operands.size() > 1) {
        return UsageError{"drives takes no '" + displayText(parsed.operands[1]) + "'"};
    }
    if (!parsed.burnOnly.empty()) {
        return UsageError{"drives has no option " + parsed.burnOnly.front()};
    }
    return DrivesRequest{std::move(parsed.imageDrive), parsed.json};
}

} // namespace

CommandLine parseCommandLine(const std::vector<std::string> &arguments) {
    Parsed parsed = readArguments(arguments);
    if (parsed.error) {
        return *parsed.error;
    }
    if (parsed.help) {
        return HelpRequest();
    }
    if (parsed.version) {
        return VersionRequest();
    }
    if (parsed.operands.empty()) {
        return UsageError{"say what to do: burn or drives"};
    }
    if (parsed.operands.front() == "burn") {
        return judgeBurn(std::move(parsed));
    }
    if (parsed.operands.front() == "drives") {
        return judgeDrives(std::move(parsed));
    }
    return UsageError{"there is no command '" + displayText(parsed.operands.front()) + "'"};
}

std::string imageDriveSetting(const ImageDriveOption &option) {
    std::string setting;
    for (const char c : option.folder) {
        if (c == ':' || c == ',' || c == '\\') {
            setting += '\\';
        }
        setting += c;
    }
    if (option.minutes) {
        setting += ",minutes=" + std::to_string(*option.minutes);
    }
    if (option.create) {
        setting += ",create";
    }
    return setting;
}

} // namespace cli
