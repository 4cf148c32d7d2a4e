#include "catalogue/ui/appearancepage.h"

#include "stagedpage.h"
#include "support/testmain.h"
#include "widgets/colorwell.h"
#include "widgets/fontname.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

using namespace tessera;
using test::StagedPage;

class AppearancePageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showingItStoresNothing()
    {
        StagedPage at;
        at.page.show();
        for (const auto& name :
             {keys::TablefontName.name, keys::fontSize.name, keys::rowHeight.name,
              keys::GamelistColoring.name, keys::TableViewTextColor.name, keys::TableViewTextColor2.name})
            QVERIFY2(!at.defaults.value(name), name.data());
    }

    void theInitialValuesAreShown()
    {
        StagedPage at;
        QCOMPARE(at.page.fontSampleField->text(), QStringLiteral("DejaVu Sans"));
        QCOMPARE(at.page.fontSizeField->text(), QStringLiteral("13"));
        QVERIFY(!at.page.coloringBox->isChecked());
    }

    void theSampleShowsTheFontsNameInThatFont_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("family") << "DejaVu Serif";
        QTest::newRow("family and style") << "DejaVu Sans Mono Bold";
        QTest::newRow("one that is gone") << "No Such Font";
    }

    void theSampleShowsTheFontsNameInThatFont()
    {
        QFETCH(QString, name);
        StagedPage at;
        at.controller.setText(keys::TablefontName, name);
        QCOMPARE(at.page.fontSampleField->text(), name);
        const QFont wanted = namedFont(name);
        const QFont shown = at.page.fontSampleField->font();
        QCOMPARE(shown.families(), wanted.families());
        QCOMPARE(shown.styleName(), wanted.styleName());
        QCOMPARE(shown.weight(), wanted.weight());
    }

    void eachListHasItsOwnSample()
    {
        StagedPage at;
        at.controller.setText(keys::FavoritefontName, QStringLiteral("DejaVu Serif"));
        QCOMPARE(at.page.favoriteFontField->text(), QStringLiteral("DejaVu Serif"));
        QCOMPARE(at.page.fontSampleField->text(), QStringLiteral("DejaVu Sans"));
        // In the size of the page, from its beginning.
        for (const QLineEdit* field : {at.page.favoriteFontField, at.page.fontSampleField}) {
            QCOMPARE(field->font().pixelSize(), field->parentWidget()->fontInfo().pixelSize());
            QCOMPARE(field->cursorPosition(), 0);
        }
    }

    void aColourCanBeTakenBackWhereItIsAnother()
    {
        StagedPage at;
        QVERIFY(!at.page.initialColorButton->isEnabled());
        QVERIFY(!at.page.initialColorButton2->isEnabled());
        at.controller.setText(keys::TableViewTextColor, QStringLiteral("#ff000001"));
        QVERIFY(at.page.initialColorButton->isEnabled());
        QVERIFY(!at.page.initialColorButton2->isEnabled());
        QCOMPARE(at.page.textColorWell->color(), QColor(0, 0, 1));
        at.controller.setText(keys::TableViewTextColor2, QStringLiteral("#ff000002"));
        QVERIFY(at.page.initialColorButton2->isEnabled());
        QCOMPARE(at.page.textColorWell2->color(), QColor(0, 0, 2));
    }

    void theButtonsAreAllAlike()
    {
        StagedPage at;
        for (const QToolButton* button : {at.page.smallerButton, at.page.biggerButton,
                                          at.page.initialColorButton, at.page.initialColorButton2})
            QCOMPARE(button->iconSize(), QSize(16, 16));
        // A row begins with what takes its label's key.
        QCOMPARE(at.page.fontButton->parentWidget()->focusProxy(), at.page.fontSampleField);
        QCOMPARE(at.page.biggerButton->parentWidget()->focusProxy(), at.page.fontSizeField);
    }

    void neitherFieldIsTypedIn()
    {
        StagedPage at;
        at.page.show();
        for (QLineEdit* field : {at.page.fontSampleField, at.page.fontSizeField}) {
            const QString before = field->text();
            field->setFocus();
            QTest::keyClicks(field, QStringLiteral("99"));
            QCOMPARE(field->text(), before);
        }
    }

    void everyControlHasANameOfItsOwnAndTakesTheKeyboard()
    {
        StagedPage at;
        QSet<QString> names;
        const QList<QWidget*> controls{
            at.page.fontSampleField,    at.page.fontButton,     at.page.favoriteFontField,
            at.page.favoriteFontButton, at.page.fontSizeField,  at.page.smallerButton,
            at.page.biggerButton,       at.page.coloringBox,    at.page.textColorWell,
            at.page.initialColorButton, at.page.textColorWell2, at.page.initialColorButton2,
        };
        for (QWidget* control : controls) {
            const QString name = QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name);
            QVERIFY2(!name.isEmpty() && !names.contains(name), qPrintable(control->objectName()));
            names << name;
            QVERIFY(!control->objectName().isEmpty());
            QVERIFY2(control->focusPolicy() & Qt::TabFocus, qPrintable(control->objectName()));
        }
    }

    void tabGoesThroughThePageInItsOrder()
    {
        StagedPage at;
        at.controller.setText(keys::TableViewTextColor, QStringLiteral("#ff000001"));
        at.page.show();
        at.page.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&at.page));
        at.page.fontSampleField->setFocus();
        const QList<QWidget*> order{at.page.fontButton,         at.page.favoriteFontField,
                                    at.page.favoriteFontButton, at.page.fontSizeField,
                                    at.page.smallerButton,      at.page.biggerButton,
                                    at.page.coloringBox,        at.page.textColorWell,
                                    at.page.initialColorButton, at.page.textColorWell2};
        for (const QWidget* next : order) {
            QTest::keyClick(at.page.focusWidget(), Qt::Key_Tab);
            QCOMPARE(at.page.focusWidget(), next);
        }
    }
};

TESSERA_TEST(AppearancePageTest);
#include "appearancepagetest.moc"
