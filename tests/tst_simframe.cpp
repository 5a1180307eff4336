// The controller simulator: its frame functions against hand-computed values, its sample
// programs against the heatfile rules, and the real program against a small fake panel.

#include "sampleprograms.h"
#include "simframe.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QSocketNotifier>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <cerrno>
#include <functional>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace {

using Fields = QList<QByteArray>;

QByteArray withChecksum(const QByteArray &body)
{
    return body + "$$" + simframe::checksumField(simframe::splitFields(body));
}

// The panel side of the line, reduced to what the simulator must get right: it opens the slave
// like any serial port, dispatches a frame only when a read brings the end byte without a start
// byte, and answers through a script.
class FakePanel : public QObject
{
    Q_OBJECT

public:
    ~FakePanel() override
    {
        delete m_notifier;
        if (m_fd >= 0)
            ::close(m_fd);
    }

    bool open(const QString &path)
    {
        m_fd = ::open(QFile::encodeName(path).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
        if (m_fd < 0)
            return false;
        termios tio{};
        if (::tcgetattr(m_fd, &tio) != 0)
            return false;
        cfmakeraw(&tio);
        if (::tcsetattr(m_fd, TCSANOW, &tio) != 0)
            return false;
        m_notifier = new QSocketNotifier(m_fd, QSocketNotifier::Read, this);
        connect(m_notifier, &QSocketNotifier::activated, this, &FakePanel::readChunks);
        return true;
    }

    // Given the body fields of a dispatched frame, the answer content to send (empty: silence).
    std::function<QByteArray(const Fields &)> script;

    QList<Fields> bodies;       // dispatched frames, checksum field removed
    int badChecksums = 0;       // frames from the simulator that failed the check
    int joinedChunks = 0;       // reads that brought start and end byte together
    int validAnswers = 0;
    int writeErrors = 0;

    int countOf(const QByteArray &keyword) const
    {
        int n = 0;
        for (const Fields &body : bodies)
            n += simframe::splitCommand(body.first()).first == keyword ? 1 : 0;
        return n;
    }

private:
    void readChunks()
    {
        char chunk[4096];
        for (;;) {
            const ssize_t n = ::read(m_fd, chunk, sizeof(chunk));
            if (n < 0 && errno == EAGAIN)
                return;
            if (n <= 0) {
                m_notifier->setEnabled(false);  // the simulator is gone
                return;
            }
            onChunk(QByteArray(chunk, static_cast<int>(n)));
        }
    }

    void onChunk(const QByteArray &chunk)
    {
        const int stx = chunk.indexOf(simframe::kStx);
        const int etx = chunk.indexOf(simframe::kEtx);
        if (stx >= 0 && etx >= 0) {
            ++joinedChunks;
            m_buffer.clear();
            return;
        }
        if (stx >= 0) {
            m_buffer = chunk.mid(stx + 1);
            return;
        }
        if (etx < 0) {
            m_buffer += chunk;
            return;
        }
        m_buffer += chunk.left(etx);
        Fields fields = simframe::splitFields(m_buffer);
        m_buffer.clear();
        if (!simframe::checksumMatches(fields) || fields.size() < 2) {
            ++badChecksums;
            return;
        }
        fields.removeLast();
        bodies.append(fields);
        const QByteArray answer = script ? script(fields) : withChecksum("ack");
        if (answer.isEmpty())
            return;
        if (simframe::checksumMatches(simframe::splitFields(answer)))
            ++validAnswers;
        const QByteArray frame = simframe::kStx + answer + simframe::kEtx;
        if (::write(m_fd, frame.constData(), static_cast<size_t>(frame.size())) != frame.size())
            ++writeErrors;
    }

    int m_fd = -1;
    QSocketNotifier *m_notifier = nullptr;
    QByteArray m_buffer;
};

// The simulator as a child process, its stdout collected line by line.
class SimProcess : public QObject
{
    Q_OBJECT

public:
    explicit SimProcess(const QStringList &arguments)
    {
        connect(&process, &QProcess::readyReadStandardOutput, this, [this] {
            m_partial += process.readAllStandardOutput();
            for (int end = m_partial.indexOf('\n'); end >= 0; end = m_partial.indexOf('\n')) {
                lines.append(QString::fromUtf8(m_partial.left(end)));
                m_partial.remove(0, end + 1);
            }
            emit progressed();
        });
        connect(&process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this, &SimProcess::progressed);
        process.start(QStringLiteral(HX3SIM_BINARY), arguments);
    }

    ~SimProcess() override
    {
        if (process.state() != QProcess::NotRunning) {
            process.kill();
            process.waitForFinished(5000);
        }
    }

    // Runs the event loop (the fake panel lives on it) until done() holds or time runs out.
    bool waitUntil(const std::function<bool()> &done, int timeoutMs = 10000)
    {
        QElapsedTimer clock;
        clock.start();
        while (!done()) {
            const qint64 left = timeoutMs - clock.elapsed();
            if (left <= 0)
                return false;
            QEventLoop loop;
            QTimer::singleShot(static_cast<int>(qMin<qint64>(left, 50)), &loop, &QEventLoop::quit);
            connect(this, &SimProcess::progressed, &loop, &QEventLoop::quit);
            loop.exec();
        }
        return true;
    }

    bool waitForLine(const QString &prefix, int timeoutMs = 10000)
    {
        return waitUntil([&] { return !linesStartingWith(prefix).isEmpty(); }, timeoutMs);
    }

    QStringList linesStartingWith(const QString &prefix) const
    {
        QStringList found;
        for (const QString &line : lines) {
            if (line.startsWith(prefix))
                found.append(line);
        }
        return found;
    }

    QString log() const { return lines.join(QLatin1Char('\n')) + QLatin1Char('\n') + QString::fromUtf8(m_partial); }

    QProcess process;
    QStringList lines;

signals:
    void progressed();

private:
    QByteArray m_partial;
};

}  // namespace

class TestSimFrame : public QObject
{
    Q_OBJECT

private slots:
    void checksum_data();
    void checksum();
    void frameLayout();
    void receivedChecksum_data();
    void receivedChecksum();
    void answerParsing();
    void framesFromStream();
    void commandSplitting();
    void printableRaw();
    void samplePrograms();
    void simulatorAgainstFakePanel();
    void rejectsBadArguments_data();
    void rejectsBadArguments();
    void linkIsManaged();
};

void TestSimFrame::checksum_data()
{
    QTest::addColumn<Fields>("body");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("ack") << Fields{"ack"} << QByteArray("-47");
    QTest::newRow("sum exactly 256 gives plain zero") << Fields{"@@@@"} << QByteArray("0");
    QTest::newRow("sum 512") << Fields{"@@@@@@@@"} << QByteArray("0");
    QTest::newRow("empty body") << Fields{} << QByteArray("0");
    // Separators are not summed: two fields must check like their concatenation.
    QTest::newRow("separators not counted") << Fields{"ack", "doorclose"} << simframe::checksumField({"ackdoorclose"});
    // Bytes above 0x7f count as unsigned: C3 BC -> 195 + 188 = 383 -> 127.
    QTest::newRow("high bytes unsigned") << Fields{QByteArray("\xc3\xbc")} << QByteArray("-127");
    QTest::newRow("sum 255") << Fields{QByteArray("\xff")} << QByteArray("-255");
}

void TestSimFrame::checksum()
{
    QFETCH(Fields, body);
    QFETCH(QByteArray, expected);
    QCOMPARE(simframe::checksumField(body), expected);
    // What we build must pass our own receiving check.
    QVERIFY(simframe::checksumMatches(body + Fields{expected}));
}

void TestSimFrame::frameLayout()
{
    QCOMPARE(simframe::buildFrame({"ack"}), QByteArray("\x02" "ack$$-47" "\x03"));
    // "ackdoorclose": 303 + 100+111+111+114+99+108+111+115+101 = 1273 -> 249.
    QCOMPARE(simframe::buildFrame({"ack", "doorclose"}), QByteArray("\x02" "ack$$doorclose$$-249" "\x03"));
    QCOMPARE(simframe::buildContent({"temp==1473", "guistate==3"}),
             QByteArray("temp==1473$$guistate==3$$") + simframe::checksumField({"temp==1473guistate==3"}));
    QCOMPARE(simframe::splitFields("a$$b$$$$c"), (Fields{"a", "b", "", "c"}));
    QCOMPARE(simframe::splitFields("abc"), Fields{"abc"});
}

void TestSimFrame::receivedChecksum_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("valid");

    QTest::newRow("right") << QByteArray("ack$$-47") << true;
    QTest::newRow("off by one") << QByteArray("ack$$-46") << false;
    QTest::newRow("positive") << QByteArray("ack$$47") << false;
    // Only the sum modulo 256 is negated; the raw sum does not check.
    QTest::newRow("unreduced sum") << QByteArray("ack$$-303") << false;
    QTest::newRow("zero sum") << QByteArray("@@@@$$0") << true;
    // A checksum field that is no number reads as 0.
    QTest::newRow("non-number on zero sum") << QByteArray("@@@@$$abc") << true;
    QTest::newRow("non-number") << QByteArray("ack$$abc") << false;
    QTest::newRow("empty checksum") << QByteArray("ack$$") << false;
    QTest::newRow("hex") << QByteArray("ack$$-2f") << false;
    QTest::newRow("huge") << QByteArray("ack$$-99999999999999999999999") << false;
}

void TestSimFrame::receivedChecksum()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, valid);
    QCOMPARE(simframe::checksumMatches(simframe::splitFields(content)), valid);
}

void TestSimFrame::answerParsing()
{
    // No separator means no checksum field, whatever the single field holds.
    for (const QByteArray &content : {QByteArray("ack"), QByteArray("0"), QByteArray()})
        QVERIFY2(!simframe::parseAnswer(content).valid, content.constData());

    const simframe::Answer plain = simframe::parseAnswer("ack$$-47");
    QVERIFY(plain.valid);
    QVERIFY(!plain.nack);
    QVERIFY(plain.requests.isEmpty());

    const simframe::Answer withRequests = simframe::parseAnswer(withChecksum("ack$$guistate==1$$lang==deutsch"));
    QVERIFY(withRequests.valid);
    QCOMPARE(withRequests.requests, (Fields{"guistate==1", "lang==deutsch"}));

    const simframe::Answer nack = simframe::parseAnswer(withChecksum("nack$$hfresend"));
    QVERIFY(nack.valid);
    QVERIFY(nack.nack);
    QCOMPARE(nack.requests, Fields{"hfresend"});

    QVERIFY(!simframe::parseAnswer("ack$$guistate==1$$-1").valid);
    // The panel only ever answers; anything else with a good checksum is still no answer.
    QVERIFY(!simframe::parseAnswer(withChecksum("temp==295")).valid);
    QVERIFY(!simframe::parseAnswer(withChecksum("ACK")).valid);
}

void TestSimFrame::framesFromStream()
{
    QByteArray buffer("noise\x03" "\x02" "ack$$-47\x03" "\x02" "nack$$-", -1);
    QCOMPARE(simframe::takeFrames(buffer), Fields{"ack$$-47"});
    QCOMPARE(buffer, QByteArray("\x02" "nack$$-"));

    buffer += "50\x03\x02" "ack$$-47\x03";
    QCOMPARE(simframe::takeFrames(buffer), (Fields{"nack$$-50", "ack$$-47"}));
    QVERIFY(buffer.isEmpty());

    // A frame cut off by a new start byte can never complete; the new one wins.
    buffer = QByteArray("\x02" "ack$$gui\x02" "ack$$-47\x03");
    QCOMPARE(simframe::takeFrames(buffer), Fields{"ack$$-47"});

    buffer = QByteArray("stray bytes\x03\x03");
    QVERIFY(simframe::takeFrames(buffer).isEmpty());
    QVERIFY(buffer.isEmpty());
}

void TestSimFrame::commandSplitting()
{
    using Pair = std::pair<QByteArray, QByteArray>;
    QCOMPARE(simframe::splitCommand("temp==1473"), (Pair{"temp", "1473"}));
    QCOMPARE(simframe::splitCommand("hfresend"), (Pair{"hfresend", ""}));
    // Heatfile texts carry single "=" inside; only the first "==" separates.
    QCOMPARE(simframe::splitCommand("heatfile==[metainfo];name=A;"), (Pair{"heatfile", "[metainfo];name=A;"}));
}

void TestSimFrame::printableRaw()
{
    QCOMPARE(simframe::printable(simframe::buildFrame({"ack"})), QStringLiteral("<STX>ack$$-47<ETX>"));
    QCOMPARE(simframe::printable(QByteArray("a\nb\x1b", 4)), QStringLiteral("a<0A>b<1B>"));
    const QString longSummary = simframe::summary({"heatfile==" + QByteArray(200, 'x')});
    QVERIFY(longSummary.size() < 80);
    QVERIFY(longSummary.startsWith(QLatin1String("heatfile==xxx")));
}

void TestSimFrame::samplePrograms()
{
    const QList<sampleprograms::Program> programs = sampleprograms::programs();
    int user = 0;
    int service = 0;
    int fixed = 0;
    int userFavourites = 0;
    int argon = 0;
    const QRegularExpression forbidden(QStringLiteral("[.;=,]|\\$\\$"));
    const QRegularExpression segmentPattern(QStringLiteral("^\\[(\\d)\\];rate=(\\d+);temp=(\\d+);hold=(\\d+);(argon=on;)?$"));

    for (const sampleprograms::Program &program : programs) {
        QVERIFY2(!forbidden.match(program.name).hasMatch(), qPrintable(program.name));
        QVERIFY(!program.name.isEmpty());
        QVERIFY(program.segments.size() >= 1 && program.segments.size() <= 4);
        if (program.manufacturer == QLatin1String("user")) {
            ++user;
            userFavourites += program.favorite ? 1 : 0;
        } else if (program.manufacturer == QLatin1String("service")) {
            ++service;
        } else {
            ++fixed;
        }

        const QString text = QString::fromUtf8(sampleprograms::heatfileText(program));
        const QString head = QStringLiteral("[metainfo];name=%1;manufacturer=%2;material=%3;favorite=%4;")
                                 .arg(program.name, program.manufacturer, program.material,
                                      QLatin1String(program.favorite ? "true" : "false"));
        QVERIFY2(text.startsWith(head), qPrintable(text));
        QVERIFY(text.endsWith(QLatin1Char(';')));
        QVERIFY(!text.contains(QLatin1String("$$")));

        // Cut the rest into segments at each "[n]" and check every value against the program.
        const QStringList segments = text.mid(head.size()).split(QRegularExpression(QStringLiteral("(?=\\[\\d\\])")), Qt::SkipEmptyParts);
        QCOMPARE(segments.size(), program.segments.size());
        const bool wantsArgon = program.material == QLatin1String("Argon");
        argon += wantsArgon ? 1 : 0;
        for (int i = 0; i < segments.size(); ++i) {
            const QRegularExpressionMatch m = segmentPattern.match(segments.at(i));
            QVERIFY2(m.hasMatch(), qPrintable(segments.at(i)));
            const sampleprograms::Segment &segment = program.segments.at(i);
            QCOMPARE(m.captured(1).toInt(), i + 1);
            QCOMPARE(m.captured(2).toInt(), segment.rate);
            QCOMPARE(m.captured(3).toInt(), segment.tempCelsius + 273);
            QCOMPARE(m.captured(4).toInt(), segment.holdMinutes * 60);
            QCOMPARE(m.capturedLength(5) > 0, wantsArgon);
            QVERIFY(segment.rate >= 5 && segment.rate <= 50);
            QVERIFY(segment.tempCelsius >= 600 && segment.tempCelsius <= 1550);
            QVERIFY(segment.holdMinutes >= 0 && segment.holdMinutes <= 120);
        }
    }
    QCOMPARE(user, 3);
    QCOMPARE(userFavourites, 1);
    QCOMPARE(service, 2);
    QVERIFY(fixed >= 3);
    QCOMPARE(argon, 1);
}

void TestSimFrame::simulatorAgainstFakePanel()
{
    SimProcess sim({QStringLiteral("--run-for"), QStringLiteral("4"), QStringLiteral("--interval"), QStringLiteral("100")});
    QVERIFY2(sim.waitForLine(QStringLiteral("slave: ")), qPrintable(sim.log()));
    const QString slave = sim.lines.first().mid(7);
    QVERIFY2(sim.lines.first().startsWith(QLatin1String("slave: /dev/pts/")), qPrintable(sim.lines.first()));

    FakePanel panel;
    int statusFrames = 0;
    bool nackSent = false;
    panel.script = [&](const Fields &body) -> QByteArray {
        const QByteArray keyword = simframe::splitCommand(body.first()).first;
        if (keyword == "serialno" && !nackSent) {
            nackSent = true;
            return withChecksum("nack");
        }
        if (keyword == "time") {
            ++statusFrames;
            if (statusFrames == 1)
                return "ack$$-1";
            if (statusFrames == 2)
                return withChecksum("ack$$guistate==5$$hfresend");
        }
        return withChecksum("ack");
    };
    QVERIFY2(panel.open(slave), qPrintable(slave));

    QVERIFY2(sim.waitForLine(QStringLiteral("panel connected")), qPrintable(sim.log()));
    QVERIFY2(sim.waitForLine(QStringLiteral("request: hfresend")), qPrintable(sim.log()));
    QVERIFY(sim.waitUntil([&] { return panel.countOf("hfcount") == 2; }));

    // The start-up sequence arrives complete and in order before anything else.
    const QByteArrayList expectedStart = {"name", "serialno", "hwver", "swver", "ophours", "guistate", "lang", "unit",
                                          "heatfile", "heatfile", "heatfile", "heatfile", "heatfile", "heatfile",
                                          "heatfile", "heatfile", "hfcount"};
    QVERIFY(panel.bodies.size() > expectedStart.size());
    for (int i = 0; i < expectedStart.size(); ++i)
        QCOMPARE(simframe::splitCommand(panel.bodies.at(i).first()).first, expectedStart.at(i));
    QCOMPARE(panel.bodies.at(0), Fields{"name==Ovra S1"});
    QCOMPARE(panel.bodies.at(5), Fields{"guistate==1"});
    QCOMPARE(panel.bodies.at(6), Fields{"lang==deutsch"});
    QCOMPARE(panel.bodies.at(7), Fields{"unit==c"});
    QCOMPARE(panel.bodies.at(16), Fields{"hfcount==8"});
    QCOMPARE(panel.countOf("heatfile"), 16);
    QCOMPARE(panel.countOf("name"), 1);

    const Fields status = panel.bodies.at(17);
    QCOMPARE(status.size(), 3);
    QVERIFY(QRegularExpression(QStringLiteral("^time==\\d{4}$")).match(QString::fromLatin1(status.at(0))).hasMatch());
    QVERIFY(QRegularExpression(QStringLiteral("^date==20\\d{6}$")).match(QString::fromLatin1(status.at(1))).hasMatch());
    QVERIFY(QRegularExpression(QStringLiteral("^temp==29[3-7]$")).match(QString::fromLatin1(status.at(2))).hasMatch());

    // Operator commands on stdin.
    sim.process.write("send temp==1473$$guistate==3\nfrobnicate now\n");
    QVERIFY2(sim.waitForLine(QStringLiteral("unknown command: frobnicate now")), qPrintable(sim.log()));
    QVERIFY(sim.waitUntil([&] { return panel.bodies.contains(Fields{"temp==1473", "guistate==3"}); }));

    QVERIFY2(sim.waitUntil([&] { return sim.process.state() == QProcess::NotRunning; }, 15000), qPrintable(sim.log()));
    QCOMPARE(sim.process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(sim.process.exitCode(), 0);

    const QString log = sim.log();
    QVERIFY2(sim.lines.value(1).startsWith(QLatin1String("waiting for panel on /dev/pts/")), qPrintable(log));
    QCOMPARE(sim.linesStartingWith(QStringLiteral("nack for serialno==")).size(), 1);
    QCOMPARE(sim.linesStartingWith(QStringLiteral("BAD ANSWER (checksum) ")),
             QStringList{QStringLiteral("BAD ANSWER (checksum) <STX>ack$$-1<ETX>")});
    QCOMPARE(sim.linesStartingWith(QStringLiteral("request: ")),
             (QStringList{QStringLiteral("request: guistate==5"), QStringLiteral("request: hfresend")}));
    QCOMPARE(sim.linesStartingWith(QStringLiteral("panel page: ")), QStringList{QStringLiteral("panel page: 5")});
    QVERIFY2(sim.linesStartingWith(QStringLiteral("BAD ANSWER (timeout)")).isEmpty(), qPrintable(log));

    // Every frame reached the panel whole and as a separate end byte.
    QCOMPARE(panel.joinedChunks, 0);
    QCOMPARE(panel.badChecksums, 0);
    QCOMPARE(panel.writeErrors, 0);

    const QStringList summaries = sim.linesStartingWith(QStringLiteral("summary: "));
    QCOMPARE(summaries.size(), 1);
    QCOMPARE(sim.lines.last(), summaries.first());
    const QRegularExpressionMatch m =
        QRegularExpression(QStringLiteral("^summary: frames=(\\d+) answers=(\\d+) nacks=(\\d+) bad_checksum=(\\d+) timeouts=(\\d+) requests=(\\d+)$"))
            .match(summaries.first());
    QVERIFY2(m.hasMatch(), qPrintable(summaries.first()));
    const int frames = m.captured(1).toInt();
    const int answers = m.captured(2).toInt();
    QCOMPARE(m.captured(3).toInt(), 1);
    QCOMPARE(m.captured(4).toInt(), 1);
    QCOMPARE(m.captured(5).toInt(), 0);
    QCOMPARE(m.captured(6).toInt(), 2);
    // The run ends at an arbitrary moment: the last answer may still be on its way.
    QVERIFY2(answers == panel.validAnswers || answers == panel.validAnswers - 1, qPrintable(summaries.first()));
    QVERIFY2(frames >= panel.bodies.size() && frames <= panel.bodies.size() + 3, qPrintable(summaries.first()));
}

void TestSimFrame::rejectsBadArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("unit") << QStringList{QStringLiteral("--unit"), QStringLiteral("k")};
    QTest::newRow("interval zero") << QStringList{QStringLiteral("--interval"), QStringLiteral("0")};
    QTest::newRow("interval text") << QStringList{QStringLiteral("--interval"), QStringLiteral("fast")};
    QTest::newRow("run-for negative") << QStringList{QStringLiteral("--run-for"), QStringLiteral("-1")};
    QTest::newRow("run-for text") << QStringList{QStringLiteral("--run-for"), QStringLiteral("soon")};
    QTest::newRow("unknown option") << QStringList{QStringLiteral("--baud"), QStringLiteral("9600")};
    QTest::newRow("stray argument") << QStringList{QStringLiteral("/dev/ttyUSB0")};
}

void TestSimFrame::rejectsBadArguments()
{
    QFETCH(QStringList, arguments);
    QProcess process;
    process.start(QStringLiteral(HX3SIM_BINARY), arguments);
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 2);
    QVERIFY(!process.readAllStandardError().isEmpty());
    // Nothing may be set up before the arguments are known to be good.
    QVERIFY(process.readAllStandardOutput().isEmpty());
}

void TestSimFrame::linkIsManaged()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());

    // Something that is not a symlink is never replaced.
    const QString file = dir.filePath(QStringLiteral("ttyFILE"));
    {
        QFile f(file);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("keep me");
    }
    {
        QProcess refused;
        refused.start(QStringLiteral(HX3SIM_BINARY), {QStringLiteral("--link"), file, QStringLiteral("--run-for"), QStringLiteral("5")});
        QVERIFY(refused.waitForFinished(10000));
        QCOMPARE(refused.exitCode(), 2);
        QVERIFY(!refused.readAllStandardError().isEmpty());
        QFile f(file);
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), QByteArray("keep me"));
    }

    // A stale symlink is replaced, and the link goes away when the simulator is stopped.
    const QString link = dir.filePath(QStringLiteral("ttyHX3"));
    QVERIFY(QFile::link(QStringLiteral("/nonexistent/pts"), link));
    SimProcess sim({QStringLiteral("--link"), link, QStringLiteral("--run-for"), QStringLiteral("30")});
    QVERIFY2(sim.waitForLine(QStringLiteral("waiting for panel on ")), qPrintable(sim.log()));
    const QString slave = sim.lines.first().mid(7);
    QCOMPARE(QFileInfo(link).symLinkTarget(), slave);

    sim.process.terminate();
    QVERIFY2(sim.waitUntil([&] { return sim.process.state() == QProcess::NotRunning; }), qPrintable(sim.log()));
    QCOMPARE(sim.process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(sim.process.exitCode(), 0);
    QCOMPARE(sim.linesStartingWith(QStringLiteral("summary: ")).size(), 1);
    QVERIFY(!QFileInfo(link).isSymLink());
    QVERIFY(!QFileInfo::exists(link));
}

QTEST_GUILESS_MAIN(TestSimFrame)
#include "tst_simframe.moc"
