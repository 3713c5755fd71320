#pragma once

#include "config/LutFile.h"

#include <QStringList>

#include <optional>

namespace dravolin::test {

// The table as text: "key=value" in order, joined by "|"; "none" for no table.
inline QString described(const std::optional<LutTable> &table)
{
    if (!table)
        return QStringLiteral("none");
    QStringList entries;
    for (auto entry = table->cbegin(); entry != table->cend(); ++entry)
        entries.append(entry.key() + u'=' + entry.value());
    entries.sort();
    return entries.join(u'|');
}

} // namespace dravolin::test
