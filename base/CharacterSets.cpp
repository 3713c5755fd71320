#include "base/CharacterSets.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstring>
#include <iconv.h>
#include <map>
#include <string>

namespace dravolin {

namespace {

struct Term
{
    const char *number; // behind ISO_IR or ISO 2022 IR
    const char *iconvName;
};

// In that of ISO_IR 13 the byte of the backslash shows a yen sign, and is what divides values all the same.
constexpr Term terms[] = {
    {"6", "ISO-8859-1"},   {"100", "ISO-8859-1"}, {"101", "ISO-8859-2"},  {"109", "ISO-8859-3"},
    {"110", "ISO-8859-4"}, {"144", "ISO-8859-5"}, {"127", "ISO-8859-6"},  {"126", "ISO-8859-7"},
    {"138", "ISO-8859-8"}, {"148", "ISO-8859-9"}, {"203", "ISO-8859-15"}, {"166", "TIS-620"},
    {"13", "CP932"},       {"192", "UTF-8"},      {"58", "GB2312"},       {"149", "EUC-KR"},
};

// An escape sequence without its first byte.
struct Escape
{
    const char *sequence;
    bool high;             // it says what bytes above 127 mean
    const char *iconvName; // nullptr: bytes as they are
    const char *prefix;    // in front of each character for iconv
    int width;             // bytes of a character
};

constexpr Escape escapes[] = {
    {"(B", false, nullptr, "", 1},     {"(J", false, nullptr, "", 1},     {")I", true, "EUC-JP", "\x8E", 1},
    {"$B", false, "EUC-JP", "", 2},    {"$@", false, "EUC-JP", "", 2},    {"$(D", false, "EUC-JP", "\x8F", 2},
    {"$)C", true, "EUC-KR", "", 2},    {"$)A", true, "GB2312", "", 2},    {"-A", true, "ISO-8859-1", "", 1},
    {"-B", true, "ISO-8859-2", "", 1}, {"-C", true, "ISO-8859-3", "", 1}, {"-D", true, "ISO-8859-4", "", 1},
    {"-L", true, "ISO-8859-5", "", 1}, {"-G", true, "ISO-8859-6", "", 1}, {"-F", true, "ISO-8859-7", "", 1},
    {"-H", true, "ISO-8859-8", "", 1}, {"-M", true, "ISO-8859-9", "", 1}, {"-b", true, "ISO-8859-15", "", 1},
    {"-T", true, "TIS-620", "", 1},
};

constexpr char escapeByte = 0x1B;

class Converter
{
public:
    explicit Converter(const char *name) : m_handle(iconv_open("UTF-16LE", name)) {}
    ~Converter()
    {
        if (isOpen())
            iconv_close(m_handle);
    }
    Converter(const Converter &) = delete;
    Converter &operator=(const Converter &) = delete;

    QString convert(QByteArray bytes)
    {
        QString text;
        if (!isOpen())
            return QString::fromLatin1(bytes);
        char *in = bytes.data();
        size_t left = static_cast<size_t>(bytes.size());
        while (left > 0) {
            std::array<char16_t, 256> part;
            char *out = reinterpret_cast<char *>(part.data());
            size_t room = sizeof(part);
            const size_t result = iconv(m_handle, &in, &left, &out, &room);
            text +=
                QStringView(part.data(), static_cast<qsizetype>((sizeof(part) - room) / sizeof(char16_t)));
            if (result == static_cast<size_t>(-1) && room >= sizeof(char16_t) * 2) {
                text += QChar(QChar::ReplacementCharacter);
                ++in;
                --left;
                iconv(m_handle, nullptr, nullptr, nullptr, nullptr);
            }
        }
        return text;
    }

private:
    // NOLINTNEXTLINE(performance-no-int-to-ptr): so does iconv tell that it failed
    [[nodiscard]] bool isOpen() const { return m_handle != reinterpret_cast<iconv_t>(-1); }
    iconv_t m_handle;
};

QString convert(const char *name, const QByteArray &bytes)
{
    static thread_local std::map<std::string, Converter> converters;
    return converters.try_emplace(name, name).first->second.convert(bytes);
}

// Null for a term that is unknown, or that means something only behind an escape sequence.
const char *iconvNameOf(const QByteArray &definedTerm)
{
    if (definedTerm == "GB18030" || definedTerm == "GBK")
        return definedTerm == "GBK" ? "GBK" : "GB18030";
    const qsizetype end = std::max(definedTerm.lastIndexOf(' '), definedTerm.lastIndexOf('_'));
    const auto *const term =
        std::find_if(std::begin(terms), std::end(terms),
                     [number = definedTerm.mid(end + 1)](const Term &one) { return number == one.number; });
    return term != std::end(terms) && definedTerm.startsWith("ISO") ? term->iconvName : nullptr;
}

bool isKnown(const QByteArray &definedTerm)
{
    return definedTerm.isEmpty() || definedTerm == "ISO 2022 IR 87" || definedTerm == "ISO 2022 IR 159" ||
           iconvNameOf(definedTerm);
}

bool isHigh(char byte)
{
    return static_cast<unsigned char>(byte) >= 0x80;
}

// The sets in force at one place of a value.
struct State
{
    const Escape *low = nullptr;
    const Escape *high = nullptr;
    const char *initial;

    void apply(const Escape &escape) { (escape.high ? high : low) = &escape; }
};

// A run of bytes without escapes, all of them below or all of them above 128.
QString decodeRun(QByteArrayView run, const State &state)
{
    const bool isHighRun = isHigh(run[0]);
    const Escape *const escape = isHighRun ? state.high : state.low;
    if (!escape)
        return convert(state.initial, run.toByteArray());
    if (!escape->iconvName)
        return QString::fromLatin1(run);
    QByteArray bytes;
    for (qsizetype i = 0; i < run.size(); ++i) {
        if (i % escape->width == 0)
            bytes += escape->prefix;
        bytes += static_cast<char>(run[i] | 0x80);
    }
    return convert(escape->iconvName, bytes);
}

const Escape *escapeAt(QByteArrayView bytes)
{
    const auto *const found =
        std::find_if(std::begin(escapes), std::end(escapes), [bytes](const Escape &escape) {
            return bytes.startsWith(QByteArrayView(escape.sequence));
        });
    return found == std::end(escapes) ? nullptr : found;
}

// intended: \, ^ and = are a delimiter only where bytes below 128 are single letters, else they are half of
// one
bool isDelimiter(char byte, const State &state)
{
    const bool single = !state.low || !state.low->iconvName;
    return byte == '\n' || byte == '\r' || byte == '\f' ||
           (single && (byte == '\\' || byte == '^' || byte == '='));
}

QString decodeWithEscapes(QByteArrayView bytes, const char *initial)
{
    QString text;
    State state{.initial = initial};
    qsizetype at = 0;
    while (at < bytes.size()) {
        if (bytes[at] == escapeByte) {
            const Escape *const escape = escapeAt(bytes.sliced(at + 1));
            if (escape)
                state.apply(*escape);
            at += 1 + (escape ? static_cast<qsizetype>(std::strlen(escape->sequence)) : 0);
            continue;
        }
        if (isDelimiter(bytes[at], state)) {
            text += QLatin1Char(bytes[at++]);
            state = State{.initial = initial};
            continue;
        }
        qsizetype end = at + 1;
        while (end < bytes.size() && bytes[end] != escapeByte && !isDelimiter(bytes[end], state) &&
               isHigh(bytes[end]) == isHigh(bytes[at]))
            ++end;
        text += decodeRun(bytes.sliced(at, end - at), state);
        at = end;
    }
    return text;
}

} // namespace

CharacterSets::CharacterSets(QByteArrayView definedTerms)
{
    const QByteArrayList defined = definedTerms.toByteArray().split('\\');
    for (const QByteArray &one : defined)
        m_known = m_known && isKnown(one.trimmed());
    if (const char *initial = iconvNameOf(defined.first().trimmed()))
        m_initial = initial;
    m_ofItsOwn = qstrcmp(m_initial, "ISO-8859-1") != 0 && qstrcmp(m_initial, "UTF-8") != 0;
}

QString CharacterSets::decode(QByteArrayView bytes) const
{
    const bool plain = std::none_of(bytes.cbegin(), bytes.cend(), isHigh);
    const bool escaped = bytes.contains(escapeByte);
    if (!escaped && (plain || qstrcmp(m_initial, "ISO-8859-1") == 0))
        return QString::fromLatin1(bytes);
    // a run of one kind of bytes makes no sense in a set of several bytes whose second is below 128
    return escaped ? decodeWithEscapes(bytes, m_initial) : convert(m_initial, bytes.toByteArray());
}

QByteArray escapesInForce(QByteArrayView bytes)
{
    State state{.initial = ""};
    const qsizetype first = bytes.indexOf(escapeByte);
    for (qsizetype at = first < 0 ? bytes.size() : first; at < bytes.size(); ++at) {
        const Escape *const escape = bytes[at] == escapeByte ? escapeAt(bytes.sliced(at + 1)) : nullptr;
        if (escape)
            state.apply(*escape);
        else if (isDelimiter(bytes[at], state))
            state = State{.initial = ""};
    }
    QByteArray sequences;
    for (const Escape *escape : {state.low, state.high}) {
        if (escape)
            sequences += escapeByte + QByteArray(escape->sequence);
    }
    return sequences;
}

QString decodeGuessing(QByteArrayView bytes)
{
    if (std::none_of(bytes.cbegin(), bytes.cend(), isHigh))
        return QString::fromLatin1(bytes);
    QString text;
    text.reserve(bytes.size());
    for (qsizetype at = 0; at < bytes.size();) {
        const auto lead = static_cast<unsigned char>(bytes[at]);
        const qsizetype length = lead < 0xC2 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 1;
        const QByteArrayView letter = bytes.sliced(at, std::min(length, bytes.size() - at));
        if (length > 1 && letter.isValidUtf8()) {
            text += QString::fromUtf8(letter);
            at += letter.size();
        } else {
            text += QLatin1Char(bytes[at++]);
        }
    }
    return text;
}

QString decodeUtf16(QByteArrayView bytes, qsizetype offset, ByteOrder order)
{
    const qsizetype count = std::max<qsizetype>(0, (bytes.size() - offset) / 2);
    QString text(count, Qt::Uninitialized);
    for (qsizetype i = 0; i < count; ++i) {
        const char *const unit = bytes.data() + offset + 2 * i;
        text[i] = QChar(order == ByteOrder::LittleEndian ? qFromLittleEndian<char16_t>(unit)
                                                         : qFromBigEndian<char16_t>(unit));
    }
    return text;
}

} // namespace dravolin
