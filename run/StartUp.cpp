#include "run/StartUp.h"

#include "run/jobs/JobRunner.h"

#include <QCoreApplication>
#include <QTranslator>

namespace dravolin {

void startUp(const AppPaths &paths, const QLocale &locale)
{
    allowLongArgumentLists();
    auto *const texts = new QTranslator(QCoreApplication::instance());
    if (texts->load(locale, QStringLiteral("dravolin"), QStringLiteral("_"), paths.resourceFolder))
        QCoreApplication::installTranslator(texts);
}

} // namespace dravolin
