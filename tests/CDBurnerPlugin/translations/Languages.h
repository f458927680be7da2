// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// The languages that the tool speaks besides English.
inline const std::vector<std::string> &languages() {
    static const std::vector<std::string> all = {"de", "fr", "es", "it",   "pt_BR",
                                                 "ru", "ja", "ar", "zh_CN"};
    return all;
}

/// Has the tool speak a language while it exists.
class SpokenLanguage {
public:
    explicit SpokenLanguage(const std::string &language);
    ~SpokenLanguage();
    SpokenLanguage(const SpokenLanguage &) = delete;
    SpokenLanguage &operator=(const SpokenLanguage &) = delete;
};

/// The suffix of a test's name for a language.
inline std::string languageName(const testing::TestParamInfo<std::string> &info) {
    return info.param;
}
