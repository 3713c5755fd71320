#pragma once

#include "check/FileRecord.h"

#include <QList>
#include <QSet>

namespace dravolin::check {

struct HarvestedValue
{
    ValueClass valueClass = ValueClass::FreeText;
    Tag source = 0;
    QString text;
};

struct HarvestedFile
{
    FileRecord record;
    QList<HarvestedValue> values;
};

// Takes the identifying values out of originals. One for each thread; a value that this one has given not
// long before is not given again.
class Harvester
{
public:
    [[nodiscard]] HarvestedFile harvest(LoadedFile file);

private:
    void take(const Element &element, QList<HarvestedValue> &values);

    QSet<quint64> m_given;
};

} // namespace dravolin::check
