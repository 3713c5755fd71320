#include "identifiers/BigIntNumberTheory.h"

#include "identifiers/BigInt.h"
#include "identifiers/BigIntWords.h"

#include <algorithm>

namespace dravolin {

void BigIntNumberTheory::getRandomBits(qint32 bits, RandomSource &source)
{
    const qint32 length = bits / 32 + (bits % 32 != 0 ? 1 : 0);
    if (bits < 0 || length > BigInt::maxLength)
        words::raiseArithmetic("Number of required bits > maxLength.");
    BigInt value;
    std::generate_n(value.getData(), length, [&source] {
        return static_cast<quint32>(scaledRandom(source, static_cast<double>(words::base)));
    });
    // intended: the top bit of the last word makes 2240 bits a negative value
    if (length > 0) {
        const qint32 topBits = bits - 32 * (length - 1);
        quint32 &top = value.getData()[length - 1];
        top = (top | 1U << (topBits - 1)) & words::largest >> (32 - topBits);
    }
    value.setDataLength(std::max(length, 1));
    static_cast<BigInt &>(*this) = value;
}

} // namespace dravolin
