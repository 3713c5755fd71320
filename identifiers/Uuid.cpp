#include "identifiers/Uuid.h"

#include "identifiers/BigInt.h"

#include <QUuid>

namespace dravolin::NOXUtils {

QString RandomUuidSource::uniqueString()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

QString decimalRepresentationOfUUID(const QString &uuid)
{
    QString digits = uuid;
    digits.remove(u'-');
    return BigInt::createFromStringAndRadix(digits, 16).toStringWithRadix(10);
}

} // namespace dravolin::NOXUtils
