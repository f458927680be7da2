// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/CdText.h"

#include "scorch/libburn/CdTextCharacters.h"
#include "scorch/support/Utf8.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

namespace scorch {
namespace {

constexpr std::size_t packBytes = 12;
constexpr std::size_t sizePacks = 3;
/// Longer texts than this help nobody; players show a dozen characters or scroll.
constexpr std::size_t longestText = 160;

using Characters = std::vector<std::string>;

/// One text of the disc, from its source to its characters.
struct Entry {
    std::string source;
    Characters characters;
    bool isSaid = true;
};

/// Title and performer of the disc, then of each track.
using Entries = std::vector<Entry>;

/// The performer of all tracks is that of the disc.
std::string commonPerformer(const DiscContent &content) {
    std::string performer = content.trackCount() > 0 ? content.track(0).performer : "";
    for (std::size_t index = 1; index < content.trackCount(); ++index) {
        if (content.track(index).performer != performer) {
            return {};
        }
    }
    return performer;
}

std::vector<std::string> sourcesOf(const DiscContent &content) {
    std::vector<std::string> sources = {content.volumeName(), commonPerformer(content)};
    for (std::size_t index = 0; index < content.trackCount(); ++index) {
        sources.push_back(content.track(index).title);
        sources.push_back(content.track(index).performer);
    }
    return sources;
}

Entries encode(const std::vector<std::string> &sources, CdTextCode code) {
    Entries entries;
    for (const std::string &source : sources) {
        auto characters = cdTextCharacters(source, code);
        const bool isSaid = characters.has_value();
        entries.push_back({source, isSaid ? std::move(*characters) : Characters(), isSaid});
    }
    return entries;
}

std::ptrdiff_t countSaid(const Entries &entries) {
    return std::count_if(entries.begin(), entries.end(),
                         [](const Entry &entry) { return entry.isSaid; });
}

std::string cut(const Characters &characters, std::size_t most) {
    std::string text;
    for (std::size_t at = 0; at < std::min(characters.size(), most); ++at) {
        text += characters[at];
    }
    return text;
}

CdText textOf(const Entries &entries, CdTextCode code, std::size_t most) {
    CdText text;
    text.code = code;
    text.disc = {cut(entries[0].characters, most), cut(entries[1].characters, most)};
    for (std::size_t at = 2; at < entries.size(); at += 2) {
        text.tracks.push_back(
            {cut(entries[at].characters, most), cut(entries[at + 1].characters, most)});
    }
    return text;
}

/// The same text is named once.
void noteOmissions(const Entries &entries, CdTextCode code, std::vector<std::string> &notes) {
    std::vector<std::string> named;
    for (const Entry &entry : entries) {
        if (entry.isSaid || std::find(named.begin(), named.end(), entry.source) != named.end()) {
            continue;
        }
        named.push_back(entry.source);
        notes.push_back("CD-TEXT: left out “" + readableText(entry.source) + "”: " +
                        (code == CdTextCode::latin1 ? "Latin-1" : "MS-JIS") + " cannot say it");
    }
}

template <class Texts>
std::size_t packsOf(const CdText &text, Texts member) {
    const std::size_t end = text.code == CdTextCode::msJis ? 2 : 1;
    std::size_t bytes = (text.disc.*member).size() + end;
    for (const CdText::Texts &track : text.tracks) {
        bytes += (track.*member).size() + end;
    }
    return (bytes + packBytes - 1) / packBytes;
}

template <class Texts>
bool hasAny(const CdText &text, Texts member) {
    return !(text.disc.*member).empty() ||
           std::any_of(text.tracks.begin(), text.tracks.end(),
                       [member](const CdText::Texts &track) { return !(track.*member).empty(); });
}

} // namespace

bool CdText::hasTitles() const {
    return hasAny(*this, &Texts::title);
}

bool CdText::hasPerformers() const {
    return hasAny(*this, &Texts::performer);
}

std::size_t packCount(const CdText &text) {
    const std::size_t titles = text.hasTitles() ? packsOf(text, &CdText::Texts::title) : 0;
    const std::size_t performers =
        text.hasPerformers() ? packsOf(text, &CdText::Texts::performer) : 0;
    return titles + performers == 0 ? 0 : titles + performers + sizePacks;
}

CdTextPlan planCdText(const DiscContent &content) {
    const std::vector<std::string> sources = sourcesOf(content);
    Entries entries = encode(sources, CdTextCode::latin1);
    CdTextCode code = CdTextCode::latin1;
    if (std::any_of(sources.begin(), sources.end(), isJapanese)) {
        Entries japanese = encode(sources, CdTextCode::msJis);
        if (countSaid(japanese) > countSaid(entries)) {
            entries = std::move(japanese);
            code = CdTextCode::msJis;
        }
    }
    CdTextPlan plan;
    noteOmissions(entries, code, plan.notes);
    std::size_t most = longestText;
    CdText text = textOf(entries, code, most);
    while (packCount(text) > mostPacks) {
        text = textOf(entries, code, --most);
    }
    if (std::any_of(entries.begin(), entries.end(),
                    [most](const Entry &entry) { return entry.characters.size() > most; })) {
        plan.notes.push_back("CD-TEXT: texts cut to " + std::to_string(most) + " characters");
    }
    if (packCount(text) > 0) {
        plan.text = std::move(text);
    }
    return plan;
}

} // namespace scorch
