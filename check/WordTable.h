#pragma once

#include <QtGlobal>

#include <array>
#include <optional>
#include <vector>

namespace dravolin::check {

// The words that patterns begin with, each as the state that is reached behind it: a hash, of which nearly
// all bits count. One thread fills it; find() may be called from any once nothing is added any more.
class WordTable
{
public:
    static constexpr quint32 none = 0xFFFFFFFFU;

    struct Entry
    {
        quint32 pattern = none; // that ends here
        bool goesOn = false;    // whether some pattern does behind this state
    };

    [[nodiscard]] std::optional<Entry> find(quint64 state) const;
    // The pattern that ends at a state, to be set; good until the next call.
    [[nodiscard]] quint32 &patternOf(quint64 state);
    void goOn(quint64 state);

private:
    // A table of its own for some of the states: while one grows, little memory is taken twice.
    struct Part
    {
        // The slot of a state, or the free one where it belongs; there are some slots.
        [[nodiscard]] size_t slotOf(quint64 state) const;
        size_t makeSlot(quint64 state);
        void grow();

        // Of each slot; apart, so that no byte is lost.
        std::vector<quint64> states; // 0 when it is free
        std::vector<quint32> patterns;
        std::vector<bool> goesOn;
        size_t used = 0;
    };

    // Their upper bits say which; the lower ones, where in it.
    static constexpr int partBits = 6;
    [[nodiscard]] static size_t partOf(quint64 state) { return state >> (64 - partBits); }

    std::array<Part, size_t{1} << partBits> m_parts;
};

} // namespace dravolin::check
