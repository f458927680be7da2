// SPDX-License-Identifier: GPL-2.0-or-later
// Which of its languages the tool speaks.
#include "CDBurnerPlugin/Localization.h"
#include "host/TranslationChoice.h"
#include "tests/CDBurnerPlugin/translations/Languages.h"

#include <gtest/gtest.h>

namespace {

std::string chosenFor(const QStringList &liked) {
    QStringList offered;
    for (const std::string &language : languages()) {
        offered += QString::fromStdString(language);
    }
    return translationFor(liked, offered).toStdString();
}

TEST(Language, IsTheFirstOfTheUsersThatThereIsATextFor) {
    EXPECT_EQ(chosenFor({QStringLiteral("la-VA"), QStringLiteral("it-IT"), QStringLiteral("de")}),
              "it");
    EXPECT_EQ(chosenFor({QStringLiteral("sv-SE"), QStringLiteral("sv")}), "");
    EXPECT_EQ(chosenFor({}), "");
}

TEST(Language, IsEnglishForWhoLikesItBetterThanAnother) {
    EXPECT_EQ(chosenFor({QStringLiteral("en-GB"), QStringLiteral("en"), QStringLiteral("de")}), "");
}

TEST(Language, OfAnotherTerritoryIsTaken) {
    EXPECT_EQ(chosenFor({QStringLiteral("de-AT")}), "de");
    EXPECT_EQ(chosenFor({QStringLiteral("es-MX")}), "es");
    EXPECT_EQ(chosenFor({QStringLiteral("pt-PT")}), "pt_BR");
    EXPECT_EQ(chosenFor({QStringLiteral("zh-SG")}), "zh_CN");
}

TEST(Language, InAnotherScriptIsNotTaken) {
    EXPECT_EQ(chosenFor({QStringLiteral("zh-TW"), QStringLiteral("ja")}), "ja");
    EXPECT_EQ(chosenFor({QStringLiteral("zh-Hant-HK")}), "");
}

TEST(Language, OfTheCLocaleIsEnglish) {
    EXPECT_EQ(chosenFor({QStringLiteral("C")}), "");
}

TEST(Language, DecidesTheDirectionOfTheTexts) {
    EXPECT_EQ(localizationDirection(), Qt::LeftToRight);
    {
        const SpokenLanguage arabic("ar_EG");
        EXPECT_EQ(localizationDirection(), Qt::RightToLeft);
    }
    const SpokenLanguage german("de_CH");
    EXPECT_EQ(localizationDirection(), Qt::LeftToRight);
}

} // namespace
