#include "dicom/Objects.h"

#include "config/ConfigurationFile.h"

#include <QByteArrayList>
#include <QCryptographicHash>
#include <QProcess>
#include <QtEndian>

namespace dravolin::test {

QString objectFile(const ScratchFolder &folder, const QString &name, const QByteArray &dump,
                   const QStringList &options)
{
    const QString text = folder.file(name + QStringLiteral(".dump"), dump);
    const QString path = folder.path(name);
    printedBy(QStringLiteral("dump2dcm"), options + QStringList{text, path});
    removeFile(text);
    return path;
}

QByteArray dataSetOf(const QString &path)
{
    constexpr qsizetype lengthAt = 140;
    const QByteArray bytes = readBytes(path).value_or(QByteArray());
    if (bytes.size() < lengthAt + 4 || bytes.mid(128, 4) != "DICM") {
        QTest::qFail("this is no DICOM file", __FILE__, __LINE__);
        return {};
    }
    return bytes.sliced(lengthAt + 4 + qFromLittleEndian<quint32>(bytes.constData() + lengthAt));
}

QList<QPair<QByteArray, QStringList>> waysOfWriting(bool withGroups)
{
    const auto way = [](const char *syntax, const char *lengths, const char *groups) {
        const QByteArrayList options = {syntax, lengths, groups};
        return QPair(options.join(' '), QString::fromLatin1(options.join(' ')).split(u' '));
    };
    return {way("+te", "+e", withGroups ? "+g" : "-g"), way("+te", "-e", "-g"), way("+ti", "+e", "-g"),
            way("+tb", "+e", withGroups ? "+g" : "-g"), way("+tb", "-e", "-g")};
}

QByteArray printedBy(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    process.waitForFinished(-1);
    const QByteArray printed = process.readAll();
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        QTest::qFail(qPrintable(program + QStringLiteral(": ") + QString::fromUtf8(printed)), __FILE__,
                     __LINE__);
    return printed;
}

QByteArray hashOfFile(const QString &path)
{
    return QCryptographicHash::hash(readBytes(path).value_or(QByteArray()), QCryptographicHash::Sha256)
        .toHex();
}

AttributeRules rulesOf(const QString &configuration, bool withTable)
{
    QStringList problems;
    const AttributeRules rules =
        attributeRules(edits(parseConfiguration(configuration), {}).list, withTable, &problems);
    if (!problems.isEmpty())
        QTest::qFail(qPrintable(problems.join(u'\n')), __FILE__, __LINE__);
    return rules;
}

} // namespace dravolin::test
