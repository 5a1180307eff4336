// Rotating log files: naming, trimming of the folder, rotation past the size limit.
#include "app/logutils.h"
#include "updatefiles.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

namespace logs = ovra::GlobalElements;

class TestLogUtils : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void fiveOldFilesAreKeptBesideTheNewOne();
    void ninePlusFilesKeepTheFiveNewest();
    void messageIsWrittenVerbatim();
    void rotatesOnlyPastTheLimit();
    void folderThatCannotBeMadeLeavesDefaultHandler();

private:
    void makeFile(const QString &name, int ageSeconds, qint64 size = 10);

    QScopedPointer<QTemporaryDir> m_root;
    QString m_previousDir;
};

void TestLogUtils::init()
{
    m_root.reset(new QTemporaryDir);
    QVERIFY(m_root->isValid());
    QVERIFY(QDir(m_root->path()).mkdir(QStringLiteral("run")));
    m_previousDir = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_root->path() + QStringLiteral("/run")));
    logs::logFileName.clear();
}

void TestLogUtils::cleanup()
{
    qInstallMessageHandler(nullptr);
    QDir::setCurrent(m_previousDir);
    m_root.reset();
}

void TestLogUtils::makeFile(const QString &name, int ageSeconds, qint64 size)
{
    QDir().mkpath(logs::logFolderName);
    QFile file(logs::logFolderName + QLatin1Char('/') + name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(size, 'x'));
    QVERIFY(file.flush()); // a later flush would stamp the file with the current time
    const QDateTime when = QDateTime::currentDateTime().addSecs(-ageSeconds);
    QVERIFY(file.setFileTime(when, QFileDevice::FileModificationTime));
    file.close();
}

void TestLogUtils::fiveOldFilesAreKeptBesideTheNewOne()
{
    for (int i = 0; i < 5; ++i)
        makeFile(QStringLiteral("Log_old_%1.txt").arg(i), 100 + i);
    logs::initLogging();
    QCOMPARE(QDir(logs::logFolderName).entryList(QDir::Files).size(), 6);
    const QRegularExpression pattern(
        QStringLiteral(R"(^\.\./logs/Log_\d{4}_\d{2}_\d{2}__\d{2}_\d{2}_\d{2}_\d{3}\.txt$)"));
    QVERIFY2(pattern.match(logs::logFileName).hasMatch(), qPrintable(logs::logFileName));
}

void TestLogUtils::ninePlusFilesKeepTheFiveNewest()
{
    // Anything in the folder counts, hidden files and non-logs included; links do not.
    const QStringList newest = {QStringLiteral("n1.txt"), QStringLiteral(".hidden"), QStringLiteral("notes.md"),
                                QStringLiteral("n4.txt"), QStringLiteral("n5.txt")};
    for (int i = 0; i < newest.size(); ++i)
        makeFile(newest.at(i), 10 + i);
    for (int i = 0; i < 4; ++i)
        makeFile(QStringLiteral("old%1.txt").arg(i), 1000 + i);
    QVERIFY(QFile::link(QStringLiteral("notes.md"), logs::logFolderName + QStringLiteral("/link")));

    logs::initLogging();

    QStringList expected = newest;
    expected << QStringLiteral("link") << logs::logFileName.section(QLatin1Char('/'), -1);
    expected.sort();
    QCOMPARE(QDir(logs::logFolderName).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name), expected);
}

void TestLogUtils::messageIsWrittenVerbatim()
{
    logs::initLogging();
    qDebug() << "received data: " << QByteArray("\002ack\003");
    qWarning("second line");
    // qDebug's own quoting: a hex escape followed by a hex digit closes and reopens the quotes.
    QCOMPARE(UpdateFiles::Read(logs::logFileName), QByteArray(R"(received data:  "\x02""ack\x03")"
                                                              "\nsecond line\n"));
}

void TestLogUtils::rotatesOnlyPastTheLimit()
{
    const QString first = logs::logFolderName + QStringLiteral("/Log_2000_01_01__00_00_00_000.txt");
    QVERIFY(UpdateFiles::Write(first, QByteArray(logs::logFileMaxBytes, 'x')));
    logs::logFileName = first;
    const QMessageLogContext context;

    // Exactly at the limit: still the same file.
    logs::myMessageHandler(QtDebugMsg, context, QStringLiteral("at the limit"));
    QCOMPARE(logs::logFileName, first);
    QCOMPARE(QFileInfo(first).size(), logs::logFileMaxBytes + 13);

    // Now beyond it: this message begins a new file named by its own time.
    logs::myMessageHandler(QtDebugMsg, context, QStringLiteral("past the limit"));
    QVERIFY(logs::logFileName != first);
    QCOMPARE(UpdateFiles::Read(logs::logFileName), QByteArray("past the limit\n"));
    QCOMPARE(QFileInfo(first).size(), logs::logFileMaxBytes + 13);
}

void TestLogUtils::folderThatCannotBeMadeLeavesDefaultHandler()
{
    // A plain file where the folder should be: neither mkdir nor the open can succeed.
    QFile blocker(QStringLiteral("../logs"));
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    blocker.close();

    logs::initLogging();
    const QtMessageHandler installed = qInstallMessageHandler(nullptr);
    QVERIFY(installed != &logs::myMessageHandler);
}

QTEST_GUILESS_MAIN(TestLogUtils)
#include "tst_logutils.moc"
