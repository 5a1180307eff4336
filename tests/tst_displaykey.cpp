// The display key: the panel's local key server over real sockets, and the key script itself
// driven through a stand-in GPIO module.
#include "communication/internalcommunicator.h"

#include <QNetworkInterface>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

using ovra::Communication::InternalCommunicator;

class TestDisplayKey : public QObject
{
    Q_OBJECT

private slots:
    void wordsSwitchTouchAndAreAnswered();
    void secondClientIsServedAfterTheFirstLeaves();
    void listensOnLoopbackOnly();
    void keyScriptSwitchesDisplayAndTouch();

private:
    static QByteArray Answer(QTcpSocket &socket, const QByteArray &message)
    {
        // The server shares this thread: wait with the event loop running.
        socket.write(message);
        QByteArray answer;
        QDeadlineTimer deadline(5000);
        while (answer.size() < 3 && !deadline.hasExpired()) {
            QTest::qWait(5);
            answer += socket.readAll();
        }
        return answer;
    }
};

void TestDisplayKey::wordsSwitchTouchAndAreAnswered()
{
    InternalCommunicator server(nullptr, 0);
    QVERIFY(server.IsListening());
    QSignalSpy touch(&server, &InternalCommunicator::SignalReceivedTouchEvent);
    QTcpSocket key;
    key.connectToHost(QHostAddress::LocalHost, server.Port());
    QVERIFY(key.waitForConnected(3000));

    const QList<QPair<QByteArray, QPair<bool, QByteArray>>> cases = {
        {"aus", {false, "ack"}},
        {"ein", {true, "ack"}},
        {"an", {true, "nak"}},   // what the key script sends: switches on all the same
        {"anaus", {true, "nak"}}, // two words in one read are one unknown text
        {"AUS", {true, "nak"}},
    };
    for (const auto &c : cases) {
        QCOMPARE(Answer(key, c.first), c.second.second);
        QTRY_COMPARE(touch.size(), 1);
        QCOMPARE(touch.takeFirst().at(0).toBool(), c.second.first);
    }
}

void TestDisplayKey::secondClientIsServedAfterTheFirstLeaves()
{
    InternalCommunicator server(nullptr, 0);
    QSignalSpy touch(&server, &InternalCommunicator::SignalReceivedTouchEvent);
    QTcpSocket first;
    first.connectToHost(QHostAddress::LocalHost, server.Port());
    QVERIFY(first.waitForConnected(3000));
    QCOMPARE(Answer(first, "ein"), QByteArray("ack"));

    // The second one waits in the backlog, its word unread, while the first is connected.
    QTcpSocket second;
    second.connectToHost(QHostAddress::LocalHost, server.Port());
    QVERIFY(second.waitForConnected(3000));
    second.write("aus");
    second.flush();
    QCOMPARE(Answer(first, "ein"), QByteArray("ack"));
    QCOMPARE(touch.size(), 2);

    first.disconnectFromHost();
    QTRY_COMPARE(touch.size(), 3);
    QCOMPARE(touch.at(2).at(0).toBool(), false);
    QByteArray answer;
    QTRY_COMPARE((answer += second.readAll()), QByteArray("ack"));
}

void TestDisplayKey::listensOnLoopbackOnly()
{
    InternalCommunicator server(nullptr, 0);
    QSignalSpy touch(&server, &InternalCommunicator::SignalReceivedTouchEvent);
    if (server.IsListeningIPv6()) {
        QTcpSocket key6;
        key6.connectToHost(QHostAddress::LocalHostIPv6, server.Port());
        QVERIFY(key6.waitForConnected(3000));
        QCOMPARE(Answer(key6, "aus"), QByteArray("ack"));
        key6.disconnectFromHost();
    }

    QHostAddress outside;
    for (const QHostAddress &address : QNetworkInterface::allAddresses()) {
        if (!address.isLoopback() && address.protocol() == QAbstractSocket::IPv4Protocol)
            outside = address;
    }
    if (outside.isNull())
        QSKIP("this machine has no address besides the loopback");
    QTcpSocket stranger;
    stranger.connectToHost(outside, server.Port());
    QVERIFY(!stranger.waitForConnected(3000));
    QCOMPARE(stranger.error(), QAbstractSocket::ConnectionRefusedError);
}

void TestDisplayKey::keyScriptSwitchesDisplayAndTouch()
{
    const QString python = QStandardPaths::findExecutable(QStringLiteral("python3"));
    if (python.isEmpty())
        QSKIP("no python3 on this machine");
    InternalCommunicator server(nullptr, 0);
    QSignalSpy touch(&server, &InternalCommunicator::SignalReceivedTouchEvent);
    QTemporaryDir work;

    QProcess script;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PYTHONPATH"), QStringLiteral(OVRA_SOURCE_DIR "/tests/fakegpio"));
    environment.insert(QStringLiteral("PYTHONDONTWRITEBYTECODE"), QStringLiteral("1"));
    script.setProcessEnvironment(environment);
    script.setWorkingDirectory(work.path());
    script.setProcessChannelMode(QProcess::MergedChannels);
    // A hold of 50 ms stands for the furnace's second.
    script.start(python, {QStringLiteral(OVRA_SOURCE_DIR "/resources/scripts/dispOn.py"),
                          QString::number(server.Port()), QStringLiteral("50")});
    QVERIFY(script.waitForStarted());
    QByteArray output;
    auto printed = [&](const QByteArray &line) {
        output += script.readAll();
        return output.contains(line + '\n');
    };
    QTRY_VERIFY(printed("watch 15 falling 1500"));
    QVERIFY(output.contains("mode BOARD\nsetup 32 out 1\nsetup 13 out 1\nsetup 15 in up\n"));
    QFile pidFile(work.filePath(QStringLiteral("dispOn.pid")));
    QVERIFY(pidFile.open(QIODevice::ReadOnly));
    QCOMPARE(pidFile.readAll().toLongLong(), script.processId());

    // Held down with the display on: off, and touch off.
    script.write("press\n");
    QTRY_COMPARE(touch.size(), 1);
    QCOMPARE(touch.at(0).at(0).toBool(), false);
    QTRY_VERIFY(printed("handled"));
    QVERIFY(output.contains("output 32 0\noutput 13 0\n"));

    // The script leaves its socket to the garbage collector; the server must take the next one.
    output.clear();
    script.write("release\npress\n");
    QTRY_COMPARE(touch.size(), 2);
    QCOMPARE(touch.at(1).at(0).toBool(), true);
    QTRY_VERIFY(printed("handled"));
    QVERIFY(output.contains("output 32 1\noutput 13 1\n"));
    QVERIFY(!output.contains("failure"));

    script.kill();
    script.waitForFinished();
}

QTEST_GUILESS_MAIN(TestDisplayKey)
#include "tst_displaykey.moc"
