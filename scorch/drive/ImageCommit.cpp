// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/ImageCommit.h"

#include "scorch/drive/CueSheet.h"
#include "scorch/drive/ImageFileName.h"
#include "scorch/drive/TargetError.h"

#include <cerrno>
#include <functional>
#include <span>
#include <string_view>

namespace scorch {
namespace {

/// More images of one name than a folder that people look into has.
constexpr unsigned maximumNumber = 99'999;

/// Tries to give the image its names with one number. 0, or an errno value.
using Attempt = std::function<int(std::string_view stem, unsigned number)>;

/// 0, or the errno value of what cannot be got around by another number.
int takeFirstFreeNumber(const std::string &stem, const Attempt &attempt) {
    int error = EEXIST;
    for (unsigned number = 1; error == EEXIST && number <= maximumNumber; ++number) {
        error = attempt(stem, number);
    }
    return error;
}

/// With a name that more file systems take, if this one does not take the user's.
int takeNames(const std::string &stem, const Attempt &attempt) {
    const int error = takeFirstFreeNumber(stem, attempt);
    const std::string portable = portableFileStem(stem);
    const bool refusesName = error == EINVAL || error == EILSEQ || error == ENOENT;
    return refusesName && portable != stem ? takeFirstFreeNumber(portable, attempt) : error;
}

Result<void> finish(const TargetFolder &folder, int error) {
    if (error == 0) {
        error = folder.flush();
    }
    if (error != 0) {
        return targetError(error, folder.path(), "commit");
    }
    return {};
}

Result<void> writeSheet(TemporaryImageFile &sheet, const std::string &text) {
    if (auto cleared = sheet.clear(); !cleared) {
        return cleared;
    }
    // What is left to do takes no time, and the disc is complete without it: not to be stopped.
    const std::stop_token never;
    auto written = sheet.append(std::as_bytes(std::span(text)), never);
    if (written) {
        written = sheet.flush(never);
    }
    if (!written) {
        return std::get<ScorchError>(written.error());
    }
    return {};
}

} // namespace

Result<void> commitDataImage(const TargetFolder &folder, TemporaryImageFile &image,
                             const std::string &stem) {
    const int error = takeNames(stem, [&](std::string_view name, unsigned number) {
        return image.renameTo(numberedFileName(name, number, ".iso", folder.maximumNameBytes()));
    });
    auto finished = finish(folder, error);
    if (finished) {
        image.keep();
    }
    return finished;
}

Result<void> commitAudioImage(const TargetFolder &folder, TemporaryImageFile &sound,
                              TemporaryImageFile &sheet, const std::string &stem,
                              const std::string &discTitle,
                              const std::vector<TrackLayout> &tracks) {
    Result<void> written;
    const int error = takeNames(stem, [&](std::string_view name, unsigned number) {
        const std::size_t room = folder.maximumNameBytes();
        const std::string soundName = numberedFileName(name, number, ".bin", room);
        const std::string sheetName = numberedFileName(name, number, ".cue", room);
        if (folder.contains(sheetName)) {
            return EEXIST;
        }
        written = writeSheet(sheet, cueSheet(discTitle, soundName, tracks));
        if (!written) {
            return ECANCELED;
        }
        int failed = sound.renameTo(soundName);
        if (failed == 0) {
            failed = sheet.renameTo(sheetName);
            if (failed != 0) {
                sound.takeBack();
            }
        }
        return failed;
    });
    if (!written) {
        return written;
    }
    auto finished = finish(folder, error);
    if (finished) {
        sound.keep();
        sheet.keep();
    }
    return finished;
}

} // namespace scorch
