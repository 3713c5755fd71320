#pragma once

#include <QtGlobal>

namespace dravolin {

// A source of 32-bit words, each value equally likely. Tests put a scripted one in its place.
class RandomSource
{
public:
    virtual ~RandomSource() = default;

    [[nodiscard]] virtual quint32 nextWord() = 0;

    // The operating system's generator: unseeded, good for keys, usable from any thread.
    [[nodiscard]] static RandomSource &platform();

protected:
    RandomSource() = default;
    RandomSource(const RandomSource &) = default;
    RandomSource &operator=(const RandomSource &) = default;
};

// The next word of the source plus one, modulo 2^32, taken from 0 to 10^10 to 0 to range.
[[nodiscard]] double scaledRandom(RandomSource &source, double range);

} // namespace dravolin
