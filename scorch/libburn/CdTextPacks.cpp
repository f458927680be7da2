// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/CdTextPacks.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

namespace scorch {
namespace {

constexpr std::uint8_t titleType = 0x80;
constexpr std::uint8_t performerType = 0x81;
constexpr std::uint8_t sizeType = 0x8F;
constexpr std::size_t typeCount = 16;

constexpr std::size_t headerBytes = 4;
constexpr std::size_t contentBytes = 12;
constexpr std::size_t sizePacks = 3;
constexpr unsigned doubleByteFlag = 0x80;
constexpr std::size_t furthestPosition = 15;

constexpr std::uint8_t english = 0x09;
constexpr std::uint8_t japanese = 0x69;

/// Inverted CRC-16 with the polynomial 1021h.
std::uint16_t checksumOf(const CdTextPack &pack) {
    unsigned crc = 0;
    for (std::size_t at = 0; at < headerBytes + contentBytes; ++at) {
        crc ^= static_cast<unsigned>(pack[at]) << 8U;
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc << 1U) ^ ((crc & 0x8000U) != 0 ? 0x1021U : 0U);
        }
        crc &= 0xFFFFU;
    }
    return static_cast<std::uint16_t>(~crc & 0xFFFFU);
}

class Block {
public:
    explicit Block(bool isDoubleByte)
        : width_(isDoubleByte ? 2 : 1), flags_(isDoubleByte ? doubleByteFlag : 0) {}

    /// The disc's text and those of the tracks, one behind the other, each with its terminator.
    void addTexts(std::uint8_t type, const std::vector<std::string> &texts) {
        std::size_t filled = contentBytes;
        for (std::size_t track = 0; track < texts.size(); ++track) {
            const std::string text = texts[track] + std::string(width_, '\0');
            for (std::size_t at = 0; at < text.size(); at += width_) {
                if (filled == contentBytes) {
                    begin(type, track, flags_ | std::min(at / width_, furthestPosition));
                    filled = 0;
                }
                std::copy_n(&text[at], width_, &packs_.back()[headerBytes + filled]);
                filled += width_;
            }
        }
    }

    /// What a player needs to know before it reads the others: 36 bytes in three packs.
    void addSizes(std::uint8_t code, std::uint8_t language, std::size_t tracks) {
        std::array<std::uint8_t, sizePacks * contentBytes> sizes{};
        sizes[0] = code;
        sizes[1] = 1; // The first track.
        sizes[2] = static_cast<std::uint8_t>(tracks);
        for (const CdTextPack &pack : packs_) {
            ++sizes[4U + pack[0] % typeCount];
        }
        sizes[4U + sizeType % typeCount] = sizePacks;
        sizes[20] = static_cast<std::uint8_t>(packs_.size() + sizePacks - 1); // The last pack.
        sizes[28] = language;
        for (std::size_t part = 0; part < sizePacks; ++part) {
            begin(sizeType, part, 0);
            std::copy_n(&sizes[part * contentBytes], contentBytes, &packs_.back()[headerBytes]);
        }
    }

    std::vector<CdTextPack> finish() {
        for (CdTextPack &pack : packs_) {
            const std::uint16_t checksum = checksumOf(pack);
            pack[16] = static_cast<std::uint8_t>(checksum >> 8U);
            pack[17] = static_cast<std::uint8_t>(checksum & 0xFFU);
        }
        return std::move(packs_);
    }

private:
    /// `place`: the number of the characters of the text that stand in packs before, and flags.
    void begin(std::uint8_t type, std::size_t track, std::size_t place) {
        packs_.push_back({type, static_cast<std::uint8_t>(track),
                          static_cast<std::uint8_t>(packs_.size()),
                          static_cast<std::uint8_t>(place)});
    }

    const std::size_t width_; ///< Bytes of a character.
    const std::size_t flags_;
    std::vector<CdTextPack> packs_;
};

std::vector<std::string> textsOf(const CdText &text, std::string CdText::Texts::*member) {
    std::vector<std::string> texts = {text.disc.*member};
    for (const CdText::Texts &track : text.tracks) {
        texts.push_back(track.*member);
    }
    return texts;
}

} // namespace

std::vector<CdTextPack> cdTextPacks(const CdText &text) {
    const bool isJapanese = text.code == CdTextCode::msJis;
    Block block(isJapanese);
    if (text.hasTitles()) {
        block.addTexts(titleType, textsOf(text, &CdText::Texts::title));
    }
    if (text.hasPerformers()) {
        block.addTexts(performerType, textsOf(text, &CdText::Texts::performer));
    }
    block.addSizes(isJapanese ? 0x80 : 0x00, isJapanese ? japanese : english, text.tracks.size());
    return block.finish();
}

} // namespace scorch
