// The program editor's arithmetic: unit conversion, entry limits, the digit pad's editing,
// reading the table into a matrix and the checks a program and its name must pass.
#include "programs/programtable.h"

#include <QtTest>

#include <limits>

using namespace ovra::GlobalElements;
using namespace ovra::GlobalElements::ProgramTable;
using Row = QList<unsigned int>;

Q_DECLARE_METATYPE(ovra::GlobalElements::ProgramTable::NameVerdict)

class TstProgramTable : public QObject
{
    Q_OBJECT

private slots:
    void conversionAndRateLimit();
    void readNumber_data();
    void readNumber();
    void digitPad_data();
    void digitPad();
    void readRows();
    void cleanAndCheckMatrix();
    void checkName_data();
    void checkName();
};

void TstProgramTable::conversionAndRateLimit()
{
    QCOMPARE(ToFahrenheit(1, true), 34u); // 33.8 rounds up
    QCOMPARE(ToCelcius(100, true), 38u);  // 37.78
    // Below freezing there is nothing to store: the result must not wrap to a huge number.
    QCOMPARE(ToCelcius(31, true), 0u);
    QCOMPARE(ToFahrenheit(std::numeric_limits<unsigned int>::max(), true), std::numeric_limits<unsigned int>::max());
    // Every whole °C survives the round trip through the display.
    for (unsigned int c = 0; c <= maxCelsius; ++c)
        QCOMPARE(ToCelcius(ToFahrenheit(c, true), true), c);

    // The limits at 120 and 1650 °C in either unit: the editor and language tests, typed.
    QCOMPARE(RateLimit(1, true), 33u);    // 33.8 truncated, not rounded
    QCOMPARE(RateLimit(36392, true), 1u); // 65537.6 wraps past 16 bits
}

void TstProgramTable::readNumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<unsigned int>("value");
    QTest::newRow("empty") << QString() << 0u;
    QTest::newRow("leading zeros") << QStringLiteral("007") << 7u;
    QTest::newRow("too large saturates") << QStringLiteral("99999999999999999999") << 4294967295u;
    QTest::newRow("sign") << QStringLiteral("-5") << 0u;
    QTest::newRow("letter") << QStringLiteral("12a") << 0u;
}

void TstProgramTable::readNumber()
{
    QFETCH(QString, text);
    QFETCH(unsigned int, value);
    QCOMPARE(ReadNumber(text), value);
}

void TstProgramTable::digitPad_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("key"); // a digit, or "C" for clear
    QTest::addColumn<QString>("after");
    const auto row = [](const char *tag, const char *before, const char *key, const char *after) {
        QTest::newRow(tag) << QString::fromLatin1(before) << QString::fromLatin1(key) << QString::fromLatin1(after);
    };
    row("digit replaces a lone 0", "0", "7", "7");
    row("0 on 0 stays one 0", "0", "0", "0");
    row("digit is appended", "12", "0", "120");
    row("clear drops last digit", "120", "C", "12");
    row("clear on one digit gives 0", "5", "C", "0");
    row("clear on 0 stays", "0", "C", "0");
}

void TstProgramTable::digitPad()
{
    QFETCH(QString, before);
    QFETCH(QString, key);
    QFETCH(QString, after);
    QCOMPARE(key == QLatin1String("C") ? PadClear(before) : PadDigit(before, key.at(0)), after);
}

void TstProgramTable::readRows()
{
    // Zero rates are skipped wherever they stand; targets below 51 °C are raised to 50 °C.
    QCOMPARE(ReadRows({{0, 900, 2}, {10, 30, 0}, {10, 51, 0}, {0, 0, 0}}, false),
             (Matrix{Row{10, 50, 0}, Row{10, 51, 0}}));
    // In °F rate and target are converted, the hold time is not; 32 °F/min is a zero rate.
    QCOMPARE(ReadRows({{248, 2732, 15}, {50, 86, 5}, {32, 2000, 1}}, true),
             (Matrix{Row{120, 1500, 15}, Row{10, 50, 5}}));
}

void TstProgramTable::cleanAndCheckMatrix()
{
    Matrix matrix{Row{0, 50, 0}, Row{10, 800, 5}, Row{0, 50, 0}, Row{0, 50, 1}, Row{0, 51, 0}, Row{1, 50, 0}};
    CleanMatrix(matrix);
    QCOMPARE(matrix, (Matrix{Row{10, 800, 5}, Row{0, 50, 1}, Row{0, 51, 0}, Row{1, 50, 0}}));

    QVERIFY(!CheckMatrix({}));
    QVERIFY(CheckMatrix({Row{10, 800, 5}, Row{120, 1650, 0}}));
    QVERIFY(!CheckMatrix({Row{10, 800, 5}, Row{0, 900, 5}}));
    QVERIFY(!CheckMatrix({Row{}}));
}

void TstProgramTable::checkName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<NameVerdict>("verdict");
    QTest::newRow("plain") << QStringLiteral("Zirkon 2") << NameVerdict::Ok;
    QTest::newRow("umlauts and sharp s") << QStringLiteral("Glasur Größe ÄÖÜ") << NameVerdict::Ok;
    QTest::newRow("one dollar") << QStringLiteral("A$B") << NameVerdict::Ok;
    QTest::newRow("last latin-1") << QStringLiteral("\u00FF") << NameVerdict::Ok;
    QTest::newRow("blanks") << QStringLiteral("   ") << NameVerdict::Empty;
    QTest::newRow("semicolon") << QStringLiteral("a;b") << NameVerdict::ReservedCharacters;
    QTest::newRow("equals") << QStringLiteral("a=b") << NameVerdict::ReservedCharacters;
    QTest::newRow("comma") << QStringLiteral("a,b") << NameVerdict::ReservedCharacters;
    QTest::newRow("dot") << QStringLiteral("Speed 1.5") << NameVerdict::ReservedCharacters;
    QTest::newRow("trailing two dollars") << QStringLiteral("ab$$") << NameVerdict::ReservedCharacters;
    QTest::newRow("first beyond latin-1") << QStringLiteral("a\u0100") << NameVerdict::UnsupportedCharacter;
    QTest::newRow("newline") << QStringLiteral("a\nb") << NameVerdict::UnsupportedCharacter;
}

void TstProgramTable::checkName()
{
    QFETCH(QString, name);
    QFETCH(NameVerdict, verdict);
    QCOMPARE(CheckName(name), verdict);
}

QTEST_APPLESS_MAIN(TstProgramTable)
#include "tst_programtable.moc"
