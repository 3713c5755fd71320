#include "dicom/Rewrite.h"

#include "base/Texts.h"
#include "dicom/CharacterSet.h"
#include "dicom/Levels.h"
#include "dicom/ValueChange.h"
#include "dicom/Values.h"

namespace dravolin {

namespace {

using Token = ElementReader::Token;

constexpr TagNumber characterSetTag = 0x00080005;
// of a character set, a creator or a UID; a longer one is none
constexpr quint64 longestNoted = 4096;
// so that a worker stays below 64 MiB whatever the object
constexpr quint64 mostMemory = 40 * 1024 * 1024;

// One walk over a data set.
class Rewriter
{
public:
    Rewriter(ElementReader &reader, const Notation &notation, const ValueChange &change)
        : m_reader(reader), m_notation(notation), m_levels(notation), m_change(change),
          m_rules(m_change.rules()), m_next(m_rules.constBegin())
    {
    }

    [[nodiscard]] Rewriting run();
    // True after a run that failed only because a value does not go into the object's character set.
    [[nodiscard]] bool needsUtf8() const { return m_change.needsUtf8(); }

private:
    [[nodiscard]] bool step(Token token);
    [[nodiscard]] bool stepElement();
    [[nodiscard]] bool stepSequence();
    [[nodiscard]] bool changeElement(const Element &element);
    [[nodiscard]] bool insertBefore(TagNumber tag, quint64 offset);
    void noteSurroundings(const Element &element);
    void noteValue(TagNumber tag, const std::optional<QByteArray> &value);
    [[nodiscard]] bool fail(const QString &problem);

    ElementReader &m_reader;
    Notation m_notation;
    Levels m_levels;
    ValueChange m_change;
    const AttributeRules m_rules;
    AttributeRules::const_iterator m_next; // the first one whose place has not been passed
    QSet<TagNumber> m_inserted;
    Rewriting m_result;
};

Rewriting Rewriter::run()
{
    Token token = Token::Element;
    while (token != Token::End && m_result.problem.isEmpty()) {
        token = m_reader.next();
        if (!step(token) && m_result.problem.isEmpty())
            m_result.problem = Texts::tr("cannot be rewritten");
        if (m_levels.memory() > mostMemory)
            (void)fail(Texts::tr("needs more changes than a worker has memory for"));
    }
    m_result.patches = m_levels.patches();
    return std::move(m_result);
}

bool Rewriter::step(Token token)
{
    switch (token) {
    case Token::Element: return stepElement();
    case Token::Sequence: return stepSequence();
    case Token::Item: m_levels.enter(m_reader.current()); return true;
    case Token::ItemEnd:
    case Token::SequenceEnd: m_levels.leave(); return true;
    case Token::End: return insertBefore(0xffffffff, m_reader.position());
    case Token::Damaged: return fail(m_reader.problem());
    }
    return false;
}

bool Rewriter::stepElement()
{
    const Element element = m_reader.current();
    if (m_levels.isTop() && !insertBefore(element.tag, element.start))
        return false;
    if (m_levels.isTop() && m_next != m_rules.constEnd() && m_next.key() == element.tag)
        ++m_next; // it is there; a sequence of that tag makes way for what is to be inserted
    m_levels.enterGroup(groupOf(element.tag));
    noteSurroundings(element);
    return changeElement(element);
}

void Rewriter::noteSurroundings(const Element &element)
{
    if (element.length > longestNoted)
        return;
    const bool stays = !m_change.erasesPrivate(element.tag, m_levels.surroundings());
    if (elementOf(element.tag) == 0 && element.length == 4 && stays)
        m_levels.setGroupLength(
            element, element.notation.number32(m_reader.value().leftJustified(4, '\0').constData()));
    else if (element.tag == characterSetTag)
        m_levels.surroundings().characterSet = withoutPadding(m_reader.value());
    else if (isPrivate(element.tag) && elementOf(element.tag) <= 0xff)
        m_levels.surroundings().creators.insert(
            privateBlock(element.tag), QString::fromLatin1(withoutPadding(m_reader.value()).trimmed()));
}

bool Rewriter::stepSequence()
{
    const Element element = m_reader.current();
    if (m_levels.isTop() && !insertBefore(element.tag, element.start))
        return false;
    m_levels.enterGroup(groupOf(element.tag));
    if (!m_change.erasesSequence(element, m_levels.surroundings())) {
        m_levels.enter(element);
        return true;
    }
    if (!m_reader.leaveSequence())
        return fail(m_reader.problem());
    m_levels.replace(element.start, m_reader.position() - element.start, {});
    return true;
}

bool Rewriter::changeElement(const Element &element)
{
    const quint64 size = element.end() - element.start;
    if (m_levels.isTop() && m_inserted.contains(element.tag)) {
        m_levels.replace(element.start, size,
                         {}); // elements were out of order: it stands in its place already
        return true;
    }
    const ValueChange::Result change = m_change.apply(m_reader, element, m_levels.surroundings());
    if (!change.problem.isEmpty())
        return fail(change.problem);
    if (change.value)
        m_levels.replace(element.start, size,
                         elementBytes(element.tag, change.representation, element.notation, *change.value));
    else if (change.erase)
        m_levels.replace(element.start, size, {});
    if (m_levels.isTop() && !change.erase)
        noteValue(element.tag, change.value);
    return true;
}

bool Rewriter::insertBefore(TagNumber tag, quint64 offset)
{
    for (; m_next != m_rules.constEnd() && m_next.key() < tag; ++m_next) {
        if (m_next->kind != AttributeRule::Kind::Set)
            continue;
        const TagNumber added = m_next.key();
        const ValueChange::Result change =
            m_change.inserted(added, *m_next, m_notation, m_levels.surroundings().characterSet);
        if (!change.problem.isEmpty())
            return fail(change.problem);
        m_levels.enterGroup(groupOf(added));
        m_levels.replace(offset, 0, elementBytes(added, change.representation, m_notation, *change.value));
        m_inserted.insert(added);
        noteValue(added, *change.value);
    }
    return true;
}

// Without a value it is the one in the file.
void Rewriter::noteValue(TagNumber tag, const std::optional<QByteArray> &value)
{
    QByteArray *noted = m_result.names.field(tag);
    if (noted && (value || m_reader.current().length <= longestNoted))
        *noted = withoutPadding(value ? *value : m_reader.value());
}

bool Rewriter::fail(const QString &problem)
{
    m_result.problem = problem;
    return false;
}

} // namespace

Rewriting rewriting(SourceFile &file, quint64 begin, quint64 end, const Notation &notation,
                    const Treatment &treatment, int daysBack)
{
    ElementReader reader(file, begin, end, notation);
    Rewriter rewriter(reader, notation, ValueChange(treatment, daysBack, false));
    Rewriting result = rewriter.run();
    if (!rewriter.needsUtf8())
        return result;
    ElementReader again(file, begin, end, notation);
    result = Rewriter(again, notation, ValueChange(treatment, daysBack, true)).run();
    result.movedToUtf8 = true;
    return result;
}

} // namespace dravolin
