// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/Localization.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

namespace {

/// A translator that knows one text of one context.
class OneText : public QTranslator {
public:
    QString translate(const char *context, const char *key, const char * /*disambiguation*/,
                      int /*n*/) const override {
        const bool isKnown = qstrcmp(context, "Localizable") == 0 && qstrcmp(key, "Cancel") == 0;
        return isKnown ? QStringLiteral("Abbrechen") : QString();
    }
    bool isEmpty() const override { return false; }
};

class LocalizationTest : public testing::Test {
protected:
    void TearDown() override { setLocalizationTranslator(nullptr); }
};

TEST_F(LocalizationTest, WithoutATranslatorATextIsItsKey) {
    EXPECT_EQ(localizedString("Cancel"), QStringLiteral("Cancel"));
    EXPECT_EQ(localizedString("Processing: %@ (%d of %d)"),
              QStringLiteral("Processing: %@ (%d of %d)"));
}

TEST_F(LocalizationTest, ATranslationIsFoundUnderItsKey) {
    setLocalizationTranslator(std::make_shared<OneText>());
    EXPECT_EQ(localizedString("Cancel"), QStringLiteral("Abbrechen"));
}

TEST_F(LocalizationTest, AMissingTranslationIsItsKey) {
    setLocalizationTranslator(std::make_shared<OneText>());
    EXPECT_EQ(localizedString("OK"), QStringLiteral("OK"));
}

TEST_F(LocalizationTest, TheApplicationsTranslatorsAreNotAsked) {
    OneText installed;
    QCoreApplication::installTranslator(&installed);
    EXPECT_EQ(localizedString("Cancel"), QStringLiteral("Cancel"));
    QCoreApplication::removeTranslator(&installed);
}

TEST_F(LocalizationTest, AnUnknownLanguageIsEnglish) {
    setLocalizationTranslator(std::make_shared<OneText>());
    EXPECT_FALSE(loadLocalization(QLocale(QStringLiteral("la_VA"))));
    EXPECT_EQ(localizedString("Cancel"), QStringLiteral("Cancel"));
}

TEST(FilledFormat, FillsPlaceholdersInOrder) {
    EXPECT_EQ(filledFormat(QStringLiteral("Processing: %@ (%d of %d)"),
                           {QStringLiteral("a.mp3"), QStringLiteral("2"), QStringLiteral("9")}),
              QStringLiteral("Processing: a.mp3 (2 of 9)"));
    EXPECT_EQ(filledFormat(QStringLiteral("%lu:%ld"), {QStringLiteral("1"), QStringLiteral("-2")}),
              QStringLiteral("1:-2"));
}

TEST(FilledFormat, AValueThatLooksLikeAPlaceholderIsHarmless) {
    EXPECT_EQ(filledFormat(QStringLiteral("%@ and %@"),
                           {QStringLiteral("%@ %d %1"), QStringLiteral("b")}),
              QStringLiteral("%@ %d %1 and b"));
}

TEST(FilledFormat, PlaceholdersBeyondTheValuesStay) {
    EXPECT_EQ(filledFormat(QStringLiteral("%@ %@"), {QStringLiteral("a")}), QStringLiteral("a %@"));
}

TEST(FilledFormat, APercentSignIsWrittenTwice) {
    EXPECT_EQ(filledFormat(QStringLiteral("100%% of %@, 5% off"), {QStringLiteral("x")}),
              QStringLiteral("100% of x, 5% off"));
}

} // namespace
