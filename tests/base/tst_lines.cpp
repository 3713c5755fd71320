#include "base/Lines.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;

class TestLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cutsLinesAtEveryNewline_data();
    void cutsLinesAtEveryNewline();
};

void TestLines::cutsLinesAtEveryNewline_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *name, const char16_t *text, const char *lines) {
        QTest::newRow(name) << QString::fromUtf16(text) << QString::fromLatin1(lines).split(u'|');
    };
    row("empty", u"", "");
    row("no newline", u"a", "a");
    row("LF", u"a\nb", "a|b");
    row("CR", u"a\rb", "a|b");
    row("CR LF makes an empty line", u"a\r\nb", "a||b");
    row("VT", u"a\vb", "a|b");
    row("FF", u"a\fb", "a|b");
    row("next line", u"a\u0085b", "a|b");
    row("line separator", u"a\u2028b", "a|b");
    row("paragraph separator", u"a\u2029b", "a|b");
    row("newline at the end", u"a\n", "a|");
    row("newline in front", u"\na", "|a");
    row("tab and blank are none", u"a\tb c", "a\tb c");
    row("unit separator is none", u"a\u001Fb",
        "a\x1F"
        "b");
    const auto longRow = [](const char *name, const QString &text) {
        for (int at = 0; at < 20; ++at)
            QTest::addRow("%s at %d", name, at) << QString(at, u'x') + text + QString(20, u'y')
                                                << QStringList{QString(at, u'x'), QString(20, u'y')};
    };
    longRow("LF", QStringLiteral("\n"));
    longRow("CR", QStringLiteral("\r"));
    longRow("next line", QChar(0x85));
    longRow("line separator", QChar(0x2028));
}

void TestLines::cutsLinesAtEveryNewline()
{
    QFETCH(const QString, text);
    QFETCH(const QStringList, expected);
    QStringList lines;
    for (const QStringView line : dravolin::lines(text))
        lines.append(line.toString());
    QCOMPARE(lines, expected);
}

DRAVOLIN_TEST(TestLines)
#include "tst_lines.moc"
