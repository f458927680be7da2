// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/AudioBackend.h"
#include "tests/support/TemporaryFolder.h"

#include <dlfcn.h>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

bool isLoaded(const char *library) {
    return readFile("/proc/self/maps").find(library) != std::string::npos;
}

// The reason for a module: a program that has no songs does not bring the decoder along.
TEST(AudioBackendLoader, DecoderIsNotThereBeforeItIsNeeded) {
    EXPECT_FALSE(isLoaded("libavformat"));
    ASSERT_TRUE(scorch::audioBackend().ok());
    EXPECT_TRUE(isLoaded("libavformat"));
}

TEST(AudioBackendLoader, LoadsOnce) {
    const scorch::Result<const scorch::AudioBackend *> first = scorch::audioBackend();
    const scorch::Result<const scorch::AudioBackend *> second = scorch::audioBackend();
    ASSERT_TRUE(first.ok() && second.ok());
    EXPECT_EQ(*first, *second);
}

TEST(AudioBackendLoader, ModuleChecksASong) {
    const scorch::Result<const scorch::AudioBackend *> backend = scorch::audioBackend();
    ASSERT_TRUE(backend.ok()) << backend.error().detail();
    const scorch::AudioProbe result =
        (*backend)->probe(std::filesystem::path(TEST_MEDIA_DIR) / "song.flac", {});
    EXPECT_EQ(std::get<scorch::AudioInfo>(result).samples, 233777U);
}

} // namespace
