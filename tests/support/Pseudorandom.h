#pragma once

#include <QString>
#include <QStringList>
#include <QTest>

#include <random>

namespace dravolin::test {

// Texts made of pieces that mean something to a rule. The same seed gives the same texts everywhere.
class Pseudorandom
{
public:
    Pseudorandom(quint32 seed, const QStringList &pieces) : m_engine(seed), m_pieces(pieces) {}

    // Below `end`.
    qsizetype number(qsizetype end) { return static_cast<qsizetype>(m_engine() % static_cast<quint32>(end)); }

    QString text(qsizetype mostPieces)
    {
        QString text;
        for (qsizetype left = number(mostPieces + 1); left > 0; --left)
            text += m_pieces.at(number(m_pieces.size()));
        return text;
    }

private:
    std::mt19937 m_engine;
    const QStringList m_pieces;
};

// The rows of a test that makes its inputs from a seed.
inline void addSeeds()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 8; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

} // namespace dravolin::test
