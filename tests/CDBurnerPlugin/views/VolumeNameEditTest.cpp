// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/VolumeNameEdit.h"

#include "tests/CDBurnerPlugin/EventLoop.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>

#include <memory>

namespace {

class VolumeNameEditTest : public testing::Test {
protected:
    VolumeNameEditTest() {
        field_.formatter().setMaximumLength(6);
        field_.resize(300, 30);
        showActive(field_);
        field_.setFocus();
    }

    void start(const QString &text, int caret, int selected = 0) {
        field_.setText(text);
        if (selected > 0) {
            field_.setSelection(caret, selected);
        } else {
            field_.setCursorPosition(caret);
        }
    }
    void paste(const QString &text) {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(&field_, Qt::Key_V, Qt::ControlModifier);
    }
    void commit(const QString &text) {
        QInputMethodEvent composing(text, {});
        QApplication::sendEvent(&field_, &composing);
        QInputMethodEvent committing;
        committing.setCommitString(text);
        QApplication::sendEvent(&field_, &committing);
    }
    void expect(const char *text, int caret) {
        EXPECT_EQ(field_.text(), QString::fromUtf8(text));
        EXPECT_EQ(field_.cursorPosition(), caret);
        EXPECT_FALSE(field_.hasSelectedText());
    }

    VolumeNameEdit field_;
};

TEST_F(VolumeNameEditTest, MnemonicOfADisabledControlIsNotTyped) {
    start(QStringLiteral("name"), 4);
    QTest::keyClick(&field_, 'b', Qt::AltModifier);
    expect("name", 4);
    QTest::keyClick(&field_, 'b');
    expect("nameb", 5);
    QTest::keyClick(&field_, Qt::Key_Backspace, Qt::AltModifier);
    EXPECT_NE(field_.text(), QStringLiteral("nameb")) << "a key that is no letter is the field's";
}

TEST_F(VolumeNameEditTest, TypingStopsAtTheLimit) {
    QTest::keyClicks(&field_, QStringLiteral("abcdefgh"));
    expect("abcdef", 6);
}

TEST_F(VolumeNameEditTest, ALetterInTheMiddleOfAFullTextIsLost) {
    start(QStringLiteral("abcdef"), 2);
    QTest::keyClicks(&field_, QStringLiteral("x"));
    expect("abcdef", 2);
}

TEST_F(VolumeNameEditTest, APasteInTheMiddleIsCut) {
    start(QStringLiteral("abcd"), 2);
    paste(QStringLiteral("XYZ"));
    expect("abXYcd", 4);
}

TEST_F(VolumeNameEditTest, APasteOverASelectionIsCut) {
    start(QStringLiteral("abcdef"), 1, 2);
    paste(QStringLiteral("WXYZ"));
    expect("aWXdef", 3);
}

TEST_F(VolumeNameEditTest, APasteAtTheEndIsRefusedWhole) {
    start(QStringLiteral("abcde"), 5);
    paste(QStringLiteral("XY"));
    expect("abcde", 5);
}

TEST_F(VolumeNameEditTest, UndoTakesBackACutPasteAlone) {
    QTest::keyClicks(&field_, QStringLiteral("abcd"));
    field_.setCursorPosition(2);
    paste(QStringLiteral("XYZ"));
    ASSERT_EQ(field_.text(), QStringLiteral("abXYcd"));
    QTest::keyClick(&field_, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(field_.text(), QStringLiteral("abcd"));
    QTest::keyClick(&field_, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(field_.text(), QString());
}

TEST_F(VolumeNameEditTest, ARefusedEditLeavesTheHistory) {
    QTest::keyClicks(&field_, QStringLiteral("abcde"));
    paste(QStringLiteral("XY"));
    QTest::keyClicks(&field_, QStringLiteral("fg"));
    ASSERT_EQ(field_.text(), QStringLiteral("abcdef"));
    EXPECT_TRUE(field_.isUndoAvailable());
    while (field_.isUndoAvailable()) {
        field_.undo();
    }
    EXPECT_EQ(field_.text(), QString());
    while (field_.isRedoAvailable()) {
        field_.redo();
    }
    EXPECT_EQ(field_.text(), QStringLiteral("abcdef"));
}

TEST_F(VolumeNameEditTest, WhatAnInputMethodCommitsEndsWithinTheLimit) {
    start(QStringLiteral("ab"), 1);
    commit(QString::fromUtf8("日本語日本語"));
    expect("a日本語日b", 5);
    start(QStringLiteral("abcde"), 5);
    commit(QString::fromUtf8("日本"));
    expect("abcde", 5);
}

TEST_F(VolumeNameEditTest, ADropIntoTheTextIsCut) {
    start(QStringLiteral("abcd"), 0);
    QMimeData data;
    data.setText(QStringLiteral("XYZ"));
    QDragEnterEvent enter({8, 15}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&field_, &enter); // No drop without.
    QDropEvent drop({8, 15}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&field_, &drop);
    EXPECT_EQ(field_.text().size(), 6);
    EXPECT_TRUE(field_.text().endsWith(QStringLiteral("bcd"))) << qPrintable(field_.text());
}

TEST_F(VolumeNameEditTest, APasteFromTheMenuIsCutToo) {
    start(QStringLiteral("abcd"), 2);
    QApplication::clipboard()->setText(QStringLiteral("XYZ"));
    field_.paste();
    EXPECT_TRUE(runUntil([this] { return field_.text() == QStringLiteral("abXYcd"); }));
}

TEST_F(VolumeNameEditTest, ATextOfTheProgramMayBeLonger) {
    field_.setText(QStringLiteral("abcdefghij"));
    EXPECT_EQ(field_.text(), QStringLiteral("abcdefghij"));
    field_.setCursorPosition(10);
    QTest::keyClicks(&field_, QStringLiteral("k"));
    expect("abcdefghij", 10);
    start(QStringLiteral("abcdefghij"), 3, 7);
    QTest::keyClicks(&field_, QStringLiteral("k"));
    expect("abck", 4);
}

TEST_F(VolumeNameEditTest, APairOfSurrogatesStaysWhole) {
    start(QStringLiteral("abcd"), 3);
    paste(QString::fromUtf8("x💿"));
    expect("abcxd", 4);
}

TEST_F(VolumeNameEditTest, StaysSelectedWhenTheFocusIsElsewhereAsTheWindowBecomesActive) {
    field_.setText(QStringLiteral("name"));
    field_.clearFocus();
    field_.selectAll();
    QEvent activated(QEvent::WindowActivate);
    QApplication::sendEvent(&field_, &activated);
    QTest::qWait(0);
    QApplication::processEvents();
    EXPECT_EQ(field_.selectedText(), QStringLiteral("name"));
}

TEST_F(VolumeNameEditTest, ANameOfFiftyIsTheLongest) {
    field_.formatter().awakeFromNib();
    QTest::keyClicks(&field_, QString(60, u'a'));
    EXPECT_EQ(field_.text().size(), 50);
}

} // namespace
