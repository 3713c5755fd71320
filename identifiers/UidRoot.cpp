#include "identifiers/UidRoot.h"

#include "base/NOXUtils.h"
#include "identifiers/Uuid.h"

#include <algorithm>

namespace dravolin {

namespace {

constexpr qsizetype minimumDigits = 20; // intended: also refuses the common short root 1.2.840.10008
constexpr qsizetype maximumUidLength = 64;

bool isIdentifierCharacter(QChar c)
{
    return c == u'.' || (c >= u'0' && c <= u'9');
}

} // namespace

RootCheck checkRoot(const QString &root, const QString &caseId)
{
    const QString trimmedRoot = NOXUtils::stringByTrimmingLeadingAndTrailingspaces(root);
    QString digits = trimmedRoot;
    digits.remove(u'.');
    const bool prefixFits =
        trimmedRoot.startsWith(QStringLiteral("1.2.")) || trimmedRoot.startsWith(QStringLiteral("2.25."));
    // intended: the CaseID counts as it stands, and the dot counts also when there is no CaseID
    const bool lengthFits = trimmedRoot.size() + caseId.size() + 1 <= maximumUidLength;
    const QString joined = digits + caseId;
    const bool onlyDigits = std::all_of(joined.cbegin(), joined.cend(), [](QChar c) { return c.isDigit(); });
    return {prefixFits && digits.size() >= minimumDigits && lengthFits && onlyDigits, trimmedRoot};
}

QString filterTypedIdentifier(const QString &text)
{
    QStringView rest = text;
    while (!rest.isEmpty() && !isIdentifierCharacter(rest.front()))
        rest = rest.sliced(1);
    while (!rest.isEmpty() && !isIdentifierCharacter(rest.back()))
        rest.chop(1);
    return rest.toString();
}

QString generatedRoot(const QString &uuid)
{
    return QStringLiteral("2.25.") +
           NOXUtils::withoutLeadingZeros(NOXUtils::decimalRepresentationOfUUID(uuid));
}

QString withoutTrailingDot(const QString &root)
{
    return root.size() >= 2 && root.endsWith(u'.') ? root.chopped(1) : root;
}

QString studyInstanceUid(const QString &root, const QString &caseId)
{
    const QString number =
        NOXUtils::withoutLeadingZeros(NOXUtils::stringByTrimmingLeadingAndTrailingspaces(caseId));
    return number.isEmpty() ? root : root + u'.' + number;
}

} // namespace dravolin
