#include "platform/qt/colordialog.h"

#include "support/testmain.h"

#include <QAccessible>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTimer>

using namespace tessera;

namespace {

QSlider* slider(const ColorDialog& dialog, const char* name)
{
    return dialog.findChild<QSlider*>(QLatin1String(name));
}

QLineEdit* code(const ColorDialog& dialog)
{
    return dialog.findChild<QLineEdit*>(QStringLiteral("codeField"));
}

} // namespace

class ColorDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsWithTheGivenColour()
    {
        const ColorDialog dialog({QStringLiteral("Text"), QStringLiteral("#80e6e6e6")}, nullptr);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Text"));
        QCOMPARE(code(dialog)->text(), QStringLiteral("#80e6e6e6"));
        QCOMPARE(slider(dialog, "color_saturation")->value(), 0);
        QCOMPARE(slider(dialog, "color_brightness")->value(), 90);
        QCOMPARE(slider(dialog, "color_opacity")->value(), 50);
    }

    void okGivesTheColour_data()
    {
        QTest::addColumn<QString>("slider");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("color");
        QTest::newRow("untouched") << QString() << 0 << "#40102030";
        QTest::newRow("hue") << "color_hue" << 0 << "#40301010";
        QTest::newRow("saturation") << "color_saturation" << 0 << "#40303030";
        QTest::newRow("brightness") << "color_brightness" << 0 << "#40000000";
        QTest::newRow("opacity leaves the rest") << "color_opacity" << 100 << "#ff102030";
        QTest::newRow("no opacity") << "color_opacity" << 0 << "#00102030";
    }

    void okGivesTheColour()
    {
        QFETCH(QString, slider);
        QFETCH(int, value);
        QFETCH(QString, color);
        ColorDialog dialog({QString(), QStringLiteral("#40102030")}, nullptr);
        if (!slider.isEmpty())
            dialog.findChild<QSlider*>(slider)->setValue(value);
        QCOMPARE(code(dialog)->text(), color);
        press(dialog, "okButton");
        QCOMPARE(dialog.run(), color);
    }

    void aTypedCodeMovesTheSliders()
    {
        ColorDialog dialog({QString(), QStringLiteral("#ffe6e6e6")}, nullptr);
        code(dialog)->selectAll();
        QTest::keyClicks(code(dialog), QStringLiteral("#8000ff00"));
        QCOMPARE(slider(dialog, "color_hue")->value(), 120);
        QCOMPARE(slider(dialog, "color_saturation")->value(), 100);
        QCOMPARE(slider(dialog, "color_opacity")->value(), 50);
        press(dialog, "okButton");
        QCOMPARE(dialog.run(), QStringLiteral("#8000ff00"));
    }

    void halfACodeChangesNothing()
    {
        ColorDialog dialog({QString(), QStringLiteral("#ffe6e6e6")}, nullptr);
        code(dialog)->selectAll();
        QTest::keyClicks(code(dialog), QStringLiteral("#80zz00"));
        QCOMPARE(code(dialog)->text(), QStringLiteral("#8000"));
        press(dialog, "okButton");
        QCOMPARE(dialog.run(), QStringLiteral("#ffe6e6e6"));
    }

    void aGreyKeepsTheHueThatWasSet()
    {
        const ColorDialog dialog({QString(), QStringLiteral("#ff808080")}, nullptr);
        slider(dialog, "color_hue")->setValue(240);
        slider(dialog, "color_saturation")->setValue(100);
        QCOMPARE(QColor(code(dialog)->text()).hsvHue(), 240);
    }

    void cancelGivesNothing()
    {
        ColorDialog dialog({QString(), QStringLiteral("#ffe6e6e6")}, nullptr);
        slider(dialog, "color_opacity")->setValue(10);
        press(dialog, "cancelButton");
        QVERIFY(!dialog.run());
    }

    void everyControlHasANameAndTakesTheKeyboard()
    {
        const ColorDialog dialog({QString(), QStringLiteral("#ffe6e6e6")}, nullptr);
        QList<QWidget*> controls;
        for (QSlider* each : dialog.findChildren<QSlider*>())
            controls << each;
        QCOMPARE(controls.size(), qsizetype(ColorDialog::partCount));
        controls << code(dialog);
        for (QWidget* control : controls) {
            QVERIFY(!QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty());
            QVERIFY(control->focusPolicy() & Qt::TabFocus);
        }
    }

private:
    static void press(ColorDialog& dialog, const char* button)
    {
        QTimer::singleShot(0, &dialog, [&dialog, button] {
            dialog.findChild<QPushButton*>(QLatin1String(button))->click();
        });
    }
};

TESSERA_TEST(ColorDialogTest);
#include "colordialogtest.moc"
