// The controller simulator: its frame functions against hand-computed values, its sample
// programs against the heatfile rules, its heatfile reader and program store, its clock
// arithmetic, and the real program against a small fake panel: start-up, self-test,
// commissioning, the program store the panel edits, firings, delayed starts, the lift door and
// the events an operator scripts.

#include "controllerclock.h"
#include "heatfile.h"
#include "programstore.h"
#include "sampleprograms.h"
#include "simframe.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QSocketNotifier>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <algorithm>
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

// An acknowledgement carrying the panel's requests.
QByteArray ackWith(const QByteArrayList &requests)
{
    return withChecksum(requests.isEmpty() ? QByteArray("ack") : "ack$$" + requests.join("$$"));
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
        m_clock.start();
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
    QList<qint64> arrivalMs;    // when each of them was dispatched, from open()
    int badChecksums = 0;       // frames from the simulator that failed the check
    int joinedChunks = 0;       // reads that brought start and end byte together
    int validAnswers = 0;
    int writeErrors = 0;
    // Reads frames out of the byte stream however the reads cut it, instead of dropping a
    // frame whose start and end byte come in one read as the panel does. For the cases about
    // what the frames say: under a loaded machine the line's split can slip now and then, and
    // a frame lost that way is not what they test.
    bool readsWholeStream = false;

    int countOf(const QByteArray &keyword) const
    {
        int n = 0;
        for (const Fields &body : bodies)
            n += simframe::splitCommand(body.first()).first == keyword ? 1 : 0;
        return n;
    }

    int countOfField(const QByteArray &field) const
    {
        int n = 0;
        for (const Fields &body : bodies)
            n += body.first() == field ? 1 : 0;
        return n;
    }

    int indexOf(const QByteArray &field, int from = 0) const
    {
        for (int i = from; i < bodies.size(); ++i) {
            if (bodies.at(i).first() == field)
                return i;
        }
        return -1;
    }

    QByteArrayList firstFields(int from, int count) const
    {
        QByteArrayList fields;
        for (int i = from; i < bodies.size() && i < from + count; ++i)
            fields.append(bodies.at(i).first());
        return fields;
    }

    // Every hand-over of the programs: the heatfile texts in the order they came, and the count
    // that closed them.
    struct ProgramRound
    {
        QByteArrayList texts;
        QByteArray count;
    };
    QList<ProgramRound> programRounds() const
    {
        QList<ProgramRound> rounds;
        ProgramRound open;
        for (const Fields &body : bodies) {
            const auto [keyword, parameter] = simframe::splitCommand(body.first());
            if (keyword == "heatfile") {
                open.texts.append(parameter);
            } else if (keyword == "hfcount") {
                open.count = parameter;
                rounds.append(open);
                open = {};
            }
        }
        return rounds;
    }

    // The time/date/temperature reports from frame `from` on, each field by its keyword.
    struct Report
    {
        int index = -1;
        QMap<QByteArray, QByteArray> values;
    };
    QList<Report> reports(int from = 0) const
    {
        QList<Report> found;
        for (int i = from; i < bodies.size(); ++i) {
            if (!bodies.at(i).first().startsWith("time=="))
                continue;
            Report report;
            report.index = i;
            for (const QByteArray &field : bodies.at(i)) {
                const auto [keyword, parameter] = simframe::splitCommand(field);
                report.values.insert(keyword, parameter);
            }
            found.append(report);
        }
        return found;
    }

    // The single-field frames among `fields` from frame `from` on, in the order they came.
    QByteArrayList framesAmong(const QByteArrayList &fields, int from = 0) const
    {
        QByteArrayList found;
        for (int i = from; i < bodies.size(); ++i) {
            if (bodies.at(i).size() == 1 && fields.contains(bodies.at(i).first()))
                found.append(bodies.at(i).first());
        }
        return found;
    }

    int reportsWith(const QByteArray &keyword) const
    {
        const QList<Report> all = reports();
        return static_cast<int>(std::count_if(all.begin(), all.end(), [&](const Report &r) { return r.values.contains(keyword); }));
    }

    // The self-test results and the "oven ready" state, in the order they came.
    QByteArrayList selfTestFrames() const
    {
        static const QByteArrayList keywords = {"stdoor", "stheater", "stcooling", "st"};
        QByteArrayList found;
        for (const Fields &body : bodies) {
            if (keywords.contains(simframe::splitCommand(body.first()).first) || body.first() == "guistate==26")
                found.append(body.first());
        }
        return found;
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
        if (stx >= 0 && etx >= 0)
            ++joinedChunks;
        if (readsWholeStream) {
            m_buffer += chunk;
            for (const QByteArray &content : simframe::takeFrames(m_buffer))
                dispatch(content);
            return;
        }
        if (stx >= 0 && etx >= 0) {
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
        const QByteArray content = m_buffer;
        m_buffer.clear();
        dispatch(content);
    }

    void dispatch(const QByteArray &content)
    {
        Fields fields = simframe::splitFields(content);
        if (!simframe::checksumMatches(fields) || fields.size() < 2) {
            ++badChecksums;
            return;
        }
        fields.removeLast();
        bodies.append(fields);
        arrivalMs.append(m_clock.elapsed());
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
    QElapsedTimer m_clock;
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

    // Ends the run through "quit" and checks that it went down cleanly.
    bool quit()
    {
        process.write("quit\n");
        return waitUntil([this] { return process.state() == QProcess::NotRunning; })
               && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    }

    QString log() const { return lines.join(QLatin1Char('\n')) + QLatin1Char('\n') + QString::fromUtf8(m_partial); }

    QProcess process;
    QStringList lines;

signals:
    void progressed();

private:
    QByteArray m_partial;
};

// What the user does on the panel, step by step: each step's requests go out in the answer to
// the first report after the step's condition holds.
class Walk
{
public:
    void then(const std::function<bool()> &ready, const QByteArrayList &requests) { m_steps.append({ready, requests}); }

    QByteArray answer(const Fields &body)
    {
        if (!body.first().startsWith("time==") || m_steps.isEmpty() || !m_steps.first().ready())
            return ackWith({});
        return ackWith(m_steps.takeFirst().requests);
    }

    bool done() const { return m_steps.isEmpty(); }

private:
    struct Step
    {
        std::function<bool()> ready;
        QByteArrayList requests;
    };
    QList<Step> m_steps;
};

// The lines of `lines` that are one of `wanted`, in their order.
QStringList linesAmong(const QStringList &lines, const QStringList &wanted)
{
    QStringList found;
    for (const QString &line : lines) {
        if (wanted.contains(line))
            found.append(line);
    }
    return found;
}

// Minutes from "HHMM" (a report's time) to "HH:MM" (its end estimate), over midnight if need be.
int minutesUntil(const QByteArray &hhmm, const QByteArray &hhColonMm)
{
    const int from = hhmm.left(2).toInt() * 60 + hhmm.mid(2, 2).toInt();
    const int to = hhColonMm.left(2).toInt() * 60 + hhColonMm.mid(3, 2).toInt();
    return ((to - from) % 1440 + 1440) % 1440;
}

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
    void heatfileRoundTrip();
    void heatfileRejects_data();
    void heatfileRejects();
    void generatedPrograms();
    void storeKeepsOneProgramPerName();
    void controllerClock();
    void simulatorAgainstFakePanel();
    void selfTestAnswersRedost();
    void selfTestFailureRepeats_data();
    void selfTestFailureRepeats();
    void commissioningWalk();
    void panelEditsTheStore();
    void programsFromFile();
    void manyPrograms();
    void firingReportsItsStages();
    void stopFailAndRefusedStarts();
    void delayedStart();
    void doorMoves();
    void scriptedEvents();
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
    const QList<heatfile::Program> programs = sampleprograms::programs();
    QSet<QString> zirkonMakers;
    int user = 0;
    int service = 0;
    int fixed = 0;
    int userFavourites = 0;
    int argon = 0;
    const QRegularExpression forbidden(QStringLiteral("[.;=,]|\\$\\$"));
    const QRegularExpression segmentPattern(QStringLiteral("^\\[(\\d)\\];rate=(\\d+);temp=(\\d+);hold=(\\d+);(argon=on;)?$"));

    for (const heatfile::Program &program : programs) {
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
            if (program.material == QLatin1String("Zirkon"))
                zirkonMakers.insert(program.manufacturer);
        }

        const QString text = QString::fromUtf8(heatfile::text(program));
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
            const heatfile::Segment &segment = program.segments.at(i);
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
    QCOMPARE(zirkonMakers.size(), 2);
}

void TestSimFrame::heatfileRoundTrip()
{
    // Written by hand: Kelvin and seconds on the line, argon after every hold.
    const QByteArray argonText = "[metainfo];name=Ti Sinter 2;manufacturer=Metallix;material=Argon;favorite=true;"
                                 "[1];rate=20;temp=1073;hold=600;argon=on;[2];rate=5;temp=1623;hold=0;argon=on;";
    heatfile::Program program;
    QString error;
    QVERIFY2(heatfile::parse(argonText, &program, &error), qPrintable(error));
    const heatfile::Program expected{QStringLiteral("Ti Sinter 2"), QStringLiteral("Metallix"), QStringLiteral("Argon"), true,
                                     {{20, 800, 10}, {5, 1350, 0}}};
    QVERIFY(program == expected);
    QCOMPARE(heatfile::text(program), argonText);

    // The edges of the conversions: 273 K is 0 °C, a hold of 0 stays 0, umlauts pass unchanged.
    const QByteArray edge = QStringLiteral("[metainfo];name=Glühen;manufacturer=user;material=;favorite=false;"
                                           "[1];rate=1;temp=273;hold=0;")
                                .toUtf8();
    QVERIFY2(heatfile::parse(edge, &program, &error), qPrintable(error));
    QCOMPARE(program.segments, (QList<heatfile::Segment>{{1, 0, 0}}));
    QCOMPARE(heatfile::text(program), edge);

    // Everything the simulator itself sends reads back to the same program.
    const QList<heatfile::Program> all = sampleprograms::programs() + sampleprograms::generated(200);
    for (const heatfile::Program &each : all) {
        heatfile::Program back;
        QVERIFY2(heatfile::parse(heatfile::text(each), &back, &error), qPrintable(each.name + QLatin1String(": ") + error));
        QVERIFY2(back == each, qPrintable(each.name));
    }
}

void TestSimFrame::heatfileRejects_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");

    const QByteArray head = "[metainfo];name=P;manufacturer=user;material=Zirkon;favorite=false;";
    const QByteArray segment = "[1];rate=10;temp=1273;hold=600;";
    QTest::newRow("empty") << QByteArray() << QStringLiteral("empty text");
    QTest::newRow("last element open") << QByteArray(head + segment).chopped(1) << QStringLiteral("not closed");
    QTest::newRow("empty element") << QByteArray(head + ";" + segment) << QStringLiteral("element 6 is empty");
    QTest::newRow("no metainfo") << QByteArray(head.mid(11) + segment) << QStringLiteral("expected [metainfo]");
    QTest::newRow("name with suffix") << QByteArray(QByteArray(head).replace("name=P", "name=P.hf") + segment)
                                      << QStringLiteral("element 2: the name \"P.hf\" contains \".\"");
    QTest::newRow("name with comma") << QByteArray(QByteArray(head).replace("name=P", "name=P,1") + segment) << QStringLiteral("contains \",\"");
    QTest::newRow("empty name") << QByteArray(QByteArray(head).replace("name=P", "name=") + segment) << QStringLiteral("name is empty");
    QTest::newRow("second =") << QByteArray(QByteArray(head).replace("name=P", "name=P=Q") + segment) << QStringLiteral("second \"=\"");
    QTest::newRow("no manufacturer") << QByteArray(QByteArray(head).replace("manufacturer=user", "manufacturer=") + segment)
                                     << QStringLiteral("element 3: no manufacturer");
    QTest::newRow("favorite yes") << QByteArray(QByteArray(head).replace("favorite=false", "favorite=yes") + segment)
                                  << QStringLiteral("true or false");
    QTest::newRow("meta order") << QByteArray(QByteArray(head).replace("name=P;manufacturer=user", "manufacturer=user;name=P") + segment)
                                << QStringLiteral("element 2: expected name=");
    QTest::newRow("no segment") << head << QStringLiteral("no segment");
    QTest::newRow("segment skipped") << QByteArray(head + segment + QByteArray(segment).replace("[1]", "[3]"))
                                     << QStringLiteral("element 10: expected [2], found [3]");
    QTest::newRow("rate 0") << QByteArray(head + "[1];rate=0;temp=1273;hold=600;") << QStringLiteral("element 7: a rate of 0");
    QTest::newRow("negative rate") << QByteArray(head + "[1];rate=-5;temp=1273;hold=600;") << QStringLiteral("not a plain number");
    QTest::newRow("leading zero") << QByteArray(head + "[1];rate=010;temp=1273;hold=600;") << QStringLiteral("not a plain number");
    QTest::newRow("too many digits") << QByteArray(head + "[1];rate=99999999999;temp=1273;hold=600;") << QStringLiteral("not a plain number");
    QTest::newRow("celsius sent") << QByteArray(head + "[1];rate=10;temp=100;hold=600;") << QStringLiteral("element 8: temp=100 is below 273");
    QTest::newRow("minutes sent") << QByteArray(head + "[1];rate=10;temp=1273;hold=90;")
                                  << QStringLiteral("element 9: hold=90 is not whole minutes");
    QTest::newRow("segment order") << QByteArray(head + "[1];temp=1273;rate=10;hold=600;") << QStringLiteral("expected rate=");
    QTest::newRow("extra element") << QByteArray(head + segment + "gas=n2;") << QStringLiteral("expected [2], found gas=n2");
    QTest::newRow("argon missing") << QByteArray(QByteArray(head).replace("Zirkon", "Argon") + segment + "[2];rate=1;temp=300;hold=0;argon=on;")
                                   << QStringLiteral("element 10: expected argon=on, found [2]");
    QTest::newRow("argon at the end missing") << QByteArray(QByteArray(head).replace("Zirkon", "Argon") + segment)
                                              << QStringLiteral("ends where argon=on should follow");
    QTest::newRow("argon without the material") << QByteArray(head + segment + "argon=on;")
                                                << QStringLiteral("argon=on in a program of material \"Zirkon\"");
    QTest::newRow("material in other case") << QByteArray(QByteArray(head).replace("Zirkon", "argon") + segment + "argon=on;")
                                            << QStringLiteral("argon=on in a program");
    QByteArray eleven = head;
    for (int i = 1; i <= 11; ++i)
        eleven += "[" + QByteArray::number(i) + "];rate=10;temp=1273;hold=600;";
    QTest::newRow("eleven segments") << eleven << QStringLiteral("more than 10 segments");
    QTest::newRow("line break") << QByteArray(head + segment + "\n") << QStringLiteral("control character 0x0a");
    QTest::newRow("not utf-8") << QByteArray(QByteArray(head).replace("name=P", "name=P\xfc") + segment) << QStringLiteral("not UTF-8");
}

void TestSimFrame::heatfileRejects()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    const heatfile::Program untouched{QStringLiteral("keep"), QStringLiteral("user"), QString(), true, {{1, 2, 3}}};
    heatfile::Program program = untouched;
    QString error;
    QVERIFY(!heatfile::parse(text, &program, &error));
    QVERIFY2(error.contains(reason), qPrintable(error));
    QVERIFY(program == untouched);
}

void TestSimFrame::generatedPrograms()
{
    const QList<heatfile::Program> programs = sampleprograms::generated(200);
    QCOMPARE(programs.size(), 200);
    QCOMPARE(programs.first().name, QStringLiteral("Programm 001"));
    QCOMPARE(programs.last().name, QStringLiteral("Programm 200"));
    QSet<QString> names;
    QSet<int> lengths;
    QMap<QString, int> kinds;
    for (const heatfile::Program &program : programs) {
        names.insert(program.name);
        QVERIFY2(heatfile::nameProblem(program.name).isEmpty(), qPrintable(program.name));
        lengths.insert(program.segments.size());
        const bool own = program.manufacturer == QLatin1String("user") || program.manufacturer == QLatin1String("service");
        ++kinds[own ? program.manufacturer : (program.material == QLatin1String("Argon") ? QStringLiteral("argon") : QStringLiteral("fixed"))];
        kinds[QStringLiteral("favourite")] += program.favorite ? 1 : 0;
        // Within what the panel lets a user enter, so that the lists show ordinary values.
        for (const heatfile::Segment &segment : program.segments) {
            QVERIFY(segment.rate >= 5 && segment.rate <= 50);
            QVERIFY(segment.tempCelsius >= 600 && segment.tempCelsius <= 1550);
            QVERIFY(segment.holdMinutes >= 0 && segment.holdMinutes <= 120);
        }
    }
    QCOMPARE(names.size(), 200);
    QCOMPARE(lengths.size(), 10);
    QVERIFY(*std::min_element(lengths.begin(), lengths.end()) == 1);
    QVERIFY(*std::max_element(lengths.begin(), lengths.end()) == heatfile::kMaxSegments);
    for (const QString &kind : {QStringLiteral("user"), QStringLiteral("service"), QStringLiteral("fixed"), QStringLiteral("argon"),
                                QStringLiteral("favourite")})
        QVERIFY2(kinds.value(kind) > 0, qPrintable(kind));
    QVERIFY(kinds.value(QStringLiteral("favourite")) < kinds.value(QStringLiteral("user")));
    QVERIFY(sampleprograms::generated(200) == programs);
    // Past 999 the numbers widen, so that the names still sort in order.
    QCOMPARE(sampleprograms::generated(1000).first().name, QStringLiteral("Programm 0001"));
}

void TestSimFrame::storeKeepsOneProgramPerName()
{
    const auto named = [](const QString &name, int rate) {
        return heatfile::Program{name, QStringLiteral("user"), QStringLiteral("Zirkon"), false, {{rate, 1000, 0}}};
    };
    ProgramStore store({named(QStringLiteral("A"), 1), named(QStringLiteral("B"), 1), named(QStringLiteral("A"), 2)});
    QCOMPARE(store.size(), 2);
    QCOMPARE(store.programs().first().segments.first().rate, 2);

    QVERIFY(store.put(named(QStringLiteral("B"), 3)) == ProgramStore::Put::Replaced);
    QVERIFY(store.put(named(QStringLiteral("C"), 1)) == ProgramStore::Put::Added);
    QCOMPARE(store.indexOf(QStringLiteral("B")), 1);
    QCOMPARE(store.programs().at(1).segments.first().rate, 3);

    QVERIFY(store.setFavorite(QStringLiteral("C"), true));
    QVERIFY(store.programs().at(2).favorite);
    QVERIFY(!store.setFavorite(QStringLiteral("c"), true));
    QCOMPARE(store.remove(QStringLiteral("A")), 1);
    QCOMPARE(store.remove(QStringLiteral("A")), 0);
    QCOMPARE(store.indexOf(QStringLiteral("C")), 1);
}

void TestSimFrame::controllerClock()
{
    const QDate day(2024, 5, 17);
    const QDateTime system(day, QTime(14, 30, 25));
    ControllerClock clock;
    QCOMPARE(clock.at(system), system);

    // The time of day changes, the date stays, and the set clock runs on with the system's.
    QVERIFY(clock.setTimeOfDay("0942", system));
    QCOMPARE(clock.at(system), QDateTime(day, QTime(9, 42)));
    QCOMPARE(clock.at(system.addSecs(90)), QDateTime(day, QTime(9, 43, 30)));

    // A date set a minute later keeps the time that was set, moved on by that minute.
    QVERIFY(clock.setDate("20300115", system.addSecs(60)));
    QCOMPARE(clock.at(system.addSecs(60)), QDateTime(QDate(2030, 1, 15), QTime(9, 43)));

    const QDateTime before = clock.at(system);
    for (const QByteArray &bad : {QByteArray("2400"), QByteArray("0960"), QByteArray("942"), QByteArray("09420"),
                                  QByteArray("09:4"), QByteArray("+942"), QByteArray(" 942"), QByteArray("094a"), QByteArray()})
        QVERIFY2(!clock.setTimeOfDay(bad, system), bad.constData());
    for (const QByteArray &bad : {QByteArray("20300229"), QByteArray("20301301"), QByteArray("20300100"), QByteArray("00000000"),
                                  QByteArray("2030011"), QByteArray("203001150"), QByteArray("2030-1-1"), QByteArray()})
        QVERIFY2(!clock.setDate(bad, system), bad.constData());
    QCOMPARE(clock.at(system), before);

    QVERIFY(clock.setDate("20280229", system));
    QCOMPARE(clock.at(system).date(), QDate(2028, 2, 29));

    // Set just before midnight, the date moves on by itself.
    QVERIFY(clock.setTimeOfDay("2359", system));
    QCOMPARE(clock.at(system.addSecs(90)), QDateTime(QDate(2028, 3, 1), QTime(0, 0, 30)));
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
                                          "doorclosed", "heatfile", "heatfile", "heatfile", "heatfile", "heatfile", "heatfile",
                                          "heatfile", "heatfile", "hfcount"};
    QVERIFY(panel.bodies.size() > expectedStart.size());
    for (int i = 0; i < expectedStart.size(); ++i)
        QCOMPARE(simframe::splitCommand(panel.bodies.at(i).first()).first, expectedStart.at(i));
    QCOMPARE(panel.bodies.at(0), Fields{"name==Ovra S1"});
    QCOMPARE(panel.bodies.at(5), Fields{"guistate==1"});
    QCOMPARE(panel.bodies.at(6), Fields{"lang==deutsch"});
    QCOMPARE(panel.bodies.at(7), Fields{"unit==c"});
    QCOMPARE(panel.bodies.at(8), Fields{"doorclosed"}); // the door starts closed and says so
    QCOMPARE(panel.bodies.at(17), Fields{"hfcount==8"});
    QCOMPARE(panel.countOf("heatfile"), 16);
    QCOMPARE(panel.countOf("name"), 1);
    // An ordinary start: no commissioning, and no self-test results the panel did not ask for.
    QCOMPARE(panel.countOf("initialstart"), 0);
    QVERIFY(panel.selfTestFrames().isEmpty());

    const Fields status = panel.bodies.at(18);
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

void TestSimFrame::selfTestAnswersRedost()
{
    const int stepMs = 120;
    SimProcess sim({QStringLiteral("--run-for"), QStringLiteral("30"), QStringLiteral("--interval"), QStringLiteral("50"),
                    QStringLiteral("--step-ms"), QString::number(stepMs)});
    QVERIFY2(sim.waitForLine(QStringLiteral("slave: ")), qPrintable(sim.log()));

    // Like the panel: it reports its page in every answer, asks for the test on the self-test
    // page and leaves for the main menu on a pass by itself.
    FakePanel panel;
    int page = 1;
    int redostAt = -1;
    bool askAgain = false;
    panel.script = [&](const Fields &body) -> QByteArray {
        const QByteArray first = body.first();
        if (first == "st==pass")
            page = 3;
        QByteArrayList requests;
        if (first.startsWith("hfcount")) {
            page = 2;
            redostAt = panel.bodies.size() - 1;
            requests.append("redost");
        } else if (redostAt >= 0 && panel.bodies.size() - 1 == redostAt + 1) {
            requests.append("redost");  // the test is still running
        } else if (askAgain && first.startsWith("time")) {
            askAgain = false;
            requests.append("redost");
        }
        requests.prepend("guistate==" + QByteArray::number(page));
        return ackWith(requests);
    };
    QVERIFY(panel.open(sim.lines.first().mid(7)));

    QVERIFY2(sim.waitUntil([&] { return panel.countOfField("guistate==26") == 1; }), qPrintable(sim.log()));
    // The page pulses go on; nothing more may come of them.
    const int timeFrames = panel.countOf("time");
    QVERIFY(sim.waitUntil([&] { return panel.countOf("time") >= timeFrames + 8; }));

    const QByteArrayList passed = {"stdoor==pass", "stheater==pass", "stcooling==pass", "st==pass", "guistate==26"};
    QCOMPARE(panel.selfTestFrames(), passed);
    // Spaced for a person to watch: four steps from the request to the overall result.
    const qint64 took = panel.arrivalMs.at(panel.indexOf("st==pass")) - panel.arrivalMs.at(redostAt);
    QVERIFY2(took >= 4 * stepMs * 9 / 10, qPrintable(QString::number(took)));
    QCOMPARE(sim.linesStartingWith(QStringLiteral("request: redost")).size(), 2);
    QCOMPARE(sim.linesStartingWith(QStringLiteral("self-test already running")).size(), 1);
    QCOMPARE(sim.linesStartingWith(QStringLiteral("self-test: ")), QStringList{QStringLiteral("self-test: pass")});
    QVERIFY(sim.linesStartingWith(QStringLiteral("request: guistate==2")).size() > 1);
    QCOMPARE(sim.linesStartingWith(QStringLiteral("panel page: ")),
             (QStringList{QStringLiteral("panel page: 1"), QStringLiteral("panel page: 2"), QStringLiteral("panel page: 3")}));

    // From the console: a bad command changes nothing, a failing row takes effect on the next test.
    sim.process.write("selftest maybe\nselftest fail cooling\n");
    QVERIFY2(sim.waitForLine(QStringLiteral("self-test will fail: cooling")), qPrintable(sim.log()));
    QCOMPARE(sim.linesStartingWith(QStringLiteral("usage: selftest")).size(), 1);
    askAgain = true;
    QVERIFY2(sim.waitUntil([&] { return panel.countOfField("st==fail") == 1; }), qPrintable(sim.log()));
    const int afterFail = panel.countOf("time");
    QVERIFY(sim.waitUntil([&] { return panel.countOf("time") >= afterFail + 8; }));
    const QByteArrayList coolingFailed = {"stdoor==pass", "stheater==pass", "stcooling==fail", "st==fail"};
    QCOMPARE(panel.selfTestFrames(), passed + coolingFailed);

    QVERIFY2(sim.quit(), qPrintable(sim.log()));
    QCOMPARE(panel.badChecksums, 0);
    QCOMPARE(panel.joinedChunks, 0);
}

void TestSimFrame::selfTestFailureRepeats_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QByteArray>("keyword");
    QTest::newRow("door") << QStringLiteral("door") << QByteArray("stdoor");
    QTest::newRow("heater") << QStringLiteral("heater") << QByteArray("stheater");
    QTest::newRow("cooling") << QStringLiteral("cooling") << QByteArray("stcooling");
}

void TestSimFrame::selfTestFailureRepeats()
{
    QFETCH(QString, row);
    QFETCH(QByteArray, keyword);
    SimProcess sim({QStringLiteral("--run-for"), QStringLiteral("30"), QStringLiteral("--interval"), QStringLiteral("50"),
                    QStringLiteral("--step-ms"), QStringLiteral("60"), QStringLiteral("--selftest-fail"), row});
    QVERIFY2(sim.waitForLine(QStringLiteral("slave: ")), qPrintable(sim.log()));

    // The user presses "repeat" after the first failure, and once more when told to.
    FakePanel panel;
    bool repeatOnFail = true;
    bool askAgain = false;
    panel.script = [&](const Fields &body) -> QByteArray {
        const QByteArray first = body.first();
        QByteArrayList requests{"guistate==2"};
        if (first.startsWith("hfcount")) {
            requests.append("redost");
        } else if (first == "st==fail" && repeatOnFail) {
            repeatOnFail = false;
            requests.append("redost");
        } else if (askAgain && first.startsWith("time")) {
            askAgain = false;
            requests.append("redost");
        }
        return ackWith(requests);
    };
    QVERIFY(panel.open(sim.lines.first().mid(7)));

    QVERIFY2(sim.waitUntil([&] { return panel.countOfField("st==fail") == 2; }), qPrintable(sim.log()));
    sim.process.write("selftest pass\n");
    QVERIFY2(sim.waitForLine(QStringLiteral("self-test will pass")), qPrintable(sim.log()));
    askAgain = true;
    QVERIFY2(sim.waitUntil([&] { return panel.countOfField("guistate==26") == 1; }), qPrintable(sim.log()));

    QByteArrayList failedRun;
    for (const QByteArray &each : {QByteArray("stdoor"), QByteArray("stheater"), QByteArray("stcooling")})
        failedRun.append(each + (each == keyword ? "==fail" : "==pass"));
    failedRun.append("st==fail");
    // No "oven ready" after a failure; the option holds for every test until the console changes it.
    const QByteArrayList passedRun = {"stdoor==pass", "stheater==pass", "stcooling==pass", "st==pass", "guistate==26"};
    QCOMPARE(panel.selfTestFrames(), failedRun + failedRun + passedRun);
    QCOMPARE(sim.linesStartingWith(QStringLiteral("self-test: ")),
             (QStringList{QStringLiteral("self-test: fail"), QStringLiteral("self-test: fail"), QStringLiteral("self-test: pass")}));
    QVERIFY2(sim.quit(), qPrintable(sim.log()));
}

void TestSimFrame::commissioningWalk()
{
    SimProcess sim({QStringLiteral("--commissioning"), QStringLiteral("--run-for"), QStringLiteral("30"), QStringLiteral("--interval"),
                    QStringLiteral("50"), QStringLiteral("--step-ms"), QStringLiteral("50")});
    QVERIFY2(sim.waitForLine(QStringLiteral("slave: ")), qPrintable(sim.log()));

    // The panel reports its page in every answer. Once on the set-up pages, it answers each
    // status frame with the next step of the user's walk.
    FakePanel panel;
    int page = -1;
    int settingsReportedAt = -1;  // the frame whose answer brought the walk to the settings page
    QList<QByteArrayList> walk = {{"lang==english", "guistate==13"},
                                  {"unit==f", "guistate==14"},
                                  {"date==20300115", "time==0942", "guistate==15"},
                                  {"guistate==6"}};
    panel.script = [&](const Fields &body) -> QByteArray {
        const QByteArray first = body.first();
        if (first.startsWith("ophours"))
            page = 1;
        else if (first == "guistate==12")
            page = 12;
        if (first.startsWith("time") && page >= 12 && !walk.isEmpty()) {
            const QByteArrayList step = walk.takeFirst();
            page = step.last().mid(10).toInt();
            if (page == 6)
                settingsReportedAt = panel.bodies.size() - 1;
            return ackWith(step);
        }
        return ackWith(page < 0 ? QByteArrayList{} : QByteArrayList{"guistate==" + QByteArray::number(page)});
    };
    QVERIFY(panel.open(sim.lines.first().mid(7)));

    QVERIFY2(sim.waitUntil([&] { return panel.countOfField("guistate==26") == 1; }), qPrintable(sim.log()));
    const int timeFrames = panel.countOf("time");
    QVERIFY(sim.waitUntil([&] { return panel.countOf("time") >= timeFrames + 6; }));

    QCOMPARE(panel.firstFields(0, 9), (QByteArrayList{"initialstart", "name==Ovra S1", "serialno==S1-2304-0087", "hwver==HX3-C",
                                                      "swver==3.12.0", "ophours==1234", "guistate==12", "lang==deutsch", "unit==c"}));
    QCOMPARE(panel.countOf("heatfile"), 8);
    QCOMPARE(panel.bodies.at(18), Fields{"hfcount==8"});
    // The settings page reached in the walk ends it once, whatever the pulses repeat.
    QCOMPARE(panel.countOfField("guistate==26"), 1);
    QVERIFY(panel.indexOf("guistate==26") > settingsReportedAt);
    QCOMPARE(panel.countOfField("guistate==1"), 0);
    QCOMPARE(panel.selfTestFrames(), QByteArrayList{"guistate==26"});
    QCOMPARE(sim.linesStartingWith(QStringLiteral("commissioning done")).size(), 1);
    QCOMPARE(sim.linesStartingWith(QStringLiteral("language: ")), QStringList{QStringLiteral("language: english")});
    QCOMPARE(sim.linesStartingWith(QStringLiteral("unit: ")), QStringList{QStringLiteral("unit: f")});
    QCOMPARE(sim.linesStartingWith(QStringLiteral("clock set: ")).size(), 2);
    QCOMPARE(sim.linesStartingWith(QStringLiteral("clock set: ")).last(), QStringLiteral("clock set: 2030-01-15 09:42"));

    // The time and date frames follow the clock the user set; before, they were the system's.
    const Fields firstStatus = panel.bodies.at(panel.indexOf("hfcount==8") + 1);
    QVERIFY(firstStatus.value(1) != "date==20300115");
    const Fields lastStatus = panel.bodies.last();
    QCOMPARE(lastStatus.size(), 3);
    QVERIFY2(QRegularExpression(QStringLiteral("^time==094[23]$")).match(QString::fromLatin1(lastStatus.at(0))).hasMatch(),
             lastStatus.at(0).constData());
    QCOMPARE(lastStatus.at(1), QByteArray("date==20300115"));

    // Commissioning again from the console, the panel still on the settings page: its pulses of
    // page 6 before it has shown the set-up pages must not end it, and the choices are kept.
    const int before = panel.bodies.size();
    walk = {{"guistate==6"}};
    sim.process.write("commission\n");
    QVERIFY2(sim.waitUntil([&] { return panel.countOfField("guistate==26") == 2; }), qPrintable(sim.log()));
    const int restart = panel.indexOf("initialstart", before);
    QVERIFY(restart > 0);
    QCOMPARE(panel.firstFields(restart, 9), (QByteArrayList{"initialstart", "name==Ovra S1", "serialno==S1-2304-0087", "hwver==HX3-C",
                                                            "swver==3.12.0", "ophours==1234", "guistate==12", "lang==english", "unit==f"}));
    QVERIFY(settingsReportedAt > restart);
    QVERIFY(panel.indexOf("guistate==26", restart) > settingsReportedAt);
    const int afterSecond = panel.countOf("time");
    QVERIFY(sim.waitUntil([&] { return panel.countOf("time") >= afterSecond + 6; }));
    QCOMPARE(panel.countOfField("guistate==26"), 2);
    QCOMPARE(sim.linesStartingWith(QStringLiteral("commissioning done")).size(), 2);
    QVERIFY2(sim.quit(), qPrintable(sim.log()));
    QCOMPARE(panel.badChecksums, 0);
}

void TestSimFrame::panelEditsTheStore()
{
    SimProcess sim({QStringLiteral("--verbose"), QStringLiteral("--run-for"), QStringLiteral("30"), QStringLiteral("--interval"),
                    QStringLiteral("50")});
    QVERIFY2(sim.waitForLine(QStringLiteral("slave: ")), qPrintable(sim.log()));

    // What the controller hands over at start: the sample programs, texts as the rules make them.
    QByteArrayList expected;
    for (const heatfile::Program &program : sampleprograms::programs())
        expected.append(heatfile::text(program));

    const QByteArray created = "[metainfo];name=Titan Argon;manufacturer=user;material=Argon;favorite=false;"
                               "[1];rate=20;temp=1073;hold=600;argon=on;[2];rate=10;temp=1573;hold=3600;argon=on;";
    const QByteArray reheated = "[metainfo];name=Ausheizen;manufacturer=service;material=Leerbrand;favorite=false;"
                                "[1];rate=40;temp=1473;hold=1800;";
    const QByteArray changed = "[metainfo];name=Schnellsintern;manufacturer=user;material=Zirkon;favorite=false;"
                               "[1];rate=40;temp=1793;hold=2700;";
    const QByteArray changedUnknown = "[metainfo];name=Nur Geaendert;manufacturer=user;material=Zirkon;favorite=false;"
                                      "[1];rate=10;temp=1273;hold=0;";
    const QByteArray malformed = "[metainfo];name=Kaputt.hf;manufacturer=user;material=Zirkon;favorite=false;[1];rate=10;temp=1273;hold=0;";

    // One edit per status frame, each followed by asking for the programs again; the panel
    // waits for each hand-over before the next edit.
    const QList<QByteArrayList> edits = {
        {"heatfile==" + created, "heatfile==" + reheated, "hfresend"},
        {"hpchange==" + changed, "hpchange==" + changedUnknown, "hfresend"},
        {"hpdelete==Glasur 930", "hfresend"},
        {"tofavorite==Schnellsintern,true", "tofavorite==Standard Zirkon,false", "hfresend"},
        {"heatfile==" + malformed, "hpchange==" + QByteArray(changed).replace("hold=2700", "hold=45"), "hpdelete==Glasur 930",
         "tofavorite==Nirgends,true", "tofavorite==Ausheizen,maybe", "tofavorite==Ausheizen", "hfresend"},
    };
    FakePanel panel;
    panel.readsWholeStream = true;
    int sent = 0;
    panel.script = [&](const Fields &body) -> QByteArray {
        if (body.first().startsWith("time") && sent < edits.size() && panel.countOf("hfcount") == sent + 1)
            return ackWith(edits.at(sent++));
        return ackWith({});
    };
    QVERIFY(panel.open(sim.lines.first().mid(7)));
    QVERIFY2(sim.waitUntil([&] { return panel.countOf("hfcount") == edits.size() + 1; }), qPrintable(sim.log()));

    const QList<FakePanel::ProgramRound> rounds = panel.programRounds();
    QCOMPARE(rounds.size(), edits.size() + 1);
    const auto checkRound = [&](int round) {
        QCOMPARE(rounds.at(round).texts, expected);
        QCOMPARE(rounds.at(round).count, QByteArray::number(expected.size()));
    };
    checkRound(0);

    // A new program goes to the end, a known name is replaced where it stands.
    expected[7] = reheated;
    expected.append(created);
    checkRound(1);
    expected[1] = changed;
    expected.append(changedUnknown);
    checkRound(2);
    expected.removeAt(2);
    checkRound(3);
    expected[0].replace("favorite=true", "favorite=false");
    expected[1].replace("favorite=false", "favorite=true");
    checkRound(4);
    // Nothing of the bad requests reached the store.
    checkRound(5);

    QCOMPARE(sim.linesStartingWith(QStringLiteral("stored: ")),
             (QStringList{QStringLiteral("stored: Titan Argon"), QStringLiteral("stored: Ausheizen")}));
    QCOMPARE(sim.linesStartingWith(QStringLiteral("heatfile text: ")).first(), QStringLiteral("heatfile text: ") + QString::fromUtf8(created));
    QCOMPARE(sim.linesStartingWith(QStringLiteral("changed: ")),
             (QStringList{QStringLiteral("changed: Schnellsintern"), QStringLiteral("changed: Nur Geaendert (was unknown, added)")}));
    QCOMPARE(sim.linesStartingWith(QStringLiteral("deleted: ")), QStringList{QStringLiteral("deleted: Glasur 930")});
    QCOMPARE(sim.linesStartingWith(QStringLiteral("delete of unknown program: ")),
             QStringList{QStringLiteral("delete of unknown program: Glasur 930")});
    QCOMPARE(sim.linesStartingWith(QStringLiteral("favourite")),
             (QStringList{QStringLiteral("favourite: Schnellsintern on"), QStringLiteral("favourite: Standard Zirkon off"),
                          QStringLiteral("favourite of unknown program: Nirgends")}));
    QCOMPARE(sim.linesStartingWith(QStringLiteral("bad favourite request: ")),
             (QStringList{QStringLiteral("bad favourite request: Ausheizen,maybe"), QStringLiteral("bad favourite request: Ausheizen")}));
    const QStringList bad = sim.linesStartingWith(QStringLiteral("bad heatfile: "));
    QCOMPARE(bad.size(), 2);
    QVERIFY2(bad.at(0).contains(QLatin1String("Kaputt.hf")), qPrintable(bad.at(0)));
    QVERIFY2(bad.at(1).contains(QLatin1String("hold=45 is not whole minutes")), qPrintable(bad.at(1)));
    QCOMPARE(sim.linesStartingWith(QStringLiteral("heatfile text: ")).size(), 4);

    // The console shows the same store; the dump is the exact texts, ready for --programs.
    sim.process.write("programs\ndump\n");
    QVERIFY2(sim.waitUntil([&] {
                 const int at = sim.lines.indexOf(QStringLiteral("# programs: %1").arg(expected.size()));
                 return at >= 0 && sim.lines.size() > at + expected.size();
             }),
             qPrintable(sim.log()));
    const QStringList heads = sim.linesStartingWith(QStringLiteral("programs: 9 (name | manufacturer | material | fav | "));
    QCOMPARE(heads.size(), 1);
    const int listAt = sim.lines.indexOf(heads.first());
    QCOMPARE(sim.lines.at(listAt + 1), QStringLiteral("Standard Zirkon | user | Zirkon | - | 25/900/0 10/1450/120"));
    QCOMPARE(sim.lines.at(listAt + 2), QStringLiteral("Schnellsintern | user | Zirkon | fav | 40/1520/45"));
    QCOMPARE(sim.lines.at(listAt + 7), QStringLiteral("Ausheizen | service | Leerbrand | - | 40/1200/30"));
    QCOMPARE(sim.lines.at(listAt + 8), QStringLiteral("Titan Argon | user | Argon | - | 20/800/10 10/1300/60"));
    const int dumpAt = sim.lines.indexOf(QStringLiteral("# programs: 9"));
    QStringList dumped = sim.lines.mid(dumpAt + 1, expected.size());
    QStringList wanted;
    for (const QByteArray &text : qAsConst(expected))
        wanted.append(QString::fromUtf8(text));
    QCOMPARE(dumped, wanted);

    QVERIFY2(sim.quit(), qPrintable(sim.log()));
    QCOMPARE(panel.badChecksums, 0);
}

void TestSimFrame::programsFromFile()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("programs.txt"));
    const QByteArray first = "[metainfo];name=Eins;manufacturer=user;material=Zirkon;favorite=true;[1];rate=10;temp=1773;hold=7200;";
    const QByteArray second = "[metainfo];name=Zwei;manufacturer=Metallix;material=Argon;favorite=false;[1];rate=5;temp=1273;hold=60;argon=on;";
    const QByteArray secondAgain = QByteArray(second).replace("rate=5", "rate=6");
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        // Line 4 writes the temperature in °C; line 6 comes from an editor with CRLF endings.
        file.write("# Testprogramme\n\n" + first + "\n"
                   "[metainfo];name=Drei;manufacturer=user;material=Zirkon;favorite=false;[1];rate=10;temp=100;hold=0;\n"
                   + second + "\n   \n" + secondAgain + "\r\n");
    }
    SimProcess sim({QStringLiteral("--programs"), path, QStringLiteral("--many"), QStringLiteral("2"), QStringLiteral("--run-for"),
                    QStringLiteral("30"), QStringLiteral("--interval"), QStringLiteral("200")});
    QVERIFY2(sim.waitForLine(QStringLiteral("waiting for panel")), qPrintable(sim.log()));
    QVERIFY2(sim.lines.first().startsWith(QLatin1String("slave: ")), qPrintable(sim.log()));
    QCOMPARE(sim.linesStartingWith(QStringLiteral("bad heatfile: ")),
             QStringList{QStringLiteral("bad heatfile: %1:4: element 8: temp=100 is below 273 (Kelvin expected)").arg(path)});
    QCOMPARE(sim.linesStartingWith(QStringLiteral("programs: ")),
             (QStringList{QStringLiteral("programs: %1:7: replaces the earlier Zwei").arg(path),
                          QStringLiteral("programs: %1: 3 read, 1 bad line(s) skipped").arg(path)}));

    FakePanel panel;
    panel.readsWholeStream = true;
    QVERIFY(panel.open(sim.lines.first().mid(7)));
    QVERIFY2(sim.waitUntil([&] { return panel.countOf("hfcount") == 1; }), qPrintable(sim.log()));
    const FakePanel::ProgramRound round = panel.programRounds().first();
    QCOMPARE(round.count, QByteArray("4"));
    QCOMPARE(round.texts.mid(0, 2), (QByteArrayList{first, secondAgain}));
    QVERIFY(round.texts.at(2).startsWith("[metainfo];name=Programm 001;"));
    QVERIFY(round.texts.at(3).startsWith("[metainfo];name=Programm 002;"));
    QVERIFY2(sim.quit(), qPrintable(sim.log()));
}

void TestSimFrame::manyPrograms()
{
    SimProcess sim({QStringLiteral("--many"), QStringLiteral("200"), QStringLiteral("--run-for"), QStringLiteral("60"),
                    QStringLiteral("--interval"), QStringLiteral("500")});
    QVERIFY2(sim.waitForLine(QStringLiteral("slave: ")), qPrintable(sim.log()));
    FakePanel panel;
    panel.readsWholeStream = true;
    QVERIFY(panel.open(sim.lines.first().mid(7)));
    QVERIFY2(sim.waitUntil([&] { return panel.countOf("hfcount") == 1; }, 30000), qPrintable(sim.log()));

    const FakePanel::ProgramRound round = panel.programRounds().first();
    QCOMPARE(round.count, QByteArray("208"));
    QCOMPARE(round.texts.size(), 208);
    // The samples first, then the generated ones in their order, each one a good text.
    for (int i = 0; i < round.texts.size(); ++i) {
        heatfile::Program program;
        QString error;
        QVERIFY2(heatfile::parse(round.texts.at(i), &program, &error), qPrintable(error));
        if (i < 8)
            QCOMPARE(program.name, sampleprograms::programs().at(i).name);
        else
            QCOMPARE(program.name, QStringLiteral("Programm %1").arg(i - 7, 3, 10, QLatin1Char('0')));
    }
    QVERIFY2(sim.quit(), qPrintable(sim.log()));
    QCOMPARE(panel.badChecksums, 0);
}

void TestSimFrame::firingReportsItsStages()
{
    // Pre-dry 15 min (10.8 min up to 130 °C, 15 held), up to 530 °C in 20 min, 15 held, down to
    // 230 °C in 15: 75.8 furnace minutes, 2.5 s at 1800 times.
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("programs.txt"));
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[metainfo];name=Kurz;manufacturer=user;material=Zirkon;favorite=false;"
                   "[1];rate=20;temp=803;hold=900;[2];rate=20;temp=503;hold=0;\n");
    }
    SimProcess sim({QStringLiteral("--programs"), path, QStringLiteral("--speed"), QStringLiteral("1800"), QStringLiteral("--interval"),
                    QStringLiteral("50"), QStringLiteral("--run-for"), QStringLiteral("30")});
    QVERIFY2(sim.waitForLine(QStringLiteral("slave: ")), qPrintable(sim.log()));

    FakePanel panel;
    panel.readsWholeStream = true;
    Walk walk;
    walk.then([&] { return panel.countOf("hfcount") == 1; }, {"hpstart==Kurz,15"});
    panel.script = [&](const Fields &body) { return walk.answer(body); };
    QVERIFY(panel.open(sim.lines.first().mid(7)));

    bool statusAsked = false;
    const auto endReported = [&] {
        if (!statusAsked && panel.reportsWith("hpinfo") > 0) {
            statusAsked = true;
            sim.process.write("status\n");
        }
        const int success = panel.indexOf("hpsuccess");
        if (success < 0)
            return false;
        const QList<FakePanel::Report> after = panel.reports(success);
        return std::any_of(after.begin(), after.end(), [](const FakePanel::Report &r) { return r.values.value("hpinfo", "x").isEmpty(); });
    };
    QVERIFY2(sim.waitUntil(endReported, 20000), qPrintable(sim.log()));

    const int success = panel.indexOf("hpsuccess");
    QCOMPARE(panel.countOfField("hpsuccess"), 1);
    QCOMPARE(panel.countOfField("hpfailed"), 0);

    // While firing: name, remaining minutes, stage and its text, and the end on the clock.
    QList<std::pair<QByteArray, QByteArray>> stages;
    QList<int> remaining;
    for (const FakePanel::Report &report : panel.reports()) {
        if (report.index > success || !report.values.contains("hpinfo"))
            continue;
        const QByteArrayList info = report.values.value("hpinfo").split(';');
        QCOMPARE(info.size(), 4);
        QCOMPARE(info.at(0), QByteArray("Kurz"));
        const std::pair<QByteArray, QByteArray> stage{info.at(2), info.at(3)};
        if (stages.isEmpty() || stages.last() != stage)
            stages.append(stage);
        const int minutes = info.at(1).toInt();
        remaining.append(minutes);
        QVERIFY(minutes > 0);
        const QByteArray end = report.values.value("esttime");
        QVERIFY2(QRegularExpression(QStringLiteral("^\\d\\d:\\d\\d$")).match(QString::fromLatin1(end)).hasMatch(), end.constData());
        // The report's clock is cut to the minute, the remaining minutes are rounded up.
        const int until = minutesUntil(report.values.value("time"), end);
        QVERIFY2(until == minutes || until == minutes - 1, qPrintable(QStringLiteral("%1 -> %2, %3 min").arg(
                                                                 QString::fromLatin1(report.values.value("time")), QString::fromLatin1(end)).arg(minutes)));
        const int kelvin = report.values.value("temp").toInt();
        if (info.at(2) == "pre")
            QVERIFY2(kelvin <= 130 + 273, qPrintable(QString::number(kelvin)));
        else if (info.at(3) == "hold")
            QCOMPARE(kelvin, 530 + 273);
        else
            QVERIFY2(kelvin >= 130 + 273 && kelvin <= 530 + 273, qPrintable(QString::number(kelvin)));
    }
    using Stage = std::pair<QByteArray, QByteArray>;
    QCOMPARE(stages, (QList<Stage>{{"pre", "pre"}, {"1", "heat"}, {"1", "hold"}, {"2", "heat"}}));
    QVERIFY(remaining.size() > 20);
    QVERIFY2(remaining.first() <= 76 && remaining.first() >= 70, qPrintable(QString::number(remaining.first())));
    QVERIFY(std::is_sorted(remaining.rbegin(), remaining.rend()));
    QVERIFY2(remaining.last() <= 10, qPrintable(QString::number(remaining.last())));

    // After hpsuccess the empty hpinfo once, and nothing of the firing after.
    const QList<FakePanel::Report> after = panel.reports(success);
    int empties = 0;
    for (const FakePanel::Report &report : after) {
        QVERIFY(report.values.value("hpinfo").isEmpty());
        QVERIFY(!report.values.contains("esttime"));
        empties += report.values.contains("hpinfo") ? 1 : 0;
    }
    QCOMPARE(empties, 1);
    const int afterEnd = panel.countOf("time");
    QVERIFY(sim.waitUntil([&] { return panel.countOf("time") >= afterEnd + 4; }));
    QCOMPARE(panel.reportsWith("hpinfo"), remaining.size() + 1);

    const QStringList firingLines = {QStringLiteral("firing started: Kurz (pre-dry 15 min)"), QStringLiteral("stage pre-dry heat"),
                                     QStringLiteral("stage pre-dry hold"), QStringLiteral("stage 1 heat"), QStringLiteral("stage 1 hold"),
                                     QStringLiteral("stage 2 heat"), QStringLiteral("firing done")};
    QCOMPARE(linesAmong(sim.lines, firingLines), firingLines);
    const QStringList status = sim.linesStartingWith(QStringLiteral("status: "));
    QCOMPARE(status.size(), 1);
    QVERIFY2(QRegularExpression(QStringLiteral("^status: firing \\| \\d+ C \\| door closed \\| Kurz \\| stage (pre-dry|1|2) (heat|hold) \\| \\d+ min$"))
                 .match(status.first())
                 .hasMatch(),
             qPrintable(status.first()));

    sim.process.write("status\n");
    QVERIFY2(sim.waitUntil([&] { return sim.linesStartingWith(QStringLiteral("status: ")).size() == 2; }), qPrintable(sim.log()));
    QVERIFY2(QRegularExpression(QStringLiteral("^status: idle \\| \\d+ C \\| door closed \\| - \\| - \\| -$"))
                 .match(sim.linesStartingWith(QStringLiteral("status: ")).last())
                 .hasMatch(),
             qPrintable(sim.log()));
    QVERIFY2(sim.quit(), qPrintable(sim.log()));
    QCOMPARE(panel.badChecksums, 0);
}

void TestSimFrame::stopFailAndRefusedStarts()
{
    SimProcess sim({QStringLiteral("--interval"), QStringLiteral("50"), QStringLiteral("--run-for"), QStringLiteral("30")});
    QVERIFY2(sim.waitForLine(QStringLiteral("slave: ")), qPrintable(sim.log()));

    FakePanel panel;
    panel.readsWholeStream = true;
    const auto infoStartingWith = [&](const QByteArray &start) {
        const QList<FakePanel::Report> all = panel.reports();
        return std::any_of(all.begin(), all.end(), [&](const FakePanel::Report &r) { return r.values.value("hpinfo").startsWith(start); });
    };
    const auto emptyInfos = [&] {
        int n = 0;
        for (const FakePanel::Report &report : panel.reports())
            n += report.values.contains("hpinfo") && report.values.value("hpinfo").isEmpty() ? 1 : 0;
        return n;
    };
    Walk walk;
    walk.then([&] { return panel.countOf("hfcount") == 1; }, {"hpstart==Nirgends,0", "hpstart==Standard Zirkon,abc", "hpstart==Standard Zirkon"});
    walk.then([&] { return panel.countOfField("hpfailed") == 3; }, {"hpstop", "hpstart==Standard Zirkon,0"});
    walk.then([&] { return infoStartingWith("Standard Zirkon;"); }, {"hpstart==Schnellsintern,0", "hpstop"});
    walk.then([&] { return emptyInfos() == 1; }, {"hpstart==Schnellsintern,5"});
    panel.script = [&](const Fields &body) { return walk.answer(body); };
    QVERIFY(panel.open(sim.lines.first().mid(7)));

    QVERIFY2(sim.waitUntil([&] { return infoStartingWith("Schnellsintern;"); }), qPrintable(sim.log()));
    sim.process.write("fail\n");
    QVERIFY2(sim.waitUntil([&] { return emptyInfos() == 2; }), qPrintable(sim.log()));
    sim.process.write("fail\n");
    QVERIFY2(sim.waitForLine(QStringLiteral("no firing to fail")), qPrintable(sim.log()));

    // Three refused starts, the stop and the failure; a start refused while firing says nothing
    // on the line, which would read as the end of the firing that runs.
    QCOMPARE(panel.countOfField("hpfailed"), 5);
    QCOMPARE(panel.countOfField("hpsuccess"), 0);
    // At the real speed nothing moves in a report's time: the whole program is still to come.
    QList<QByteArray> infos;
    for (const FakePanel::Report &report : panel.reports()) {
        const QByteArray info = report.values.value("hpinfo");
        if (!info.isEmpty() && !infos.contains(info))
            infos.append(info);
    }
    QCOMPARE(infos, (QList<QByteArray>{"Standard Zirkon;211;1;heat", "Schnellsintern;74;pre;pre"}));
    // The empty hpinfo follows each end, never a refused start.
    const int reportsSoFar = panel.countOf("time");
    QVERIFY(sim.waitUntil([&] { return panel.countOf("time") >= reportsSoFar + 4; }));
    QCOMPARE(emptyInfos(), 2);

    const QStringList expected = {QStringLiteral("unknown program: Nirgends"),
                                  QStringLiteral("bad start request: Standard Zirkon,abc"),
                                  QStringLiteral("bad start request: Standard Zirkon"),
                                  QStringLiteral("stop: no firing"),
                                  QStringLiteral("firing started: Standard Zirkon"),
                                  QStringLiteral("start of Schnellsintern refused: Standard Zirkon is firing"),
                                  QStringLiteral("firing stopped"),
                                  QStringLiteral("firing started: Schnellsintern (pre-dry 5 min)"),
                                  QStringLiteral("firing failed"),
                                  QStringLiteral("no firing to fail")};
    QCOMPARE(linesAmong(sim.lines, expected), expected);
    QVERIFY2(sim.quit(), qPrintable(sim.log()));
    QCOMPARE(panel.badChecksums, 0);
}

void TestSimFrame::delayedStart()
{
    // At 600 times the clock goes a minute in 0.1 s: the ten minutes to the start take one.
    SimProcess sim({QStringLiteral("--speed"), QStringLiteral("600"), QStringLiteral("--interval"), QStringLiteral("50"),
                    QStringLiteral("--run-for"), QStringLiteral("30")});
    QVERIFY2(sim.waitForLine(QStringLiteral("slave: ")), qPrintable(sim.log()));

    FakePanel panel;
    panel.readsWholeStream = true;
    const auto said = [&](const QString &line) { return [&sim, line] { return sim.lines.contains(line); }; };
    Walk walk;
    walk.then([&] { return panel.countOf("hfcount") == 1; }, {"date==20300115", "time==0950", "timer==20300115,1000,Schnellsintern,0"});
    walk.then(said(QStringLiteral("firing started: Schnellsintern")), {"hpstop"});
    walk.then(said(QStringLiteral("firing stopped")), {"timer==20300115,2300,Glasur 930,0", "timer=="});
    walk.then(said(QStringLiteral("delayed start cancelled: Glasur 930")), {"timer==", "timer==20300116,0600,Glasur 930,15"});
    walk.then(said(QStringLiteral("delayed start: Glasur 930 at 2030-01-16 06:00 (pre-dry 15 min)")), {"hpstop"});
    walk.then([&] { return panel.countOfField("hpfailed") == 2; },
              {"timer==20300115,2400,Glasur 930,0", "timer==20300115,1000,Nirgends,0", "timer==20300115,1000,Glasur 930", "timer==20300101,0000,Glasur 930,0"});
    panel.script = [&](const Fields &body) { return walk.answer(body); };
    QVERIFY(panel.open(sim.lines.first().mid(7)));

    QVERIFY2(sim.waitUntil([&] {
                 return walk.done() && sim.lines.count(QStringLiteral("firing started: Glasur 930")) == 1 && panel.countOfField("hpfailed") == 5;
             }),
             qPrintable(sim.log()));

    // Nothing before ten o'clock on the set day; the reports then carry the firing.
    const QList<FakePanel::Report> reports = panel.reports(panel.indexOf("hfcount==8"));
    int first = -1;
    for (int i = 0; i < reports.size() && first < 0; ++i) {
        if (reports.at(i).values.contains("hpinfo"))
            first = i;
    }
    // A report built while the answer that set the clock was on its way still has the old one.
    int set = 0;
    while (set < reports.size() && reports.at(set).values.value("date") != "20300115")
        ++set;
    QVERIFY2(set <= 2 && first > set + 5, qPrintable(QStringLiteral("%1 %2").arg(set).arg(first)));
    for (int i = set; i < first; ++i) {
        QCOMPARE(reports.at(i).values.value("date"), QByteArray("20300115"));
        QVERIFY2(reports.at(i).values.value("time").startsWith("095"), reports.at(i).values.value("time").constData());
    }
    QVERIFY2(QRegularExpression(QStringLiteral("^100[0-2]$")).match(QString::fromLatin1(reports.at(first).values.value("time"))).hasMatch(),
             reports.at(first).values.value("time").constData());
    QVERIFY(reports.at(first).values.value("hpinfo").startsWith("Schnellsintern;"));

    const QStringList expected = {QStringLiteral("delayed start: Schnellsintern at 2030-01-15 10:00"),
                                  QStringLiteral("delayed start due: Schnellsintern"),
                                  QStringLiteral("firing started: Schnellsintern"),
                                  QStringLiteral("firing stopped"),
                                  QStringLiteral("delayed start: Glasur 930 at 2030-01-15 23:00"),
                                  QStringLiteral("delayed start cancelled: Glasur 930"),
                                  QStringLiteral("no delayed start to cancel"),
                                  QStringLiteral("delayed start: Glasur 930 at 2030-01-16 06:00 (pre-dry 15 min)"),
                                  QStringLiteral("delayed start cancelled: Glasur 930"),
                                  QStringLiteral("bad timer request: 20300115,2400,Glasur 930,0"),
                                  QStringLiteral("unknown program: Nirgends"),
                                  QStringLiteral("bad timer request: 20300115,1000,Glasur 930"),
                                  QStringLiteral("delayed start: Glasur 930 at 2030-01-01 00:00"),
                                  QStringLiteral("delayed start due: Glasur 930"),
                                  QStringLiteral("firing started: Glasur 930")};
    QCOMPARE(linesAmong(sim.lines, expected), expected);
    // The stopped firing, the stopped delayed start and the three bad requests; a cancelled
    // delayed start is not a failed one.
    QCOMPARE(panel.countOfField("hpfailed"), 5);
    QVERIFY2(sim.quit(), qPrintable(sim.log()));
    QCOMPARE(panel.badChecksums, 0);
}

void TestSimFrame::doorMoves()
{
    const int doorMs = 600;
    SimProcess sim({QStringLiteral("--door-ms"), QString::number(doorMs), QStringLiteral("--interval"), QStringLiteral("50"),
                    QStringLiteral("--run-for"), QStringLiteral("30")});
    QVERIFY2(sim.waitForLine(QStringLiteral("slave: ")), qPrintable(sim.log()));

    FakePanel panel;
    panel.readsWholeStream = true;
    const auto saidTimes = [&](const QString &line, int times) { return [&sim, line, times] { return sim.lines.count(line) == times; }; };
    Walk walk;
    walk.then([&] { return panel.countOf("hfcount") == 1; }, {"movedoor"});
    walk.then(saidTimes(QStringLiteral("door open"), 1), {"doorclose"});
    // Closed already; then up and at once down again.
    walk.then(saidTimes(QStringLiteral("door closed"), 1), {"doorclose", "movedoor", "movedoor"});
    walk.then(saidTimes(QStringLiteral("door closed"), 2), {"movedoor"});
    // A start with the door up brings it down.
    walk.then(saidTimes(QStringLiteral("door open"), 2), {"hpstart==Glasur 930,0"});
    walk.then(saidTimes(QStringLiteral("door closed"), 3), {"hpstop"});
    panel.script = [&](const Fields &body) { return walk.answer(body); };
    QVERIFY(panel.open(sim.lines.first().mid(7)));
    QVERIFY2(sim.waitUntil([&] { return walk.done() && sim.lines.contains(QStringLiteral("firing stopped")); }), qPrintable(sim.log()));

    const QByteArrayList doorFrames = {"dooropen", "doorclose", "doorclosed"};
    // The start-up's "the door is closed", then three trips up and down.
    QCOMPARE(panel.framesAmong(doorFrames), QByteArrayList{"doorclosed"} + doorFrames + doorFrames + doorFrames);
    const QStringList doorLines = {QStringLiteral("door opening"), QStringLiteral("door open"), QStringLiteral("door closing"),
                                   QStringLiteral("door closed"), QStringLiteral("door already closed"), QStringLiteral("firing started: Glasur 930")};
    QCOMPARE(linesAmong(sim.lines, doorLines),
             (QStringList{QStringLiteral("door opening"), QStringLiteral("door open"), QStringLiteral("door closing"), QStringLiteral("door closed"),
                          QStringLiteral("door already closed"), QStringLiteral("door opening"), QStringLiteral("door closing"),
                          QStringLiteral("door closed"), QStringLiteral("door opening"), QStringLiteral("door open"),
                          QStringLiteral("door closing"), QStringLiteral("firing started: Glasur 930"), QStringLiteral("door closed")}));

    // A full travel takes its time; turned round at once, the door is back down at once.
    const int firstClose = panel.indexOf("doorclose");
    const int firstClosed = panel.indexOf("doorclosed", firstClose); // after the start-up's report
    const qint64 fullTravel = panel.arrivalMs.at(firstClosed) - panel.arrivalMs.at(firstClose);
    QVERIFY2(fullTravel >= doorMs * 9 / 10, qPrintable(QString::number(fullTravel)));
    const int turnedClose = panel.indexOf("doorclose", firstClosed);
    const qint64 turnedTravel = panel.arrivalMs.at(panel.indexOf("doorclosed", turnedClose)) - panel.arrivalMs.at(turnedClose);
    QVERIFY2(turnedTravel < doorMs * 2 / 3, qPrintable(QString::number(turnedTravel)));
    QVERIFY2(sim.quit(), qPrintable(sim.log()));
    QCOMPARE(panel.badChecksums, 0);
}

void TestSimFrame::scriptedEvents()
{
    SimProcess sim({QStringLiteral("--argon"), QStringLiteral("--interval"), QStringLiteral("50"), QStringLiteral("--run-for"),
                    QStringLiteral("30")});
    QVERIFY2(sim.waitForLine(QStringLiteral("slave: ")), qPrintable(sim.log()));

    // Answers the way the panel's screens do: material accepted, then refused (the panel then
    // calls its start off), the insulation put in.
    FakePanel panel;
    panel.readsWholeStream = true;
    panel.script = [&](const Fields &body) -> QByteArray {
        if (body.first() == "matchanged==argon")
            return ackWith({"matchanged"});
        if (body.first() == "matchanged==zirkon")
            return ackWith({"matnotchanged", "hpstop", "timer=="});
        if (body.first() == "insulationmissing")
            return ackWith({"insulationinsert"});
        return ackWith({});
    };
    QVERIFY(panel.open(sim.lines.first().mid(7)));
    QVERIFY2(sim.waitUntil([&] { return panel.countOf("hfcount") == 1; }), qPrintable(sim.log()));
    // An argon furnace says so before its programs.
    QCOMPARE(panel.firstFields(7, 4), (QByteArrayList{"unit==c", "doorclosed", "argon==True",
                                                      "heatfile==" + heatfile::text(sampleprograms::programs().first())}));

    sim.process.write("material argon\nmaterial zirkon\nmaterial wood\ninsulation\nargon off\nargon on\nargoncheck fail\nargoncheck maybe\n"
                      "argoncheck pass\ninteraction\nerror E101, E102\nerror\nerror E1;E2\nreseterror E101\ntemp 400\ntemp hot\nfail\nstatus\n");
    QVERIFY2(sim.waitForLine(QStringLiteral("status: ")), qPrintable(sim.log()));
    QVERIFY2(sim.waitUntil([&] { return panel.countOf("reseterror") == 1 && sim.lines.contains(QStringLiteral("insulation inserted")); }),
             qPrintable(sim.log()));

    const QByteArrayList events = {"matchanged==argon", "matchanged==zirkon", "insulationmissing", "argon==False", "argon==True",
                                   "stargon==fail", "stargon==pass", "waitforuserinteraction", "error==E101,E102", "reseterror==E101"};
    QCOMPARE(panel.framesAmong(events, panel.indexOf("hfcount==8")), events);
    QCOMPARE(panel.countOfField("argon==True"), 2);
    QCOMPARE(panel.countOfField("hpfailed"), 0);

    // The forced temperature shows in the next report.
    QVERIFY2(sim.waitUntil([&] { return panel.reports().last().values.value("temp") == "673"; }), qPrintable(sim.log()));

    const QStringList expected = {QStringLiteral("event: matchanged==argon"),
                                  QStringLiteral("event: matchanged==zirkon"),
                                  QStringLiteral("usage: material argon|zirkon"),
                                  QStringLiteral("event: insulationmissing"),
                                  QStringLiteral("event: argon==False"),
                                  QStringLiteral("event: argon==True"),
                                  QStringLiteral("event: stargon==fail"),
                                  QStringLiteral("usage: argoncheck pass|fail"),
                                  QStringLiteral("event: stargon==pass"),
                                  QStringLiteral("event: waitforuserinteraction"),
                                  QStringLiteral("event: error==E101,E102"),
                                  QStringLiteral("usage: error <code>[,<code>...]"),
                                  QStringLiteral("usage: error <code>[,<code>...]"),
                                  QStringLiteral("event: reseterror==E101"),
                                  QStringLiteral("chamber temperature: 400 C"),
                                  QStringLiteral("usage: temp <celsius> (-40 to 1800)"),
                                  QStringLiteral("no firing to fail"),
                                  QStringLiteral("status: idle | 400 C | door closed | - | - | -")};
    QCOMPARE(linesAmong(sim.lines, expected), expected);
    const QStringList answers = {QStringLiteral("material change accepted"), QStringLiteral("material change refused"),
                                 QStringLiteral("stop: no firing"), QStringLiteral("no delayed start to cancel"),
                                 QStringLiteral("insulation inserted")};
    QCOMPARE(linesAmong(sim.lines, answers), answers);
    QVERIFY2(sim.quit(), qPrintable(sim.log()));
    QCOMPARE(panel.badChecksums, 0);
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
    QTest::newRow("step zero") << QStringList{QStringLiteral("--step-ms"), QStringLiteral("0")};
    QTest::newRow("step text") << QStringList{QStringLiteral("--step-ms"), QStringLiteral("slow")};
    QTest::newRow("unknown self-test row") << QStringList{QStringLiteral("--selftest-fail"), QStringLiteral("oven")};
    QTest::newRow("empty self-test row") << QStringList{QStringLiteral("--selftest-fail"), QString()};
    QTest::newRow("missing program file") << QStringList{QStringLiteral("--programs"), QStringLiteral("/nonexistent/programs.txt")};
    QTest::newRow("program file a folder") << QStringList{QStringLiteral("--programs"), QStringLiteral("/")};
    QTest::newRow("many negative") << QStringList{QStringLiteral("--many"), QStringLiteral("-1")};
    QTest::newRow("many text") << QStringList{QStringLiteral("--many"), QStringLiteral("lots")};
    QTest::newRow("many too many") << QStringList{QStringLiteral("--many"), QStringLiteral("10000")};
    QTest::newRow("speed zero") << QStringList{QStringLiteral("--speed"), QStringLiteral("0")};
    QTest::newRow("speed negative") << QStringList{QStringLiteral("--speed"), QStringLiteral("-60")};
    QTest::newRow("speed text") << QStringList{QStringLiteral("--speed"), QStringLiteral("fast")};
    QTest::newRow("speed beyond reason") << QStringList{QStringLiteral("--speed"), QStringLiteral("1e9")};
    QTest::newRow("door negative") << QStringList{QStringLiteral("--door-ms"), QStringLiteral("-1")};
    QTest::newRow("door text") << QStringList{QStringLiteral("--door-ms"), QStringLiteral("slow")};
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
