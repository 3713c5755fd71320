#pragma once

#include <QList>
#include <QString>

// The list of cases of a run.
namespace dravolin {

// Something that keeps a list from being carried out.
struct ListProblem
{
    int line = 0; // of the list, from 1; 0 for the list as a whole
    QString text;

    bool operator==(const ListProblem &) const = default;
};

// One row. Paths are absolute; optional columns that are missing are "".
struct CaseRow
{
    int line = 0;
    QString source; // a folder or a file
    QString destination;
    QString caseId;
    QString diagnosis;
    QString keywords;
    QString credits;
    QString configuration;
    QString table;
    QString uidRoot;
    QString identifiers; // a file

    bool operator==(const CaseRow &) const = default;
};

struct CaseList
{
    QList<CaseRow> rows;
    QList<ListProblem> problems; // of the text alone: columns, missing values, ids that are there twice
};

// The list in `text`; relative paths begin at `folder`. The first line names the columns, in any order. Pure.
[[nodiscard]] CaseList parseCaseList(const QString &text, const QString &folder);

// The same for a file in UTF-8 with or without byte-order mark; paths begin at its folder.
[[nodiscard]] CaseList readCaseList(const QString &path);

} // namespace dravolin
