// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/translations/Languages.h"

#include "CDBurnerPlugin/Localization.h"

SpokenLanguage::SpokenLanguage(const std::string &language) {
    EXPECT_TRUE(loadLocalization(QLocale(QString::fromStdString(language))));
}

SpokenLanguage::~SpokenLanguage() {
    setLocalizationTranslator(nullptr);
}
