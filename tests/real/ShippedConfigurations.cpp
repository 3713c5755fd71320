#include "real/ShippedConfigurations.h"

#include "base/Files.h"

#include <QDir>
#include <QTest>

namespace dravolin::test {

void addShippedConfigurations()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("default") << defaultConfiguration;
    for (const QString &example :
         QDir(shippedConfiguration(QStringLiteral("examples"))).entryList(QDir::Files))
        QTest::newRow(qPrintable(example)) << QStringLiteral("examples/") + example;
}

QString shippedConfiguration(const QString &name)
{
    return joinPath(QStringLiteral(RESOURCES), name);
}

TagRules rulesOf(const QString &name)
{
    TagRules rules = loadConfiguration(shippedConfiguration(name));
    addFixedTags(rules,
                 {QStringLiteral("diagnosis"), QStringLiteral("007"), QStringLiteral("credits"),
                  QStringLiteral("keywords")},
                 QStringLiteral("2.25.42"));
    return rules;
}

Effects effectsOf(const TagRules &rules)
{
    Effects effects;
    for (const QString &tag : rules.allTagsToAnonymize) {
        if (tag.isEmpty()) // a blank line
            continue;
        const QString attribute = QString(tag).replace(u'+', u'0');
        (rules.newValueDict.value(tag).isEmpty() ? effects.erased : effects.replaced).insert(attribute);
    }
    return effects;
}

} // namespace dravolin::test
