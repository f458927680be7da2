#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-2.0-or-later
# Makes the songs that tests play with: make-media.sh FOLDER. Every file is a few seconds of the
# same two tones over noise, in another format. Needs ffmpeg and flac. Files that already stand in
# the folder are made anew, so that a changed script never leaves an old song behind.
set -euo pipefail
export LC_ALL=C.UTF-8

folder=$1
rm -rf "$folder"
mkdir -p "$folder"
cd "$folder"

encode() { ffmpeg -nostdin -hide_banner -loglevel error -y "$@"; }
tags=(-metadata "artist=The Testers" -metadata "title=Two Tones" -metadata "album=Bench")

# An odd number of samples, so that no codec's frame and no sector ends where the song does.
samples=233777
noise='0.3*sin(2*PI*440*t)+0.1*(random(0)-0.5)|0.3*sin(2*PI*554.37*t)+0.1*(random(1)-0.5)'
synthesise() { # RATE FILE OPTIONS...
  local rate=$1 file=$2
  shift 2
  encode -f lavfi -i "aevalsrc=$noise:s=$rate:d=8" -af "atrim=end_sample=$samples" "$@" "$file"
}

# --- Lossless, and what it is made from.
synthesise 44100 song.wav -c:a pcm_s16le -bitexact
wav=(-i song.wav)
flac --silent --force --tag="ARTIST=The Testers" --tag="TITLE=Two Tones" --tag="ALBUM=Bench" \
  -o song.flac song.wav
encode "${wav[@]}" -c:a pcm_s16be "${tags[@]}" -write_id3v2 1 song.aiff
encode "${wav[@]}" -c:a pcm_s16le song.w64
encode "${wav[@]}" -c:a pcm_s16be song.caf
encode "${wav[@]}" -c:a pcm_s16be song.au
encode "${wav[@]}" -c:a alac "${tags[@]}" song-alac.m4a
encode "${wav[@]}" -c:a wavpack "${tags[@]}" song.wv
encode "${wav[@]}" -c:a tta song.tta
encode "${wav[@]}" -c:a flac song-flac.ogg
encode "${wav[@]}" -c:a flac song.mka
encode "${wav[@]}" -c:a flac "${tags[@]}" tagged.flac

# --- Lossy.
encode "${wav[@]}" -c:a libmp3lame -b:a 128k "${tags[@]}" song.mp3
encode "${wav[@]}" -c:a libmp3lame -q:a 4 "${tags[@]}" song-vbr.mp3
encode "${wav[@]}" -c:a libmp3lame -q:a 4 -write_xing 0 -id3v2_version 0 song-vbr-bare.mp3
encode "${wav[@]}" -c:a libmp3lame -b:a 128k -write_xing 0 -id3v2_version 0 song-cbr-bare.mp3
encode "${wav[@]}" -ac 1 -c:a libmp3lame -q:a 4 song-mono.mp3
encode "${wav[@]}" -ar 22050 -c:a libmp3lame -b:a 64k song-22k.mp3
encode "${wav[@]}" -ar 48000 -c:a libmp3lame -b:a 128k song-48k.mp3
encode "${wav[@]}" -c:a libvorbis -q:a 4 "${tags[@]}" song.ogg
# Attacks make the blocks of Vorbis short, again and again.
encode "${wav[@]}" -af tremolo=f=7:d=0.9 -c:a libvorbis -q:a 5 swelling.ogg
encode "${wav[@]}" -c:a libopus -b:a 96k "${tags[@]}" song.opus
encode "${wav[@]}" -c:a libopus -b:a 96k song.webm
encode "${wav[@]}" -c:a aac -b:a 128k "${tags[@]}" song.m4a
encode "${wav[@]}" -ar 22050 -c:a aac -b:a 48k song-22k.m4a
encode "${wav[@]}" -c:a aac -b:a 128k song.aac
encode "${wav[@]}" -c:a wmav2 -b:a 128k "${tags[@]}" song.wma
encode "${wav[@]}" -c:a mp2 -b:a 192k song.mp2
encode "${wav[@]}" -c:a ac3 -b:a 192k song.ac3

# --- Other rates, depths and numbers of channels.
synthesise 48000 song-48k24.wav -c:a pcm_s24le
encode -i song-48k24.wav -c:a flac -sample_fmt s32 -bits_per_raw_sample 24 song-48k24.flac
synthesise 96000 song-96k24.flac -c:a flac -sample_fmt s32 -bits_per_raw_sample 24
synthesise 44100 song-44k24.flac -c:a flac -sample_fmt s32 -bits_per_raw_sample 24
synthesise 44100 song-float.wav -c:a pcm_f32le
synthesise 44100 song-8bit.wav -c:a pcm_u8
synthesise 8000 song-8k.wav -c:a pcm_s16le
encode "${wav[@]}" -af 'pan=mono|c0=c0' -c:a pcm_s16le song-mono.wav
encode -i song-mono.wav -c:a flac song-mono.flac
encode "${wav[@]}" -af 'pan=5.1|FL=c0|FR=c1|FC=c0|LFE=c1|BL=c0|BR=c1,volume=2.8' -c:a flac song-51.flac
# Shorter than the four seconds that a track takes at least.
encode "${wav[@]}" -af atrim=end_sample=30000 -c:a pcm_s16le -bitexact short.wav
encode "${wav[@]}" -af atrim=end_sample=30000 -c:a flac short.flac

# --- Tags, covers, pictures that move.
encode -f lavfi -i "testsrc=size=300x300:rate=1:duration=1" -frames:v 1 cover.png
cover=(-i cover.png -map 0:a -map 1:v -c:v copy -disposition:v attached_pic)
encode "${wav[@]}" "${cover[@]}" -c:a libmp3lame -b:a 128k "${tags[@]}" cover.mp3
encode "${wav[@]}" "${cover[@]}" -c:a flac "${tags[@]}" cover.flac
encode "${wav[@]}" "${cover[@]}" -c:a aac "${tags[@]}" cover.m4a
encode "${wav[@]}" -c:a libmp3lame -b:a 128k -metadata artist=試験楽団 -metadata title=二つの音 \
  -metadata album=日本語 japanese.mp3
encode "${wav[@]}" -c:a flac -metadata artist=試験楽団 -metadata title=二つの音 japanese.flac
# The old tag at the end: fixed fields, in the encoding of whoever wrote it, here Latin-1.
{
  cat song-vbr-bare.mp3
  printf 'TAG%-30s%-30s%-30s2001%-30s\x00' $'D\xe9j\xe0 vu' $'Les Fr\xe8res' Bench ''
} >id3v1.mp3
moving=(-f lavfi -i "testsrc=size=160x120:rate=10:duration=5")
encode "${moving[@]}" "${wav[@]}" -c:v mpeg4 -c:a aac -shortest video.mp4
encode "${moving[@]}" -c:v mpeg4 video-silent.mp4

# --- Files that are no songs, or no longer.
printf 'Just a few words.\nNo sound in here.\n' >text.txt
printf 'Just a few words that pretend.\n' >text.mp3
: >empty.mp3
cut_to() { head -c "$(($(stat -c %s "$1") * $2 / 100))" "$1" >"$3"; } # FROM PERCENT TO
cut_to song.flac 60 truncated.flac
cut_to song.wav 60 truncated.wav
cut_to song.mp3 60 truncated.mp3
cut_to song.ogg 60 truncated.ogg
encode "${wav[@]}" -c:a aac -b:a 128k -movflags faststart faststart.m4a
cut_to faststart.m4a 60 truncated.m4a
cut_to song.m4a 60 headless.m4a # The index stands at the end and is gone.
head -c 20 song.wav >header.wav
head -c 30 song.flac >header.flac

# --- Copy protection, forged: only the marks are there, which is all that a check looks at.
overwrite() { # FILE OFFSET BYTES (as printf writes them)
  printf '%b' "$3" | dd of="$1" bs=1 seek="$2" conv=notrunc status=none
}
offset_of() { LC_ALL=C grep -obUaF -m1 "$2" "$1" | head -n1 | cut -d: -f1; } # FILE TEXT
for mark in enca drms aavd; do
  cp faststart.m4a "protected-$mark.m4a"
  entry=$(offset_of faststart.m4a mp4a)
  overwrite "protected-$mark.m4a" "$entry" "$mark"
done
mv protected-aavd.m4a protected.aax
overwrite protected.aax 8 'aax '
printf '\x00\x01\x00\x00\x57\x90\x75\x36%2000s' '' >protected.aa
# An object of the header gets the identity of the one that describes an encryption.
cp song.wma protected.wma
content='\x33\x26\xb2\x75\x8e\x66\xcf\x11\xa6\xd9\x00\xaa\x00\x62\xce\x6c'
at=$(LC_ALL=C grep -obUaP -m1 "$content" song.wma | head -n1 | cut -d: -f1)
overwrite protected.wma "$at" '\xfb\xb3\x11\x22\x23\xbd\xd2\x11\xb4\xb7\x00\xa0\xc9\x55\xfc\x6e'
