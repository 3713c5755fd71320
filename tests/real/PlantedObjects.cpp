#include "real/PlantedObjects.h"

#include "base/Files.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>

namespace dravolin::test {

namespace {

const QString list = QStringLiteral(LISTED_ATTRIBUTES);

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    return process.waitForFinished(-1) ? process.readAll() : QByteArray();
}

QStringList tagsOf(const QString &path)
{
    static const QRegularExpression tag(QStringLiteral("\\(([0-9a-f]{4},[0-9a-f]{4})\\)"));
    QStringList tags;
    for (const QRegularExpressionMatch &match : tag.globalMatch(path))
        tags.append(match.captured(1));
    return tags;
}

PlantedObject objectOf(const QJsonObject &file)
{
    PlantedObject object{file.value(u"path").toString(), {}};
    const QJsonArray planted = file.value(u"planted").toArray();
    for (const QJsonValue &value : planted)
        object.values.append(
            {tagsOf(value[u"tag"].toString()), QByteArray::fromHex(value[u"bytes"].toString().toLatin1())});
    return object;
}

} // namespace

QList<PlantedObject> makePlantedObjects(const QString &folder)
{
    outputOf(QStringLiteral("/usr/bin/python3"),
             {QStringLiteral(OBJECT_GENERATOR), QStringLiteral("attributes"), folder,
              QStringLiteral("--list"), list});
    const std::optional<QByteArray> description = readBytes(joinPath(folder, QStringLiteral("planted.json")));
    const QJsonArray files = QJsonDocument::fromJson(description.value_or(QByteArray()))[u"files"].toArray();
    QList<PlantedObject> objects;
    for (const QJsonValue &file : files)
        objects.append(objectOf(file.toObject()));
    return objects;
}

QStringList listedAttributes()
{
    QStringList attributes;
    for (const QString &line : readText(list).value_or(QString()).split(u'\n', Qt::SkipEmptyParts))
        attributes.append(line.first(9));
    return attributes;
}

void addOverlay(const QString &path)
{
    QStringList arguments = {QStringLiteral("-nb")};
    for (const char *element : {"0010)=2", "0011)=8", "0022)=Name", "0040)=G", "0050)=1\\1", "0100)=1",
                                "0102)=0", "1500)=Name", "3000)=ffff", "4000)=Name"})
        arguments += {QStringLiteral("-i"), QStringLiteral("(6000,") + QString::fromLatin1(element)};
    (void)outputOf(QStringLiteral(DRAVOLIN_DCMODIFY), arguments + QStringList{path});
}

QStringList faultsOf(const QString &path)
{
    const QString said = QString::fromLatin1(outputOf(QStringLiteral(DRAVOLIN_DCIODVFY), {path}));
    QStringList faults = said.split(u'\n').filter(QRegularExpression(QStringLiteral("^Error - ")));
    faults.removeDuplicates();
    faults.sort();
    return faults;
}

} // namespace dravolin::test
