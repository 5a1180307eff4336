// The unpacking script the panel carries, run as the panel runs it, in a home of its own.
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

using Entries = QList<QPair<QString, QByteArray>>;
Q_DECLARE_METATYPE(Entries)

namespace {

QString python()
{
    const QString system = QStandardPaths::findExecutable(QStringLiteral("python3"), {QStringLiteral("/usr/bin")});
    return system.isEmpty() ? QStandardPaths::findExecutable(QStringLiteral("python3")) : system;
}

bool writeFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

// Entry names are taken as they are, "../x" and "/x" included.
bool makeZip(const QString &zipPath, const Entries &entries)
{
    QTemporaryDir staging;
    QStringList args = {QStringLiteral("-c"),
                        QStringLiteral("import sys, zipfile\n"
                                       "z = zipfile.ZipFile(sys.argv[1], 'w', zipfile.ZIP_DEFLATED)\n"
                                       "for name, src in zip(sys.argv[2::2], sys.argv[3::2]):\n"
                                       "    z.writestr(name, open(src, 'rb').read())\n"
                                       "z.close()\n"),
                        zipPath};
    for (int i = 0; i < entries.size(); ++i) {
        const QString source = staging.filePath(QString::number(i));
        if (!writeFile(source, entries.at(i).second))
            return false;
        args << entries.at(i).first << source;
    }
    return QProcess::execute(python(), args) == 0;
}

// Every file below `root` with its content, paths relative to it.
QMap<QString, QByteArray> snapshot(const QString &root)
{
    QMap<QString, QByteArray> files;
    QDirIterator it(root, QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        files.insert(QDir(root).relativeFilePath(path), readFile(path));
    }
    return files;
}

} // namespace

class TestUpdateScript : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void updateReplacesProgramAndTranslations();
    void refusedArchivesRestoreTheOldFolders_data();
    void refusedArchivesRestoreTheOldFolders();
    void missingReceivedFileChangesNothing();

private:
    // Runs the script from <home>/Downloads; returns what it printed.
    QByteArray run();

    QScopedPointer<QTemporaryDir> m_root;
    QString m_downloads;
    QString m_rebootMarker;
};

void TestUpdateScript::init()
{
    QVERIFY2(!python().isEmpty(), "python3 is needed");
    m_root.reset(new QTemporaryDir);
    m_downloads = m_root->filePath(QStringLiteral("home/Downloads"));
    m_rebootMarker = m_root->filePath(QStringLiteral("home/rebooted"));
    QVERIFY(QDir().mkpath(m_downloads));
    QVERIFY(QFile::copy(QStringLiteral(OVRA_SOURCE_DIR "/resources/scripts/decode_and_unzip_lin.py"),
                        m_downloads + QStringLiteral("/decode_and_unzip_lin.py")));
    QVERIFY(writeFile(m_downloads + QStringLiteral("/build/ovra-panel"), "old program"));
    QVERIFY(writeFile(m_downloads + QStringLiteral("/translations/ovra_en.qm"), "old translation"));
    QVERIFY(writeFile(m_root->filePath(QStringLiteral("outside/keep.txt")), "not to be touched"));
}

QByteArray TestUpdateScript::run()
{
    QProcess script;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    // A harmless stand-in for the reboot that leaves a trace in the home.
    env.insert(QStringLiteral("OVRA_REBOOT_COMMAND"), QStringLiteral("touch '%1'").arg(m_rebootMarker));
    script.setProcessEnvironment(env);
    script.setWorkingDirectory(m_root->path());
    script.start(python(), {m_downloads + QStringLiteral("/decode_and_unzip_lin.py")});
    if (!script.waitForFinished(30000))
        return "<timeout>";
    return script.readAllStandardOutput();
}

void TestUpdateScript::updateReplacesProgramAndTranslations()
{
    QByteArray program(300 * 1024, Qt::Uninitialized);
    for (int i = 0; i < program.size(); ++i)
        program[i] = char((i * 2654435761u) >> 13);
    QVERIFY(makeZip(m_downloads + QStringLiteral("/outfile.txt"),
                    {{QStringLiteral("build/ovra-panel"), program},
                     {QStringLiteral("build/lib/"), QByteArray()},
                     {QStringLiteral("translations/ovra_de.qm"), "neu"}}));
    const auto outside = snapshot(m_root->filePath(QStringLiteral("outside")));

    QCOMPARE(run(), QByteArray("0\n"));
    QCOMPARE(readFile(m_downloads + QStringLiteral("/build/ovra-panel")), program);
    QCOMPARE(readFile(m_downloads + QStringLiteral("/translations/ovra_de.qm")), QByteArray("neu"));
    // The old copies, the archive and the received file are gone; nothing else is left.
    QCOMPARE(QDir(m_downloads).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             (QStringList{"build", "decode_and_unzip_lin.py", "translations"}));
    QCOMPARE(QDir(m_downloads + QStringLiteral("/translations")).entryList(QDir::Files), QStringList{"ovra_de.qm"});
    QVERIFY(QFile::exists(m_rebootMarker));
    QCOMPARE(snapshot(m_root->filePath(QStringLiteral("outside"))), outside);
}

void TestUpdateScript::refusedArchivesRestoreTheOldFolders_data()
{
    QTest::addColumn<Entries>("entries");
    QTest::addColumn<QByteArray>("raw"); // used instead of a zip when set
    const Entries good = {{QStringLiteral("build/ovra-panel"), "new"}};
    QTest::newRow("parent entry") << Entries{good.first(), {QStringLiteral("../../outside/evil.txt"), "x"}}
                                  << QByteArray();
    QTest::newRow("inner parent entry") << Entries{{QStringLiteral("build/../../evil.txt"), "x"}} << QByteArray();
    QTest::newRow("absolute entry") << Entries{good.first(), {m_root->filePath(QStringLiteral("outside/evil.txt")), "x"}}
                                    << QByteArray();
    QTest::newRow("not a zip") << Entries{} << QByteArray("PK\x03\x04 this is no archive");
}

void TestUpdateScript::refusedArchivesRestoreTheOldFolders()
{
    QFETCH(Entries, entries);
    QFETCH(QByteArray, raw);
    const QString received = m_downloads + QStringLiteral("/outfile.txt");
    QVERIFY(raw.isEmpty() ? makeZip(received, entries) : writeFile(received, raw));
    const auto outside = snapshot(m_root->filePath(QStringLiteral("outside")));

    QCOMPARE(run(), QByteArray("3\n"));
    QCOMPARE(readFile(m_downloads + QStringLiteral("/build/ovra-panel")), QByteArray("old program"));
    QCOMPARE(readFile(m_downloads + QStringLiteral("/translations/ovra_en.qm")), QByteArray("old translation"));
    QCOMPARE(QDir(m_downloads).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             (QStringList{"build", "build.zip", "decode_and_unzip_lin.py", "translations"}));
    QVERIFY(!QFile::exists(m_rebootMarker));
    QCOMPARE(snapshot(m_root->filePath(QStringLiteral("outside"))), outside);
    QVERIFY(!QFile::exists(m_root->filePath(QStringLiteral("evil.txt"))));
    QVERIFY(!QFile::exists(m_root->filePath(QStringLiteral("home/evil.txt"))));
}

void TestUpdateScript::missingReceivedFileChangesNothing()
{
    const auto before = snapshot(m_root->path());
    QCOMPARE(run(), QByteArray("1\n"));
    QCOMPARE(snapshot(m_root->path()), before);
}

QTEST_GUILESS_MAIN(TestUpdateScript)
#include "tst_updatescript.moc"
