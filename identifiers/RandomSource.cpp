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

} // namespace dravolin
