#include "base/Lines.h"
#include "base/NOXUtils.h"
#include "base/PathText.h"
#include "support/Pseudorandom.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using test::Pseudorandom;

namespace {

constexpr int textsOfASeed = 500;

const QStringList pieces = {QStringLiteral("a"),      QStringLiteral("0"),      QStringLiteral("/"),
                            QStringLiteral("."),      QStringLiteral(" "),      QStringLiteral("\t"),
                            QStringLiteral("\n"),     QStringLiteral("\r"),     QStringLiteral("\u0085"),
                            QStringLiteral("\u2028"), QStringLiteral("\u00A0"), QStringLiteral("\u3000"),
                            QStringLiteral("\u00E9"), QStringLiteral("\uFEFF"), QStringLiteral("\U0001F600")};

} // namespace

// What holds for every text, line and path.
class TestTextProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void trimmingTakesTheBlanksAtTheEnds_data() { test::addSeeds(); }
    void trimmingTakesTheBlanksAtTheEnds();
    void linesAndTheirEndsAreTheText_data() { test::addSeeds(); }
    void linesAndTheirEndsAreTheText();
    void everyNameComesBackAsItsBytes_data() { test::addSeeds(); }
    void everyNameComesBackAsItsBytes();
    void pathsComeApartAsTheyWereJoined_data() { test::addSeeds(); }
    void pathsComeApartAsTheyWereJoined();
    void leadingZerosAloneGo_data() { test::addSeeds(); }
    void leadingZerosAloneGo();
};

void TestTextProperties::trimmingTakesTheBlanksAtTheEnds()
{
    QFETCH(const quint32, seed);
    Pseudorandom random(seed, pieces);
    for (int i = 0; i < textsOfASeed; ++i) {
        const QString text = random.text(12);
        const QStringView trimmed = NOXUtils::trimmed(text);
        QCOMPARE(NOXUtils::trimmed(trimmed).toString(), trimmed.toString());
        QString rest = text;
        const qsizetype at = trimmed.isEmpty() ? 0 : trimmed.begin() - QStringView(text).begin();
        rest.remove(at, trimmed.size());
        QVERIFY(std::all_of(rest.cbegin(), rest.cend(), NOXUtils::isBlank));
        QVERIFY(trimmed.isEmpty() ||
                (!NOXUtils::isBlank(trimmed.front()) && !NOXUtils::isBlank(trimmed.back())));
    }
}

void TestTextProperties::linesAndTheirEndsAreTheText()
{
    QFETCH(const quint32, seed);
    Pseudorandom random(seed, pieces);
    for (int i = 0; i < textsOfASeed; ++i) {
        const QString text = random.text(20);
        QString together;
        for (const QStringView line : lines(text)) {
            QVERIFY(std::none_of(line.begin(), line.end(), isNewline));
            together += line;
            if (together.size() < text.size())
                together += text.at(together.size());
        }
        QCOMPARE(together, text);
        QCOMPARE(lines(text).size() - 1, std::count_if(text.cbegin(), text.cend(), isNewline));
    }
}

void TestTextProperties::everyNameComesBackAsItsBytes()
{
    QFETCH(const quint32, seed);
    Pseudorandom random(seed, pieces);
    for (int i = 0; i < textsOfASeed; ++i) {
        QByteArray bytes = random.text(8).toUtf8();
        for (qsizetype broken = random.number(4); broken > 0; --broken)
            bytes.insert(random.number(bytes.size() + 1), static_cast<char>(random.number(255) + 1));
        const QString text = fromBytes(bytes);
        QCOMPARE(toBytes(text), bytes);
        QCOMPARE(systemPath(text), bytes);
        if (bytes.isValidUtf8())
            QCOMPARE(text.toUtf8(), bytes);
    }
}

void TestTextProperties::pathsComeApartAsTheyWereJoined()
{
    QFETCH(const quint32, seed);
    Pseudorandom random(seed, pieces);
    for (int i = 0; i < textsOfASeed; ++i) {
        const QString folder = u'/' + random.text(8).remove(u'/');
        const QString name = random.text(8).remove(u'/');
        const QString path = joinPath(folder, name);
        QCOMPARE(lastPathComponent(path), name);
        QCOMPARE(parentPath(path), folder);
        const QString extension = pathExtension(path);
        QCOMPARE(extension.isEmpty() ? name.first(withoutExtension(name).size())
                                     : withoutExtension(name) + u'.' + extension,
                 extension.isEmpty() ? withoutExtension(name) : name);
    }
}

void TestTextProperties::leadingZerosAloneGo()
{
    QFETCH(const quint32, seed);
    Pseudorandom random(seed, {QStringLiteral("0"), QStringLiteral("1")});
    for (int i = 0; i < textsOfASeed; ++i) {
        const QString number = random.text(30);
        const QString without = NOXUtils::withoutLeadingZeros(number);
        QVERIFY(!without.startsWith(u'0'));
        QCOMPARE(without.rightJustified(number.size(), u'0'), number);
    }
}

DRAVOLIN_TEST(TestTextProperties)
#include "tst_textproperties.moc"
