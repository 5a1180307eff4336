// The firing record store: results as they happened and their export, the bound on firings, ten
// hours of reports, and a process killed mid-firing: closed as interrupted on the next start, earlier
// firings and the file intact. Reading the history back, its chart and the printed report.
#include "programs/heatfiletext.h"
#include "programs/program.h"
#include "records/firingchart.h"
#include "records/firingexport.h"
#include "records/firinghistory.h"
#include "records/firingreport.h"
#include "records/firingstore.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>
#include <csignal>
#include <cstdio>

using namespace ovra::Records;

namespace {
QVariant scalar(const QString &file, const QString &sql)
{
    QVariant v;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("check"));
        db.setDatabaseName(file);
        db.open();
        QSqlQuery q(sql, db);
        if (q.next())
            v = q.value(0);
    }
    QSqlDatabase::removeDatabase(QStringLiteral("check"));
    return v;
}

FiringStart start(const QString &name)
{
    FiringStart s;
    s.program = name;
    s.heatfileText = QStringLiteral("[metainfo];name=%1;").arg(name);
    s.date = QStringLiteral("23.11.2026");
    s.time = QStringLiteral("10:00");
    return s;
}
} // namespace

class TestRecords : public QObject
{
    Q_OBJECT

private slots:
    void resultsAndInterruption();
    void boundKeepsTheNewest();
    void killedMidFiring();
    void historyChartAndReport();
};

void TestRecords::killedMidFiring()
{
    QTemporaryDir home;
    const QString file = FiringStore::FileIn(home.path());
    {
        FiringStore store(file);
        store.Begin(start(QStringLiteral("earlier")));
        store.End(Result::Success, QString(), QString());
    }
    // A child process records a firing and is killed hard in the middle of it.
    QProcess child;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("OVRA_RECORDS_CHILD"), file);
    child.setProcessEnvironment(env);
    child.start(QCoreApplication::applicationFilePath(), QStringList());
    QByteArray said;
    QTRY_VERIFY_WITH_TIMEOUT((said += child.readAllStandardOutput()).contains("recording"), 10000);
    ::kill(static_cast<pid_t>(child.processId()), SIGKILL);
    QVERIFY(child.waitForFinished(5000));
    {
        FiringStore reopened(file);
    }
    QCOMPARE(scalar(file, QStringLiteral("SELECT group_concat(program || '=' || result, ',') FROM firings")).toString(),
             QStringLiteral("earlier=success,killed=interrupted"));
    QVERIFY(scalar(file, QStringLiteral("SELECT COUNT(*) FROM samples")).toInt() >= FiringStore::batchSamples);
    QCOMPARE(scalar(file, QStringLiteral("PRAGMA integrity_check")).toString(), QStringLiteral("ok"));
}

void TestRecords::resultsAndInterruption()
{
    QTemporaryDir home;
    const QString file = FiringStore::FileIn(home.path());
    {
        FiringStore store(file);
        QVERIFY(!store.IsOpen() && !QFile::exists(file)); // no firing, no file
    }
    {
        // A file from before the furnace data and the job code were kept with each firing, with
        // a firing in it: read as it is, then given the columns, the firing kept.
        QDir().mkpath(home.path() + QStringLiteral("/records"));
        scalar(file, QStringLiteral("CREATE TABLE firings(id INTEGER PRIMARY KEY, program TEXT, heatfile TEXT, material"
                                    " TEXT, predry INTEGER, delayed TEXT, start_date TEXT, start_time TEXT,"
                                    " end_date TEXT, end_time TEXT, result TEXT)"));
        scalar(file, QStringLiteral("CREATE TABLE samples(firing INTEGER, n INTEGER, seconds INTEGER, celsius REAL)"));
        scalar(file, QStringLiteral("CREATE TABLE failures(firing INTEGER, time TEXT, text TEXT)"));
        scalar(file, QStringLiteral("INSERT INTO firings(program, result) VALUES('old', 'success')"));
        FiringRecord old;
        QVERIFY(FiringHistory(file).Load(1, &old));
        QVERIFY(old.summary.program == QStringLiteral("old") && old.summary.job.isEmpty() && old.device.isEmpty());
        FiringStore store(file);
        FiringStart a = start(QStringLiteral("A"));
        a.device = QStringLiteral("S1");
        a.job = QStringLiteral("A-2026/0117");
        QCOMPARE(store.Begin(a), qint64(2));
        store.AddSample(0, 25.0);
        store.AddFailure(QStringLiteral("23.11.2026 10:05"), QStringLiteral("12"));
        store.End(Result::Failed, QStringLiteral("23.11.2026"), QStringLiteral("10:06"));
        store.Begin(start(QStringLiteral("B")));
        store.AddSample(1, 30.0);
        store.End(Result::Stopped, QString(), QString());
    }
    QCOMPARE(scalar(file, QStringLiteral("SELECT group_concat(program || '=' || result || '=' || ifnull(job, '?'), ',')"
                                         " FROM firings"))
                 .toString(),
             QStringLiteral("old=success=?,A=failed=A-2026/0117,B=stopped=?")); // none given: NULL, as before
    QCOMPARE(scalar(file, QStringLiteral("SELECT text FROM failures")).toString(), QStringLiteral("12"));
    QCOMPARE(scalar(file, QStringLiteral("SELECT device FROM firings WHERE id = 2")).toString(), QStringLiteral("S1"));
    // Each firing, the old one too, has an id of its own that its record is sent with.
    QCOMPARE(scalar(file, QStringLiteral("SELECT COUNT(DISTINCT uid) FROM firings WHERE length(uid) = 36")).toInt(), 3);

    // Export: one line per firing, quoted where the text needs it, samples beside it.
    QString error;
    QVERIFY(ExportFirings(home.path(), home.path() + QStringLiteral("/out"), &error));
    QFile csv(home.path() + QStringLiteral("/out/firings.csv"));
    QVERIFY(csv.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = csv.readAll().split('\n');
    QCOMPARE(lines.size(), 5); // header, three firings, the last line break
    QVERIFY(lines[2].contains(",failed,23.11.2026 10:05 12,A-2026/0117\r"));
    QVERIFY(QFile::exists(home.path() + QStringLiteral("/out/firing-2-samples.csv")));
    // Quoting and a folder that cannot be made: the command-line test, over a shell.
}

void TestRecords::boundKeepsTheNewest()
{
    QTemporaryDir home;
    const QString file = FiringStore::FileIn(home.path());
    {
        FiringStore store(file, 3);
        for (const char *name : {"1", "2", "3", "4"}) {
            store.Begin(start(QLatin1String(name)));
            store.End(Result::Success, QString(), QString());
        }
    }
    QCOMPARE(scalar(file, QStringLiteral("SELECT group_concat(program, ',') FROM firings")).toString(),
             QStringLiteral("2,3,4"));
}

void TestRecords::historyChartAndReport()
{
    QTemporaryDir home;
    const QString file = FiringStore::FileIn(home.path());
    QVERIFY(FiringHistory(file).List().isEmpty()); // no file: no firings, and none made
    QVERIFY(!QFile::exists(file));
    const ovra::GlobalElements::Program program(QStringLiteral("Lang"), QStringLiteral("Zirkon"),
                                                {{10, 1000, 30}, {5, 1500, 60}}, QStringLiteral("user"), false);
    {
        FiringStore store(file);
        store.Begin(start(QStringLiteral("kurz")));
        store.End(Result::Stopped, QString(), QString());
        FiringStart ten = start(QStringLiteral("Lang"));
        ten.heatfileText = ovra::GlobalElements::HeatfileText::Write(program);
        store.Begin(ten);
        // Ten hours at one report a second with one short overshoot in the middle.
        QElapsedTimer clock;
        clock.start();
        for (int s = 0; s < 36000; ++s)
            store.AddSample(s, s == 20000 ? 1600.0 : 20.0 + s % 1400);
        const double perReportMs = clock.nsecsElapsed() / 1e6 / 36000;
        qDebug() << "per report" << perReportMs << "ms";
        QVERIFY(perReportMs < 0.2);
        store.AddFailure(QStringLiteral("23.11.2026 15:00"), QStringLiteral("E201"));
        store.End(Result::Success, QStringLiteral("23.11.2026"), QStringLiteral("20:00"));
    }
    qDebug() << "file" << QFileInfo(file).size() << "bytes";
    QVERIFY(QFileInfo(file).size() < 2 * 1024 * 1024);
    const FiringHistory history(file);
    const QList<FiringSummary> list = history.List();
    QCOMPARE(list.size(), 2);
    QCOMPARE(list[0].program + list[0].result + FiringChart::DurationText(list[0].seconds),
             QStringLiteral("Langsuccess9:59 h")); // newest first, last sample at 35,999 s
    QCOMPARE(list[1].result + FiringChart::DurationText(list[1].seconds), QStringLiteral("stopped0:00 h"));

    QElapsedTimer clock;
    clock.start();
    FiringRecord record;
    QVERIFY(!history.Load(99, &record));
    QVERIFY(history.Load(list[0].id, &record));
    const FiringChart::Series series = FiringChart::Build(record, false, 1200);
    qDebug() << "10 h record loaded and reduced in" << clock.elapsed() << "ms";
    QCOMPARE(record.samples.size(), 36000);
    QCOMPARE(record.failures.value(0).second, QStringLiteral("E201"));
    QVERIFY(series.measured.size() <= 1200);
    QVERIFY(std::any_of(series.measured.begin(), series.measured.end(), [](QPointF p) { return p.y() == 1600.0; }));
    // Planned from the first sample (20 °C): 98 min up, 30 held, 100 min up, 60 held.
    QCOMPARE(series.planned.last(), QPointF(288 * 60, 1500));
    QCOMPARE(series.ticks.size(), 6); // 0:00 to 10:00 every two hours
    QCOMPARE(series.ticks.last().text, QStringLiteral("10:00"));
    QCOMPARE(FiringChart::TimeTicks(0).last().text, QStringLiteral("0:05"));

    // Pre-dry heats to 130 °C at 10 °C/min first; a zero rate is a step, a fall takes its time.
    const FiringChart::Points planned = FiringChart::PlannedProfile({{0, 500, 0}, {5, 400, 2}}, 30, 10);
    QCOMPARE(planned, (FiringChart::Points{{0, 30}, {600, 130}, {1200, 130}, {1200, 500}, {2400, 400}, {2520, 400}}));

    // The export with reports: one PDF page per firing beside its samples.
    QString error;
    const QString out = home.path() + QStringLiteral("/out");
    QVERIFY(ExportFirings(home.path(), out, &error, true, FiringReport::Writer({}, false)));
    for (const FiringSummary &firing : list) {
        QFile pdf(QStringLiteral("%1/firing-%2.pdf").arg(out).arg(firing.id));
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        const QByteArray bytes = pdf.readAll();
        qDebug() << pdf.fileName() << bytes.size() << "bytes";
        QVERIFY(bytes.startsWith("%PDF") && bytes.endsWith("%%EOF\n"));
        QCOMPARE(bytes.count("/Type /Page\n") + bytes.count("/Type /Page "), 1);
    }
    QVERIFY(!FiringReport::Write(record, {}, false, QStringLiteral("/proc/version/x.pdf"), &error));
}

int main(int argc, char *argv[])
{
    QGuiApplication app(argc, argv);
    const QString childFile = qEnvironmentVariable("OVRA_RECORDS_CHILD");
    if (!childFile.isEmpty()) {
        FiringStore store(childFile);
        store.Begin(start(QStringLiteral("killed")));
        for (int s = 0;; ++s) {
            store.AddSample(s, 20.0 + s);
            if (s == FiringStore::batchSamples + 5) {
                std::fputs("recording\n", stdout);
                std::fflush(stdout);
            }
            QThread::msleep(1);
        }
    }
    TestRecords test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_records.moc"
