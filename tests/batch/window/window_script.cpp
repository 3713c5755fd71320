// window_script TOOL CONFIGURATION NAME CASE_ID: prints the script that the window runs in a folder.
#include "base/PathText.h"
#include "config/ConfigurationFile.h"
#include "processing/FolderAnonymization.h"

#include <cstdio>

int main(int argc, char *argv[])
{
    using namespace dravolin;
    if (argc != 5)
        return 2;
    TagRules rules = loadConfiguration(fromBytes(argv[2]));
    addFixedTags(rules, {fromBytes(argv[3]), fromBytes(argv[4]), {}, {}}, QStringLiteral("1.2.3"));
    const QString prefix = anonymizationCommand(fromBytes(argv[1]), rules, {}).prefix;
    std::fputs(
        toBytes(scriptText(prefix + QStringLiteral(" *") + anonymizationRedirections().only)).constData(),
        stdout);
    return 0;
}
