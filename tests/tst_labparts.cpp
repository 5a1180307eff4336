// The lab view's parts whose edges the contract run cannot reach in its time: the guessing
// window's end, a stream that falls behind, and the limits of what the broker may send.
#include "lab/eventhub.h"
#include "lab/failurelimiter.h"
#include "lab/furnaceboard.h"
#include "lab/payloads.h"

#include <QJsonArray>
#include <QtTest>

using namespace ovra::Lab;

class TestLabParts : public QObject
{
    Q_OBJECT

private slots:
    void guessingWindowSlides()
    {
        FailureLimiter limiter;
        const QString a = QStringLiteral("10.0.0.7");
        for (int i = 0; i < FailureLimiter::maxFailures; ++i)
            limiter.Fail(a, 1000 + i * 1000);
        QVERIFY(limiter.Blocked(a, 11000));
        QVERIFY(!limiter.Blocked(QStringLiteral("10.0.0.8"), 11000)); // per address
        // The first failure turns a minute old: nine left, the address may try again.
        QVERIFY(limiter.Blocked(a, 1000 + FailureLimiter::windowMs - 1));
        QVERIFY(!limiter.Blocked(a, 1000 + FailureLimiter::windowMs));
        limiter.Fail(a, 1000 + FailureLimiter::windowMs);
        QVERIFY(limiter.Blocked(a, 1000 + FailureLimiter::windowMs));
    }

    void slowStreamSkipsAheadAndCloseWakesIt()
    {
        EventHub hub(1);
        QVERIFY(hub.OpenStream());
        QVERIFY(!hub.OpenStream()); // bounded
        std::uint64_t cursor = hub.Head();
        for (int i = 0; i < 2000; ++i)
            hub.Publish("furnace", std::to_string(i));
        std::string out;
        QVERIFY(hub.Wait(&cursor, &out, std::chrono::milliseconds(0)));
        QCOMPARE(cursor, std::uint64_t(2000));
        // Only the newest kept events, in order, ending with the last one.
        const std::string last = "event: furnace\ndata: 1999\n\n";
        QVERIFY(out.size() > last.size() && out.compare(out.size() - last.size(), last.size(), last) == 0);
        QVERIFY(out.find("data: 0\n") == std::string::npos);
        QVERIFY(out.size() < 512 * 30);
        out.clear();
        QVERIFY(hub.Wait(&cursor, &out, std::chrono::milliseconds(0)));
        QVERIFY(out.empty());
        hub.Close();
        QVERIFY(!hub.Wait(&cursor, &out, std::chrono::seconds(10))); // at once, not after 10 s
        hub.CloseStream();
        QVERIFY(!hub.OpenStream());
    }

    void idsAndTypes()
    {
        QVERIFY(Payloads::ValidId(QString(64, QLatin1Char('a'))));
        for (const QString &id : {QString(), QString(65, QLatin1Char('a')), QStringLiteral("F1\n"), QStringLiteral("ä"),
                                  QStringLiteral("a.b"), QStringLiteral("<i>")})
            QVERIFY2(!Payloads::ValidId(id), qPrintable(id));

        QStringList problems;
        QVERIFY(!Payloads::ParseTopic(QStringLiteral("ovra/F1/x/state"), &problems));
        QVERIFY(!Payloads::Online("TRUE", &problems));
        // Stage must be whole; minutes left may be null; a failure list keeps its texts only.
        const auto state = Payloads::State(
            R"({"temperature":1e308,"failures":["E1",7],"firing":{"stage":2.5,"minutes_left":null,"phase":"cool"}})",
            &problems);
        QVERIFY(state);
        QCOMPARE(state->value("failures").toArray(), QJsonArray{QStringLiteral("E1")});
        const QJsonObject firing = state->value("firing").toObject();
        QVERIFY(!firing.contains("stage") && !firing.contains("phase"));
        QVERIFY(firing.contains("minutes_left") && firing.value("minutes_left").isNull());

        // A record's furnace is the topic's, whatever it says.
        const auto record = Payloads::Record(R"({"id":"r1","furnace":"other","samples":[[0,20],[1],"x"]})",
                                             QStringLiteral("F1"), &problems);
        QVERIFY(record);
        QCOMPARE(record->value("furnace").toString(), QStringLiteral("F1"));
        QCOMPARE(record->value("samples").toArray().size(), 1);
        QVERIFY(!Payloads::Record(R"({"id":"r1/../x","samples":[]})", QStringLiteral("F1"), &problems));
    }

    void furnacesAreBounded()
    {
        FurnaceBoard board;
        for (int i = 0; i < FurnaceBoard::maxFurnaces; ++i)
            QCOMPARE(board.SetOnline(QString::number(i), true), FurnaceBoard::Change::Changed);
        QCOMPARE(board.SetOnline(QStringLiteral("one-more"), true), FurnaceBoard::Change::Full);
        QCOMPARE(board.SetOnline(QStringLiteral("0"), true), FurnaceBoard::Change::Unchanged);
        QCOMPARE(board.SetState(QStringLiteral("0"), {}), FurnaceBoard::Change::Changed);
        QCOMPARE(board.SetState(QStringLiteral("0"), {}), FurnaceBoard::Change::Unchanged);
        QCOMPARE(board.Size(), FurnaceBoard::maxFurnaces);
    }
};

QTEST_GUILESS_MAIN(TestLabParts)
#include "tst_labparts.moc"
