#include "run/jobs/Script.h"

#include "base/PathText.h"

#include <algorithm>

namespace dravolin {

QString quoted(const QString &path)
{
    return u'"' + path + u'"';
}

QStringList fileArguments(const QStringList &paths)
{
    QStringList arguments;
    arguments.reserve(paths.size());
    for (const QString &path : paths)
        arguments.append(u' ' + quoted(lastPathComponent(path)));
    return arguments;
}

QString commandLines(const QString &prefix, const QStringList &arguments, const Redirections &redirections,
                     qsizetype maximum)
{
    const QString list = arguments.join(QString());
    const qsizetype total = prefix.size() + list.size() + redirections.counted;
    if (total < maximum)
        return prefix + list + redirections.only;

    const qsizetype parts = std::max<qsizetype>(1, total / (maximum / 2));
    const qsizetype perPart = arguments.size() / parts;
    QString lines;
    for (qsizetype part = 0; part < parts - 1; ++part)
        lines += prefix + arguments.mid(part * perPart, perPart).join(QString()) + redirections.more;
    return lines + prefix + arguments.mid((parts - 1) * perPart).join(QString()) + redirections.last;
}

QString scriptText(const QString &commands)
{
    return QStringLiteral(
               "#!/bin/sh\n"
               "#This is a temporary file created by Dravolin. If you are reading this, the file is "
               "garbage that can safely be deleted.\n") +
           commands;
}

} // namespace dravolin
