#include "widgets/formpage.h"

#include "support/testmain.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

using namespace tessera;

class FormPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLabelNamesItsControl()
    {
        FormPage page;
        auto* field = new QLineEdit;
        QLabel* label = page.addRow(QStringLiteral("Beam width"), field);
        QCOMPARE(label->buddy(), field);
        QCOMPARE(field->accessibleName(), QStringLiteral("Beam width"));
    }

    // In either language's way to mark it.
    void theKeyOfALabelIsNotHeard()
    {
        FormPage page;
        for (const char* label : {"&Host", "H&ost", "Host(&H)"}) {
            auto* field = new QLineEdit;
            page.addRow(QString::fromLatin1(label), field);
            QCOMPARE(field->accessibleName(), QStringLiteral("Host"));
            const std::unique_ptr<QLineEdit> made(FormPage::makeField("host", QString::fromLatin1(label)));
            QCOMPARE(made->accessibleName(), QStringLiteral("Host"));
            QCOMPARE(made->objectName(), QStringLiteral("host"));
        }
    }

    void aControlWithANameOfItsOwnKeepsIt()
    {
        FormPage page;
        auto* field = new QLineEdit;
        field->setAccessibleName(QStringLiteral("Width of the beam"));
        page.addRow(QStringLiteral("Beam"), field);
        QCOMPARE(field->accessibleName(), QStringLiteral("Width of the beam"));
    }

    void aBoxIsHeardAsItReads()
    {
        FormPage page;
        auto* cheats = new QCheckBox(QStringLiteral("Use cheats"));
        QLabel* label = page.addRow(QStringLiteral("Start"), cheats);
        QCOMPARE(label->buddy(), cheats);
        QCOMPARE(cheats->accessibleName(), QString());
        auto* bare = new QCheckBox;
        page.addRow(QStringLiteral("Effect"), bare);
        QCOMPARE(bare->accessibleName(), QStringLiteral("Effect"));
    }
};

TESSERA_TEST(FormPageTest);
#include "formpagetest.moc"
