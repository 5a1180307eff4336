// The serial transport over a real pseudo-terminal: chunk assembly with the controller's
// quirks, answers on the line, the watchdog, the error path and the buffer cap.
#include "communication/communicator.h"
#include "communication/frame.h"
#include "communication/messagehandler.h"
#include "communication/updateblock.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>
#include <fcntl.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>
#include <utility>

using ovra::Communication::Communicator;
using ovra::Communication::MessageHandler;
namespace Frame = ovra::Communication::Frame;

namespace {

QStringList capturedLog;

void captureMessages(QtMsgType, const QMessageLogContext &, const QString &message)
{
    capturedLog << message;
}

int countLog(const QString &prefix)
{
    int n = 0;
    for (const QString &line : qAsConst(capturedLog))
        n += line.startsWith(prefix) ? 1 : 0;
    return n;
}

// The controller's end of the line.
class Pty
{
public:
    Pty()
    {
        termios raw{};
        cfmakeraw(&raw);
        char name[128] = {};
        if (openpty(&m_master, &m_slave, name, &raw, nullptr) == 0) {
            m_slavePath = QString::fromLocal8Bit(name);
            fcntl(m_master, F_SETFL, fcntl(m_master, F_GETFL) | O_NONBLOCK);
        }
    }
    ~Pty() { close(); }
    Q_DISABLE_COPY(Pty)

    bool isValid() const { return m_master >= 0; }
    QString slavePath() const { return m_slavePath; }

    void close()
    {
        for (int *fd : {&m_master, &m_slave})
            if (*fd >= 0)
                ::close(std::exchange(*fd, -1));
    }

    // Bytes written by us that the panel has not read yet.
    int unread() const
    {
        int n = 0;
        return ::ioctl(m_slave, FIONREAD, &n) == 0 ? n : -1;
    }

    bool write(const QByteArray &bytes)
    {
        qint64 done = 0;
        while (done < bytes.size()) {
            const ssize_t n = ::write(m_master, bytes.constData() + done, size_t(bytes.size() - done));
            if (n > 0) {
                done += n;
            } else if (errno == EAGAIN) {
                QCoreApplication::processEvents(); // let the panel drain the line
            } else {
                return false;
            }
        }
        return true;
    }

    QByteArray readAvailable()
    {
        QByteArray all;
        char buf[4096];
        ssize_t n;
        while ((n = ::read(m_master, buf, sizeof buf)) > 0)
            all.append(buf, int(n));
        return all;
    }

private:
    int m_master = -1;
    int m_slave = -1;
    QString m_slavePath;
};

} // namespace

class TestCommunicator : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void chunkAssembly_data();
    void chunkAssembly();
    void noAnswerWithoutAnEndByte();
    void silentLineIsReset();
    void vanishedDeviceIsClosedAndReopened();
    void oversizedPartialFrameIsDropped();
    void nonAsciiNameIsCheckedOverItsBytes_data();
    void nonAsciiNameIsCheckedOverItsBytes();
    void silentControllerIsAskedForMissingBlocks();

private:
    // Writes one chunk and waits until the panel has read and handled it.
    void sendChunk(const QByteArray &chunk);
    QByteArray waitForAnswer();
    // A good frame, its end byte alone as the controller sends it, is answered with "ack".
    void answersAFrame();

    QScopedPointer<Pty> m_pty;
    QScopedPointer<MessageHandler> m_handler;
    QScopedPointer<Communicator> m_communicator;
    QByteArray m_received;
};

void TestCommunicator::initTestCase()
{
    qInstallMessageHandler(captureMessages);
}

void TestCommunicator::init()
{
    capturedLog.clear();
    m_received.clear();
    m_pty.reset(new Pty);
    QVERIFY(m_pty->isValid());
    m_handler.reset(new MessageHandler(ovra::GlobalElements::Paths(QStringLiteral("/nonexistent/ovra-home"))));
    m_communicator.reset(new Communicator(m_handler.data(), nullptr, m_pty->slavePath()));
    QVERIFY(m_communicator->IsPortOpen());
    QCOMPARE(countLog(QStringLiteral("serial port open!!")), 1);
}

void TestCommunicator::cleanup()
{
    m_communicator.reset();
    m_handler.reset();
    m_pty.reset();
}

void TestCommunicator::sendChunk(const QByteArray &chunk)
{
    // The line's bytes reach the port through a kernel worker, so "nothing unread" alone
    // could be seen before they even arrived: wait for the port's own read as well.
    auto *port = m_communicator->findChild<QSerialPort *>();
    QVERIFY(port != nullptr);
    QSignalSpy portRead(port, &QSerialPort::readyRead);
    QVERIFY(m_pty->write(chunk));
    QTRY_VERIFY_WITH_TIMEOUT(portRead.count() > 0 && m_pty->unread() == 0 && port->bytesAvailable() == 0, 5000);
}

QByteArray TestCommunicator::waitForAnswer()
{
    (void)QTest::qWaitFor(
        [this] {
            m_received += m_pty->readAvailable();
            return m_received.contains(Frame::endByte);
        },
        5000);
    const int end = m_received.indexOf(Frame::endByte);
    if (end < 0)
        return QByteArray();
    const QByteArray answer = m_received.left(end + 1);
    m_received.remove(0, end + 1);
    return answer;
}

void TestCommunicator::answersAFrame()
{
    const QByteArray frame = Frame::Build("temp==1473");
    sendChunk(frame.left(frame.size() - 1));
    sendChunk(frame.right(1));
    QCOMPARE(waitForAnswer(), Frame::Build("ack"));
}

void TestCommunicator::chunkAssembly_data()
{
    QTest::addColumn<QList<QByteArray>>("chunks");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("temperature"); // empty: nothing acted on

    const QByteArray frame = Frame::Build("temp==1473");
    const QByteArray open = frame.left(frame.size() - 1);
    const QByteArray end(1, Frame::endByte);
    const QByteArray other = Frame::Build("temp==300");
    QTest::newRow("split over chunks") << QList<QByteArray>{frame.left(5), frame.mid(5, 4), frame.mid(9)}
                                       << Frame::Build("ack") << "1200";
    // A whole frame in one read waits for an end byte that comes alone.
    QTest::newRow("whole frame in one chunk") << QList<QByteArray>{frame, end} << Frame::Build("ack") << "1200";
    QTest::newRow("new start drops the collected")
        << QList<QByteArray>{frame, "\x02x", other.left(other.size() - 1), end} << Frame::Build("ack") << "27";
    QTest::newRow("bytes around the frame")
        << QList<QByteArray>{"noise" + open, end + "trailing"} << Frame::Build("ack") << "1200";
    QTest::newRow("ends at a zero byte") << QList<QByteArray>{open + QByteArray(1, '\0') + "$$garbage", end}
                                         << Frame::Build("ack") << "1200";
    // The start of the frame was lost on the line: what is left fails its checksum.
    QTest::newRow("end byte without start") << QList<QByteArray>{frame.mid(3)} << Frame::Build("nack") << "";
}

void TestCommunicator::chunkAssembly()
{
    QFETCH(QList<QByteArray>, chunks);
    QFETCH(QString, temperature);
    QSignalSpy temperatures(m_handler.data(), &MessageHandler::SignalTemperature);
    for (const QByteArray &chunk : chunks)
        sendChunk(chunk);
    QTEST(waitForAnswer(), "answer");
    QVERIFY(m_received.isEmpty());
    QCOMPARE(temperatures.count(), temperature.isEmpty() ? 0 : 1);
    if (!temperature.isEmpty())
        QCOMPARE(temperatures.at(0).at(0).toString(), temperature);
    QCOMPARE(countLog(QStringLiteral("Pis Answer: ")), 1);
}

void TestCommunicator::noAnswerWithoutAnEndByte()
{
    // Requests never leave on their own: only a dispatched frame is answered.
    m_handler->SetRequest(QStringLiteral("doorclose"));
    sendChunk(QByteArray("\002temp==1473$$"));
    sendChunk(QByteArray("-12"));
    QVERIFY(m_pty->readAvailable().isEmpty());
    QCOMPARE(countLog(QStringLiteral("Pis Answer: ")), 0);
}

void TestCommunicator::silentLineIsReset()
{
    m_communicator.reset();
    capturedLog.clear();
    m_communicator.reset(new Communicator(m_handler.data(), nullptr, m_pty->slavePath(), 100));
    QTRY_VERIFY_WITH_TIMEOUT(countLog(QStringLiteral("serial port reset successfull!!")) >= 1, 5000);

    // The reset line is usable at once.
    answersAFrame();
}

void TestCommunicator::vanishedDeviceIsClosedAndReopened()
{
    // The panel follows a fixed path; here a link stands for the device node.
    QTemporaryDir dir;
    const QString link = dir.path() + QStringLiteral("/line");
    QVERIFY(QFile::link(m_pty->slavePath(), link));
    m_communicator.reset();
    capturedLog.clear();
    m_communicator.reset(new Communicator(m_handler.data(), nullptr, link, 300));
    QVERIFY(m_communicator->IsPortOpen());

    m_pty->close(); // the controller side goes away
    // Nothing at the path from now on: a parallel test's new pseudo-terminal may take the
    // freed number, and the watchdog must not find a line there.
    QVERIFY(QFile::remove(link));
    QTRY_VERIFY_WITH_TIMEOUT(!m_communicator->IsPortOpen(), 5000);
    QVERIFY(countLog(QStringLiteral("failure serial communication: ")) >= 2);
    QCOMPARE(countLog(QStringLiteral("serial port closed until the watchdog reopens it")), 1);

    // With nothing at the path the watchdog keeps trying, without flooding the log.
    QTRY_VERIFY_WITH_TIMEOUT(countLog(QStringLiteral("serial port reset not successfull!!")) >= 1, 5000);
    QVERIFY(capturedLog.size() < 100);

    // The controller comes back at the same path.
    m_pty.reset(new Pty);
    QVERIFY(QFile::link(m_pty->slavePath(), link));
    QTRY_VERIFY_WITH_TIMEOUT(m_communicator->IsPortOpen(), 5000);
    QVERIFY(countLog(QStringLiteral("serial port reset successfull!!")) >= 1);

    answersAFrame();
}

void TestCommunicator::oversizedPartialFrameIsDropped()
{
    QSignalSpy temperature(m_handler.data(), &MessageHandler::SignalTemperature);
    sendChunk(QByteArray("\002temp==1"));
    const QByteArray filler(64 * 1024, '7');
    for (int sent = 0; sent <= Communicator::maxBufferBytes; sent += filler.size())
        sendChunk(filler);
    QCOMPARE(countLog(QStringLiteral("receive buffer overflow")), 1);
    sendChunk(QByteArray(1, Frame::endByte)); // the rest of the monster is not a frame
    QVERIFY(m_pty->readAvailable().isEmpty());
    QCOMPARE(temperature.count(), 0);

    answersAFrame();
    QCOMPARE(temperature.count(), 1);
}

void TestCommunicator::nonAsciiNameIsCheckedOverItsBytes_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("summed"); // what the checksum was taken over
    QTest::addColumn<QByteArray>("answer");

    // Both read as "Zirkon Ä", from two bytes or from one; their sums differ (71 and 196).
    const QByteArray utf8("hpinfo==Zirkon \xC3\x84;95;1;heat");
    const QByteArray latin1("hpinfo==Zirkon \xC4;95;1;heat");
    QTest::newRow("UTF-8, byte sum") << utf8 << utf8 << Frame::Build("ack");
    QTest::newRow("UTF-8, sum of the characters") << utf8 << latin1 << Frame::Build("nack");
    QTest::newRow("Latin-1, byte sum") << latin1 << latin1 << Frame::Build("ack");
    QTest::newRow("Latin-1, sum of the text as UTF-8") << latin1 << utf8 << Frame::Build("nack");
}

void TestCommunicator::nonAsciiNameIsCheckedOverItsBytes()
{
    QFETCH(QByteArray, body);
    QFETCH(QByteArray, summed);
    QSignalSpy info(m_handler.data(), &MessageHandler::SignalHeatfileInfo);
    sendChunk(Frame::startByte + body + "$$" + Frame::ChecksumText(Frame::BodySum(summed)).toLatin1());
    sendChunk(QByteArray(1, Frame::endByte));
    QTEST(waitForAnswer(), "answer");
    if (body == summed) {
        QCOMPARE(info.count(), 1);
        QCOMPARE(info.at(0).at(0).value<ovra::Communication::HeatReport>().program, QStringLiteral("Zirkon \u00C4"));
    } else {
        QCOMPARE(info.count(), 0);
    }
}

void TestCommunicator::silentControllerIsAskedForMissingBlocks()
{
    // Mid-update the panel speaks only to ask for blocks; when the controller falls silent no
    // frame of its will come to carry the request, so it goes out on a frame of its own.
    m_handler->SetUpdateQuietTiming(50, 3);
    const auto sendFrame = [this](const QByteArray &frame) {
        sendChunk(frame.left(frame.size() - 1));
        sendChunk(frame.right(1));
    };
    sendFrame(Frame::Build("update==2"));
    QCOMPARE(waitForAnswer(), Frame::Build("ack"));
    sendFrame(Frame::startByte + ovra::Communication::UpdateBlock::Encode(0, "zero") + Frame::endByte);
    QCOMPARE(waitForAnswer(), Frame::Build("resend==1"));
}

QTEST_GUILESS_MAIN(TestCommunicator)
#include "tst_communicator.moc"
