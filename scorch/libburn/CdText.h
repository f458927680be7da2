// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/support/DiscContent.h"

#include <optional>
#include <string>
#include <vector>

namespace scorch {

/// Codes of characters that CD-TEXT knows (MMC-5, annex J).
enum class CdTextCode { latin1, msJis };

/// The texts of an audio disc in the bytes of one character code, without terminators.
struct CdText {
    struct Texts {
        std::string title;
        std::string performer;

        bool operator==(const Texts &) const = default;
    };

    CdTextCode code = CdTextCode::latin1;
    Texts disc;
    std::vector<Texts> tracks;

    bool hasTitles() const;
    bool hasPerformers() const;
};

/// What CD-TEXT can say of a disc, and what it had to leave out.
struct CdTextPlan {
    std::optional<CdText> text;     ///< Nothing where there is nothing to say.
    std::vector<std::string> notes; ///< For the log: what was left out or cut, and why.
};

/// Chooses Latin-1, or MS-JIS where texts are Japanese and it can say more of them. Leaves out each
/// text that the code cannot say, and cuts the longest, at whole characters, so far that all fits
/// into one block.
CdTextPlan planCdText(const DiscContent &content);

/// The packs that these texts take, with those that tell their sizes.
std::size_t packCount(const CdText &text);

/// The most that a block may have.
inline constexpr std::size_t mostPacks = 253;

} // namespace scorch
