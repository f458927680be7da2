// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/Localization.h"
#include "CDBurnerPlugin/ResourceLocator.h"
#include "tests/CDBurnerPlugin/translations/Languages.h"
#include "tests/CDBurnerPlugin/translations/SourceKeys.h"
#include "tests/CDBurnerPlugin/translations/TranslationFile.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

namespace {

QStringList placeholders(const QString &text) {
    static const QRegularExpression placeholder(QStringLiteral("%(?:@|d|lu|ld|%|.)"));
    QStringList result;
    for (auto matches = placeholder.globalMatch(text); matches.hasNext();) {
        result += matches.next().captured();
    }
    return result;
}

QSet<QString> projectKeys() {
    QSet<QString> keys;
    for (const SourceKey &key : collectProjectKeys().keys) {
        keys.insert(key.text);
    }
    return keys;
}

class Translations : public testing::TestWithParam<std::string> {
protected:
    void SetUp() override { ASSERT_EQ(file_.error.toStdString(), ""); }

    const TranslationFile file_ = readTranslationFile(QString::fromStdString(GetParam()));
};

TEST_P(Translations, HaveEveryTextOfTheProgram) {
    QSet<QString> missing = projectKeys();
    EXPECT_GT(missing.size(), 100);
    for (const TranslatedText &text : file_.texts) {
        missing.remove(text.key);
    }
    for (const QString &key : missing) {
        ADD_FAILURE() << "not translated: " << key.toStdString();
    }
}

TEST_P(Translations, HaveNoTextThatNothingSays) {
    const QSet<QString> keys = projectKeys();
    for (const TranslatedText &text : file_.texts) {
        EXPECT_TRUE(keys.contains(text.key)) << text.key.toStdString();
    }
}

TEST_P(Translations, AreFinishedAndEachThereOnce) {
    QSet<QString> seen;
    for (const TranslatedText &text : file_.texts) {
        EXPECT_EQ(text.state.toStdString(), "") << text.key.toStdString();
        EXPECT_FALSE(text.text.trimmed().isEmpty()) << text.key.toStdString();
        EXPECT_FALSE(seen.contains(text.key)) << text.key.toStdString();
        EXPECT_EQ(text.context, QLatin1String(localizableContext)) << text.key.toStdString();
        seen.insert(text.key);
    }
    EXPECT_EQ(file_.language.toStdString(), GetParam());
}

// Placeholders are filled one after the other, whatever the sentence.
TEST_P(Translations, KeepThePlaceholdersOfTheKeyInTheirOrder) {
    for (const TranslatedText &text : file_.texts) {
        EXPECT_EQ(placeholders(text.text), placeholders(text.key)) << text.key.toStdString();
    }
}

// What the window says while the disc is being finished is shown as it stands, and it is the same
// text that names the disc at the end: a name in it would show as a placeholder before.
TEST_P(Translations, SayThatADiscIsFinishedWithoutItsName) {
    const SpokenLanguage spoken(GetParam());
    EXPECT_FALSE(localizedString("Finish burning").contains(QLatin1Char('%')));
}

// What is compiled into the tool is what these files say.
TEST_P(Translations, AreWhatTheToolSays) {
    const SpokenLanguage spoken(GetParam());
    for (const TranslatedText &text : file_.texts) {
        EXPECT_EQ(localizedString(text.key.toUtf8().constData()), text.text)
            << text.key.toStdString();
    }
}

TEST_P(Translations, TellTheTwoTypesOfDiscApart) {
    const SpokenLanguage spoken(GetParam());
    EXPECT_NE(localizedString("Audio CD"), localizedString("Data CD"));
    EXPECT_NE(localizedString("OK"), localizedString("Cancel"));
    EXPECT_NE(localizedString("Yes"), localizedString("No"));
}

TEST_P(Translations, HaveAMnemonicWhereTheKeyHasOneAndNoTwoEqualOnes) {
    QSet<QChar> seen;
    for (const TranslatedText &text : file_.texts) {
        const qsizetype place = text.text.indexOf(QLatin1Char('&'));
        ASSERT_EQ(text.text.count(QLatin1Char('&')), text.key.count(QLatin1Char('&')))
            << text.key.toStdString();
        if (place >= 0) {
            const QChar letter = text.text.at(place + 1).toLower();
            EXPECT_TRUE(letter.isLetterOrNumber()) << text.text.toStdString();
            EXPECT_FALSE(seen.contains(letter)) << text.text.toStdString();
            seen.insert(letter);
        }
    }
    EXPECT_GE(seen.size(), 5); // All stand in the one window.
}

// Texts are written with the marks of the language, and leave room at their ends to nobody.
TEST_P(Translations, UseNoTypewriterMarks) {
    for (const TranslatedText &text : file_.texts) {
        EXPECT_FALSE(text.text.contains(QLatin1String("..."))) << text.text.toStdString();
        EXPECT_FALSE(text.text.contains(QLatin1Char('"'))) << text.text.toStdString();
        EXPECT_FALSE(text.text.contains(QLatin1Char('\''))) << text.text.toStdString();
        EXPECT_EQ(text.text, text.text.trimmed()) << text.text.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, Translations, testing::ValuesIn(languages()), languageName);

TEST(TranslationSet, IsTheLanguagesThatAreTested) {
    QSet<QString> carried;
    const QDir folder(ResourceLocator::folder() + QStringLiteral("/translations"));
    for (const QString &file : folder.entryList()) {
        carried.insert(file.section(QLatin1Char('_'), 1).section(QLatin1Char('.'), 0, 0));
    }
    QSet<QString> tested;
    for (const std::string &language : languages()) {
        tested.insert(QString::fromStdString(language));
    }
    EXPECT_EQ(carried, tested);
    const QDir sources(QStringLiteral(CDBURNER_SOURCES "/resources/translations"));
    EXPECT_EQ(sources.entryList({QStringLiteral("*.ts")}).size(), tested.size());
}

} // namespace
