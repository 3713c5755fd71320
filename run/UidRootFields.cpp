#include "run/UidRootFields.h"

namespace dravolin {

bool checkUidRoot(RunHost &host)
{
    const CaseTexts texts = host.texts();
    const RootCheck check = checkRoot(texts.uidRoot, texts.caseId);
    host.setRoot(check);
    return check.valid;
}

void createUidRoot(RunHost &host, NOXUtils::UuidSource &uuids)
{
    host.setRoot(checkRoot(generatedRoot(uuids.uniqueString()), host.texts().caseId));
}

QString composeStudyInstanceUid(RunHost &host, const CaseTexts &texts, NOXUtils::UuidSource &uuids)
{
    RootCheck check = checkRoot(texts.uidRoot, texts.caseId);
    if (check.valid)
        check.trimmedRoot = withoutTrailingDot(check.trimmedRoot);
    host.setRoot(check);
    return studyInstanceUid(check.valid ? check.trimmedRoot : generatedRoot(uuids.uniqueString()),
                            texts.caseId);
}

} // namespace dravolin
