#pragma once

#include "check/FileRecord.h"
#include "check/Findings.h"
#include "check/Rules.h"

#include <QMap>
#include <QString>

namespace dravolin::check {

struct SearchedFile
{
    FileRecord record;
    QList<Finding> findings;
    QList<Deviation> deviations;
    quint64 emptied = 0; // identifying attributes without a value or with a dummy
};

// What the program that made the result says in an attribute by itself: as the whole value there it tells
// nothing.
using OwnTexts = QMap<Tag, QString>;

// Looks for the patterns in results. One for each thread, on the same patterns.
class Searcher
{
public:
    // `rules` may be null. Both outlive the searcher.
    Searcher(const Patterns &patterns, const Rules *rules, bool searchPixels, OwnTexts ownTexts = {});

    // A file, and the name and folders that its relative path has; "" when these tell nothing.
    [[nodiscard]] SearchedFile search(LoadedFile file, const QString &path);
    // Only the path, and where the link leads.
    [[nodiscard]] QList<Finding> searchLink(const QString &path, const QString &target);

private:
    [[nodiscard]] bool isOwnText(Tag tag, const QString &text) const;
    void searchPath(const QString &path, QList<Finding> &findings);
    void searchElement(const Element &element, SearchedFile &result);
    void searchBytes(QByteArrayView bytes, const Place &place, const CharacterSets &sets,
                     QList<Finding> &findings);
    void searchPiece(QByteArrayView bytes, const QByteArray &escapes, const CharacterSets &sets);
    void searchText(QStringView text, TextKind kind);
    void takeMatches(const Place &place, QList<Finding> &findings);

    const Patterns &m_patterns;
    const Rules *m_rules;
    bool m_searchPixels;
    OwnTexts m_ownTexts;
    std::vector<Word> m_words;
    std::vector<Match> m_matches; // in the readings of one value
};

} // namespace dravolin::check
