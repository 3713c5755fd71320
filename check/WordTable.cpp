#include "check/WordTable.h"

#include <algorithm>
#include <utility>

namespace dravolin::check {

size_t WordTable::Part::slotOf(quint64 state) const
{
    // its second half as a fraction of all, so that any number of slots does
    size_t at = ((state & 0xFFFFFFFFU) * states.size()) >> 32;
    while (states[at] != 0 && states[at] != state)
        at = at + 1 == states.size() ? 0 : at + 1;
    return at;
}

// By a quarter, since memory for more would lie idle.
void WordTable::Part::grow()
{
    const size_t size = std::max<size_t>(16, states.size() + states.size() / 4);
    const auto oldStates = std::exchange(states, std::vector<quint64>(size));
    const auto oldPatterns = std::exchange(patterns, std::vector<quint32>(size, none));
    const auto oldGoesOn = std::exchange(goesOn, std::vector<bool>(size));
    for (size_t i = 0; i < oldStates.size(); ++i) {
        if (oldStates[i] == 0)
            continue;
        const size_t at = slotOf(oldStates[i]);
        states[at] = oldStates[i];
        patterns[at] = oldPatterns[i];
        goesOn[at] = oldGoesOn[i];
    }
}

size_t WordTable::Part::makeSlot(quint64 state)
{
    if ((used + 1) * 3 > states.size() * 2)
        grow();
    const size_t at = slotOf(state);
    used += states[at] == 0 ? 1 : 0;
    states[at] = state;
    return at;
}

std::optional<WordTable::Entry> WordTable::find(quint64 state) const
{
    const Part &part = m_parts[partOf(state)];
    if (part.states.empty())
        return std::nullopt;
    const size_t at = part.slotOf(state);
    if (part.states[at] == 0)
        return std::nullopt;
    return Entry{part.patterns[at], part.goesOn[at]};
}

quint32 &WordTable::patternOf(quint64 state)
{
    Part &part = m_parts[partOf(state)];
    return part.patterns[part.makeSlot(state)];
}

void WordTable::goOn(quint64 state)
{
    Part &part = m_parts[partOf(state)];
    part.goesOn[part.makeSlot(state)] = true;
}

} // namespace dravolin::check
