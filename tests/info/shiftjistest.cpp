#include "info/textencoding.h"

#include "support/testmain.h"

#include <QRandomGenerator>

#include <memory>

#include <unicode/ucnv.h>
#include <unicode/unistr.h>

using namespace tessera;

namespace {

// What ICU makes of the bytes when it may not replace any.
std::optional<std::string> byIcu(const std::string& bytes)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UConverter, decltype(&ucnv_close)> converter(ucnv_open("windows-31j", &status),
                                                                       &ucnv_close);
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    const icu::UnicodeString units(bytes.data(), static_cast<int32_t>(bytes.size()), converter.get(), status);
    std::string text;
    return U_SUCCESS(status) ? std::optional(units.toUTF8String(text)) : std::nullopt;
}

} // namespace

class ShiftJisTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPairIsWhatIcuSays()
    {
        for (unsigned pair = 0x8000; pair <= 0xFFFF; ++pair) {
            // ICU changes these control characters for one another.
            const unsigned low = pair & 0xFF;
            if (low == 0x1A || low == 0x1C || low == 0x7F)
                continue;
            const std::string bytes{static_cast<char>(pair >> 8), static_cast<char>(low)};
            QVERIFY2(decodedAs(TextEncoding::ShiftJis, bytes) == byIcu(bytes),
                     qPrintable(QString::number(pair, 16)));
        }
    }

    void everyByteAloneIsWhatIcuSays()
    {
        for (int byte = 0; byte < 256; ++byte) {
            const std::string bytes(1, static_cast<char>(byte));
            if (byte < 0x80)
                QVERIFY(decodedAs(TextEncoding::ShiftJis, bytes) == bytes);
            else
                QVERIFY2(decodedAs(TextEncoding::ShiftJis, bytes) == byIcu(bytes),
                         qPrintable(QString::number(byte, 16)));
        }
    }

    // The text is decoded piece by piece; no piece may lose or double anything at its ends.
    void longTextsAreWhatIcuSays()
    {
        QRandomGenerator random(1978);
        constexpr std::array<std::string_view, 6> characters{"a",        "\r\n",     "\xB1",
                                                             "\x83\x70", "\x87\x40", "\xFA\x5C"};
        for (int run = 0; run < 20; ++run) {
            std::string bytes;
            for (int i = 0; i < 50'000; ++i)
                bytes += characters[random.bounded(static_cast<quint32>(characters.size()))];
            QVERIFY(decodedAs(TextEncoding::ShiftJis, bytes) == byIcu(bytes));
            bytes += '\x83';
            QVERIFY(!decodedAs(TextEncoding::ShiftJis, bytes));
        }
    }

    void nothingIsNothing() { QVERIFY(decodedAs(TextEncoding::ShiftJis, "") == std::string()); }
};

TESSERA_TEST(ShiftJisTest);
#include "shiftjistest.moc"
