#include "run/UidRootFields.h"

#include "identifiers/UidRoot.h"

namespace dravolin {

bool checkUidRoot(RunHost &host)
{
    const RootCheck check = checkRoot(host.text(TextField::UidRoot), host.text(TextField::CaseId));
    host.setText(TextField::UidRoot, check.trimmedRoot);
    host.setRootValidity(rootValidityText(check.valid));
    return check.valid;
}

void createUidRoot(RunHost &host, NOXUtils::UuidSource &uuids)
{
    host.setText(TextField::UidRoot, generatedRoot(uuids.uniqueString()));
    checkUidRoot(host);
}

void filterUidField(RunHost &host, TextField field)
{
    const QString text = host.text(field);
    const QString filtered = filterTypedIdentifier(text);
    if (filtered.size() < text.size())
        host.setText(field, filtered);
    checkUidRoot(host);
}

QString composeStudyInstanceUid(RunHost &host, NOXUtils::UuidSource &uuids)
{
    const QString caseId = host.text(TextField::CaseId);
    if (!checkUidRoot(host))
        return studyInstanceUid(generatedRoot(uuids.uniqueString()), caseId);
    const QString root = withoutTrailingDot(host.text(TextField::UidRoot));
    host.setText(TextField::UidRoot, root);
    return studyInstanceUid(root, caseId);
}

} // namespace dravolin
