// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/translations/SourceKeys.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QSet>

namespace {

QStringList keysOf(const char *source) {
    SourceKeys found;
    collectKeys(QString::fromUtf8(source), QStringLiteral("a.cpp"), found);
    QStringList texts;
    for (const SourceKey &key : found.keys) {
        texts += key.text;
    }
    return texts;
}

} // namespace

TEST(SourceKeysTest, LiteralOfALookUpIsAKey) {
    EXPECT_EQ(keysOf(R"(label->setText(localizedString("Cancel"));)"),
              QStringList{QStringLiteral("Cancel")});
    EXPECT_EQ(keysOf(R"(return localized("No “%@”.", {name + "x"});)"),
              QStringList{QStringLiteral("No “%@”.")});
}

TEST(SourceKeysTest, AdjacentLiteralsAreOneKeyAndAlternativesAreTwo) {
    EXPECT_EQ(keysOf("localized(\"One \"\n  \"text.\\t\")"),
              QStringList{QStringLiteral("One text.\t")});
    EXPECT_EQ(keysOf(R"(localizedString(isAudio() ? "Time" : "Size"))"),
              (QStringList{QStringLiteral("Time"), QStringLiteral("Size")}));
}

TEST(SourceKeysTest, KeysThatArePassedOnOrMarkedCount) {
    EXPECT_EQ(keysOf(R"(updateStage("Verifying CD"); units = {localizableKey("kB")};)"),
              (QStringList{QStringLiteral("Verifying CD"), QStringLiteral("kB")}));
}

TEST(SourceKeysTest, CommentsOtherTextsAndDeclarationsAreNoKeys) {
    EXPECT_TRUE(keysOf("// localized(\"a\")\n/* localized(\"b\") */ log(\"localized(\");"
                       "QString localizedString(const char *key); c = '\"';")
                    .isEmpty());
}

TEST(SourceKeysTest, ComputedKeyIsToldApart) {
    SourceKeys found;
    collectKeys(QStringLiteral("localized(prefix + names[ 1 ], {value})"), QStringLiteral("a.cpp"),
                found);
    ASSERT_EQ(found.computed.size(), 1U);
    EXPECT_EQ(found.computed[0].expression, QStringLiteral("prefix+names[1]"));
    EXPECT_TRUE(found.keys.empty());
}

// A computed key escapes the comparison with the translations. These pass on what other calls,
// which are looked at, gave them; a new one has to become one of the functions that are looked at.
TEST(ProjectKeys, NoKeyIsComputed) {
    const QSet<QString> known = {
        QStringLiteral("CDBurnerPlugin/VXCDBurner.cpp: std::string(key).c_str()"),
        QStringLiteral("CDBurnerPlugin/VXCDBurnerMainWindowController+Burning.cpp: tipsKey"),
        QStringLiteral("CDBurnerPlugin/VXCDBurnerMainWindowController+Devices.cpp: key"),
        QStringLiteral("engine/ScorchString.h: key"),
        QStringLiteral("engine/ScorchString.h: units[unit]"),
        QStringLiteral("scorch/mmc/DriveErrors.cpp: found->text"), // Of marked keys.
        QStringLiteral("scorch/mmc/DriveErrors.cpp: jammed"),      // One of them.
    };
    for (const ComputedKey &key : collectProjectKeys().computed) {
        const QString place = key.file + QStringLiteral(": ") + key.expression;
        EXPECT_TRUE(known.contains(place)) << place.toStdString();
    }
}

// Else a text could reach the table by a way that the collector does not look at.
TEST(ProjectKeys, HookIsReadOnlyWhereTheCollectorKnowsIt) {
    const QSet<QString> known = {
        QStringLiteral("CDBurnerPlugin/VXCDBurner.cpp"), QStringLiteral("engine/ScorchHooks.h"),
        QStringLiteral("engine/ScorchString.h"), QStringLiteral("scorch/support/Text.cpp")};
    static const QRegularExpression comment(QStringLiteral("//[^\n]*"));
    for (const char *folder : {"CDBurnerPlugin", "engine", "scorch"}) {
        for (const QString &file : sourceFiles(QLatin1String(folder))) {
            const bool reads =
                readSource(file).remove(comment).contains(QLatin1String("localizedText"));
            EXPECT_TRUE(!reads || known.contains(file)) << file.toStdString();
        }
    }
}

TEST(ProjectKeys, AreFoundInEveryLayer) {
    QSet<QString> folders;
    for (const SourceKey &key : collectProjectKeys().keys) {
        folders.insert(key.file.section(QLatin1Char('/'), 0, 0));
    }
    EXPECT_EQ(folders, (QSet<QString>{QStringLiteral("CDBurnerPlugin"), QStringLiteral("engine"),
                                      QStringLiteral("scorch")}));
}

// The forms carry no texts: those would be looked up in a table of another context.
TEST(ProjectKeys, FormsHaveNone) {
    static const QRegularExpression text(QStringLiteral("<string>[^<]"));
    for (const char *form : {"MainWindow", "ProgressWindow"}) {
        const QString content =
            readSource(QStringLiteral("resources/forms/%1.ui").arg(QLatin1String(form)));
        EXPECT_FALSE(content.isEmpty());
        EXPECT_FALSE(content.contains(text)) << form;
    }
}
