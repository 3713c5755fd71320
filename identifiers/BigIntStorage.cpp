#include "identifiers/BigIntStorage.h"

#include "identifiers/BigIntWords.h"

namespace dravolin {

bool BigIntStorage::isZero() const
{
    const qint32 length = words::trimmedLength(m_data.data(), m_dataLength);
    return length < 1 || (length == 1 && m_data[0] == 0);
}

void BigIntStorage::trim()
{
    m_dataLength = words::trimmedLength(m_data.data(), m_dataLength);
}

} // namespace dravolin
