#include "run/Configuration.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

namespace {

using Values = NewValueDict;

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

Values values(std::initializer_list<std::pair<const char *, const char *>> pairs)
{
    Values result;
    for (const auto &[tag, value] : pairs)
        result.insert(str(tag), str(value));
    return result;
}

QStringList lines(const Values &values)
{
    QStringList result;
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        result.append(it.key() + u'=' + it.value());
    return result;
}

} // namespace

class TestTableMarkers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void removesAMarkersValue_data();
    void removesAMarkersValue();
    void keepsIndexesWhileKeysMoveUp_data();
    void keepsIndexesWhileKeysMoveUp();
    void keepsTagsThatLoseTheirValue();
    void keepsTheFirstTablesNameWithoutItsLastCharacter_data();
    void keepsTheFirstTablesNameWithoutItsLastCharacter();
    void keepsTheNameForTheSession();
};

void TestTableMarkers::removesAMarkersValue_data()
{
    QTest::addColumn<Values>("before");
    QTest::addColumn<Values>("after");
    QTest::newRow("no values") << Values() << Values();
    QTest::newRow("no markers") << values({{"0008,0080", "Clinic"}, {"0020,000d", "1.2"}})
                                << values({{"0008,0080", "Clinic"}, {"0020,000d", "1.2"}});
    QTest::newRow("first") << values({{"0008,0080", "<LUT_Site>"}, {"0020,000d", "1.2"}})
                           << values({{"0020,000d", "1.2"}});
    QTest::newRow("middle") << values({{"0008,0080", "x"}, {"0010,0020", "<LUT_ID>"}, {"0020,000d", "1.2"}})
                            << values({{"0008,0080", "x"}, {"0020,000d", "1.2"}});
    QTest::newRow("last") << values({{"0008,0080", "x"}, {"0040,a123", "<LUT_Person>"}})
                          << values({{"0008,0080", "x"}});
    QTest::newRow("without its end") << values({{"0008,0080", "<LUT_Site"}}) << Values();
    QTest::newRow("without a name") << values({{"0008,0080", "<LUT_>"}}) << Values();
    QTest::newRow("the prefix alone") << values({{"0008,0080", "<LUT_"}}) << Values();
    QTest::newRow("with more behind") << values({{"0008,0080", "<LUT_A> and more"}}) << Values();
    const Values others = values({{"0008,0080", "<lut_Site>"},
                                  {"0008,0081", " <LUT_Site>"},
                                  {"0008,0082", "x<LUT_Site>"},
                                  {"0008,0083", "<LUT Site>"},
                                  {"0008,0084", "<LUT"}});
    QTest::newRow("only nearly markers") << others << others;
}

void TestTableMarkers::removesAMarkersValue()
{
    QFETCH(Values, before);
    QFETCH(Values, after);
    SharedRunState state;
    state.set(&RunState::newValueDict, before);
    dropTableMarkers(state);
    QCOMPARE(lines(state.get(&RunState::newValueDict)), lines(after));
}

void TestTableMarkers::keepsIndexesWhileKeysMoveUp_data()
{
    QTest::addColumn<Values>("before");
    QTest::addColumn<Values>("after");
    // Indexes 0, 1. Without key 0 the list is ID, UID; index 1 is then the Study Instance UID, which goes,
    // while the second marker stays.
    QTest::newRow("two side by side")
        << values({{"0008,0080", "<LUT_Site>"}, {"0010,0020", "<LUT_ID>"}, {"0020,000d", "1.2"}})
        << values({{"0010,0020", "<LUT_ID>"}});
    // Indexes 0, 2. Without key 0: B, C, D; index 2 is D.
    QTest::newRow("two with one between")
        << values(
               {{"0008,000A", "<LUT_1>"}, {"0008,000B", "b"}, {"0008,000C", "<LUT_2>"}, {"0008,000D", "d"}})
        << values({{"0008,000B", "b"}, {"0008,000C", "<LUT_2>"}});
    // Indexes 1, 2. Without key 1: A, C; index 2 is past the end and removes nothing.
    QTest::newRow("two at the end") << values({{"0008,000A", "a"},
                                               {"0008,000B", "<LUT_1>"},
                                               {"0008,000C", "<LUT_2>"}})
                                    << values({{"0008,000A", "a"}, {"0008,000C", "<LUT_2>"}});
    // Indexes 0, 1. Without key 0: B; index 1 is past the end.
    QTest::newRow("two and nothing else")
        << values({{"0008,000A", "<LUT_1>"}, {"0008,000B", "<LUT_2>"}}) << values({{"0008,000B", "<LUT_2>"}});
    // Indexes 0, 1, 3. Without key 0: B, C, D, E, F. Index 1 is C: B, D, E, F. Index 3 is F.
    QTest::newRow("three, apart") << values({{"0008,000A", "<LUT_1>"},
                                             {"0008,000B", "<LUT_2>"},
                                             {"0008,000C", "c"},
                                             {"0008,000D", "<LUT_3>"},
                                             {"0008,000E", "e"},
                                             {"0008,000F", "f"}})
                                  << values({{"0008,000B", "<LUT_2>"},
                                             {"0008,000D", "<LUT_3>"},
                                             {"0008,000E", "e"}});
    // Indexes 0, 1, 2. Without key 0: B, C. Index 1 is C: B. Index 2 is past the end.
    QTest::newRow("three and nothing else")
        << values({{"0008,000A", "<LUT_1>"}, {"0008,000B", "<LUT_2>"}, {"0008,000C", "<LUT_3>"}})
        << values({{"0008,000B", "<LUT_2>"}});
    // Indexes 1, 3, 4. Without key 1: A, C, D, E. Index 3 is E: A, C, D. Index 4 is past the end.
    QTest::newRow("three, the last past the end")
        << values({{"0008,000A", "a"},
                   {"0008,000B", "<LUT_1>"},
                   {"0008,000C", "c"},
                   {"0008,000D", "<LUT_2>"},
                   {"0008,000E", "<LUT_3>"}})
        << values({{"0008,000A", "a"}, {"0008,000C", "c"}, {"0008,000D", "<LUT_2>"}});
    // Indexes 0, 2 over upper-case D before lower-case d: without key 0 the list is d, E; index 2 is past its
    // end.
    QTest::newRow("two, in the order of code units")
        << values({{"0020,000d", "1.2"}, {"0020,000D", "<LUT_1>"}, {"0020,000e", "<LUT_2>"}})
        << values({{"0020,000d", "1.2"}, {"0020,000e", "<LUT_2>"}});
}

void TestTableMarkers::keepsIndexesWhileKeysMoveUp()
{
    removesAMarkersValue();
}

void TestTableMarkers::keepsTagsThatLoseTheirValue()
{
    SharedRunState state;
    const QStringList tags = {str("0008,0080"), str("0010,0020"), str("0020,000d")};
    state.set(&RunState::allTagsToAnonymize, tags);
    state.set(&RunState::newValueDict,
              values({{"0008,0080", "<LUT_Site>"}, {"0010,0020", "<LUT_ID>"}, {"0020,000d", "1.2"}}));
    dropTableMarkers(state);
    QCOMPARE(state.get(&RunState::allTagsToAnonymize), tags);
}

void TestTableMarkers::keepsTheFirstTablesNameWithoutItsLastCharacter_data()
{
    QTest::addColumn<Values>("before");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *value) { return values({{"0010,0020", value}}); };
    QTest::newRow("PatientID") << row("<LUT_PatientID>") << str("PatientID");
    QTest::newRow("without its end") << row("<LUT_Site") << str("Sit");
    QTest::newRow("one character") << row("<LUT_X") << QString();
    QTest::newRow("an empty name") << row("<LUT_>") << QString();
    QTest::newRow("exactly the prefix") << row("<LUT_") << QString();
    QTest::newRow("two ends") << row("<LUT_A>>") << str("A>");
    QTest::newRow("no ASCII") << row("<LUT_Köln>") << str("Köln");
    QTest::newRow("other letter case") << row("<Lut_X>") << QString();
    QTest::newRow("no values") << Values() << QString();
    QTest::newRow("two markers: the one of the lower tag")
        << values({{"0010,0020", "<LUT_ID>"}, {"0008,0080", "<LUT_Site>"}}) << str("Site");
    QTest::newRow("the first has no name: the second is not asked")
        << values({{"0010,0020", "<LUT_ID>"}, {"0008,0080", "<LUT_>"}}) << QString();
}

void TestTableMarkers::keepsTheFirstTablesNameWithoutItsLastCharacter()
{
    QFETCH(Values, before);
    SharedRunState state;
    state.set(&RunState::newValueDict, before);
    dropTableMarkers(state);
    QTEST(state.get(&RunState::firstFoundLUTtagInNewValueDict), "name");
}

void TestTableMarkers::keepsTheNameForTheSession()
{
    SharedRunState state;
    const auto nameAfter = [&state](const char *value) {
        state.set(&RunState::newValueDict, values({{"0010,0020", value}}));
        dropTableMarkers(state);
        return state.get(&RunState::firstFoundLUTtagInNewValueDict);
    };
    QCOMPARE(nameAfter("<LUT_>"), QString()); // an empty name does not count as found
    QCOMPARE(nameAfter("<LUT_First>"), str("First"));
    QCOMPARE(nameAfter("<LUT_Second>"), str("First"));
    QCOMPARE(nameAfter("no marker"), str("First"));
}

DRAVOLIN_TEST(TestTableMarkers)
#include "tst_tablemarkers.moc"
