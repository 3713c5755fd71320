#pragma once

#include "config/ConfigurationFile.h"

#include <QSet>
#include <QString>

// The configurations that come with the program.
namespace dravolin::test {

inline const QString defaultConfiguration = QStringLiteral("DefaultAnonymizationConfiguration.txt");

// Data rows with a column "name": the default and the examples.
void addShippedConfigurations();

[[nodiscard]] QString shippedConfiguration(const QString &name);

// Its rules with a case's values.
[[nodiscard]] TagRules rulesOf(const QString &name);

// What a configuration does to an attribute, whatever its tag's spelling.
struct Effects
{
    QSet<QString> erased;   // at every level
    QSet<QString> replaced; // at the top
};

[[nodiscard]] Effects effectsOf(const TagRules &rules);

} // namespace dravolin::test
