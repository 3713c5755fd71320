#include "check/Harvest.h"

#include "check/Folding.h"

#include <QHashFunctions>

#include <algorithm>

namespace dravolin::check {

namespace {

constexpr Tag codeValueTags[] = {0x00080100, 0x00080119, 0x00080120};

bool isCodeValue(Tag tag)
{
    return std::find(std::begin(codeValueTags), std::end(codeValueTags), tag) != std::end(codeValueTags);
}

// Codes stand for persons and institutions in the sequences that are made for that, and for terms elsewhere.
std::optional<ValueClass> classOfElement(const Element &element)
{
    if (element.kind == Element::Kind::Bytes)
        return std::nullopt;
    if (const std::optional<ValueClass> own = classOf(element.tag))
        return own;
    if (element.person)
        return ValueClass::Person;
    if (isCodeValue(element.tag)) {
        for (const PathStep &step : element.path) {
            if (const std::optional<ValueClass> meaning = classOf(step.sequence))
                return meaning;
        }
    }
    return std::nullopt;
}

} // namespace

void Harvester::take(const Element &element, QList<HarvestedValue> &values)
{
    const std::optional<ValueClass> valueClass = classOfElement(element);
    if (!valueClass)
        return;
    const quint64 hash = qHashBits(element.bytes.data(), static_cast<size_t>(element.bytes.size()), 1);
    constexpr qsizetype mostGiven = 10000;
    const qsizetype given = m_given.size() < mostGiven ? m_given.size() : 0;
    if (given == 0)
        m_given.clear();
    m_given.insert(mixed(hash, static_cast<quint64>(*valueClass)));
    if (m_given.size() == given)
        return;
    QString text = element.sets.decode(element.bytes);
    while (text.endsWith(QChar::Null))
        text.chop(1);
    values.append({*valueClass, element.tag, text});
}

HarvestedFile Harvester::harvest(LoadedFile file)
{
    QList<HarvestedValue> values;
    readLoaded(file, [&](const Element &element) { take(element, values); });
    return {file.record, values};
}

} // namespace dravolin::check
