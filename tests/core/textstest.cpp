#include "core/texts.h"

#include "support/needed.h"
#include "support/testmain.h"

#include <QFileInfo>

using namespace tessera;

class TextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void theChosenLanguageCountsAndElseTheUsersOwn_data()
    {
        QTest::addColumn<QString>("own");
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("language");
        const auto row = [](const char* name, const char* own, const char* chosen, const char* language) {
            QTest::newRow(name) << QString(own) << QString(chosen) << QString(language);
        };
        row("nothing chosen, Japanese", "ja_JP", "", "ja");
        row("nothing chosen, English", "en_GB", "", "en");
        row("nothing chosen, another one", "fr_FR", "", "en");
        row("Japanese chosen", "en_GB", "ja", "ja");
        row("English chosen", "ja_JP", "en", "en");
        row("one that there is not", "ja_JP", "fr", "en");
    }
    void theChosenLanguageCountsAndElseTheUsersOwn()
    {
        QFETCH(QString, own);
        QFETCH(QString, chosen);
        QLocale::setDefault(QLocale(own));
        QTEST(textLanguage(chosen), "language");
    }

    void theToolkitSpeaksTheLanguageToo()
    {
        const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
        TESSERA_NEEDS(QFileInfo::exists(folder + QStringLiteral("/qtbase_ja.qm")), "qt6-translations-l10n");
        const auto cancel = [] { return QCoreApplication::translate("QPlatformTheme", "Cancel"); };
        QCOMPARE(cancel(), QStringLiteral("Cancel"));
        QTranslator japanese;
        installToolkitTexts(japanese, QStringLiteral("ja"));
        QCOMPARE(cancel(), QStringLiteral("キャンセル"));
        QCoreApplication::removeTranslator(&japanese);
    }
};

TESSERA_TEST(TextsTest);
#include "textstest.moc"
