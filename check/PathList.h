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
    [[nodiscard]] qsizetype size() const;
    [[nodiscard]] bool isEmpty() const { return m_blocks.empty(); }
    [[nodiscard]] QString operator[](qsizetype index) const;
    // Its bytes, as long as nothing is appended.
    [[nodiscard]] QByteArrayView bytesAt(qsizetype index) const;
    // Where a path stands that was appended in ascending order, as all others; -1 for nowhere.
    [[nodiscard]] qsizetype indexOf(const QString &path) const;
    // The indices of all, in ascending order of the paths as texts, or as bytes.
    enum class Order { Texts, Bytes };
    [[nodiscard]] std::vector<quint32> sorted(Order order) const;
    [[nodiscard]] QStringList toList() const;

private:
    // So many paths, or fewer in the last one: a list that grows leaves the others where they are.
    static constexpr size_t pathsInBlock = 256;
    struct Block
    {
        QByteArray bytes;          // of all, one behind the other
        std::vector<quint32> ends; // in them
    };

    std::vector<Block> m_blocks;
};

} // namespace dravolin::check
