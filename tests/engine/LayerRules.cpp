// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/engine/LayerRules.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

namespace {

namespace fs = std::filesystem;

struct Layer {
    std::string folder;
    std::set<std::string> mayInclude; ///< Folders of this repository.
    bool mayUseQt;
};

const std::vector<Layer> &layers() {
    static const std::vector<Layer> all = {
        {"engine", {"engine"}, false},
        {"host", {"host"}, true},
        {"CDBurnerPlugin", {"CDBurnerPlugin", "host", "engine"}, true},
        {"crate", {"crate", "host"}, true},
        {"scorch", {"scorch", "engine"}, false},
        {"cli", {"cli", "engine"}, false},
    };
    return all;
}

/// An outside library: how its headers are included, and the one folder that may.
struct Library {
    std::regex header;
    std::string folder;
};

const std::vector<Library> &libraries() {
    static const std::vector<Library> all = {
        {std::regex("lib(av|sw)[a-z]+/.*"), "scorch/audio"},
        {std::regex("libisofs/.*"), "scorch/iso"},
        {std::regex("libburn/.*"), "scorch/libburn"},
        {std::regex("libudev\\.h"), "scorch/udev"},
        {std::regex("(taglib/.*|fileref\\.h|tag\\.h|tpropertymap\\.h)"), "crate"},
    };
    return all;
}

std::string contentOf(const fs::path &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool isSource(const fs::path &path) {
    static const std::set<std::string> endings = {".h", ".hpp", ".cpp", ".cc", ".c", ".in"};
    return endings.count(path.extension().string()) != 0 || path.filename() == "CMakeLists.txt";
}

std::vector<fs::path> sourcesBelow(const fs::path &folder) {
    std::vector<fs::path> sources;
    if (fs::is_directory(folder)) {
        for (const auto &entry : fs::recursive_directory_iterator(folder)) {
            if (entry.is_regular_file() && isSource(entry.path())) {
                sources.push_back(entry.path());
            }
        }
    }
    return sources;
}

bool isInside(const std::string &name, const std::string &folder) {
    return name.compare(0, folder.size() + 1, folder + '/') == 0;
}

/// What is wrong with one source: `name` is its path from the root.
class SourceCheck {
public:
    SourceCheck(const Layer &layer, std::string name, std::vector<std::string> &breaches)
        : layer_(layer), name_(std::move(name)), breaches_(breaches) {}

    void check(const std::string &text) {
        static const std::regex include(
            R"re((?:^|\n)[ \t]*#[ \t]*include[ \t]*([<"])([^>"\n]+)[>"])re");
        for (std::sregex_iterator it(text.begin(), text.end(), include), end; it != end; ++it) {
            const std::string header = (*it)[2];
            (*it)[1] == "\"" ? checkOwn(header) : checkOutside(header);
        }
        static const std::regex qt(R"(\bQt\d?\b|\bQ[A-Z][a-z]\w*|\bqt_\w+)");
        std::smatch mention;
        if (!layer_.mayUseQt && std::regex_search(text, mention, qt)) {
            report("mentions " + mention.str());
        }
    }

private:
    void checkOwn(const std::string &header) {
        const std::string folder = header.substr(0, header.find('/'));
        const bool generated = header.find('/') == std::string::npos; // A form's "ui_….h".
        if (generated ? !layer_.mayUseQt : layer_.mayInclude.count(folder) == 0) {
            report("includes " + header);
        }
    }

    void checkOutside(const std::string &header) {
        if (layer_.folder == "engine" && !std::regex_match(header, std::regex("[a-z_]+"))) {
            report("includes <" + header + '>');
        }
        for (const Library &library : libraries()) {
            if (std::regex_match(header, library.header) && !isInside(name_, library.folder)) {
                report("includes <" + header + "> outside " + library.folder);
            }
        }
    }

    void report(const std::string &what) { breaches_.push_back(name_ + ": " + what); }

    const Layer &layer_;
    const std::string name_;
    std::vector<std::string> &breaches_;
};

} // namespace

std::vector<std::string> layerBreaches(const fs::path &root) {
    std::vector<std::string> breaches;
    for (const Layer &layer : layers()) {
        for (const fs::path &source : sourcesBelow(root / layer.folder)) {
            SourceCheck(layer, source.lexically_relative(root).string(), breaches)
                .check(contentOf(source));
        }
    }
    std::sort(breaches.begin(), breaches.end());
    return breaches;
}

std::size_t layerSourceCount(const fs::path &root, const std::string &part) {
    return sourcesBelow(root / part).size();
}
