#include "catalogue/search/folding.h"

#include "core/encodings.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace tessera {

namespace {

using icu::Normalizer2;
using icu::UnicodeString;

constexpr UChar32 longVowelMark = 0x30FC;
constexpr UChar32 voicedMark = 0x3099;
constexpr UChar32 halfVoicedMark = 0x309A;

// Letters that no decomposition takes apart, and signs for which a keyboard has another one.
struct Substitute {
    UChar32 sign;
    const char16_t* text;
};

// clang-format off
constexpr std::array substitutes{
    Substitute{u'æ', u"ae"}, Substitute{u'ð', u"d"},  Substitute{u'ø', u"o"}, Substitute{u'þ', u"th"},
    Substitute{u'đ', u"d"},  Substitute{u'ħ', u"h"},  Substitute{u'ı', u"i"}, Substitute{u'ł', u"l"},
    Substitute{u'œ', u"oe"}, Substitute{u'‘', u"'"},  Substitute{u'’', u"'"}, Substitute{u'“', u"\""},
    Substitute{u'”', u"\""}, Substitute{u'‐', u"-"},  Substitute{u'–', u"-"}, Substitute{u'—', u"-"},
    Substitute{u'−', u"-"},  Substitute{u'〜', u"~"}, Substitute{u'・', u" "},
};

// What people write behind kana in place of the long vowel mark. A tilde of full width is a plain one by then.
constexpr std::array<UChar32, 9> longVowelLikes{u'~', u'‐', u'–', u'—', u'―', u'−', u'─', u'〜', u'〰'};
// clang-format on

constexpr bool isKana(UChar32 c)
{
    return (c >= 0x3041 && c <= 0x3096) || (c >= 0x309D && c <= 0x309F) || (c >= 0x30A1 && c <= 0x30FA)
        || (c >= 0x30FD && c <= 0x30FF);
}

constexpr UChar32 toHiragana(UChar32 c)
{
    const bool katakana = (c >= 0x30A1 && c <= 0x30F6) || c == 0x30FD || c == 0x30FE;
    return katakana ? c - 0x60 : c;
}

// What most texts are made of: it is no mark, has none on it but what belongs to it, and stands for itself.
constexpr bool isOrdinary(UChar32 c)
{
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || (c >= 0x3041 && c <= 0x3096)
        || (c >= 0x30A1 && c <= 0x30F6) || (c >= 0x4E00 && c <= 0x9FFF);
}

bool isMark(UChar32 c)
{
    return (U_MASK(u_charType(c)) & (U_GC_MN_MASK | U_GC_ME_MASK)) != 0;
}

void appendSign(UnicodeString& out, UChar32 c)
{
    const auto* found = std::ranges::find(substitutes, c, &Substitute::sign);
    if (found != substitutes.end())
        out.append(found->text, -1);
    else
        out.append(u_isUWhiteSpace(c) || u_iscntrl(c) ? UChar32{' '} : toHiragana(c));
}

// The text is decomposed, so that every accent and every voiced mark stands on its own.
UnicodeString foldedSigns(const UnicodeString& decomposed)
{
    UnicodeString out;
    UChar32 before = 0; // the last sign that was kept, but for voiced marks
    for (int32_t i = 0; i < decomposed.length(); i = decomposed.moveIndex32(i, 1)) {
        const UChar32 c = decomposed.char32At(i);
        if (isOrdinary(c)) {
            out.append(toHiragana(before = c));
            continue;
        }
        const bool voiced = c == voicedMark || c == halfVoicedMark;
        if (c == longVowelMark
            || (isKana(before) && std::ranges::find(longVowelLikes, c) != longVowelLikes.end()))
            continue;
        if (voiced ? !isKana(before) : isMark(c))
            continue;
        appendSign(out, c);
        before = voiced ? before : c;
    }
    return out;
}

// ICU's three normalizers are made once for the whole process and never change.
struct Normalizers {
    UErrorCode status = U_ZERO_ERROR;
    const Normalizer2* caseless = Normalizer2::getNFKCCasefoldInstance(status);
    const Normalizer2* decomposing = Normalizer2::getNFDInstance(status);
    const Normalizer2* composing = Normalizer2::getNFCInstance(status);
};

UnicodeString withoutLoneVoicedMarks(UnicodeString text)
{
    text.findAndReplace(UnicodeString(UChar32{0x309B}), UnicodeString(voicedMark));
    text.findAndReplace(UnicodeString(UChar32{0x309C}), UnicodeString(halfVoicedMark));
    return text;
}

// Nor to put together again: that takes most of the time.
bool hasNothingToTakeApart(const UnicodeString& caseless)
{
    const std::u16string_view units(caseless.getBuffer(), static_cast<std::size_t>(caseless.length()));
    return std::ranges::all_of(
        units, [](char16_t c) { return c < 0x80 || isOrdinary(c) || c == longVowelMark || c == u'・'; });
}

void appendFoldedByIcu(std::string& out, std::string_view text)
{
    static const Normalizers normalizers;
    UErrorCode status = normalizers.status;
    if (U_FAILURE(status))
        return;
    const UnicodeString units
        = withoutLoneVoicedMarks(UnicodeString::fromUTF8({text.data(), static_cast<int32_t>(text.size())}));
    const UnicodeString caseless = normalizers.caseless->normalize(units, status);
    if (hasNothingToTakeApart(caseless)) {
        foldedSigns(caseless).toUTF8String(out);
        return;
    }
    const UnicodeString signs = foldedSigns(normalizers.decomposing->normalize(caseless, status));
    normalizers.composing->normalize(signs, status).toUTF8String(out);
}

// Several blanks become one.
void squeezeBlanks(std::string& text, std::size_t begin)
{
    const auto from = text.begin() + static_cast<std::ptrdiff_t>(begin);
    const auto bothBlank = [](char a, char b) { return a == ' ' && b == ' '; };
    text.erase(std::unique(from, text.end(), bothBlank), text.end());
}

} // namespace

void appendFolded(std::string& out, std::string_view text)
{
    if (isAscii(text)) {
        appendFoldedAscii(out, text);
        return;
    }
    const std::size_t begin = out.size();
    appendFoldedByIcu(out, text);
    squeezeBlanks(out, begin);
}

void appendFoldedAscii(std::string& out, std::string_view text)
{
    const std::size_t begin = out.size();
    out += text;
    for (char& c : std::span(out).subspan(begin)) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F)
            c = ' ';
    }
    lowerAsciiLetters(std::span(out).subspan(begin));
    squeezeBlanks(out, begin);
}

// In single bytes, so that the compiler makes vector instructions of it.
void lowerAsciiLetters(std::span<char> text)
{
    for (char& c : text) {
        const bool upper = static_cast<std::uint8_t>(c - 'A') < 26;
        c = static_cast<char>(c | (upper ? 0x20 : 0));
    }
}

std::string folded(std::string_view text)
{
    std::string out;
    appendFolded(out, text);
    return out;
}

} // namespace tessera
