#include "favourites/ui/optionfield.h"

#include "support/testmain.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QSignalSpy>

using namespace tessera;

/// The options that are proposed while one is typed.
class OptionFieldTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_field = std::make_unique<OptionField>();
        m_field->setKnownOptions({{QStringLiteral("-autosave"), QStringLiteral("restore and save state")},
                                  {QStringLiteral("-cheat"), QString()},
                                  {QStringLiteral("-bench"), QStringLiteral("run for seconds")}});
        m_field->show();
        QVERIFY(QTest::qWaitForWindowActive(m_field.get()));
        m_field->setFocus();
    }

    void cleanup() { m_field.reset(); }

    void aMinusAndALetterAreProposedFor_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("proposed"); // none where nothing opens
        QTest::newRow("a minus") << "-" << QStringList();
        QTest::newRow("a letter behind it") << "-a" << QStringList{"-autosave   restore and save state"};
        QTest::newRow("without a description") << "-c" << QStringList{"-cheat"};
        QTest::newRow("another case") << "-A" << QStringList();
        QTest::newRow("no minus") << "au" << QStringList();
        QTest::newRow("unknown") << "-x" << QStringList();
        QTest::newRow("whole") << "-cheat" << QStringList();
        QTest::newRow("the second word") << "-cheat -b" << QStringList{"-bench   run for seconds"};
        QTest::newRow("a value") << "-bench b" << QStringList();
        QTest::newRow("behind a blank") << "-a " << QStringList();
    }

    void aMinusAndALetterAreProposedFor()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, proposed);
        QTest::keyClicks(m_field.get(), typed);
        QCOMPARE(popup().isVisible(), !proposed.isEmpty());
        if (!proposed.isEmpty())
            QCOMPARE(shown(), proposed);
    }

    // What is half typed is no option yet.
    void returnInTheListTakesItsOptionAndNothingElse_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("return") << int{Qt::Key_Return};
        QTest::newRow("enter") << int{Qt::Key_Enter};
    }

    void returnInTheListTakesItsOptionAndNothingElse()
    {
        QFETCH(int, key);
        QTest::keyClicks(m_field.get(), "-cheat -au");
        QSignalSpy returned(m_field.get(), &QLineEdit::returnPressed);
        QTest::keyClick(&popup(), Qt::Key_Down);
        QTest::keyClick(&popup(), static_cast<Qt::Key>(key));
        QCOMPARE(m_field->text(), QStringLiteral("-cheat -autosave"));
        QVERIFY(!popup().isVisible());
        QCOMPARE(returned.size(), 0);
        QTest::keyClick(m_field.get(), static_cast<Qt::Key>(key));
        QCOMPARE(returned.size(), 1);
    }

    void returnWithNothingChosenIsTheFields()
    {
        QTest::keyClicks(m_field.get(), "-au");
        QVERIFY(popup().isVisible());
        QSignalSpy returned(m_field.get(), &QLineEdit::returnPressed);
        QTest::keyClick(&popup(), Qt::Key_Return);
        QCOMPARE(m_field->text(), QStringLiteral("-au"));
        QCOMPARE(returned.size(), 1);
    }

    void anotherEmulatorsOptionsTakeThePlaceOfTheFirst()
    {
        m_field->setKnownOptions({{QStringLiteral("-audio"), QString()}});
        QTest::keyClicks(m_field.get(), "-a");
        QCOMPARE(shown(), QStringList{"-audio"});
    }

    void theListGoesWithTheWord()
    {
        QTest::keyClicks(m_field.get(), "-a");
        QVERIFY(popup().isVisible());
        QTest::keyClick(&popup(), Qt::Key_Backspace);
        QCOMPARE(m_field->text(), QStringLiteral("-"));
        QVERIFY(!popup().isVisible());
    }

private:
    QAbstractItemView& popup() const { return *m_field->findChild<QCompleter*>()->popup(); }

    QStringList shown() const
    {
        QStringList texts;
        for (int row = 0; row < popup().model()->rowCount(); ++row)
            texts << popup().model()->index(row, 0).data().toString();
        return texts;
    }

    std::unique_ptr<OptionField> m_field;
};

TESSERA_TEST(OptionFieldTest);
#include "optionfieldtest.moc"
