// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/LibrarySong.h"
#include "crate/MainWindow.h"
#include "crate/Translation.h"
#include "tests/support/TemporaryFolder.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>

#include <gmock/gmock.h>

#include <chrono>
#include <map>

namespace {

using namespace std::chrono_literals;

/// The forms of each text: one, or as many as the language has numbers.
using Texts = std::map<QString, QStringList>;

const char *const languageNames[] = {"de", "fr", "es", "it", "pt_BR", "ru", "ja", "zh_CN", "ar"};

QString fileNamed(const QString &name) {
    QFile file(QStringLiteral(CRATE_SOURCES "/") + name);
    EXPECT_TRUE(file.open(QFile::ReadOnly)) << name.toStdString();
    return QString::fromUtf8(file.readAll());
}

/// What stands in all the calls that ask for a text.
QSet<QString> keysOfTheSources() {
    static const QRegularExpression call(QStringLiteral(
        R"((?:\btranslated(?:Count)?\(|NOOP\("Crate",)\s*((?:"(?:[^"\\]|\\.)*"\s*)+))"));
    static const QRegularExpression between(QStringLiteral(R"("\s*")"));
    QSet<QString> keys;
    const QDir folder(QStringLiteral(CRATE_SOURCES "/crate"));
    for (const QString &name : folder.entryList({QStringLiteral("*.cpp")})) {
        auto matches = call.globalMatch(fileNamed(QStringLiteral("crate/") + name));
        while (matches.hasNext()) {
            QString key = matches.next().captured(1).trimmed();
            key = key.sliced(1, key.size() - 2).remove(between);
            keys.insert(key.replace(QLatin1String("\\n"), QLatin1String("\n")));
        }
    }
    return keys;
}

Texts textsIn(const QString &language) {
    QXmlStreamReader reader(
        fileNamed(QStringLiteral("resources/crate/translations/crate_%1.ts").arg(language)));
    Texts texts;
    QString key;
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement()) {
            continue;
        }
        if (reader.name() == QLatin1String("source")) {
            key = reader.readElementText();
            EXPECT_FALSE(texts.contains(key)) << key.toStdString();
        } else if (reader.name() == QLatin1String("numerusform") ||
                   (reader.name() == QLatin1String("translation") &&
                    !key.contains(QLatin1String("%Ln")))) {
            EXPECT_FALSE(reader.attributes().hasAttribute(QLatin1String("type")));
            texts[key] += reader.readElementText();
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return texts;
}

/// The placeholders of a text in alphabetical order.
QStringList placeholders(const QString &text) {
    static const QRegularExpression placeholder(QStringLiteral("%(\\d|Ln)"));
    QStringList found;
    auto matches = placeholder.globalMatch(text);
    while (matches.hasNext()) {
        found += matches.next().captured();
    }
    found.sort();
    return found;
}

QChar mnemonic(const QString &text) {
    const qsizetype place = text.indexOf(QLatin1Char('&'));
    return place < 0 ? QChar() : text.at(place + 1).toLower();
}

/// Speaks the language while it exists.
class Spoken {
public:
    explicit Spoken(const QString &language) { crate::speakLanguageOf(QLocale(language)); }
    ~Spoken() {
        const auto translators = qApp->findChildren<QTranslator *>(Qt::FindDirectChildrenOnly);
        qDeleteAll(translators);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }
    Spoken(const Spoken &) = delete;
    Spoken &operator=(const Spoken &) = delete;
};

class HostTranslations : public testing::TestWithParam<const char *> {
protected:
    const QString language_ = QString::fromLatin1(GetParam());
};

TEST_P(HostTranslations, HaveEveryTextAndNoOther) {
    const QSet<QString> wanted = keysOfTheSources();
    EXPECT_GT(wanted.size(), 50);
    QSet<QString> found;
    for (const auto &[key, forms] : textsIn(language_)) {
        found.insert(key);
    }
    for (const QString &key : wanted - found) {
        ADD_FAILURE() << "not translated: " << key.toStdString();
    }
    for (const QString &key : found - wanted) {
        ADD_FAILURE() << "nothing says: " << key.toStdString();
    }
}

TEST_P(HostTranslations, KeepPlaceholdersAndMnemonics) {
    for (const auto &[key, forms] : textsIn(language_)) {
        const bool counts = key.contains(QLatin1String("%Ln"));
        for (const QString &text : forms) {
            EXPECT_FALSE(text.isEmpty()) << key.toStdString();
            EXPECT_EQ(text.count(QLatin1Char('&')), key.count(QLatin1Char('&')))
                << key.toStdString();
            EXPECT_FALSE(text.contains(QLatin1String("..."))) << text.toStdString();
            // A form for one or two may say so in words.
            EXPECT_TRUE(placeholders(text) == placeholders(key) || (counts && forms.size() > 3))
                << text.toStdString();
        }
    }
}

TEST_P(HostTranslations, AreWhatTheWindowSays) {
    const Spoken spoken(language_);
    const TemporaryFolder music;
    crate::Utilities utilities({});
    const crate::MainWindow window(utilities, music.path());
    const Texts texts = textsIn(language_);
    QStringList titles;
    QSet<QChar> mnemonics;
    for (const QAction *action : window.menuBar()->actions()) {
        titles += action->text();
        mnemonics.insert(mnemonic(action->text()));
        QSet<QChar> inside;
        for (const QAction *entry : action->menu()->actions()) {
            if (!mnemonic(entry->text()).isNull()) {
                EXPECT_FALSE(inside.contains(mnemonic(entry->text())))
                    << entry->text().toStdString();
                inside.insert(mnemonic(entry->text()));
            }
        }
    }
    EXPECT_EQ(titles.front(), texts.at(QStringLiteral("&File")).front());
    EXPECT_EQ(mnemonics.size(), titles.size()) << titles.join(u' ').toStdString();
    EXPECT_EQ(window.layoutDirection(),
              language_ == QLatin1String("ar") ? Qt::RightToLeft : Qt::LeftToRight);
}

INSTANTIATE_TEST_SUITE_P(Languages, HostTranslations, testing::ValuesIn(languageNames),
                         [](const auto &language) { return std::string(language.param); });

TEST(HostLanguage, CountsAsItsSpeakersDo) {
    const Spoken spoken(QStringLiteral("ru"));
    EXPECT_EQ(crate::translatedCount("%Ln songs", 3), QStringLiteral("3 песни"));
    EXPECT_EQ(crate::translatedCount("%Ln songs", 5), QStringLiteral("5 песен"));
    EXPECT_EQ(crate::translatedCount("%Ln songs", 21), QStringLiteral("21 песня"));
    EXPECT_EQ(crate::totalLengthText(61min), QStringLiteral("1 час 1 минута"));
}

TEST(HostLanguage, OfNobodyItCarriesIsEnglish) {
    const Spoken spoken(QStringLiteral("nl"));
    EXPECT_EQ(crate::translated("Search"), QStringLiteral("Search"));
    EXPECT_EQ(crate::translatedCount("%Ln songs", 2), QStringLiteral("2 songs"));
}

} // namespace
