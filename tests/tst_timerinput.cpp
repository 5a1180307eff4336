// The popups' arithmetic without a widget: the delayed-start correction, the clock entry
// check and the licence notice.

#include "popups/datetimeentry.h"
#include "popups/licensetext.h"
#include "popups/timerinput.h"

#include <QDate>
#include <QTime>
#include <QtTest>

using namespace ovra::Popups;

Q_DECLARE_METATYPE(ovra::Popups::DateTimeFields)

namespace {

TimerEntry entry(int day, int month, int year, int hour, int minute)
{
    TimerEntry e;
    e.day = day;
    e.month = month;
    e.year = year;
    e.hour = hour;
    e.minute = minute;
    return e;
}

QString show(const TimerEntry &e)
{
    return QStringLiteral("%1.%2.%3 %4:%5").arg(e.day).arg(e.month).arg(e.year).arg(e.hour).arg(e.minute);
}

DateTimeEntry clockEntry(const QString &date, const QString &time)
{
    DateTimeEntry e;
    const bool split = SplitDateTime(date, time, &e);
    Q_ASSERT(split);
    Q_UNUSED(split)
    return e;
}

} // namespace

class TstTimerInput : public QObject
{
    Q_OBJECT

private slots:
    void correctTimerEntry_data();
    void correctTimerEntry();
    void requestTextIsPadded();
    void emptyFieldsParseAsZero();

    void splitDateTime();
    void invalidFields_data();
    void invalidFields();
    void adjustTextsArePadded();
    void daysInMonth();

    void licenseNotice();
};

void TstTimerInput::correctTimerEntry_data()
{
    QTest::addColumn<QDate>("today");
    QTest::addColumn<QTime>("now");
    QTest::addColumn<QString>("entered");   // d.m.y h:m
    QTest::addColumn<QString>("expected");

    const QDate today(2026, 11, 22);
    const QTime now(10, 0, 30);
    QTest::newRow("future start kept") << today << now << "3.3.2027 9:5" << "3.3.2027 9:5";
    QTest::newRow("later today kept") << today << now << "22.11.2026 18:30" << "22.11.2026 18:30";
    QTest::newRow("this minute is not past") << today << now << "22.11.2026 10:0" << "22.11.2026 10:0";
    QTest::newRow("past year") << today << now << "1.12.2020 8:0" << "1.12.2026 8:0";
    QTest::newRow("past year, earlier month and day") << today << now << "5.3.2020 12:0" << "22.11.2026 12:0";
    QTest::newRow("empty year") << today << now << "1.12.0 8:0" << "1.12.2026 8:0";
    QTest::newRow("past month this year") << today << now << "25.10.2026 8:0" << "25.11.2026 8:0";
    QTest::newRow("earlier month next year kept") << today << now << "5.3.2027 8:0" << "5.3.2027 8:0";
    QTest::newRow("month above 12 next year") << today << now << "10.13.2027 8:0" << "10.11.2027 8:0";
    QTest::newRow("month above 12 this year") << today << now << "25.13.2026 8:0" << "25.11.2026 8:0";
    QTest::newRow("month 0 next year") << today << now << "5.0.2027 8:0" << "5.1.2027 8:0";
    QTest::newRow("day 31 in April") << today << now << "31.4.2027 8:0" << "30.4.2027 8:0";
    QTest::newRow("29 February, no leap year") << today << now << "29.2.2027 8:0" << "28.2.2027 8:0";
    QTest::newRow("30 February, leap year") << today << now << "30.2.2028 8:0" << "29.2.2028 8:0";
    QTest::newRow("day 99") << today << now << "99.12.2026 8:0" << "31.12.2026 8:0";
    QTest::newRow("past day this month") << today << now << "10.11.2026 12:0" << "22.11.2026 12:0";
    QTest::newRow("day 0 in a later month") << today << now << "0.12.2026 8:0" << "1.12.2026 8:0";
    QTest::newRow("past time today") << today << now << "22.11.2026 9:59" << "23.11.2026 9:59";
    QTest::newRow("past day, then past time") << today << now << "10.11.2026 8:0" << "23.11.2026 8:0";
    QTest::newRow("past time on the last day of the year")
        << QDate(2026, 12, 31) << QTime(23, 0) << "31.12.2026 22:0" << "1.1.2027 22:0";
    QTest::newRow("past time on the last day of a month")
        << QDate(2027, 4, 30) << QTime(12, 0) << "30.4.2027 11:0" << "1.5.2027 11:0";
    QTest::newRow("past time on 28 February, leap year")
        << QDate(2028, 2, 28) << QTime(12, 0) << "28.2.2028 11:0" << "29.2.2028 11:0";
    QTest::newRow("hour and minute out of range") << today << now << "1.12.2026 99:75" << "1.12.2026 23:59";
}

void TstTimerInput::correctTimerEntry()
{
    QFETCH(QDate, today);
    QFETCH(QTime, now);
    QFETCH(QString, entered);
    QFETCH(QString, expected);

    const QStringList parts = entered.split(QRegularExpression(QStringLiteral("[. :]")));
    QCOMPARE(parts.size(), 5);
    const TimerEntry in = ParseTimerEntry(parts[0], parts[1], parts[2], parts[3], parts[4]);
    QCOMPARE(show(CorrectTimerEntry(in, today, now)), expected);
}

void TstTimerInput::requestTextIsPadded()
{
    QCOMPARE(TimerRequestText(entry(3, 3, 2027, 9, 5)), QStringLiteral("timer==20270303,0905"));
    QCOMPARE(TimerRequestText(entry(31, 12, 2026, 0, 0)), QStringLiteral("timer==20261231,0000"));
    QCOMPARE(TwoDigits(0), QStringLiteral("00"));
    QCOMPARE(TwoDigits(9), QStringLiteral("09"));
    QCOMPARE(TwoDigits(10), QStringLiteral("10"));
}

void TstTimerInput::emptyFieldsParseAsZero()
{
    const TimerEntry e = ParseTimerEntry(QString(), QStringLiteral("07"), QString(), QStringLiteral("x"), QStringLiteral("5"));
    QCOMPARE(show(e), QStringLiteral("0.7.0 0:5"));
}

void TstTimerInput::splitDateTime()
{
    DateTimeEntry e;
    QVERIFY(SplitDateTime(QStringLiteral("03.04.2027"), QStringLiteral("09:05"), &e));
    QCOMPARE(e.day, QStringLiteral("03"));
    QCOMPARE(e.month, QStringLiteral("04"));
    QCOMPARE(e.year, QStringLiteral("2027"));
    QCOMPARE(e.hour, QStringLiteral("09"));
    QCOMPARE(e.minute, QStringLiteral("05"));

    // A failed split must not leave half-filled fields behind.
    DateTimeEntry untouched;
    untouched.day = QStringLiteral("keep");
    QVERIFY(!SplitDateTime(QStringLiteral("03.04"), QStringLiteral("09:05"), &untouched));
    QVERIFY(!SplitDateTime(QStringLiteral("03.04.2027"), QStringLiteral("0905"), &untouched));
    QVERIFY(!SplitDateTime(QStringLiteral("1.2.3.4"), QStringLiteral("09:05"), &untouched));
    QVERIFY(!SplitDateTime(QStringLiteral("03-04-2027"), QStringLiteral("09:05"), &untouched));
    QVERIFY(!SplitDateTime(QStringLiteral("03.04.2027"), QStringLiteral("09:05:00"), &untouched));
    QCOMPARE(untouched.day, QStringLiteral("keep"));
    QVERIFY(untouched.month.isEmpty());
}

void TstTimerInput::invalidFields_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("time");
    QTest::addColumn<DateTimeFields>("invalid");

    const DateTimeFields none;
    QTest::newRow("ordinary") << "15.06.2027" << "12:30" << none;
    QTest::newRow("first moment") << "01.01.2000" << "00:00" << none;
    QTest::newRow("last moment") << "31.12.2099" << "23:59" << none;
    QTest::newRow("single digits") << "5.3.2027" << "9:5" << none;
    QTest::newRow("29 February, leap year") << "29.02.2028" << "10:00" << none;
    QTest::newRow("29 February 2000") << "29.02.2000" << "10:00" << none;
    QTest::newRow("29 February, no leap year") << "29.02.2027" << "10:00" << DateTimeFields(DateTimeField::Day);
    QTest::newRow("31 April") << "31.04.2027" << "10:00" << DateTimeFields(DateTimeField::Day);
    QTest::newRow("30 April") << "30.04.2027" << "10:00" << none;
    QTest::newRow("day 0") << "00.01.2027" << "10:00" << DateTimeFields(DateTimeField::Day);
    QTest::newRow("month 13 only blames the month") << "31.13.2027" << "10:00" << DateTimeFields(DateTimeField::Month);
    QTest::newRow("month 0") << "01.00.2027" << "10:00" << DateTimeFields(DateTimeField::Month);
    QTest::newRow("year 1999") << "01.01.1999" << "10:00" << DateTimeFields(DateTimeField::Year);
    QTest::newRow("year 2100") << "01.01.2100" << "10:00" << DateTimeFields(DateTimeField::Year);
    QTest::newRow("two-digit year") << "01.01.27" << "10:00" << DateTimeFields(DateTimeField::Year);
    QTest::newRow("hour 24") << "01.01.2027" << "24:00" << DateTimeFields(DateTimeField::Hour);
    QTest::newRow("minute 60") << "01.01.2027" << "23:60" << DateTimeFields(DateTimeField::Minute);
    QTest::newRow("empty fields") << ".." << ":"
                                  << (DateTimeField::Day | DateTimeField::Month | DateTimeField::Year
                                      | DateTimeField::Hour | DateTimeField::Minute);
    QTest::newRow("not digits") << "1a.+5.2027" << " 1:-1"
                                << (DateTimeField::Day | DateTimeField::Month | DateTimeField::Minute);
}

void TstTimerInput::invalidFields()
{
    QFETCH(QString, date);
    QFETCH(QString, time);
    QFETCH(DateTimeFields, invalid);

    DateTimeEntry e;
    QVERIFY(SplitDateTime(date, time, &e));
    QCOMPARE(int(InvalidDateTimeFields(e)), int(invalid));
}

void TstTimerInput::adjustTextsArePadded()
{
    const DateTimeEntry single = clockEntry(QStringLiteral("5.3.2027"), QStringLiteral("9:5"));
    QCOMPARE(DateAdjustText(single), QStringLiteral("20270305"));
    QCOMPARE(TimeAdjustText(single), QStringLiteral("0905"));
    const DateTimeEntry full = clockEntry(QStringLiteral("29.02.2028"), QStringLiteral("23:59"));
    QCOMPARE(DateAdjustText(full), QStringLiteral("20280229"));
    QCOMPARE(TimeAdjustText(full), QStringLiteral("2359"));
}

void TstTimerInput::daysInMonth()
{
    QCOMPARE(DaysInMonth(2028, 2), 29);
    QCOMPARE(DaysInMonth(2027, 2), 28);
    QCOMPARE(DaysInMonth(2000, 2), 29);
    QCOMPARE(DaysInMonth(2100, 2), 28);
    QCOMPARE(DaysInMonth(2027, 4), 30);
    QCOMPARE(DaysInMonth(2027, 12), 31);
    QCOMPARE(DaysInMonth(2027, 13), 31);
    QCOMPARE(DaysInMonth(2027, 0), 31);
}

void TstTimerInput::licenseNotice()
{
    const QString text = LicenseNoticeText(QStringLiteral("5.99.1"));
    QVERIFY(text.startsWith(QStringLiteral("Diese Software verwendet das Qt Toolkit (Qt 5, LGPL v3).")));
    QVERIFY(text.contains(QStringLiteral("5.99.1")));
    // The notice must say where the licence and the source are.
    QVERIFY(text.contains(QStringLiteral("https://www.gnu.org/licenses/lgpl-3.0")));
    QVERIFY(text.contains(QStringLiteral("https://download.qt.io/")));
}

QTEST_GUILESS_MAIN(TstTimerInput)
#include "tst_timerinput.moc"
