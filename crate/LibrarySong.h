// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/SongList.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <optional>

namespace crate {

/// A song file and what its tags say. Texts are empty and numbers 0 where they say nothing.
struct LibrarySong {
    QByteArray path; ///< Absolute, as bytes.
    QString title;
    QString artist;
    QString album;
    int disc = 0;
    int track = 0;
    std::optional<std::chrono::milliseconds> length; ///< Nothing where it cannot be known.

    /// The title, or the file's name without its ending, for a person.
    QString displayTitle() const;
    /// What a tool is given.
    Song asSong() const { return {path, artist, title}; }
};

/// "3:07", "1:02:45"; rounded to the second. Empty for an unknown length.
QString songLengthText(std::optional<std::chrono::milliseconds> length);

/// "12 minutes", "3 hours 20 minutes", "2 days 4 hours": how much music there is, for a person.
QString totalLengthText(std::chrono::milliseconds length);

} // namespace crate
