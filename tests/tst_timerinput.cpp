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
    void splitDateTime();
    void invalidFields_data();
    void invalidFields();
};

void TstTimerInput::correctTimerEntry_data()
{
    QTest::addColumn<QDate>("today");
    QTest::addColumn<QTime>("now");
    QTest::addColumn<QString>("entered"); // d.m.y h:m
    QTest::addColumn<QString>("request");

    const QDate d(2026, 11, 22);
    const QTime t(10, 0, 30);
    QTest::newRow("future start, padded") << d << t << "3.3.2027 9:5"
                                          << "timer==20270303,0905";
    QTest::newRow("this minute is not past") << d << t << "22.11.2026 10:0"
                                             << "timer==20261122,1000";
    QTest::newRow("past year") << d << t << "1.12.2020 8:0"
                               << "timer==20261201,0800";
    QTest::newRow("past year, earlier month and day") << d << t << "5.3.2020 12:0"
                                                      << "timer==20261122,1200";
    QTest::newRow("empty year, non-digit minute") << d << t << "1.12. 8:x"
                                                  << "timer==20261201,0800";
    QTest::newRow("month above 12 next year") << d << t << "10.13.2027 8:0"
                                              << "timer==20271110,0800";
    QTest::newRow("month 0 next year") << d << t << "5.0.2027 8:0"
                                       << "timer==20270105,0800";
    QTest::newRow("31 April") << d << t << "31.4.2027 8:0"
                              << "timer==20270430,0800";
    QTest::newRow("29 February, no leap year") << d << t << "29.2.2027 8:0"
                                               << "timer==20270228,0800";
    QTest::newRow("30 February, leap year") << d << t << "30.2.2028 8:0"
                                            << "timer==20280229,0800";
    QTest::newRow("past day this month") << d << t << "10.11.2026 12:0"
                                         << "timer==20261122,1200";
    QTest::newRow("past time today") << d << t << "22.11.2026 9:59"
                                     << "timer==20261123,0959";
    QTest::newRow("past day, then past time") << d << t << "10.11.2026 8:0"
                                              << "timer==20261123,0800";
    QTest::newRow("past time on 31 December") << QDate(2026, 12, 31) << QTime(23, 0) << "31.12.2026 22:0"
                                              << "timer==20270101,2200";
    QTest::newRow("past time on 28 February, leap year") << QDate(2028, 2, 28) << QTime(12, 0) << "28.2.2028 11:0"
                                                         << "timer==20280229,1100";
    QTest::newRow("hour and minute out of range") << d << t << "1.12.2026 99:75"
                                                  << "timer==20261201,2359";
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

void TstTimerInput::splitDateTime()
{
    DateTimeEntry e;
    QVERIFY(SplitDateTime(QStringLiteral("03.04.2027"), QStringLiteral("09:05"), &e));
    QCOMPARE(QStringList({e.day, e.month, e.year, e.hour, e.minute}), QStringList({"03", "04", "2027", "09", "05"}));
    QVERIFY(SplitDateTime(QStringLiteral("5.3.2027"), QStringLiteral("9:5"), &e));
    QCOMPARE(DateAdjustText(e), QStringLiteral("20270305"));
    QCOMPARE(TimeAdjustText(e), QStringLiteral("0905"));

    // A failed split must not leave half-filled fields behind.
    DateTimeEntry untouched;
    untouched.day = QStringLiteral("keep");
    QVERIFY(!SplitDateTime(QStringLiteral("03.04"), QStringLiteral("09:05"), &untouched));
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

    const DateTimeFields none;
    QTest::newRow("single digits") << "5.3.2027"
                                   << "9:5" << none;
    QTest::newRow("last moment") << "31.12.2099"
                                 << "23:59" << none;
    QTest::newRow("29 February 2000") << "29.02.2000"
                                      << "10:00" << none;
    QTest::newRow("29 February, no leap year") << "29.02.2027"
                                               << "10:00" << DateTimeFields(DateTimeField::Day);
    QTest::newRow("31 April") << "31.04.2027"
                              << "10:00" << DateTimeFields(DateTimeField::Day);
    QTest::newRow("month 13 only blames the month") << "31.13.2027"
                                                    << "10:00" << DateTimeFields(DateTimeField::Month);
    QTest::newRow("year 1999") << "01.01.1999"
                               << "10:00" << DateTimeFields(DateTimeField::Year);
    QTest::newRow("hour 24") << "01.01.2027"
                             << "24:00" << DateTimeFields(DateTimeField::Hour);
    QTest::newRow("minute 60") << "01.01.2027"
                               << "23:60" << DateTimeFields(DateTimeField::Minute);
    QTest::newRow("empty or not digits") << ".+5.2027"
                                         << " 1:"
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

QTEST_GUILESS_MAIN(TstTimerInput)
#include "tst_timerinput.moc"
