#include "check/Harvest.h"
#include "check/Search.h"
#include "check/Values.h"

#include <cstdint>
#include <cstdlib>

using namespace dravolin;
using namespace dravolin::check;

// One file's bytes on both sides of a check: its values are taken out of it and searched in it.

namespace {

const Rules &rules()
{
    static const Rules some(parseConfiguration(
        QStringLiteral("0008,0060\tModality\tCT\n0008,1140\tImages\n0010,0010\tName\n0010,0020\tID\tX\n")));
    return some;
}

// Of dates only the ones that stand alone are found again.
bool isSurelyFound(const Patterns &patterns)
{
    for (quint32 index = 0; index < patterns.size(); ++index) {
        if (patterns.at(index).valueClass != ValueClass::Date)
            return true;
    }
    return false;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    if (!initialiseReader().isEmpty())
        std::abort();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const HarvestedFile original = Harvester().harvest(lookAt(bytes));
    Values values;
    for (const HarvestedValue &value : original.values)
        values.add(value.valueClass, value.source, value.text);
    const SearchedFile result =
        Searcher(values.patterns(), &rules(), true).search(lookAt(bytes), QStringLiteral("folder/image"));
    const bool isWhole = original.record.state == FileRecord::State::Object;
    if (isWhole && result.findings.isEmpty() && isSurelyFound(values.patterns()))
        std::abort(); // counted as clean with its own values in it
    return 0;
}
