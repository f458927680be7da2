// SPDX-License-Identifier: GPL-2.0-or-later
// Nothing in the window speaks past the text table.
#include "CDBurnerPlugin/Localization.h"
#include "CDBurnerPlugin/VXHelpWindow.h"
#include "tests/CDBurnerPlugin/controller/ControllerTest.h"

#include <QRegularExpression>

namespace {

/// Speaks a language in which each text is its key in brackets.
class Brackets : public QTranslator {
public:
    QString translate(const char * /*context*/, const char *key, const char * /*disambiguation*/,
                      int /*n*/) const override {
        return QStringLiteral("‹%1›").arg(QString::fromUtf8(key));
    }
    bool isEmpty() const override { return false; }
};

/// What of a text does not come from the table. Markup does not count.
std::string outsideTheTable(QString text) {
    static const QRegularExpression known(QStringLiteral("‹[^›]*›|<[^>]*>|&nbsp;"));
    static const QRegularExpression letters(QStringLiteral("\\p{L}"));
    text.remove(known);
    return text.contains(letters) ? text.toStdString() : std::string();
}

void expectFromTable(const QString &text, const QWidget &widget) {
    EXPECT_EQ(outsideTheTable(text), "")
        << widget.objectName().toStdString() << " (" << widget.metaObject()->className() << ")";
}

void expectTextsFromTable(const QWidget &widget) {
    expectFromTable(widget.toolTip(), widget);
    expectFromTable(widget.accessibleName(), widget);
    expectFromTable(widget.accessibleDescription(), widget);
    expectFromTable(widget.statusTip(), widget);
    expectFromTable(widget.whatsThis(), widget);
    expectFromTable(widget.windowTitle(), widget);
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        expectFromTable(label->text(), widget);
    } else if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) {
        expectFromTable(button->text(), widget);
    } else if (const auto *field = qobject_cast<const QLineEdit *>(&widget)) {
        expectFromTable(field->text(), widget);
        expectFromTable(field->placeholderText(), widget);
    }
}

class WindowTexts : public ControllerTest {
protected:
    WindowTexts() { setLocalizationTranslator(std::make_shared<Brackets>()); }
    ~WindowTexts() override { setLocalizationTranslator(nullptr); }

    void expectAllFromTable() {
        expectTextsFromTable(*controller->window());
        for (const QWidget *widget : controller->window()->findChildren<QWidget *>()) {
            expectTextsFromTable(*widget);
        }
        for (int index = 0; index < typePopup()->count(); ++index) {
            expectFromTable(typePopup()->itemText(index), *typePopup());
        }
        for (int column = 0; column < table()->model()->columnCount(); ++column) {
            expectFromTable(table()->model()->headerData(column, Qt::Horizontal).toString(),
                            *table());
        }
    }

    void expectSheetFromTable() {
        drainMainQueue();
        EXPECT_NE(sheet()->name(), QString());
        expectFromTable(sheet()->name(), *sheet());
        expectFromTable(sheet()->tips(), *sheet());
        expectFromTable(sheet()->defaultButton()->text(), *sheet());
    }
};

} // namespace

TEST(OutsideTheTable, IsWhatStandsOutsideTheBrackets) {
    EXPECT_EQ(outsideTheTable(QStringLiteral("‹Used Time: 1:00›, <b>‹Help›</b> 12")), "");
    EXPECT_NE(outsideTheTable(QStringLiteral("‹Help› me")), "");
}

TEST_F(WindowTexts, AllComeFromTheTable) {
    openWithSongs(2);
    expectAllFromTable();
    engine.data().overflows = true;
    typePopup()->setCurrentIndex(1);
    controller->selectCDType();
    expectAllFromTable();
}

TEST_F(WindowTexts, WithoutADriveComeFromTheTable) {
    open();
    EXPECT_NE(noneDevice()->text(), QString());
    EXPECT_NE(tip(), "");
    expectAllFromTable();
}

TEST_F(WindowTexts, OfEachStateOfTheDriveComeFromTheTable) {
    engine.addDrive("Drive");
    open();
    inEachStateOfTheDrive([this] {
        EXPECT_EQ(outsideTheTable(QString::fromStdString(tip())), "");
        EXPECT_NE(tip(), "");
    });
}

TEST_F(WindowTexts, OfFilesBeingAddedComeFromTheTable) {
    openWithBlankDisc();
    send(engine.audio(), [](ScorchDelegate &adding) { adding.addFilesProgressDidStarted(); });
    expectSheetFromTable();
}

TEST_F(WindowTexts, OfABurnComeFromTheTable) {
    openWithSongs(1);
    startBurn();
    const auto expectAfter = [this](auto callback) {
        send(engine.audio(), callback);
        expectSheetFromTable();
    };
    expectSheetFromTable();
    expectAfter([](ScorchDelegate &burn) { burn.burnProgressIsPreparing(); });
    expectAfter([](ScorchDelegate &burn) { burn.burnProgressIsOpeningTrackOf(1, 9); });
    expectAfter([](ScorchDelegate &burn) { burn.burnProgressIsWriteingTrackOf(1, 9); });
    expectAfter([](ScorchDelegate &burn) { burn.burnProgressDidChanagedLefttime(0.5, 750); });
    expectAfter([](ScorchDelegate &burn) { burn.burnProgressDidCloseTrackOf(1, 9); });
    expectAfter([](ScorchDelegate &burn) { burn.burnProgressDidCloseSession(); });
    expectAfter([](ScorchDelegate &burn) { burn.burnProgressIsFinishing(); });
    expectAfter([](ScorchDelegate &burn) { burn.burnProgressIsVerifying(); });
    expectAfter([](ScorchDelegate &burn) { burn.burnProgressDidDone(); });
}

TEST_F(WindowTexts, OfTheHelpComeFromTheTable) {
    EXPECT_EQ(outsideTheTable(VXHelpWindow::helpText()), "");
}
