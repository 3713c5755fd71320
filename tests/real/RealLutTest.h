#pragma once

#include "config/LutFile.h"
#include "real/RealRun.h"

#include <QObject>

#include <memory>

namespace dravolin::test {

// Helpers of tests that take a table from the data to the files, with the tools themselves: runs whose
// configuration gives one attribute (0010,1000 unless it is bound to another) the marker <LUT_Site>.
class RealLutTest : public QObject
{
protected:
    void setUp();
    // Binds the table to another attribute.
    void bind(const QString &attribute);
    // Makes an image in which 0010,1000 has `value`; with an empty one it has no such attribute.
    QString image(const QString &relative, const QString &value);
    // A whole run; gives the summary. A table is a file's text; an empty one is none.
    QString run(const QStringList &folders, const QStringList &files, const QString &table);
    // The same with the construction check box on, and without a table.
    QString construct(const QStringList &folders, const QStringList &files);
    // The text of the table file on the desktop, "none" when there is none.
    [[nodiscard]] QString table() const;
    // What 0010,1000 holds, "none" when the file does not have it.
    [[nodiscard]] QString value(const QString &path) const;
    [[nodiscard]] QString path(const char *relative) const
    {
        return m_run->path(QString::fromUtf8(relative));
    }
    // The text of a table with "<missing>" and the rows in `text`.
    [[nodiscard]] static QString rows(const QString &text)
    {
        return QStringLiteral("<missing>\t\tUnknown\n") + text;
    }

    const QString tag = QStringLiteral("0010,1000");
    std::unique_ptr<RealRun> m_run;
};

} // namespace dravolin::test
