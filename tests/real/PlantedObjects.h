#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace dravolin::test {

// A value at its place in a generated object.
struct PlantedValue
{
    QStringList tags; // from the outermost sequence to the attribute
    QByteArray bytes; // as they stand in the file
};

struct PlantedObject
{
    QString path; // relative to the folder of all; its first part is the kind of object
    QList<PlantedValue> values;
};

// Writes, below `folder`, for each kind of object one without and two with a planted value in every attribute
// of the list in tests/data; the second of those has VR UN for them. Empty when that fails.
[[nodiscard]] QList<PlantedObject> makePlantedObjects(const QString &folder);

// The attributes of that list, in its order.
[[nodiscard]] QStringList listedAttributes();

// Gives an image an overlay in the first group.
void addOverlay(const QString &path);

// What is not valid in the file, each fault once, sorted.
[[nodiscard]] QStringList faultsOf(const QString &path);

} // namespace dravolin::test
