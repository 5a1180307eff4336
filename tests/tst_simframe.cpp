// The controller simulator as the panel's tests and the demo use it: its frame code against
// hand-computed values, its heatfile reader, its arguments, and the line contract against a
// reader as strict as the panel's. What it says in a session is proven by the end-to-end tests
// against the real panel.

#include "heatfile.h"
#include "sampleprograms.h"
#include "simframe.h"

#include <QFile>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QSocketNotifier>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <cerrno>
#include <functional>
#include <iterator>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace {

using Fields = QList<QByteArray>;

QByteArray withChecksum(const QByteArray &body)
{
    return body + "$$" + simframe::checksumField(simframe::splitFields(body));
}

QByteArray ackWith(const QByteArrayList &requests)
{
    return withChecksum(requests.isEmpty() ? QByteArray("ack") : "ack$$" + requests.join("$$"));
}

bool matches(const QString &pattern, const QByteArray &text)
{
    return QRegularExpression(pattern).match(QString::fromUtf8(text)).hasMatch();
}

// The panel side of the line as the panel reads it: it opens the slave like any serial port and
// dispatches a frame only when a read brings the end byte without a start byte, so a simulator
// that wrote body and end byte together would lose every frame here.
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
        termios tio{};
        if (m_fd < 0 || ::tcgetattr(m_fd, &tio) != 0)
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

    QList<Fields> bodies;  // dispatched frames, checksum field removed
    int lineFaults = 0;    // frames that failed the check, answers that did not go out whole
    int joinedChunks = 0;  // reads that brought start and end byte together
    int validAnswers = 0;

    QByteArrayList fields() const
    {
        QByteArrayList firsts;
        for (const Fields &body : bodies)
            firsts.append(body.first());
        return firsts;
    }

    int countOf(const QByteArray &keyword) const
    {
        const QByteArrayList all = fields();
        return static_cast<int>(std::count_if(all.begin(), all.end(), [&](const QByteArray &f) { return simframe::splitCommand(f).first == keyword; }));
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
        } else if (stx >= 0) {
            m_buffer = chunk.mid(stx + 1);
        } else if (etx < 0) {
            m_buffer += chunk;
        } else {
            m_buffer += chunk.left(etx);
            dispatch(m_buffer);
            m_buffer.clear();
        }
    }

    void dispatch(const QByteArray &content)
    {
        Fields fields = simframe::splitFields(content);
        if (!simframe::checksumMatches(fields) || fields.size() < 2) {
            ++lineFaults;
            return;
        }
        fields.removeLast();
        bodies.append(fields);
        const QByteArray answer = script ? script(fields) : ackWith({});
        if (answer.isEmpty())
            return;
        validAnswers += simframe::checksumMatches(simframe::splitFields(answer)) ? 1 : 0;
        const QByteArray frame = simframe::kStx + answer + simframe::kEtx;
        if (::write(m_fd, frame.constData(), static_cast<size_t>(frame.size())) != frame.size())
            ++lineFaults;
    }

    int m_fd = -1;
    QSocketNotifier *m_notifier = nullptr;
    QByteArray m_buffer;
};

// The simulator as a child process, its stdout collected line by line.
class SimProcess
{
public:
    explicit SimProcess(const QStringList &arguments)
    {
        QObject::connect(&process, &QProcess::readyReadStandardOutput, &process, [this] {
            m_partial += process.readAllStandardOutput();
            for (int end = m_partial.indexOf('\n'); end >= 0; end = m_partial.indexOf('\n')) {
                lines.append(QString::fromUtf8(m_partial.left(end)));
                m_partial.remove(0, end + 1);
            }
        });
        process.start(QStringLiteral(HX3SIM_BINARY), arguments);
    }

    ~SimProcess()
    {
        if (process.state() != QProcess::NotRunning) {
            process.kill();
            process.waitForFinished(5000);
        }
    }

    // Runs the event loop (the fake panel lives on it) until done() holds or time runs out.
    // Not qWaitFor: it sleeps between its looks, long enough for a frame's body and end byte
    // to pile up into one read, which the panel's reading rule drops.
    static bool waitUntil(const std::function<bool()> &done)
    {
        QElapsedTimer clock;
        clock.start();
        while (!done() && clock.elapsed() < 10000)
            QTest::qWait(10);
        return done();
    }

    QStringList linesStartingWith(const QString &prefix) const
    {
        QStringList found;
        std::copy_if(lines.begin(), lines.end(), std::back_inserter(found), [&](const QString &line) { return line.startsWith(prefix); });
        return found;
    }

    QString slave() const { return lines.value(0).mid(7); }

    QString log() const { return lines.join(QLatin1Char('\n')) + QLatin1Char('\n') + QString::fromUtf8(m_partial); }

    QProcess process;
    QStringList lines;

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
    void framesAndAnswers();
    void heatfileTexts_data();
    void heatfileTexts();
    void startUpAsThePanelSeesIt();
    void rejectsBadArguments_data();
    void rejectsBadArguments();
};

void TestSimFrame::checksum_data()
{
    QTest::addColumn<QByteArray>("body");      // body fields joined by "$$"
    QTest::addColumn<QByteArray>("built");     // the checksum field the simulator makes for it
    QTest::addColumn<QByteArray>("received");  // a checksum field as it may come in
    QTest::addColumn<bool>("valid");

    QTest::newRow("ack") << QByteArray("ack") << QByteArray("-47") << QByteArray("-47") << true;
    QTest::newRow("positive") << QByteArray("ack") << QByteArray("-47") << QByteArray("47") << false;
    // Only the sum modulo 256 is negated; the raw sum does not check.
    QTest::newRow("unreduced sum") << QByteArray("ack") << QByteArray("-47") << QByteArray("-303") << false;
    // A sum that is a multiple of 256 goes out as a plain 0.
    QTest::newRow("multiple of 256") << QByteArray("@@@@@@@@") << QByteArray("0") << QByteArray("0") << true;
    // A checksum that is no number reads as 0, right only for such a sum.
    QTest::newRow("non-number on zero sum") << QByteArray("@@@@") << QByteArray("0") << QByteArray("abc") << true;
    QTest::newRow("non-number") << QByteArray("ack") << QByteArray("-47") << QByteArray("abc") << false;
    // Separators are not summed: "ackdoorclose" is 1273 -> 249.
    QTest::newRow("two fields") << QByteArray("ack$$doorclose") << QByteArray("-249") << QByteArray("-249") << true;
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
    QCOMPARE(simframe::buildFrame({"ack"}), QByteArray("\x02" "ack$$-47" "\x03"));
    // Out of a stream: noise and a frame cut off by a new start byte are dropped.
    QByteArray buffer("noise\x03" "\x02" "ack$$gui" "\x02" "ack$$-47\x03" "\x02" "nack$$-", -1);
    QCOMPARE(simframe::takeFrames(buffer), Fields{"ack$$-47"});
    buffer += "50\x03";
    QCOMPARE(simframe::takeFrames(buffer), Fields{"nack$$-50"});

    const simframe::Answer nack = simframe::parseAnswer(withChecksum("nack$$guistate==1$$hfresend"));
    QVERIFY(nack.valid && nack.nack);
    QCOMPARE(nack.requests, (Fields{"guistate==1", "hfresend"}));
    // Only "ack" or "nack" with a right checksum is an answer.
    for (const QByteArray &content : {QByteArray("ack"), QByteArray("ack$$guistate==1$$-1"), withChecksum("temp==295"), withChecksum("ACK")})
        QVERIFY2(!simframe::parseAnswer(content).valid, content.constData());
    // Heatfile texts carry single "=": only the first "==" separates.
    QCOMPARE(simframe::splitCommand("heatfile==[metainfo];name=A;"), (std::pair<QByteArray, QByteArray>{"heatfile", "[metainfo];name=A;"}));
}

void TestSimFrame::heatfileTexts_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");  // the first segment as rate/°C/minutes, or why it is refused

    // Kelvin and seconds on the line, argon after every hold of an argon program.
    QTest::newRow("argon") << QByteArray("[metainfo];name=Ti Sinter 2;manufacturer=Metallix;material=Argon;favorite=true;"
                                         "[1];rate=20;temp=1073;hold=600;argon=on;[2];rate=5;temp=1623;hold=0;argon=on;")
                           << QStringLiteral("20/800/10");
    // Everything the simulator hands over must read back.
    for (const heatfile::Program &program : sampleprograms::programs()) {
        const heatfile::Segment &first = program.segments.first();
        QTest::newRow(qPrintable(program.name)) << heatfile::text(program)
                                                << QStringLiteral("%1/%2/%3").arg(first.rate).arg(first.tempCelsius).arg(first.holdMinutes);
    }

    const QByteArray head = "[metainfo];name=P;manufacturer=user;material=Zirkon;favorite=false;";
    const QByteArray segment = "[1];rate=10;temp=1273;hold=600;";
    QTest::newRow("last element open") << QByteArray(head + segment).chopped(1) << QStringLiteral("not closed");
    QTest::newRow("file name") << QByteArray(QByteArray(head).replace("name=P", "name=P.hf") + segment) << QStringLiteral("contains \".\"");
    QTest::newRow("celsius sent") << QByteArray(head + "[1];rate=10;temp=100;hold=600;") << QStringLiteral("temp=100 is below 273");
    QTest::newRow("minutes sent") << QByteArray(head + "[1];rate=10;temp=1273;hold=90;") << QStringLiteral("hold=90 is not whole minutes");
    QTest::newRow("segment skipped") << QByteArray(head + segment + QByteArray(segment).replace("[1]", "[3]"))
                                     << QStringLiteral("expected [2], found [3]");
    QTest::newRow("argon missing") << QByteArray(QByteArray(head).replace("Zirkon", "Argon") + segment + "[2];rate=1;temp=300;hold=0;argon=on;")
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
    if (!matches(QStringLiteral("^\\d+/\\d+/\\d+$"), expected.toUtf8())) {
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

void TestSimFrame::startUpAsThePanelSeesIt()
{
    // Linked like the demo does it, over a link a killed run left behind.
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString link = dir.filePath(QStringLiteral("ttyHX3"));
    QVERIFY(QFile::link(QStringLiteral("/nonexistent/pts"), link));
    SimProcess sim({QStringLiteral("--link"), link, QStringLiteral("--interval"), QStringLiteral("100")});
    QVERIFY2(sim.waitUntil([&] { return !sim.linesStartingWith(QStringLiteral("waiting for panel on ")).isEmpty(); }), qPrintable(sim.log()));
    QCOMPARE(QFileInfo(link).symLinkTarget(), sim.slave());

    // A nack, then to the reports a bad checksum, silence, and a page with a request.
    FakePanel panel;
    const QByteArrayList firstAnswers = {"ack$$-1", QByteArray(), ackWith({"guistate==5", "hfresend"})};
    int reports = 0;
    panel.script = [&](const Fields &body) -> QByteArray {
        if (body.first().startsWith("serialno=="))
            return withChecksum("nack");
        if (body.first().startsWith("time==") && reports < firstAnswers.size())
            return firstAnswers.at(reports++);
        return ackWith({});
    };
    QVERIFY(panel.open(link));
    QVERIFY2(sim.waitUntil([&] { return panel.countOf("hfcount") == 2; }), qPrintable(sim.log()));

    // Device data, page, language, unit, the closed door, the service PIN, the programs and
    // their count, in order.
    const QByteArrayList fields = panel.fields();
    QCOMPARE(fields.mid(0, 10), (QByteArrayList{"name==Ovra S1", "serialno==S1-2304-0087", "hwver==HX3-C", "swver==3.12.0", "ophours==1234",
                                                "guistate==1", "lang==deutsch", "unit==c", "doorclosed", "code==1234"}));
    QCOMPARE(fields.indexOf("hfcount==8"), 18);
    const QByteArray status = panel.bodies.at(19).join("$$");
    QVERIFY2(matches(QStringLiteral("^time==\\d{4}\\$\\$date==20\\d{6}\\$\\$temp==29[3-7]$"), status), status.constData());
    // No commissioning and no self-test results the panel did not ask for.
    QCOMPARE(panel.countOf("initialstart") + panel.countOf("st") + panel.countOf("stdoor"), 0);
    QVERIFY(!fields.contains("guistate==26"));
    // hfresend hands the same store over again.
    QByteArrayList programs;
    std::copy_if(fields.begin(), fields.end(), std::back_inserter(programs), [](const QByteArray &f) { return f.startsWith("heatfile=="); });
    QCOMPARE(programs.size(), 16);
    QCOMPARE(programs.mid(8), programs.mid(0, 8));

    sim.process.write("send temp==1473$$guistate==3\n");
    QVERIFY(sim.waitUntil([&] { return panel.bodies.contains(Fields{"temp==1473", "guistate==3"}); }));

    // Stopped the way the demo stops it: the summary still comes, and the link goes.
    sim.process.terminate();
    QVERIFY2(sim.waitUntil([&] { return sim.process.state() == QProcess::NotRunning; }), qPrintable(sim.log()));
    QCOMPARE(sim.process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(sim.process.exitCode(), 0);
    QVERIFY(!QFileInfo(link).isSymLink());

    QCOMPARE(sim.linesStartingWith(QStringLiteral("BAD ANSWER (checksum) ")), QStringList{QStringLiteral("BAD ANSWER (checksum) <STX>ack$$-1<ETX>")});
    QCOMPARE(sim.linesStartingWith(QStringLiteral("BAD ANSWER (timeout) for time==")).size(), 1);
    QCOMPARE(sim.linesStartingWith(QStringLiteral("request: ")), (QStringList{QStringLiteral("request: guistate==5"), QStringLiteral("request: hfresend")}));
    // Every frame reached the panel whole, its end byte in a read of its own.
    QCOMPARE(panel.joinedChunks, 0);
    QCOMPARE(panel.lineFaults, 0);

    const QRegularExpressionMatch m =
        QRegularExpression(QStringLiteral("^summary: frames=(\\d+) answers=(\\d+) nacks=1 bad_checksum=1 timeouts=1 requests=2$")).match(sim.lines.last());
    QVERIFY2(m.hasMatch(), qPrintable(sim.log()));
    // The run ends at an arbitrary moment: the last answer may still be on its way.
    const int frames = m.captured(1).toInt();
    const int answers = m.captured(2).toInt();
    QVERIFY2(answers == panel.validAnswers || answers == panel.validAnswers - 1, qPrintable(sim.lines.last()));
    QVERIFY2(frames >= panel.bodies.size() && frames <= panel.bodies.size() + 3, qPrintable(sim.lines.last()));
}

void TestSimFrame::rejectsBadArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("unknown option") << QStringList{QStringLiteral("--baud"), QStringLiteral("9600")};
    QTest::newRow("interval zero") << QStringList{QStringLiteral("--interval"), QStringLiteral("0")};
    QTest::newRow("speed text") << QStringList{QStringLiteral("--speed"), QStringLiteral("fast")};
    QTest::newRow("unknown self-test row") << QStringList{QStringLiteral("--selftest-fail"), QStringLiteral("oven")};
    QTest::newRow("missing program file") << QStringList{QStringLiteral("--programs"), QStringLiteral("/nonexistent/programs.txt")};
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

QTEST_GUILESS_MAIN(TestSimFrame)
#include "tst_simframe.moc"
