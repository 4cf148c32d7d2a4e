#include "core/propertylist.h"

#include "support/testmain.h"

#include <QDir>

using namespace tessera;

namespace {

QDir folder()
{
    return QDir(qEnvironmentVariable("TESSERA_REAL_DATA") + QStringLiteral("/plist"));
}

struct Row {
    const char* file;
    const char* failure; ///< nothing where the file is good
    const char8_t* title; ///< of its first entry; nothing where there is none
};

// clang-format off
constexpr std::array rows{
    Row{"badent.plist",      "failure_plist_malformed", nullptr},
    Row{"badutf8.plist",     "failure_plist_encoding",  nullptr},
    Row{"bom.plist",         nullptr, u8"abc"},
    Row{"cdata.plist",       nullptr, u8"a<b&c"},
    Row{"comment.plist",     nullptr, u8"ab"},
    Row{"crlf.plist",        nullptr, u8"a\n\nb"},
    Row{"ctrl.plist",        "failure_plist_malformed", nullptr},
    Row{"date.plist",        nullptr, u8"2020-01-01T00:00:00Z"},
    Row{"deep.plist",        "failure_plist_large",     nullptr},
    Row{"dupkey.plist",      nullptr, u8"b"},
    Row{"empty.plist",       nullptr, u8""},
    Row{"emptyarray.plist",  nullptr, nullptr},
    Row{"emptyarray2.plist", nullptr, nullptr},
    Row{"entitydtd.plist",   nullptr, u8"boom"},
    Row{"html.plist",        "failure_plist_foreign",   nullptr},
    Row{"integer.plist",     nullptr, u8"5"},
    Row{"keyless.plist",     "failure_plist_malformed", nullptr},
    Row{"latin1decl.plist",  nullptr, u8"caf\u00E9"},
    Row{"mismatch.plist",    "failure_plist_malformed", nullptr},
    Row{"missingval.plist",  "failure_plist_malformed", nullptr},
    Row{"nodoctype.plist",   nullptr, u8"abc"},
    Row{"noroot.plist",      "failure_plist_foreign",   nullptr},
    Row{"notxml.plist",      "failure_plist_malformed", nullptr},
    Row{"numref.plist",      nullptr, u8"\u3042A\n"},
    Row{"ok.plist",          nullptr, u8"Pac & Man <1> \"x\" 'y' パックマン"},
    Row{"openstep.plist",    "failure_plist_malformed", nullptr},
    Row{"rawamp.plist",      "failure_plist_malformed", nullptr},
    Row{"rootdict.plist",    nullptr, nullptr},
    Row{"selfclosed.plist",  nullptr, u8""},
    Row{"trailing.plist",    "failure_plist_malformed", nullptr},
    Row{"true.plist",        nullptr, u8"true"},
    Row{"trunc.plist",       "failure_plist_truncated", nullptr},
    Row{"unclosed.plist",    "failure_plist_truncated", nullptr},
    Row{"unknown.plist",     "failure_plist_malformed", nullptr},
    Row{"utf16.plist",       nullptr, u8"abc"},
    Row{"ws.plist",          nullptr, u8"  a  \n b "},
    Row{"zero.plist",        "failure_plist_empty",     nullptr},
};
// clang-format on

// What is read, and read again from what is written.
void expectTitle(const PropertyList& list, const char8_t* title)
{
    const auto items = list.items();
    if (title == nullptr) {
        QVERIFY(items.empty());
        return;
    }
    QVERIFY(!items.empty());
    QCOMPARE(items.front().text("title"), std::optional(QString::fromUtf8(title)));
}

} // namespace

/// Good and bad lists that none of us wrote, where the machine has them.
class RealPropertyListsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFileIsKnown()
    {
        QStringList known;
        for (const Row& row : rows)
            known << QLatin1StringView(row.file);
        QCOMPARE(folder().entryList({QStringLiteral("*.plist")}, QDir::Files, QDir::Name), known);
    }

    void aListIsReadWholeOrNotAtAll_data()
    {
        QTest::addColumn<std::size_t>("place");
        for (std::size_t place = 0; place < rows.size(); ++place)
            QTest::newRow(rows[place].file) << place;
    }
    void aListIsReadWholeOrNotAtAll()
    {
        QFETCH(std::size_t, place);
        const Row& row = rows[place];
        const auto list = readPropertyList(folder().filePath(QLatin1StringView(row.file)));
        if (row.failure != nullptr) {
            QVERIFY(!list.has_value());
            QCOMPARE(list.error().key, row.failure);
            return;
        }
        QVERIFY2(list.has_value(), list ? "" : list.error().key);
        expectTitle(*list, row.title);
        const auto written = list->xml(QString());
        QVERIFY(written.has_value());
        expectTitle(parsePropertyList(*written, QString()).value(), row.title);
    }
};

static const bool registered = [] {
    if (!qEnvironmentVariableIsEmpty("TESSERA_REAL_DATA"))
        test::suites().push_back([] { return std::make_unique<RealPropertyListsTest>(); });
    return true;
}();
#include "realpropertyliststest.moc"
