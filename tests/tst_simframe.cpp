// The controller simulator as the panel's tests and the demo use it: its frame code against
// hand-computed values, its heatfile reader, its arguments and its link. What it says in a
// session, and that it writes each end byte apart, is proven by the end-to-end tests against
// the real panel.

#include "heatfile.h"
#include "sampleprograms.h"
#include "simframe.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

using Fields = QList<QByteArray>;

QByteArray withChecksum(const QByteArray &body)
{
    return body + "$$" + simframe::checksumField(simframe::splitFields(body));
}

} // namespace

class TestSimFrame : public QObject
{
    Q_OBJECT

private slots:
    void checksum_data();
    void checksum();
    void framesAndAnswers();
    void heatfileTexts_data();
    void heatfileTexts();
    void linkOverAStaleOneAndGoneAfterTheRun();
    void rejectsBadArguments_data();
    void rejectsBadArguments();
};

void TestSimFrame::checksum_data()
{
    QTest::addColumn<QByteArray>("body");     // body fields joined by "$$"
    QTest::addColumn<QByteArray>("built");    // the checksum field the simulator makes for it
    QTest::addColumn<QByteArray>("received"); // a checksum field as it may come in
    QTest::addColumn<bool>("valid");
    // A right "ack" is framesAndAnswers' first line; frames of several fields are the soak
    // run's, which the panel must acknowledge.

    QTest::newRow("positive") << QByteArray("ack") << QByteArray("-47") << QByteArray("47") << false;
    // Only the sum modulo 256 is negated; the raw sum does not check.
    QTest::newRow("unreduced sum") << QByteArray("ack") << QByteArray("-47") << QByteArray("-303") << false;
    // A sum that is a multiple of 256 goes out as a plain 0.
    QTest::newRow("multiple of 256") << QByteArray("@@@@@@@@") << QByteArray("0") << QByteArray("0") << true;
    // A checksum that is no number reads as 0, right only for such a sum.
    QTest::newRow("non-number on zero sum") << QByteArray("@@@@") << QByteArray("0") << QByteArray("abc") << true;
    QTest::newRow("non-number") << QByteArray("ack") << QByteArray("-47") << QByteArray("abc") << false;
    // Bytes above 0x7f count unsigned: 195 + 188 = 383 -> 127.
    QTest::newRow("high bytes") << QByteArray("\xc3\xbc") << QByteArray("-127") << QByteArray("-127") << true;
}

void TestSimFrame::checksum()
{
    QFETCH(QByteArray, body);
    QFETCH(QByteArray, built);
    QFETCH(QByteArray, received);
    QFETCH(bool, valid);
    const Fields fields = simframe::splitFields(body);
    QCOMPARE(simframe::checksumField(fields), built);
    QCOMPARE(simframe::checksumMatches(fields + Fields{received}), valid);
}

void TestSimFrame::framesAndAnswers()
{
    QCOMPARE(simframe::buildFrame({"ack"}), QByteArray("\002ack$$-47\003"));
    // Out of a stream: noise and a frame cut off by a new start byte are dropped.
    QByteArray buffer("noise\003\002ack$$gui"
                      "\002ack$$-47\003\002nack$$-",
                      -1);
    QCOMPARE(simframe::takeFrames(buffer), Fields{"ack$$-47"});
    buffer += "50\x03";
    QCOMPARE(simframe::takeFrames(buffer), Fields{"nack$$-50"});

    const simframe::Answer nack = simframe::parseAnswer(withChecksum("nack$$guistate==1$$hfresend"));
    QVERIFY(nack.valid && nack.nack);
    QCOMPARE(nack.requests, (Fields{"guistate==1", "hfresend"}));
    // Only "ack" or "nack" with a right checksum is an answer.
    for (const QByteArray &content :
         {QByteArray("ack"), QByteArray("ack$$guistate==1$$-1"), withChecksum("temp==295"), withChecksum("ACK")})
        QVERIFY2(!simframe::parseAnswer(content).valid, content.constData());
    // Heatfile texts carry single "=": only the first "==" separates.
    QCOMPARE(simframe::splitCommand("heatfile==[metainfo];name=A;"),
             (std::pair<QByteArray, QByteArray>{"heatfile", "[metainfo];name=A;"}));
}

void TestSimFrame::heatfileTexts_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected"); // the first segment as rate/°C/minutes, or why it is refused (no "/")

    // Kelvin and seconds on the line, argon after every hold of an argon program.
    QTest::newRow("argon") << QByteArray(
                                  "[metainfo];name=Ti Sinter 2;manufacturer=Metallix;material=Argon;favorite=true;"
                                  "[1];rate=20;temp=1073;hold=600;argon=on;[2];rate=5;temp=1623;hold=0;argon=on;")
                           << QStringLiteral("20/800/10");
    // Everything the simulator hands over must read back.
    for (const heatfile::Program &program : sampleprograms::programs()) {
        const heatfile::Segment &first = program.segments.first();
        QTest::newRow(qPrintable(program.name))
            << heatfile::text(program)
            << QStringLiteral("%1/%2/%3").arg(first.rate).arg(first.tempCelsius).arg(first.holdMinutes);
    }

    const QByteArray head = "[metainfo];name=P;manufacturer=user;material=Zirkon;favorite=false;";
    const QByteArray segment = "[1];rate=10;temp=1273;hold=600;";
    QTest::newRow("last element open") << QByteArray(head + segment).chopped(1) << QStringLiteral("not closed");
    QTest::newRow("file name") << QByteArray(QByteArray(head).replace("name=P", "name=P.hf") + segment)
                               << QStringLiteral("contains \".\"");
    QTest::newRow("celsius sent") << QByteArray(head + "[1];rate=10;temp=100;hold=600;")
                                  << QStringLiteral("temp=100 is below 273");
    QTest::newRow("minutes sent") << QByteArray(head + "[1];rate=10;temp=1273;hold=90;")
                                  << QStringLiteral("hold=90 is not whole minutes");
    QTest::newRow("segment skipped") << QByteArray(head + segment + QByteArray(segment).replace("[1]", "[3]"))
                                     << QStringLiteral("expected [2], found [3]");
    QTest::newRow("argon missing") << QByteArray(QByteArray(head).replace("Zirkon", "Argon") + segment +
                                                 "[2];rate=1;temp=300;hold=0;argon=on;")
                                   << QStringLiteral("expected argon=on, found [2]");
}

void TestSimFrame::heatfileTexts()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, expected);
    const heatfile::Program untouched{QStringLiteral("keep"), QStringLiteral("user"), QString(), true, {{1, 2, 3}}};
    heatfile::Program program = untouched;
    QString error;
    const bool read = heatfile::parse(text, &program, &error);
    if (!expected.contains(QLatin1Char('/'))) { // a reason, not a segment
        QVERIFY(!read);
        QVERIFY2(error.contains(expected), qPrintable(error));
        QVERIFY(program == untouched);
        return;
    }
    QVERIFY2(read, qPrintable(error));
    const heatfile::Segment &first = program.segments.first();
    QCOMPARE(QStringLiteral("%1/%2/%3").arg(first.rate).arg(first.tempCelsius).arg(first.holdMinutes), expected);
    QCOMPARE(heatfile::text(program), text);
}

void TestSimFrame::linkOverAStaleOneAndGoneAfterTheRun()
{
    // Linked as the demo does it, over a link a killed run left behind.
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString link = dir.filePath(QStringLiteral("ttyHX3"));
    QVERIFY(QFile::link(QStringLiteral("/nonexistent/pts"), link));
    QProcess sim;
    sim.start(QStringLiteral(HX3SIM_BINARY), {QStringLiteral("--link"), link});
    QString slave;
    while (slave.isEmpty() && sim.waitForReadyRead(10000)) {
        while (sim.canReadLine()) {
            const QString line = QString::fromUtf8(sim.readLine()).trimmed();
            // Printed once the simulator runs, its stop signal handled.
            if (line.startsWith(QLatin1String("waiting for panel on ")))
                slave = line.mid(21);
        }
    }
    QVERIFY(!slave.isEmpty());
    QCOMPARE(QFileInfo(link).symLinkTarget(), slave);

    // Stopped the way the demo stops it: the summary still comes, and the link goes.
    sim.terminate();
    QVERIFY(sim.waitForFinished(10000));
    QCOMPARE(sim.exitStatus(), QProcess::NormalExit);
    QCOMPARE(sim.exitCode(), 0);
    QVERIFY(sim.readAllStandardOutput().contains("summary: "));
    QVERIFY(!QFileInfo(link).isSymLink());
}

void TestSimFrame::rejectsBadArguments_data()
{
    QTest::addColumn<QString>("arguments"); // separated by blanks
    QTest::newRow("unknown option") << "--baud 9600";
    QTest::newRow("interval zero") << "--interval 0";
    QTest::newRow("speed text") << "--speed fast";
    QTest::newRow("unknown self-test row") << "--selftest-fail oven";
    QTest::newRow("missing program file") << "--programs /nonexistent/programs.txt";
}

void TestSimFrame::rejectsBadArguments()
{
    QFETCH(QString, arguments);
    QProcess process;
    process.start(QStringLiteral(HX3SIM_BINARY), arguments.split(QLatin1Char(' ')));
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 2);
    QVERIFY(!process.readAllStandardError().isEmpty());
    // Nothing may be set up before the arguments are known to be good.
    QVERIFY(process.readAllStandardOutput().isEmpty());
}

QTEST_GUILESS_MAIN(TestSimFrame)
#include "tst_simframe.moc"
