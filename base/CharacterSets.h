#pragma once

#include <QByteArrayView>
#include <QString>

#include <vector>

// Texts of DICOM's character sets (PS3.5 6.1, PS3.3 C.12.1.1.2), decoded by the system's iconv.
namespace dravolin {

// The character sets in force for a data set or an item.
class CharacterSets
{
public:
    CharacterSets() = default;
    // From the value of Specific Character Set (0008,0005): defined terms, separated by backslashes. Unknown
    // terms are taken as ASCII.
    explicit CharacterSets(QByteArrayView definedTerms);

    // The text of a value; escape sequences switch the sets as they come, declared or not. Never fails: bytes
    // that mean nothing in their set become U+FFFD.
    [[nodiscard]] QString decode(QByteArrayView bytes) const;

    // False when a defined term is unknown.
    [[nodiscard]] bool areKnown() const { return m_known; }

    // Bytes above 127 mean something that neither UTF-8 nor Latin-1 says.
    [[nodiscard]] bool isOfItsOwn() const { return m_ofItsOwn; }

private:
    const char *m_initial = "ISO-8859-1"; // iconv's name of what bytes mean before any escape sequence
    bool m_known = true;
    bool m_ofItsOwn = false;
};

// The escape sequences that are in force behind these bytes: in front of what follows, they make it readable.
[[nodiscard]] QByteArray escapesInForce(QByteArrayView bytes);

// Bytes of an unknown set: UTF-8 where they are, Latin-1 elsewhere.
[[nodiscard]] QString decodeGuessing(QByteArrayView bytes);

// UTF-16 from the byte at `offset`, 0 or 1; an odd byte at the end is left out.
enum class ByteOrder { LittleEndian, BigEndian };
[[nodiscard]] QString decodeUtf16(QByteArrayView bytes, qsizetype offset, ByteOrder order);

} // namespace dravolin
