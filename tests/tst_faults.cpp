// The failure list and the severity of its codes, without a window.
#include "faults/errorhandler.h"
#include "faults/selftestprogress.h"

#include <QSignalSpy>
#include <QtTest>

using ovra::GlobalElements::ErrorHandler;

class TestFaults : public QObject
{
    Q_OBJECT

private slots:
    void reportWithdrawAndDelete();
    void selftestRowsCountOncePerEntry();
};

void TestFaults::reportWithdrawAndDelete()
{
    ErrorHandler errors;
    QSignalSpy changed(&errors, &ErrorHandler::SignalErrorListChanged);
    for (const char *code : {"E101", "E12", "E101", "E1234", ""})
        errors.AddError(QString::fromLatin1(code));
    // Reported twice, withdrawn once: listed once. A code not listed still refreshes the display.
    errors.ResetError(QStringLiteral("E101"));
    errors.ResetError(QStringLiteral("E999"));
    QCOMPARE(errors.GetErrorList(), QStringLiteral("\nE1234\nE12\nE101\n"));
    QCOMPARE(changed.count(), 7);

    // The user's deletion drops codes of four characters or more; severe ones stay, and so does
    // a shorter one. The firing's own list is another list.
    errors.DeleteErrorList();
    QCOMPARE(errors.GetErrorList(), QStringLiteral("\nE12\n"));
    QCOMPARE(errors.GetProcessErrorList(), QStringLiteral("\nE1234\nE12\nE101\n"));
    errors.DeleteErrorListByService();
    errors.DeleteProcessErrorList();
    QCOMPARE(errors.GetErrorList() + errors.GetProcessErrorList(), QString());
    QCOMPARE(changed.count(), 10);
}

// A row the controller reports twice moves the self-test bar once.
void TestFaults::selftestRowsCountOncePerEntry()
{
    using Row = ovra::GlobalElements::SelftestProgress::Row;
    ovra::GlobalElements::SelftestProgress progress;
    QCOMPARE(progress.Count(Row::Door) + progress.Count(Row::Heater) + progress.Count(Row::Door), 50);
    QCOMPARE(progress.Count(Row::Cooling), 25);
    QCOMPARE(progress.Text(), QStringLiteral("3 von 3 Prüfungen abgeschlossen"));
    progress.Reset();
    QCOMPARE(progress.Count(Row::Door), 25);
    QCOMPARE(progress.Value(), 25);
    QCOMPARE(progress.Text(), QStringLiteral("1 von 3 Prüfungen abgeschlossen"));
}

QTEST_APPLESS_MAIN(TestFaults)
#include "tst_faults.moc"
