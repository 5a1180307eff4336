// The lab link against a real broker (Debian's mosquitto on a loopback port): records that
// outlast a broker outage and a killed panel, the will, TLS, a refused password and a storm of
// reports coalesced. The payload functions and the configuration are checked on values.
#include "app/furnacestate.h"
#include "app/paths.h"
#include "communication/messagehandler.h"
#include "lablink/lablink.h"
#include "lablink/labpayloads.h"
#include "mosquittobroker.h"
#include "records/firinghistory.h"
#include "records/firingrecorder.h"
#include "simulatorprocess.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#include <signal.h>

using namespace ovra::LabLink;
using ovra::GlobalElements::FurnaceState;

namespace {
void writeFile(const QString &path, const QByteArray &text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

QJsonObject json(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

qint64 residentKb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    status.open(QIODevice::ReadOnly);
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toLongLong();
    }
    return 0;
}

// A furnace fed with the controller's words, its records kept, and the link on it.
struct Furnace
{
    explicit Furnace(const QString &home) : handler(ovra::GlobalElements::Paths(home)), recorder(home)
    {
        state.Follow(&handler);
        recorder.Observe(
            state, [](const QString &) { return ovra::Records::FiringStart(); },
            [](const ovra::GlobalElements::DeviceInfo &d) {
                return QStringList{d.type, d.serial, d.hardware, d.software, d.hours}.join(QLatin1Char('\n'));
            });
    }
    void Feed(std::initializer_list<const char *> fields)
    {
        for (const char *field : fields)
            handler.ParseMessage(QString::fromUtf8(field));
    }
    void Link(LabLinkConfig config, int port)
    {
        config.host = QStringLiteral("127.0.0.1");
        config.port = port;
        config.furnaceId = QStringLiteral("ofen-1");
        LabLink::Timing timing;
        timing.stateIntervalMs = 500;
        timing.backoffMinMs = 50;
        timing.backoffMaxMs = 400;
        link = std::make_unique<LabLink>(config, state, recorder.Store(), timing);
    }

    ovra::Communication::MessageHandler handler;
    FurnaceState state;
    ovra::Records::FiringRecorder recorder;
    std::unique_ptr<LabLink> link;
};

const QString online = QStringLiteral("ovra/ofen-1/online");
} // namespace

class TestLabLink : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void configurationAndPayloads();
    void recordOutlastsABrokerOutage();
    void wrongPasswordIsSaidAndRetried();
    void tlsWithTheLabsOwnCertificates();
    void stateStormIsCoalesced();
    void killedPanelLeavesItsWillAndSendsTheCutFiring();

private:
    QTemporaryDir m_dir;
};

void TestLabLink::initTestCase()
{
    QVERIFY(m_dir.isValid());
}

void TestLabLink::configurationAndPayloads()
{
    QTemporaryDir home;
    LabLinkConfig config;
    QString error;
    QVERIFY(!LabLinkConfig::Load(home.path(), &config, &error)); // no file: no link, nothing to say
    QVERIFY(error.isEmpty());
    const QString ini = LabLinkConfig::FileIn(home.path());
    const QList<QPair<QByteArray, QString>> bad = {
        {"[broker]\nport=1883\n", QStringLiteral("host is missing")},
        {"[broker]\nhost=lab\nport=eighty\n", QStringLiteral("port is not a number")},
        {"[broker]\nhost=lab\ncafile=/nonexistent/ca.pem\n", QStringLiteral("cannot be read")},
        {"[broker]\nhost=lab\n[furnace]\nid=a/b\n", QStringLiteral("[furnace] id")},
    };
    for (const auto &file : bad) {
        writeFile(ini, file.first);
        QVERIFY(!LabLinkConfig::Load(home.path(), &config, &error));
        QVERIFY2(error.contains(file.second), qPrintable(error));
    }
    writeFile(ini, "[broker]\nhost=lab\ncafile=" + ini.toUtf8() + "\n");
    QVERIFY(LabLinkConfig::Load(home.path(), &config, &error));
    QCOMPARE(config.port, 8883); // TLS changes the default port
    QCOMPARE(config.keepalive, 30);
    QCOMPARE(FurnaceIdFrom(QStringLiteral(" SN 12/34-ä_5 ")), QStringLiteral("SN1234-_5"));

    QCOMPARE(ControllerTime(QStringLiteral("25.11.2026"), QStringLiteral("14:03")),
             QStringLiteral("2026-11-25T14:03:00"));
    QCOMPARE(ControllerTime(QStringLiteral("25.11.2026 09:05")), QStringLiteral("2026-11-25T09:05:00"));
    QVERIFY(ControllerTime(QStringLiteral("31.02.2026"), QStringLiteral("14:03")).isEmpty());

    // A state in the middle of a firing, with the minutes not a number.
    QTemporaryDir furnaceHome;
    Furnace furnace(furnaceHome.path());
    furnace.Feed({"name==Ovra 3", "serialno==SN-1", "date==20261125", "time==1403", "temp==1085",
                  "hpinfo==Kurz;x;2;hold", "error==E123"});
    QJsonObject state = json(QString::fromUtf8(StatePayload(furnace.state)));
    QCOMPARE(state.value(QStringLiteral("time")).toString(), QStringLiteral("2026-11-25T14:03:00"));
    QCOMPARE(state.value(QStringLiteral("temperature")).toInt(), 812);
    QCOMPARE(state.value(QStringLiteral("failures")).toArray(), QJsonArray{QStringLiteral("E123")});
    QCOMPARE(state.value(QStringLiteral("language")).toString(), QStringLiteral("de"));
    QCOMPARE(LanguageCode(QStringLiteral("chinesishc")), QStringLiteral("cn")); // the controller's spelling
    const QJsonObject firing = state.value(QStringLiteral("firing")).toObject();
    QCOMPARE(firing.value(QStringLiteral("phase")).toString(), QStringLiteral("hold"));
    QVERIFY(firing.value(QStringLiteral("minutes_left")).isNull());
    QCOMPARE(firing.value(QStringLiteral("started")).toString(), QStringLiteral("2026-11-25T14:03:00"));
    furnace.Feed({"hpsuccess", "hpinfo=="});
    QVERIFY(json(QString::fromUtf8(StatePayload(furnace.state))).value(QStringLiteral("firing")).isNull());

    // The record as the lab receives it, from the store.
    furnace.recorder.Store().Flush();
    ovra::Records::FiringHistory history(furnace.recorder.Store().File());
    ovra::Records::FiringRecord record;
    QVERIFY(history.Load(history.List().value(0).id, &record));
    const QJsonObject sent = json(QString::fromUtf8(RecordPayload(record, QStringLiteral("ofen-1"))));
    QVERIFY(QRegularExpression(QStringLiteral("^[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}$"))
                .match(sent.value(QStringLiteral("id")).toString())
                .hasMatch());
    QCOMPARE(sent.value(QStringLiteral("result")).toString(), QStringLiteral("success"));
    QCOMPARE(sent.value(QStringLiteral("device")).toObject().value(QStringLiteral("serial")).toString(),
             QStringLiteral("SN-1"));
    QCOMPARE(sent.value(QStringLiteral("failures")).toArray().at(0).toObject().value(QStringLiteral("time")).toString(),
             QStringLiteral("2026-11-25T14:03:00"));
    QCOMPARE(sent.value(QStringLiteral("samples")).toArray().at(0).toArray().at(1).toInt(), 812);
}

void TestLabLink::recordOutlastsABrokerOutage()
{
    QTemporaryDir home;
    MosquittoBroker broker(m_dir.path() + QStringLiteral("/outage"));
    QVERIFY(broker.Start());
    MqttSubscriber lab(broker.Port(), QStringLiteral("ovra/ofen-1/#"), QStringLiteral("lab-outage"));
    Furnace furnace(home.path());
    furnace.Link(LabLinkConfig(), broker.Port());
    QTRY_COMPARE_WITH_TIMEOUT(lab.Payloads(online), QStringList{QStringLiteral("true")}, 10000);
    QTRY_VERIFY(!lab.Payloads(QStringLiteral("ovra/ofen-1/state")).isEmpty());
    furnace.Feed({"date==20261125", "time==0900", "temp==293", "hpinfo==Kurz;60;1;heat"});
    QTRY_COMPARE(lab.Payloads(QStringLiteral("ovra/ofen-1/event")).size(), 1);
    QCOMPARE(json(lab.Payloads(QStringLiteral("ovra/ofen-1/event")).at(0)).value(QStringLiteral("event")).toString(),
             QStringLiteral("firing_started"));

    // The broker goes away in the middle of the firing and comes back after it ended.
    broker.Stop();
    QTRY_VERIFY(!furnace.link->Status().IsConnected());
    furnace.Feed({"temp==773", "hpinfo==Kurz;10;1;hold", "time==1000", "hpsuccess", "hpinfo=="});
    QTRY_COMPARE(furnace.link->Status().Waiting(), 1);
    // Lost, then unreachable while it retries.
    QVERIFY(furnace.link->Status().LastProblem() == MqttClient::Problem::Lost ||
            furnace.link->Status().LastProblem() == MqttClient::Problem::Unreachable);
    QVERIFY(!furnace.link->Status().ProblemText().isEmpty());

    QSignalSpy delivered(furnace.link.get(), &LabLink::RecordDelivered);
    QVERIFY(broker.Start());
    QVERIFY(delivered.wait(10000));
    QCOMPARE(furnace.link->Status().Waiting(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(lab.Payloads(QStringLiteral("ovra/ofen-1/record")).size(), 1, 10000);
    const QJsonObject record = json(lab.Payloads(QStringLiteral("ovra/ofen-1/record")).at(0));
    QCOMPARE(record.value(QStringLiteral("id")).toString(), delivered.at(0).at(0).toString());
    QCOMPARE(record.value(QStringLiteral("result")).toString(), QStringLiteral("success"));
    QCOMPARE(record.value(QStringLiteral("end")).toString(), QStringLiteral("2026-11-25T10:00:00"));

    // The technician's resend: the same record again, the same id; the discovery retained.
    furnace.link->ResendHistory();
    QVERIFY(delivered.wait(10000));
    QCOMPARE(delivered.at(1).at(0), delivered.at(0).at(0));
    MqttSubscriber homeAssistant(broker.Port(), QStringLiteral("homeassistant/#"));
    QTRY_COMPARE(homeAssistant.Lines(QRegularExpression(QStringLiteral("^homeassistant/sensor/ovra_ofen-1_"))).size(),
                 4);
    const QJsonObject temperature =
        json(homeAssistant.Payloads(QStringLiteral("homeassistant/sensor/ovra_ofen-1_temperature/config")).value(0));
    QCOMPARE(temperature.value(QStringLiteral("availability_topic")).toString(), online);
    QCOMPARE(temperature.value(QStringLiteral("state_topic")).toString(), QStringLiteral("ovra/ofen-1/state"));

    // A clean leave says so itself, before the broker would.
    furnace.link.reset();
    QTRY_COMPARE(lab.Payloads(online).last(), QStringLiteral("false"));
}

void TestLabLink::wrongPasswordIsSaidAndRetried()
{
    const QString dir = m_dir.path() + QStringLiteral("/password");
    QDir().mkpath(dir);
    const QString passwords = dir + QStringLiteral("/passwords");
    QCOMPARE(
        QProcess::execute(QStringLiteral("mosquitto_passwd"), {QStringLiteral("-c"), QStringLiteral("-b"), passwords,
                                                               QStringLiteral("panel"), QStringLiteral("richtig")}),
        0);
    MosquittoBroker broker(dir);
    QVERIFY(broker.Start({QStringLiteral("allow_anonymous false"), QStringLiteral("password_file ") + passwords}));
    QTemporaryDir home;
    Furnace furnace(home.path());
    LabLinkConfig config;
    config.username = QStringLiteral("panel");
    config.password = QStringLiteral("falsch");
    furnace.Link(config, broker.Port());
    // Each refusal is one report; the retries come further and further apart (50, 100, 200,
    // then 400 ms at most).
    QElapsedTimer clock;
    clock.start();
    QList<qint64> refusals;
    QObject::connect(&furnace.link->Status(), &LabLinkStatus::Changed, [&] {
        if (furnace.link->Status().LastProblem() == MqttClient::Problem::NotAuthorised)
            refusals << clock.elapsed();
    });
    QTRY_VERIFY_WITH_TIMEOUT(refusals.size() >= 6, 15000);
    QCOMPARE(furnace.link->Status().ProblemText(), QStringLiteral("Benutzername oder Passwort falsch"));
    const qint64 first = refusals.at(1) - refusals.at(0), later = refusals.at(4) - refusals.at(3);
    QVERIFY2(later >= 2 * first && later >= 380, qPrintable(QStringLiteral("%1 ms, then %2 ms").arg(first).arg(later)));
    QVERIFY2(refusals.at(5) - refusals.at(4) < 1500, "the delay stops growing at its maximum");
    QVERIFY(!furnace.link->Status().IsConnected());
}

void TestLabLink::tlsWithTheLabsOwnCertificates()
{
    const QString dir = m_dir.path() + QStringLiteral("/tls");
    QDir().mkpath(dir);
    const auto openssl = [&dir](const QString &arguments) {
        QProcess p;
        p.setWorkingDirectory(dir);
        p.setProcessChannelMode(QProcess::MergedChannels);
        p.start(QStringLiteral("openssl"), QProcess::splitCommand(arguments));
        return p.waitForFinished(30000) && p.exitCode() == 0;
    };
    writeFile(dir + QStringLiteral("/san.cnf"), "subjectAltName=IP:127.0.0.1\n");
    QVERIFY(openssl(
        QStringLiteral("req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=lab-ca -keyout ca.key -out ca.pem")));
    QVERIFY(
        openssl(QStringLiteral("req -newkey rsa:2048 -nodes -subj /CN=127.0.0.1 -keyout server.key -out server.csr")));
    QVERIFY(openssl(QStringLiteral("x509 -req -in server.csr -CA ca.pem -CAkey ca.key -CAcreateserial -days 2"
                                   " -extfile san.cnf -out server.pem")));
    MosquittoBroker broker(dir);
    QVERIFY(broker.Start({QStringLiteral("cafile ") + dir + QStringLiteral("/ca.pem"),
                          QStringLiteral("certfile ") + dir + QStringLiteral("/server.pem"),
                          QStringLiteral("keyfile ") + dir + QStringLiteral("/server.key")}));
    MqttSubscriber lab(broker.Port(), online, QString(), {QStringLiteral("--cafile"), dir + QStringLiteral("/ca.pem")});
    QTemporaryDir home;
    Furnace furnace(home.path());
    LabLinkConfig config;
    config.cafile = dir + QStringLiteral("/ca.pem");
    furnace.Link(config, broker.Port());
    QTRY_COMPARE_WITH_TIMEOUT(lab.Payloads(online), QStringList{QStringLiteral("true")}, 10000);
    QVERIFY(furnace.link->Status().Broker().endsWith(QLatin1String("(TLS)")));

    // A CA that did not sign the broker's certificate: no link, and it says why.
    QVERIFY(openssl(
        QStringLiteral("req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=other -keyout o.key -out other.pem")));
    QTemporaryDir otherHome;
    Furnace stranger(otherHome.path());
    config.cafile = dir + QStringLiteral("/other.pem");
    stranger.Link(config, broker.Port());
    QTRY_COMPARE_WITH_TIMEOUT(stranger.link->Status().LastProblem(), MqttClient::Problem::Tls, 10000);
}

void TestLabLink::stateStormIsCoalesced()
{
    // A report every 10 ms; OVRA_LAB_STORM_S sets how long (a minute on the bench, seconds in CI).
    const int seconds =
        qEnvironmentVariableIsSet("OVRA_LAB_STORM_S") ? qEnvironmentVariableIntValue("OVRA_LAB_STORM_S") : 4;
    MosquittoBroker broker(m_dir.path() + QStringLiteral("/storm"));
    QVERIFY(broker.Start());
    MqttSubscriber lab(broker.Port(), QStringLiteral("ovra/ofen-1/state"));
    QTemporaryDir home;
    Furnace furnace(home.path());
    furnace.Link(LabLinkConfig(), broker.Port());
    QTRY_VERIFY_WITH_TIMEOUT(furnace.link->Status().IsConnected(), 10000);
    QTRY_COMPARE(lab.Payloads(QStringLiteral("ovra/ofen-1/state")).size(), 1);
    furnace.Feed({"date==20261125", "time==0900"});
    const int before = furnace.link->StatesPublished();
    QElapsedTimer clock;
    clock.start();
    qint64 halfway = 0;
    int n = 0;
    QTimer tick;
    tick.setInterval(10);
    QObject::connect(&tick, &QTimer::timeout, [&] {
        const QString temp = QStringLiteral("temp==%1").arg(600 + n % 400);
        const QString report = QStringLiteral("hpinfo==Kurz;%1;1;heat").arg(600 - n / 100);
        furnace.handler.ParseMessage(temp);
        furnace.handler.ParseMessage(report);
        ++n;
        if (halfway == 0 && clock.elapsed() > seconds * 500)
            halfway = residentKb();
    });
    tick.start();
    QTRY_VERIFY_WITH_TIMEOUT(clock.elapsed() > seconds * 1000, seconds * 1000 + 5000);
    tick.stop();
    const qint64 end = residentKb();
    const int published = furnace.link->StatesPublished() - before;
    QVERIFY2(published <= 2 * seconds + 2, qPrintable(QString::number(published)));
    QVERIFY2(published >= seconds, qPrintable(QString::number(published))); // coalesced, not starved
    QVERIFY2(end - halfway < 4096, qPrintable(QStringLiteral("%1 kB more").arg(end - halfway)));
    // The newest state is the one the lab ends with.
    QTRY_VERIFY(lab.Payloads(QStringLiteral("ovra/ofen-1/state")).size() >= published);
    QCOMPARE(json(lab.Payloads(QStringLiteral("ovra/ofen-1/state")).last())
                 .value(QStringLiteral("firing"))
                 .toObject()
                 .value(QStringLiteral("minutes_left"))
                 .toInt(),
             600 - (n - 1) / 100);
}

void TestLabLink::killedPanelLeavesItsWillAndSendsTheCutFiring()
{
    // The real panel on the simulator's line; the broker is not there when it starts.
    MosquittoBroker broker(m_dir.path() + QStringLiteral("/killed"));
    QTemporaryDir home;
    QDir().mkpath(home.path() + QStringLiteral("/work"));
    writeFile(LabLinkConfig::FileIn(home.path()),
              QStringLiteral("[broker]\nhost=127.0.0.1\nport=%1\n").arg(broker.Port()).toUtf8());
    auto sim = std::make_unique<Simulator>(
        QStringList{QStringLiteral("--interval"), QStringLiteral("100"), QStringLiteral("--verbose")});
    QString line = sim->SlavePath();
    QVERIFY(!line.isEmpty());
    const auto startPanel = [&](QProcess &panel) {
        panel.setWorkingDirectory(home.path() + QStringLiteral("/work"));
        panel.start(QStringLiteral(OVRA_PANEL_BINARY), {QStringLiteral("--port"), line, QStringLiteral("--home"),
                                                        home.path(), QStringLiteral("--key-port"), QStringLiteral("0"),
                                                        QStringLiteral("--selftest-delay-ms"), QStringLiteral("200")});
        return panel.waitForStarted(5000);
    };
    QProcess panel, again;
    const auto stop = qScopeGuard([&] {
        for (QProcess *p : {&panel, &again}) {
            p->kill();
            p->waitForFinished(5000);
        }
    });
    QVERIFY(startPanel(panel));
    // It answers the controller as it does without a link; the id is the serial number's.
    QTRY_VERIFY_WITH_TIMEOUT(sim->AnsweredFrameWith(QStringLiteral("guistate==26")), 30000);

    QVERIFY(broker.Start());
    MqttSubscriber lab(broker.Port(), QStringLiteral("ovra/#"), QStringLiteral("lab-killed"));
    QTRY_VERIFY_WITH_TIMEOUT(!lab.Lines(QRegularExpression(QStringLiteral("^ovra/[^/]+/online true$"))).isEmpty(),
                             20000);
    const QString topic =
        lab.Lines(QRegularExpression(QStringLiteral("/online true$"))).at(0).section(QLatin1Char(' '), 0, 0);
    const QString base = topic.left(topic.size() - QStringLiteral("online").size());

    sim->Command("send hpinfo==Kurz;30;1;heat");
    QTRY_VERIFY_WITH_TIMEOUT(
        lab.Payloads(base + QStringLiteral("event")).join(QString()).contains(QLatin1String("firing_started")), 10000);
    ::kill(static_cast<pid_t>(panel.processId()), SIGKILL);
    QVERIFY(panel.waitForFinished(5000));
    QTRY_COMPARE_WITH_TIMEOUT(lab.Payloads(topic).value(1), QStringLiteral("false"), 10000);

    // After a power cut the controller starts again too, and tells the panel who it is.
    sim = std::make_unique<Simulator>(QStringList{QStringLiteral("--interval"), QStringLiteral("100")});
    line = sim->SlavePath();
    QVERIFY(startPanel(again));
    QTRY_VERIFY_WITH_TIMEOUT(!lab.Payloads(base + QStringLiteral("record")).isEmpty(), 30000);
    const QJsonObject record = json(lab.Payloads(base + QStringLiteral("record")).at(0));
    QCOMPARE(record.value(QStringLiteral("result")).toString(), QStringLiteral("interrupted"));
    QCOMPARE(record.value(QStringLiteral("program")).toString(), QStringLiteral("Kurz"));
}

QTEST_MAIN(TestLabLink)
#include "tst_lablink.moc"
