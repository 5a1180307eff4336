// The popups' arithmetic without a widget: the delayed-start correction and the clock entry
// check.

#include "popups/datetimeentry.h"
#include "popups/timerinput.h"

#include <QDate>
#include <QTime>
#include <QtTest>

using namespace ovra::Popups;

Q_DECLARE_METATYPE(ovra::Popups::DateTimeFields)

class TstTimerInput : public QObject
{
    Q_OBJECT

private slots:
    void correctTimerEntry_data();
    void correctTimerEntry();
    void failedSplitChangesNothing();
    void invalidFields_data();
    void invalidFields();
};

void TstTimerInput::correctTimerEntry_data()
{
    QTest::addColumn<QDate>("today");
    QTest::addColumn<QTime>("now");
    QTest::addColumn<QString>("entered"); // d.m.y h:m
    QTest::addColumn<QString>("request");

    const auto row = [](const char *tag, const char *entered, const char *request,
                        const QDate &today = QDate(2026, 11, 22), const QTime &now = QTime(10, 0, 30)) {
        QTest::newRow(tag) << today << now << QString::fromLatin1(entered) << QString::fromLatin1(request);
    };
    // 31 April: the popup test, through its OK button.
    row("future start, padded", "3.3.2027 9:5", "timer==20270303,0905");
    row("this minute is not past", "22.11.2026 10:0", "timer==20261122,1000");
    row("past year", "1.12.2020 8:0", "timer==20261201,0800");
    row("past year, earlier month and day", "5.3.2020 12:0", "timer==20261122,1200");
    row("empty year, non-digit minute", "1.12. 8:x", "timer==20261201,0800");
    row("month above 12 next year", "10.13.2027 8:0", "timer==20271110,0800");
    row("month 0 next year", "5.0.2027 8:0", "timer==20270105,0800");
    row("29 February, no leap year", "29.2.2027 8:0", "timer==20270228,0800");
    row("30 February, leap year", "30.2.2028 8:0", "timer==20280229,0800");
    row("past day this month", "10.11.2026 12:0", "timer==20261122,1200");
    row("past time today", "22.11.2026 9:59", "timer==20261123,0959");
    row("past day, then past time", "10.11.2026 8:0", "timer==20261123,0800");
    row("past time on 31 December", "31.12.2026 22:0", "timer==20270101,2200", QDate(2026, 12, 31), QTime(23, 0));
    row("past time on 28 February, leap year", "28.2.2028 11:0", "timer==20280229,1100", QDate(2028, 2, 28),
        QTime(12, 0));
    row("hour and minute out of range", "1.12.2026 99:75", "timer==20261201,2359");
}

void TstTimerInput::correctTimerEntry()
{
    QFETCH(QDate, today);
    QFETCH(QTime, now);
    QFETCH(QString, entered);
    QFETCH(QString, request);

    const QStringList p = entered.split(QRegularExpression(QStringLiteral("[. :]")));
    QCOMPARE(p.size(), 5);
    const TimerEntry in = ParseTimerEntry(p[0], p[1], p[2], p[3], p[4]);
    QCOMPARE(TimerRequestText(CorrectTimerEntry(in, today, now)), request);
}

void TstTimerInput::failedSplitChangesNothing()
{
    // A good split shown in the fields, single digits sent padded, and a date too short: the
    // popup test. A failed split must not leave half-filled fields behind.
    DateTimeEntry untouched;
    untouched.day = QStringLiteral("keep");
    QVERIFY(!SplitDateTime(QStringLiteral("1.2.3.4"), QStringLiteral("09:05"), &untouched));
    QVERIFY(!SplitDateTime(QStringLiteral("03.04.2027"), QStringLiteral("0905"), &untouched));
    QCOMPARE(untouched.day, QStringLiteral("keep"));
    QVERIFY(untouched.month.isEmpty());
}

void TstTimerInput::invalidFields_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("time");
    QTest::addColumn<DateTimeFields>("invalid");

    const auto row = [](const char *tag, const char *date, const char *time, DateTimeFields invalid) {
        QTest::newRow(tag) << QString::fromLatin1(date) << QString::fromLatin1(time) << invalid;
    };
    row("single digits", "5.3.2027", "9:5", {});
    row("last moment", "31.12.2099", "23:59", {});
    row("29 February 2000", "29.02.2000", "10:00", {});
    row("29 February, no leap year", "29.02.2027", "10:00", DateTimeField::Day);
    row("month 13 only blames the month", "31.13.2027", "10:00", DateTimeField::Month);
    row("year 1999", "01.01.1999", "10:00", DateTimeField::Year);
    row("hour 24", "01.01.2027", "24:00", DateTimeField::Hour);
    row("minute 60", "01.01.2027", "23:60", DateTimeField::Minute);
    row("empty or not digits", ".+5.2027", " 1:", DateTimeField::Day | DateTimeField::Month | DateTimeField::Minute);
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

QTEST_GUILESS_MAIN(TstTimerInput)
#include "tst_timerinput.moc"
