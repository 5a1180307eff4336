// The failure list and the severity of its codes, without a window.
#include "faults/errorhandler.h"
#include "faults/failureseverity.h"

#include <QSignalSpy>
#include <QtTest>

using ovra::GlobalElements::ErrorHandler;
namespace FailureSeverity = ovra::GlobalElements::FailureSeverity;

class TestFaults : public QObject
{
    Q_OBJECT

private slots:
    void worstCodeGivesTheSymbol_data();
    void worstCodeGivesTheSymbol();
    void codeReportedTwiceWithdrawnOnce();
    void userDeletionKeepsSevereCodes();
    void everyChangeIsSignalled();
};

void TestFaults::worstCodeGivesTheSymbol_data()
{
    QTest::addColumn<QStringList>("codes");
    QTest::addColumn<QString>("icon");
    const QString info = QStringLiteral(":/Failure/info.png");
    const QString medium = QStringLiteral(":/Failure/mittel.png");
    const QString severe = QStringLiteral(":/Failure/schwer.png");
    QTest::newRow("five characters") << QStringList{"E1234"} << info;
    QTest::newRow("five, four") << QStringList{"E1234", "E123"} << medium;
    QTest::newRow("three first") << QStringList{"E12", "E1234", "E123"} << severe;
    QTest::newRow("three last") << QStringList{"E1234", "E123", "E12"} << severe;
    QTest::newRow("other lengths") << QStringList{"", "E1", "E12345"} << QString();
    QTest::newRow("none") << QStringList() << QString();
}

void TestFaults::worstCodeGivesTheSymbol()
{
    QFETCH(QStringList, codes);
    QFETCH(QString, icon);
    QCOMPARE(FailureSeverity::WorstIcon(codes), icon);
}

void TestFaults::codeReportedTwiceWithdrawnOnce()
{
    ErrorHandler errors;
    errors.AddError(QStringLiteral("E101"));
    errors.AddError(QStringLiteral("E20"));
    errors.AddError(QStringLiteral("E101"));
    QCOMPARE(errors.GetErrorList(), QStringLiteral("E101\nE20\nE101\n"));
    errors.ResetError(QStringLiteral("E101"));
    QCOMPARE(errors.GetErrorList(), QStringLiteral("E20\nE101\n"));
    QCOMPARE(errors.GetProcessErrorList(), QStringLiteral("E20\nE101\n"));
    errors.ResetError(QStringLiteral("E999"));
    QCOMPARE(errors.GetErrorList(), QStringLiteral("E20\nE101\n"));
}

void TestFaults::userDeletionKeepsSevereCodes()
{
    ErrorHandler errors;
    for (const char *code : {"E12", "E1234", "E123", "E45", ""})
        errors.AddError(QString::fromLatin1(code));
    errors.DeleteErrorList();
    // Codes of four characters or more go; the severe ones stay, and so does a shorter one.
    QCOMPARE(errors.GetErrorList(), QStringLiteral("\nE45\nE12\n"));
    // The firing's own list is another list.
    QCOMPARE(errors.GetProcessErrorList(), QStringLiteral("\nE45\nE123\nE1234\nE12\n"));

    errors.DeleteErrorListByService();
    QCOMPARE(errors.GetErrorList(), QString());
    errors.DeleteProcessErrorList();
    QCOMPARE(errors.GetProcessErrorList(), QString());
}

void TestFaults::everyChangeIsSignalled()
{
    ErrorHandler errors;
    QSignalSpy changed(&errors, &ErrorHandler::SignalErrorListChanged);
    errors.AddError(QStringLiteral("E12"));
    errors.ResetError(QStringLiteral("E99")); // not listed: the display is refreshed all the same
    errors.DeleteErrorList();
    errors.DeleteErrorListByService();
    errors.DeleteProcessErrorList();
    QCOMPARE(changed.count(), 5);
}

QTEST_APPLESS_MAIN(TestFaults)
#include "tst_faults.moc"
