#pragma once

#include "dicom/Dictionary.h"
#include "dicom/SourceFile.h"
#include "dicom/Syntax.h"

#include <QString>

#include <limits>
#include <vector>

namespace dravolin {

inline constexpr quint64 undefinedLength = std::numeric_limits<quint64>::max();

// An element, a sequence or an item as it lies in the file. Offsets are those of the file, lengths are bytes.
struct Element
{
    TagNumber tag = 0;
    Vr written = 0; // as the file has it, 0 in implicit VR
    Vr representation =
        0;             // the one to treat it by: what is written, for UN and in implicit VR the dictionary's
    Notation notation; // in which it is written
    quint64 start = 0;
    quint64 value = 0;
    quint64 length = 0; // undefinedLength for such sequences and items; pixel data up to its last delimiter
    quint64 lengthField = 0;   // where the length stands
    bool encapsulated = false; // pixel data in fragments

    [[nodiscard]] quint64 end() const { return value + length; }
};

// Walks over the elements of a data set, one token a call. Needs no stack of calls and keeps nothing but the
// open sequences and items, so that neither the size nor the nesting of an object decides about memory.
// Values are stepped over unread; pixel data in fragments is one element. What is written as UN is looked
// into when the dictionary calls it a sequence.
class ElementReader
{
public:
    // Objects nested deeper than this are damaged or made to do damage: libraries that read them by calling
    // themselves run out of stack at some thousands.
    static constexpr size_t deepestNesting = 256;

    enum class Token {
        Element,     // current()
        Sequence,    // current() is the sequence's header
        Item,        // current() is the item's header
        ItemEnd,     // current() is the header of the item that ends, position() is behind its delimiter
        SequenceEnd, // the same for a sequence
        End,
        Damaged // problem() says how
    };

    ElementReader(SourceFile &file, quint64 begin, quint64 end, const Notation &notation);

    [[nodiscard]] Token next();
    [[nodiscard]] const Element &current() const { return m_current; }
    // The number of sequences that the current token lies in; 0 at the top.
    [[nodiscard]] size_t depth() const { return m_depth; }
    // Behind what has been read.
    [[nodiscard]] quint64 position() const { return m_position; }
    [[nodiscard]] QString problem() const { return m_problem; }

    // Leaves the sequence that was just entered; false when that shows damage.
    [[nodiscard]] bool leaveSequence();
    // The value of the current element; fewer bytes when the file cannot be read.
    [[nodiscard]] QByteArray value() { return m_file.read(m_current.value, qsizetype(m_current.length)); }

private:
    struct Container
    {
        Element header;
        bool isItem = false;
        Notation inside;
        quint64 end = undefinedLength;
    };

    [[nodiscard]] Token damaged(const QString &how);
    [[nodiscard]] Token close();
    [[nodiscard]] Token open(bool isItem, const Notation &inside);
    [[nodiscard]] Token readInSequence();
    [[nodiscard]] Token readElement();
    [[nodiscard]] bool readHeader(QByteArrayView bytes);
    void readExplicitHeader(QByteArrayView bytes);
    [[nodiscard]] bool isSequence() const;
    [[nodiscard]] Token stepOverValue();
    [[nodiscard]] bool stepOverFragments();
    [[nodiscard]] quint64 limit() const;
    [[nodiscard]] Notation notation() const { return m_open.empty() ? m_notation : m_open.back().inside; }
    [[nodiscard]] bool onlyZerosFollow();

    SourceFile &m_file;
    quint64 m_position;
    quint64 m_end;
    Notation m_notation;
    std::vector<Container> m_open;
    size_t m_depth = 0;
    Element m_current;
    QString m_problem;
};

} // namespace dravolin
