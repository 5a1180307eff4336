// Input no one should send, from the two peers the panel listens to: the display-key socket
// (any bytes, many clients at once, a client that never speaks) and the controller (every
// keyword with empty, huge, non-numeric and negative values). The panel must answer as it
// always does and stay reachable.
#include "app/paths.h"
#include "communication/frame.h"
#include "communication/internalcommunicator.h"
#include "communication/messagehandler.h"
#include "programs/program.h"

#include <QSignalSpy>
#include <QTcpSocket>
#include <QtTest>

#include <memory>

using namespace ovra::Communication;

class TestBadInput : public QObject
{
    Q_OBJECT

private slots:
    void keySocketAnyBytes_data();
    void keySocketAnyBytes();
    void keySocketManyClientsAndASilentOne();
    void controllerKeywordValues_data();
    void controllerKeywordValues();
};

void TestBadInput::keySocketAnyBytes_data()
{
    QTest::addColumn<QByteArray>("message");
    QByteArray everyByte;
    for (int b = 0; b < 256; ++b)
        everyByte.append(char(b));
    QTest::newRow("every byte value") << everyByte;
    QTest::newRow("64 KiB") << QByteArray(65536, 'a');
    QTest::newRow("aus with a newline") << QByteArray("aus\n");
}

void TestBadInput::keySocketAnyBytes()
{
    QFETCH(QByteArray, message);
    InternalCommunicator server(nullptr, 0);
    QSignalSpy touch(&server, &InternalCommunicator::SignalReceivedTouchEvent);
    QTcpSocket client;
    client.connectToHost(QHostAddress::LocalHost, server.Port());
    QVERIFY(client.waitForConnected(2000));
    client.write(message);
    // A big message may come in several reads: each is one message, and the last one decides.
    QTRY_VERIFY(touch.count() >= 1 && client.bytesAvailable() >= 3);
    QCOMPARE(touch.last().first().toBool(), true); // not a word: the touch stays on
    QVERIFY(client.readAll().endsWith("nak"));
}

void TestBadInput::keySocketManyClientsAndASilentOne()
{
    InternalCommunicator server(nullptr, 0);
    server.SetIdleTimeoutMs(200);
    QSignalSpy touch(&server, &InternalCommunicator::SignalReceivedTouchEvent);

    QTcpSocket silent;
    silent.connectToHost(QHostAddress::LocalHost, server.Port());
    QVERIFY(silent.waitForConnected(2000));
    QTRY_COMPARE(silent.state(), QAbstractSocket::UnconnectedState); // dropped when idle

    // Thirty clients at once, as a script gone wrong would connect: each is answered or, when
    // a newer one took its place, disconnected; none is left hanging.
    std::vector<std::unique_ptr<QTcpSocket>> clients;
    for (int i = 0; i < 30; ++i) {
        clients.push_back(std::make_unique<QTcpSocket>());
        clients.back()->connectToHost(QHostAddress::LocalHost, server.Port());
        clients.back()->write("an");
    }
    for (auto &client : clients) {
        QTRY_VERIFY_WITH_TIMEOUT(client->bytesAvailable() >= 3 || client->state() == QAbstractSocket::UnconnectedState,
                                 5000);
        if (client->bytesAvailable() > 0)
            QCOMPARE(client->readAll(), QByteArray("nak"));
        client->disconnectFromHost();
    }
    QVERIFY(touch.count() >= 1);

    QTcpSocket key;
    key.connectToHost(QHostAddress::LocalHost, server.Port());
    key.write("aus");
    QByteArray answer;
    QTRY_COMPARE_WITH_TIMEOUT((answer += key.readAll()), QByteArray("ack"), 2000);
}

void TestBadInput::controllerKeywordValues_data()
{
    QTest::addColumn<QString>("keyword");
    const QString keywords = QStringLiteral(
        "argon country date doorclose error esttime guistate hfcount hpfailed hpinfo hpsuccess hwver initialstart lang "
        "matchanged maxrate ophours reseterror serialno stage stargon stcooling stdoor stheater swver temp time unit "
        "usb update heatfile st waitforuserinteraction insulationmissing nosuchword");
    for (const QString &k : keywords.split(QLatin1Char(' ')))
        QTest::newRow(qPrintable(k)) << k;
}

void TestBadInput::controllerKeywordValues()
{
    QFETCH(QString, keyword);
    const QList<QByteArray> values{QByteArray(),
                                   QByteArray(100000, '9'),
                                   "abc",
                                   "-1",
                                   "-99999999999",
                                   "1e9",
                                   "12:",
                                   "==",
                                   "[1];temp=-5;rate=;hold=x;",
                                   QByteArray(5000, ';')};
    const QByteArray ack = QByteArray(1, Frame::startByte) + "ack";
    std::vector<std::unique_ptr<ovra::GlobalElements::Program>> store;
    for (const QByteArray &value : values) {
        // A handler each time: "update==" turns every later frame into an update block.
        MessageHandler handler(ovra::GlobalElements::Paths(QStringLiteral("/nonexistent/ovra-home")));
        connect(&handler, &MessageHandler::SignalHeatfileReceived, this,
                [&store](ovra::GlobalElements::Program *p) { store.emplace_back(p); });
        const QByteArray answer =
            handler.HandleMessage(QString::fromLatin1(Frame::Build(keyword.toLatin1() + "==" + value)));
        // Clock values the panel cannot set and unknown words are refused; any other value is
        // taken (numbers that are not numbers read as 0) or ignored by the page it is for.
        const bool refused = keyword == "date" || keyword == "time" || keyword == "nosuchword";
        QVERIFY2(answer.startsWith(refused ? QByteArray("\x02nack") : ack), value.left(20).constData());
        // And the next good frame is taken as ever, outside an update.
        if (keyword != QLatin1String("update"))
            QVERIFY(handler.HandleMessage(QString::fromLatin1(Frame::Build("temp==1273"))).startsWith(ack));
    }
}

QTEST_GUILESS_MAIN(TestBadInput)
#include "tst_badinput.moc"
