#include "identifiers/RandomSource.h"

#include <QRandomGenerator>

namespace dravolin {

namespace {

class PlatformRandomSource final : public RandomSource
{
public:
    quint32 nextWord() override { return QRandomGenerator::system()->generate(); }
};

} // namespace

RandomSource &RandomSource::platform()
{
    static PlatformRandomSource source;
    return source;
}

double scaledRandom(RandomSource &source, double range)
{
    // intended: 10^10 and not 2^32, so that only the lower 43 % of the range is ever reached; and divided
    // first, which rounds otherwise than a product with range / 10^10
    return static_cast<double>(source.nextWord() + 1U) / 10000000000.0 * range;
}

} // namespace dravolin
