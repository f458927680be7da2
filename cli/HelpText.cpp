// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/CommandLine.h"

namespace cli {

std::string helpText() {
    return R"(scorch - burn audio CDs and data CDs, or disc images

USAGE
  scorch drives [--image-drive FOLDER] [--json]
  scorch burn --audio|--data [OPTIONS] FILES...
  scorch --help | --version

COMMANDS
  drives      Print a line for each drive: its name, the disc in it, the playing
              time and the storage that are free on a blank disc, the speeds at
              which that can be written, and what the drive is. Waits for up to
              half a minute until the discs have been examined.

  burn        Check the files, burn them, and read the disc back to verify it.

              --audio takes whatever decodes to sound (FLAC, MP3, Ogg, Opus,
              M4A, WAV and many more), folders of it, and playlists (.m3u,
              .m3u8, .pls), in the order given. At most 99 tracks.

              --data takes files and folders as they are.

              Files that cannot be burned are named with the reason on standard
              error, and the rest is burned.

OPTIONS
  --name NAME
              The name of the disc. "Untitled" if left out.

  --drive NAME|DEVICE
              The drive to burn with, by the name that 'scorch drives' prints or
              by its device (/dev/sr0). Needed only if there is more than one.

  --image-drive FOLDER[,minutes=N][,create]
              Burn to a disc image in FOLDER instead of a disc: NAME.cue and
              NAME.bin for sound, NAME.iso for data. The disc is a blank CD-R
              of 80 minutes, or of N. With "create", FOLDER is made if it is
              missing.

  --no-verify
              Do not read the disc back and compare it after burning.

  --json      Print one JSON object a line on standard output instead of texts.
              Each has an "event": drive, checking, added, refused, stage,
              progress, done, error or cancelled. Times are in CD frames (75 a
              second), sizes in bytes. A path that is not valid UTF-8 has a
              "pathPercentEncoded" with its exact bytes.

  --          What follows are files, also if they begin with "-".

  -h, --help  Print this text.
  --version   Print the version.

On a terminal, a burn shows its progress in one line; elsewhere it prints a line
for each stage. Ctrl-C cancels: an image drive is left as it was, a real disc
may not be usable any more.

EXIT STATUS
    0  done
    1  failed
    2  the arguments are wrong
    3  does not fit on the disc: too long, too big, or more than 99 tracks
    4  nothing to burn: none of the files can be burned
  130  cancelled

ENVIRONMENT
  SCORCH_IMAGE_DRIVE
              FOLDER[,minutes=N][,create] of image drives that are always there,
              separated by ":". A ":" or "," in a path is written "\:" or "\,".
  SCORCH_VERIFY
              0 means --no-verify.
  SCORCH_UDEV
              0 means to look for drives once a second by their device files,
              also where udev tells of them.

EXAMPLES
  scorch burn --audio --name "Road trip" *.flac
  scorch burn --data --name Photos --image-drive ~/images,create Pictures
)";
}

} // namespace cli
