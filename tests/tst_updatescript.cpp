// The unpacking script the panel carries, run as the panel runs it, in a home of its own.
// Its successful run is part of the whole update against the simulator (tst_updatesim).
#include "updatefiles.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using Entries = QList<QPair<QString, QByteArray>>;
Q_DECLARE_METATYPE(Entries)

namespace {
QString absoluteTarget()
{
    return QDir::temp().filePath(QStringLiteral("ovra-zip-slip-%1.txt").arg(QCoreApplication::applicationPid()));
}
} // namespace

class TestUpdateScript : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void refusedArchivesRestoreTheOldFolders_data();
    void refusedArchivesRestoreTheOldFolders();
    void missingReceivedFileChangesNothing();

private:
    // Runs the script from <home>/Downloads; returns what it printed.
    QByteArray run();

    QScopedPointer<QTemporaryDir> m_root;
    QString m_downloads;
};

void TestUpdateScript::init()
{
    QVERIFY2(!UpdateFiles::Python().isEmpty(), "python3 is needed");
    m_root.reset(new QTemporaryDir);
    m_downloads = m_root->filePath(QStringLiteral("home/Downloads"));
    QVERIFY(UpdateFiles::MakeHome(m_root->filePath(QStringLiteral("home"))));
    QVERIFY(UpdateFiles::Write(m_root->filePath(QStringLiteral("outside/keep.txt")), "not to be touched"));
}

QByteArray TestUpdateScript::run()
{
    QProcess script;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    // A harmless stand-in for the reboot that leaves a trace.
    env.insert(QStringLiteral("OVRA_REBOOT_COMMAND"),
               QStringLiteral("touch '%1'").arg(m_root->filePath(QStringLiteral("home/rebooted"))));
    script.setProcessEnvironment(env);
    script.start(UpdateFiles::Python(), {m_downloads + QStringLiteral("/decode_and_unzip_lin.py")});
    return script.waitForFinished(30000) ? script.readAllStandardOutput() : QByteArray("<timeout>");
}

void TestUpdateScript::refusedArchivesRestoreTheOldFolders_data()
{
    QTest::addColumn<Entries>("entries");
    QTest::addColumn<QByteArray>("raw"); // written instead of a zip when set
    const QPair<QString, QByteArray> good = {QStringLiteral("build/ovra-panel"), "new"};
    QTest::newRow("parent entry") << Entries{good, {"../../outside/evil.txt", "x"}} << QByteArray();
    QTest::newRow("inner parent entry") << Entries{{"build/../../evil.txt", "x"}} << QByteArray();
    QTest::newRow("absolute entry") << Entries{good, {absoluteTarget(), "x"}} << QByteArray();
    QTest::newRow("no program") << Entries{{"build/lib.so", "x"}, {"translations/ovra_de.qm", "x"}} << QByteArray();
    QTest::newRow("no translations") << Entries{good} << QByteArray();
    QTest::newRow("not a zip") << Entries{} << QByteArray("PK\x03\x04 this is no archive");
}

void TestUpdateScript::refusedArchivesRestoreTheOldFolders()
{
    QFETCH(Entries, entries);
    QFETCH(QByteArray, raw);
    const QString received = m_downloads + QStringLiteral("/outfile.txt");
    QVERIFY(raw.isEmpty() ? UpdateFiles::MakeZip(received, entries) : UpdateFiles::Write(received, raw));
    const auto outside = UpdateFiles::Snapshot(m_root->filePath(QStringLiteral("outside")));

    QCOMPARE(run(), QByteArray("3\n"));
    QCOMPARE(UpdateFiles::Read(m_downloads + QStringLiteral("/build/ovra-panel")), QByteArray("old program"));
    QCOMPARE(UpdateFiles::Read(m_downloads + QStringLiteral("/translations/ovra_en.qm")),
             QByteArray("old translation"));
    QCOMPARE(QDir(m_downloads).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             (QStringList{"build", "build.zip", "decode_and_unzip_lin.py", "translations"}));
    QCOMPARE(QDir(m_root->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), (QStringList{"home", "outside"}));
    QCOMPARE(UpdateFiles::Snapshot(m_root->filePath(QStringLiteral("outside"))), outside);
    QVERIFY(!QFile::exists(m_root->filePath(QStringLiteral("home/evil.txt"))));
    QVERIFY(!QFile::exists(absoluteTarget()));
    QVERIFY(!QFile::exists(m_root->filePath(QStringLiteral("home/rebooted"))));
}

void TestUpdateScript::missingReceivedFileChangesNothing()
{
    const auto before = UpdateFiles::Snapshot(m_root->path());
    QCOMPARE(run(), QByteArray("1\n"));
    QCOMPARE(UpdateFiles::Snapshot(m_root->path()), before);
}

QTEST_GUILESS_MAIN(TestUpdateScript)
#include "tst_updatescript.moc"
