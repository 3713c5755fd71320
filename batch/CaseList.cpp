#include "batch/CaseList.h"

#include "base/Files.h"
#include "base/PathText.h"
#include "base/Texts.h"
#include "batch/Csv.h"

#include <QDir>
#include <QHash>

#include <array>

namespace dravolin {

namespace {

struct Column
{
    const char *name;
    QString CaseRow::*field;
    bool isRequired = false;
    bool isPath = false;
    bool isUnique = false;
};

constexpr std::array<Column, 10> columns = {{
    {"source", &CaseRow::source, true, true},
    {"destination", &CaseRow::destination, true, true},
    {"case_id", &CaseRow::caseId, true, false, true},
    {"diagnosis", &CaseRow::diagnosis},
    {"keywords", &CaseRow::keywords},
    {"credits", &CaseRow::credits},
    {"configuration", &CaseRow::configuration, false, true},
    {"table", &CaseRow::table, false, true},
    {"uid_root", &CaseRow::uidRoot},
    {"identifiers", &CaseRow::identifiers, false, true},
}};

const Column *columnNamed(const QString &name)
{
    for (const Column &column : columns)
        if (name.trimmed() == QLatin1String(column.name))
            return &column;
    return nullptr;
}

// The columns of the head line, in its order; null for one that is not known.
QList<const Column *> readHead(const CsvRow &head, QList<ListProblem> &problems)
{
    QList<const Column *> found;
    for (const QString &name : head.fields) {
        const Column *column = columnNamed(name);
        if (!column)
            problems.append({head.line, Texts::tr("there is no column \"%1\"").arg(name)});
        else if (found.contains(column))
            problems.append({head.line, Texts::tr("the column \"%1\" is there twice").arg(name)});
        found.append(column);
    }
    for (const Column &column : columns)
        if (column.isRequired && !found.contains(&column))
            problems.append(
                {head.line, Texts::tr("the column \"%1\" is missing").arg(QLatin1String(column.name))});
    return found;
}

CaseRow readRow(const CsvRow &row, const QList<const Column *> &head, const QString &folder,
                QList<ListProblem> &problems)
{
    CaseRow result;
    result.line = row.line;
    if (row.fields.size() != head.size())
        problems.append(
            {row.line, Texts::tr("has %1 values for %2 columns").arg(row.fields.size()).arg(head.size())});
    for (qsizetype i = 0; i < qMin(row.fields.size(), head.size()); ++i) {
        const Column *column = head.at(i);
        const QString value = row.fields.at(i).trimmed();
        if (!column)
            continue;
        if (value.isEmpty() && column->isRequired)
            problems.append({row.line, Texts::tr("has no %1").arg(QLatin1String(column->name))});
        result.*(column->field) = column->isPath && !value.isEmpty()
                                      ? QDir::cleanPath(QDir(folder).absoluteFilePath(value))
                                      : value;
    }
    return result;
}

void findRepetitions(const CaseList &list, const Column &column, QList<ListProblem> &problems)
{
    QHash<QString, int> lines;
    for (const CaseRow &row : list.rows) {
        const QString value = row.*(column.field);
        if (!value.isEmpty() && lines.contains(value))
            problems.append(
                {row.line, Texts::tr("has the %1 of line %2")
                               .arg(QLatin1String(column.name), QString::number(lines.value(value)))});
        else
            lines.insert(value, row.line);
    }
}

} // namespace

CaseList parseCaseList(const QString &text, const QString &folder)
{
    CaseList list;
    const Csv csv = parseCsv(text);
    if (!csv.problem.isEmpty())
        list.problems.append({0, csv.problem});
    if (csv.rows.size() < 2) {
        list.problems.append({0, Texts::tr("there is no case in the list")});
        return list;
    }
    const QList<const Column *> head = readHead(csv.rows.first(), list.problems);
    for (const CsvRow &row : csv.rows.sliced(1))
        list.rows.append(readRow(row, head, folder, list.problems));
    for (const Column &column : columns)
        if (column.isUnique)
            findRepetitions(list, column, list.problems);
    return list;
}

CaseList readCaseList(const QString &path)
{
    const std::optional<QString> text = readText(path);
    if (!text)
        return {{}, {{0, Texts::tr("the list cannot be read, or is not UTF-8")}}};
    return parseCaseList(*text, parentPath(QDir(path).absolutePath()));
}

} // namespace dravolin
