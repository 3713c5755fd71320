#pragma once

#include "base/PathText.h"

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
    void append(const QString &path) { appendBytes(toBytes(path)); }
    void appendBytes(QByteArrayView path);
    // Gives back the memory for more paths.
    void squeeze();
    [[nodiscard]] qsizetype size() const { return static_cast<qsizetype>(m_ends.size()); }
    [[nodiscard]] bool isEmpty() const { return m_ends.empty(); }
    [[nodiscard]] QString operator[](qsizetype index) const;
    // Its bytes, as long as nothing is appended.
    [[nodiscard]] QByteArrayView bytesAt(qsizetype index) const;
    // Where a path stands that was appended in ascending order, as all others; -1 for nowhere.
    [[nodiscard]] qsizetype indexOf(const QString &path) const;
    // The indices of all, in ascending order of the paths as texts, or as bytes.
    enum class Order { Texts, Bytes };
    [[nodiscard]] std::vector<qsizetype> sorted(Order order) const;
    [[nodiscard]] QStringList toList() const;

private:
    QByteArray m_bytes;            // of all, one behind the other
    std::vector<qsizetype> m_ends; // in them
};

} // namespace dravolin::check
