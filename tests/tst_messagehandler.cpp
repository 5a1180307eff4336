// Frame, checksum, request queue and keyword dispatch of the controller protocol.
#include "communication/frame.h"
#include "communication/messagehandler.h"

#include <QSignalSpy>
#include <QtTest>

using ovra::Communication::MessageHandler;
using ovra::GlobalElements::Pageinterface;
using ovra::GlobalElements::Program;
namespace Frame = ovra::Communication::Frame;

namespace {

// These cases never start an update; a home that does not exist keeps anything from being
// written should one start by mistake.
const ovra::GlobalElements::Paths nowhere(QStringLiteral("/nonexistent/ovra-home"));

// A frame as the controller sends it, with a correct checksum.
QString controllerFrame(const QByteArray &body)
{
    return QString::fromLatin1(Frame::Build(body));
}

// A frame exactly as written, checksum included: STX and ETX around it.
QString wrapped(const char *inner)
{
    return QLatin1Char('\x02') + QString::fromLatin1(inner) + QLatin1Char('\x03');
}

QByteArray answerBody(const QByteArray &answer)
{
    // 0x02 body $$ checksum 0x03
    if (answer.size() < 2 || answer.front() != 0x02 || answer.back() != 0x03)
        return QByteArray("<malformed answer>");
    const QByteArray inner = answer.mid(1, answer.size() - 2);
    return inner.left(inner.lastIndexOf("$$"));
}

} // namespace

class TestMessageHandler : public QObject
{
    Q_OBJECT

private slots:
    void checksumRules_data();
    void checksumRules();
    void receivedText();
    void answerCarriesQueuedRequestsOnce();
    void badFramesAreNackedButOtherFieldsStillRun();
    void textCommands_data();
    void textCommands();
    void operatingHoursAnnounceTheOven();
    void heatfileRecordIsParsed();
    void heatfileEdgeCases_data();
    void heatfileEdgeCases();
    void heatfileWithoutStoreDoesNotLeak();
};

void TestMessageHandler::checksumRules_data()
{
    QTest::addColumn<QString>("frame");
    QTest::addColumn<bool>("valid");

    QTest::newRow("correct") << controllerFrame("temp==1473") << true;
    QTest::newRow("off by one") << wrapped("temp==1473$$-1") << false;
    // "\x80\x80" sums to 256: a checksum of 0 is right for it.
    QTest::newRow("sum multiple of 256") << wrapped("\x80\x80$$0") << true;
    QTest::newRow("positive checksum never valid") << wrapped("A$$65") << false;
    QTest::newRow("no separator, zero") << wrapped("0") << true;
    QTest::newRow("no separator, non-number reads 0") << wrapped("junk") << true;
    QTest::newRow("no separator, non-zero") << wrapped("-5") << false;
    QTest::newRow("checksum not a number") << wrapped("A$$x") << false;
    QTest::newRow("separators not counted") << QStringLiteral("a$$b$$-195") << true;
    QTest::newRow("lone dollar counts") << controllerFrame("a$b") << true;
    // Names outside ASCII are summed over their bytes as they arrive: the communicator test.
    QTest::newRow("wide char counts as 0") << (QStringLiteral("A") + QChar(0x20AC) + QStringLiteral("$$-65")) << true;
}

void TestMessageHandler::receivedText()
{
    // UTF-8 names: the umlaut stored on the simulated controller; a zero byte ends the frame:
    // the communicator test. Here what is not UTF-8.
    QCOMPARE(Frame::ReceivedText("name==Br\374cke"), QStringLiteral("name==Br\u00FCcke"));
    QCOMPARE(Frame::ReceivedText("a\xC3"), QStringLiteral("a\u00C3")); // cut short: not UTF-8
}

void TestMessageHandler::checksumRules()
{
    QFETCH(QString, frame);
    QFETCH(bool, valid);
    MessageHandler handler(nowhere);
    QCOMPARE(handler.CheckCRC(frame), valid);
}

void TestMessageHandler::answerCarriesQueuedRequestsOnce()
{
    QCOMPARE(Frame::Build("ack"), QByteArray("\002ack$$-47\003"));
    MessageHandler handler(nowhere);
    handler.SetRequest(QStringLiteral("a"));
    handler.SetRequest(QStringLiteral("b"));
    handler.SetRequest(QStringLiteral("a"));
    QCOMPARE(handler.GetActualRequests(), QStringLiteral("$$a$$b$$a"));

    const QByteArray first = handler.HandleMessage(controllerFrame("temp==1473"));
    QCOMPARE(first, Frame::Build("ack$$a$$b$$a"));
    QCOMPARE(handler.HandleMessage(controllerFrame("temp==1473")), Frame::Build("ack"));

    // Requests leave even with a rejected frame: there is no retry.
    handler.SetRequest(QStringLiteral("doorclose"));
    QCOMPARE(answerBody(handler.HandleMessage(wrapped("temp==1$$-1"))), QByteArray("nack$$doorclose"));
    QCOMPARE(handler.GetActualRequests(), QString());
}

void TestMessageHandler::badFramesAreNackedButOtherFieldsStillRun()
{
    MessageHandler handler(nowhere);
    QSignalSpy temperature(&handler, &MessageHandler::SignalTemperature);
    QSignalSpy time(&handler, &MessageHandler::SignalTime);

    // Wrong checksum: nothing is acted on.
    QCOMPARE(answerBody(handler.HandleMessage(wrapped("temp==1473$$-2"))), QByteArray("nack"));
    QCOMPARE(temperature.count(), 0);

    // Unknown second field: the first still acts, the whole frame is "nack".
    QCOMPARE(answerBody(handler.HandleMessage(controllerFrame("temp==1473$$bogus==1$$time==0905"))),
             QByteArray("nack"));
    QCOMPARE(temperature.count(), 1);
    QCOMPARE(time.count(), 1);

    // Empty body with a zero checksum is a valid, empty frame.
    QCOMPARE(handler.HandleMessage(wrapped("0")), Frame::Build("ack"));
    // An empty field between separators is rejected.
    QCOMPARE(answerBody(handler.HandleMessage(controllerFrame("temp==1473$$"))), QByteArray("nack"));
}

void TestMessageHandler::textCommands_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QString>("text"); // empty: rejected, no signal; "-": a signal without value

    // Plain texts are passed on as they come; the window and end-to-end tests see them on the
    // pages (temperature, date, time, versions, results, PIN, door closed): here the rest.
    auto sig = [](auto signal) { return QMetaMethod::fromSignal(signal).methodSignature(); };
    const QByteArray date = sig(&MessageHandler::SignalDate);
    const QByteArray time = sig(&MessageHandler::SignalTime);
    const QByteArray temp = sig(&MessageHandler::SignalTemperature);

    QTest::newRow("temp 273") << "temp==273" << temp << "0";
    QTest::newRow("temp wraps below 273") << "temp==272" << temp << "4294967295";
    QTest::newRow("temp not a number") << "temp==hot" << temp << "4294967023";
    QTest::newRow("date too short") << "date==2024131" << date << "";
    QTest::newRow("time too short") << "time==905" << time << "";
    // Numbers that are not numbers read as 0 and are taken.
    QTest::newRow("maxrate") << "maxrate==45" << sig(&MessageHandler::SignalMaxRate) << "45";
    QTest::newRow("maxrate not a number") << "maxrate==fast" << sig(&MessageHandler::SignalMaxRate) << "0";
    QTest::newRow("hfcount negative") << "hfcount==-3" << sig(&MessageHandler::SignalHeatfileCount) << "-3";
    QTest::newRow("hfcount not a number") << "hfcount==many" << sig(&MessageHandler::SignalHeatfileCount) << "0";
    // Commands without a parameter ignore one that comes anyway (the door's words: tst_furnacestate).
    QTest::newRow("ack") << "ack" << sig(&MessageHandler::SignalAcknowledge) << "-";
    QTest::newRow("waitforuserinteraction with a parameter")
        << "waitforuserinteraction==now" << sig(&MessageHandler::SignalUserInteractionRequest) << "-";
}

void TestMessageHandler::textCommands()
{
    QFETCH(QString, field);
    QFETCH(QByteArray, signal);
    QFETCH(QString, text);

    MessageHandler handler(nowhere);
    QSignalSpy spy(&handler, QByteArray("2" + signal).constData());
    QVERIFY(spy.isValid());
    QCOMPARE(handler.ParseMessage(field), !text.isEmpty());
    if (text.isEmpty()) {
        QCOMPARE(spy.count(), 0);
    } else {
        QCOMPARE(spy.count(), 1);
        if (text != QLatin1String("-"))
            QCOMPARE(spy.at(0).at(0).toString(), text);
    }
}

void TestMessageHandler::operatingHoursAnnounceTheOven()
{
    MessageHandler handler(nowhere);
    QList<QString> order;
    connect(&handler, &MessageHandler::SignalOperatingHours, this,
            [&order](const QString &h) { order << QStringLiteral("hours ") + h; });
    connect(&handler, &MessageHandler::SignalOvenConnected, this,
            [&order](Pageinterface::en_pages p) { order << QStringLiteral("page %1").arg(p); });
    QVERIFY(handler.ParseMessage(QStringLiteral("ophours==10")));
    QCOMPARE(order, (QList<QString>{QStringLiteral("hours 10"), QStringLiteral("page 1")}));
}

namespace {
struct Received
{
    QList<Program *> programs;
    QList<bool> favs;
    QStringList order;
    ~Received() { qDeleteAll(programs); }
};

void collect(MessageHandler &handler, Received &into)
{
    QObject::connect(&handler, &MessageHandler::SignalHeatfileReceived, &handler, [&into](Program *p) {
        into.programs << p;
        into.order << QStringLiteral("received");
    });
    QObject::connect(&handler, &MessageHandler::SignalSetProgToFav, &handler, [&into](bool fav, Program *) {
        into.favs << fav;
        into.order << QStringLiteral("fav");
    });
}
} // namespace

void TestMessageHandler::heatfileRecordIsParsed()
{
    MessageHandler handler(nowhere);
    Received got;
    collect(handler, got);

    const QByteArray body = "heatfile==[metainfo];name=Speed.hf;manufacturer=DentaCeram;material=Argon;"
                            "favorite=true;[1];rate=10;temp=1773;hold=7259;argon=on;[2];rate=5;temp=1273;hold=0;";
    QCOMPARE(handler.HandleMessage(controllerFrame(body)), Frame::Build("ack"));
    QCOMPARE(got.order, (QStringList{QStringLiteral("received"), QStringLiteral("fav")}));
    // Kelvin to °C, seconds to whole minutes, argon elements skipped; the other fields and the
    // ".hf" ending: the round trip of the store test and the edge cases below.
    QCOMPARE(got.favs.at(0), true);
    QCOMPARE(*got.programs.at(0)->GetMatrix(), (Program::Matrix{{10u, 1500u, 120u}, {5u, 1000u, 0u}}));
}

void TestMessageHandler::heatfileEdgeCases_data()
{
    QTest::addColumn<QString>("payload");
    QTest::addColumn<Program::Matrix>("matrix");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("manufacturer");
    const auto row = [](const char *tag, const char *payload, const Program::Matrix &matrix,
                        const char *name = "default", const char *manufacturer = "user") {
        QTest::newRow(tag) << QString::fromLatin1(payload) << matrix << QString::fromLatin1(name)
                           << QString::fromLatin1(manufacturer);
    };
    row("nothing recognised", "garbage;;;", {{0u, 0u, 0u}});
    row("favorite True is not true", "[metainfo];name=A;favorite=True;[1];rate=1;temp=1273;hold=60;", {{1u, 1000u, 1u}},
        "A");
    row("temp 322 K raised to 50", "[1];rate=1;temp=322;", {{1u, 50u, 0u}});
    row("temp 324 K is 51", "[1];rate=1;temp=324;", {{1u, 51u, 0u}});
    row("temp below 273 K wraps", "[1];rate=1;temp=272;", {{1u, 4294967295u, 0u}});
    row("trailing zero-rate segment dropped", "[1];rate=5;temp=1273;[2];rate=0;temp=1373;hold=600;", {{5u, 1000u, 0u}});
    row("first zero-rate segment kept", "[1];rate=0;temp=1273;[2];rate=3;temp=1373;hold=600;",
        {{0u, 1000u, 0u}, {3u, 1100u, 10u}});
    row("name value with dot", "[metainfo];name=Zirkon.fast;manufacturer=service;", {{0u, 0u, 0u}}, "Zirkon",
        "service");
    row("segment key before any section ignored", "rate=9;[1];rate=2;", {{2u, 0u, 0u}});
    row("hostile section number ignored", "[2000000000];rate=5;temp=1300;[1];rate=4;", {{4u, 0u, 0u}});
}

void TestMessageHandler::heatfileEdgeCases()
{
    QFETCH(QString, payload);
    MessageHandler handler(nowhere);
    Received got;
    collect(handler, got);
    handler.HandleRecvHeatfile(payload);
    QCOMPARE(got.programs.size(), 1);
    Program *p = got.programs.at(0);
    QTEST(p->GetName(), "name");
    QTEST(p->GetManufacturer(), "manufacturer");
    QVERIFY(!p->IsFav());
    QTEST(*p->GetMatrix(), "matrix");
    QCOMPARE(p->GetPreDryInfo(), false);
}

void TestMessageHandler::heatfileWithoutStoreDoesNotLeak()
{
    // Nobody takes the record: the handler must free it (checked under the sanitizer build).
    MessageHandler handler(nowhere);
    QSignalSpy fav(&handler, &MessageHandler::SignalSetProgToFav);
    QVERIFY(handler.ParseMessage(QStringLiteral("heatfile==[metainfo];name=Lost;")));
    QCOMPARE(fav.count(), 1);
}

QTEST_GUILESS_MAIN(TestMessageHandler)
#include "tst_messagehandler.moc"
