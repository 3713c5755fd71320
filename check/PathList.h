#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <vector>

namespace dravolin::check {

// Many paths in little memory; none of them can be changed.
class PathList
{
public:
    void append(const QString &path);
    [[nodiscard]] qsizetype size() const { return static_cast<qsizetype>(m_ends.size()); }
    [[nodiscard]] bool isEmpty() const { return m_ends.empty(); }
    [[nodiscard]] QString operator[](qsizetype index) const;
    // Where a path stands that was appended in ascending order, as all others; -1 for nowhere.
    [[nodiscard]] qsizetype indexOf(const QString &path) const;
    [[nodiscard]] QStringList toList() const;

private:
    [[nodiscard]] QByteArrayView bytesAt(qsizetype index) const;

    QByteArray m_bytes;            // of all, one behind the other
    std::vector<qsizetype> m_ends; // in them
};

} // namespace dravolin::check
