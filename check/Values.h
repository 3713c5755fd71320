#pragma once

#include "check/Patterns.h"

#include <QSet>
#include <QString>

#include <unordered_set>

namespace dravolin::check {

// Turns the identifying values of the originals into patterns. One thread at a time.
class Values
{
public:
    // Values that are set by rule and therefore tell nothing; said before any value is added.
    void leaveOut(const QString &value);

    // One or several values (separated by backslashes) of an attribute.
    void add(ValueClass valueClass, Tag source, const QString &text);
    // A line of the user's list of identifiers.
    void addListed(const QString &line);
    // A relative path, with the names of its folders.
    void addPath(const QString &path);

    [[nodiscard]] const Patterns &patterns() const { return m_patterns; }
    // Values that are searched for, and those that are too short to be.
    [[nodiscard]] quint64 searched() const { return m_searched; }
    [[nodiscard]] quint64 tooShort() const { return m_tooShort; }
    [[nodiscard]] quint64 searched(ValueClass valueClass) const
    {
        return m_byClass[static_cast<size_t>(valueClass)];
    }

private:
    [[nodiscard]] bool isNew(quint64 key);
    void addOne(ValueClass valueClass, Tag source, const QString &value);
    void addPerson(Tag source, const QString &name);
    quint32 addNamePart(Tag source, const QString &part);
    void addJoined(const Pattern &whole, const QString &first, const QString &second);
    void addDate(Tag source, const QString &value);
    void addFileName(const QString &name);
    [[nodiscard]] bool isLeftOut(const std::vector<Word> &words) const;

    Patterns m_patterns;
    std::unordered_set<quint64> m_leftOut;
    QSet<quint64> m_seen; // values and their classes
    std::array<quint64, 11> m_byClass = {};
    quint64 m_searched = 0;
    quint64 m_tooShort = 0;
};

} // namespace dravolin::check
