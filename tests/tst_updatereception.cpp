// Reception of an update file over the line: blocks in and out of order, damaged and lost
// blocks, the closing requests, and the report of the unpacking script.
#include "communication/frame.h"
#include "communication/messagehandler.h"
#include "communication/updateblock.h"
#include "updatefiles.h"

#include <QDir>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using ovra::Communication::MessageHandler;
using ovra::GlobalElements::Paths;
namespace Frame = ovra::Communication::Frame;
namespace UpdateBlock = ovra::Communication::UpdateBlock;

namespace {

QByteArray payload(int number)
{
    QByteArray data;
    for (int i = 0; i < 100 + number; ++i)
        data.append(char((number * 31 + i * 7) & 0xFF));
    return data;
}

QString block(int number)
{
    return QString::fromLatin1(UpdateBlock::Encode(number, payload(number)));
}

QString damaged(int number)
{
    QString text = block(number);
    text[12] = text.at(12) == QLatin1Char('A') ? QLatin1Char('B') : QLatin1Char('A');
    return text;
}

// What the controller reads back: the answer's fields, or nothing at all.
QStringList answerFields(const QByteArray &answer)
{
    if (answer.isEmpty())
        return {};
    if (answer.front() != 0x02 || answer.back() != 0x03 || !Frame::IsChecksumValid(QString::fromLatin1(answer)))
        return {QStringLiteral("<malformed answer>")};
    QStringList fields = QString::fromLatin1(answer.mid(1, answer.size() - 2)).split(QStringLiteral("$$"));
    fields.removeLast();
    return fields;
}

// The panel's side of one update, fed the way the communicator feeds it.
class Receiver
{
public:
    Receiver() : handler(Paths(home.path()))
    {
        QDir(home.path()).mkpath(QStringLiteral("Downloads"));
        handler.SetUnpackDelayMs(60 * 60 * 1000); // the script is not part of these cases
    }

    QStringList send(const QString &text)
    {
        return answerFields(handler.HandleMessage(QLatin1Char('\x02') + text + QLatin1Char('\x03')));
    }
    QStringList command(const QByteArray &body)
    {
        return answerFields(handler.HandleMessage(QString::fromLatin1(Frame::Build(body))));
    }
    QByteArray written() const { return UpdateFiles::Read(home.path() + QStringLiteral("/Downloads/outfile.txt")); }
    void script(const QByteArray &text)
    {
        UpdateFiles::Write(home.path() + QStringLiteral("/Downloads/decode_and_unzip_lin.py"), text + '\n');
        handler.SetUnpackInterpreters({UpdateFiles::Python()});
    }
    static QByteArray expected(const QList<int> &numbers)
    {
        QByteArray data;
        for (int n : numbers)
            data += payload(n);
        return data;
    }

    QTemporaryDir home;
    MessageHandler handler;
};

const QStringList closing = {QStringLiteral("endupdate"), QStringLiteral("hx3update")};

} // namespace

class TestUpdateReception : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void blocksInOrderAreWrittenAndAnnounced();
    void damagedBlocksAreAskedForAgain_data();
    void damagedBlocksAreAskedForAgain();
    void damagedBlockFromTheStoreHoldsLaterBlocksBack();
    void repeatedBlockIsWrittenAgain();
    void noiseDuringTheUpdateIsNotABlock();
    void secondUpdateContinuesTheCounters();
    void scriptResultIsReported_data();
    void scriptResultIsReported();
    void scriptRunsWithoutBlockingTheLine();
};

void TestUpdateReception::initTestCase()
{
    qputenv("OVRA_REBOOT_COMMAND", "true");
}

void TestUpdateReception::blocksInOrderAreWrittenAndAnnounced()
{
    Receiver r;
    QSignalSpy progress(&r.handler, &MessageHandler::SignalUpdateProgress);
    QCOMPARE(r.command("update==3"), QStringList{QStringLiteral("ack")});

    // Nothing to ask for: nothing at all goes back.
    QCOMPARE(r.handler.HandleMessage(QLatin1Char('\x02') + block(0) + QLatin1Char('\x03')), QByteArray());
    QCOMPARE(r.send(block(1)), QStringList());
    QCOMPARE(r.send(block(2)), closing);

    QStringList texts;
    for (const QList<QVariant> &args : qAsConst(progress))
        texts << args.at(0).toString();
    QCOMPARE(texts, (QStringList{"0%", "33%", "66%", "100%"}));
    QCOMPARE(r.written(), Receiver::expected({0, 1, 2}));
    // Commands again: the next frame is checked and answered.
    QVERIFY(!r.handler.IsUpdateActive());
    QCOMPARE(r.command("temp==300"), QStringList{QStringLiteral("ack")});
}

void TestUpdateReception::damagedBlocksAreAskedForAgain_data()
{
    QTest::addColumn<QString>("bad");
    QTest::addColumn<QString>("request");
    const int amp = block(1).indexOf(QLatin1Char('&'));
    QTest::newRow("digest missing") << block(1).left(amp) << "resend==1";
    QTest::newRow("digest in capitals") << block(1).left(amp + 1) + block(1).mid(amp + 1).toUpper() << "resend==1";
    // Begins with a digit, too short for a number: read as block 0.
    QTest::newRow("short") << QStringLiteral("12") << "resend==0";
}

void TestUpdateReception::damagedBlocksAreAskedForAgain()
{
    QFETCH(QString, bad);
    QFETCH(QString, request);
    Receiver r;
    r.command("update==3");
    QCOMPARE(r.send(block(0)), QStringList());
    QCOMPARE(r.send(bad), QStringList{request});
    QCOMPARE(r.written(), Receiver::expected({0}));
}

void TestUpdateReception::damagedBlockFromTheStoreHoldsLaterBlocksBack()
{
    Receiver r;
    r.command("update==7");
    r.send(block(0));
    // Lost blocks are asked for in order, and later ones wait in memory until the gap is
    // filled; a damaged block is asked for again like a lost one.
    QCOMPARE(r.send(damaged(2)), QStringList{"resend==1"}); // 1 lost, 2 kept as it came
    QCOMPARE(r.send(block(1)), QStringList{"resend==2"});   // 2 turns out damaged
    QCOMPARE(r.send(block(3)), QStringList());              // must not overtake 2
    QCOMPARE(r.written(), Receiver::expected({0, 1}));
    QCOMPARE(r.send(block(2)), QStringList());
    QCOMPARE(r.written(), Receiver::expected({0, 1, 2, 3}));

    // Two asked for, the first damaged again: the second waits for it.
    QCOMPARE(r.send(block(6)), (QStringList{"resend==4", "resend==5"}));
    QCOMPARE(r.send(damaged(4)), QStringList{"resend==4"});
    QCOMPARE(r.send(block(5)), QStringList());
    QCOMPARE(r.written(), Receiver::expected({0, 1, 2, 3}));
    QCOMPARE(r.send(block(4)), closing);
    QCOMPARE(r.written(), Receiver::expected({0, 1, 2, 3, 4, 5, 6}));
}

void TestUpdateReception::repeatedBlockIsWrittenAgain()
{
    // Nothing checks for repeats: the controller sends each block once unless asked.
    Receiver r;
    r.command("update==3");
    r.send(block(0));
    r.send(block(0));
    QCOMPARE(r.written(), Receiver::expected({0, 0}));
}

void TestUpdateReception::noiseDuringTheUpdateIsNotABlock()
{
    Receiver r;
    r.command("update==2");
    QCOMPARE(r.handler.HandleMessage(QString::fromLatin1(Frame::Build("temp==300"))), QByteArray());
    QCOMPARE(r.send(QString()), QStringList());
    // A number no block of this update can have: line noise in the header, not a gap.
    QCOMPARE(r.send(QString::fromLatin1(UpdateBlock::Encode(999999, "x"))), QStringList());
    QCOMPARE(r.send(block(0)), QStringList());
    QCOMPARE(r.send(block(1)), closing);
    QCOMPARE(r.written(), Receiver::expected({0, 1}));
}

void TestUpdateReception::secondUpdateContinuesTheCounters()
{
    // The counters live as long as the panel: a second update in the same run starts where
    // the first ended, as the furnace's panel always has.
    Receiver r;
    QSignalSpy progress(&r.handler, &MessageHandler::SignalUpdateProgress);
    r.command("update==2");
    r.send(block(0));
    QCOMPARE(r.send(block(1)), closing);
    r.command("update==2");
    QCOMPARE(r.written(), QByteArray()); // emptied for the new file
    progress.clear();
    QCOMPARE(r.send(block(0)), QStringList());
    QCOMPARE(progress.count(), 1);
    QCOMPARE(progress.at(0).at(0).toString(), QStringLiteral("150%"));
    QVERIFY(r.handler.IsUpdateActive());
}

void TestUpdateReception::scriptResultIsReported_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QStringList>("interpreters");
    QTest::addColumn<QString>("report");
    const QStringList py = {UpdateFiles::Python()};
    QTest::newRow("3") << QByteArray("print(3)") << py << "failed";
    QTest::newRow("not a number") << QByteArray("print('x')") << py << "done";
    QTest::newRow("says nothing, dies") << QByteArray("import sys; sys.exit(1)") << py << "failed";
    QTest::newRow("no interpreter") << QByteArray("print(0)") << QStringList{"/nonexistent/python"} << "failed";
    QTest::newRow("second interpreter") << QByteArray("print(0)")
                                        << QStringList{"/nonexistent/python", UpdateFiles::Python()} << "done";
}

void TestUpdateReception::scriptResultIsReported()
{
    QFETCH(QByteArray, script);
    QFETCH(QStringList, interpreters);
    QFETCH(QString, report);
    Receiver r;
    r.script(script);
    r.handler.SetUnpackInterpreters(interpreters);
    r.handler.SetUnpackDelayMs(10);
    QSignalSpy usb(&r.handler, &MessageHandler::SignalUSB);

    r.command("update==1");
    QCOMPARE(r.send(block(0)), closing);
    QVERIFY(usb.wait(10000));
    QCOMPARE(usb.at(0).at(0).toString(), report);
    // Reported once: the timer does not start the script again.
    QTest::qWait(50);
    QCOMPARE(usb.count(), 1);
}

void TestUpdateReception::scriptRunsWithoutBlockingTheLine()
{
    // The slot returns at once; the result comes later from the event loop.
    Receiver r;
    r.script("import time\ntime.sleep(1)\nprint(0)");
    QSignalSpy usb(&r.handler, &MessageHandler::SignalUSB);
    QElapsedTimer clock;
    clock.start();
    r.handler.SlotStartUpdate();
    QVERIFY(clock.elapsed() < 900);
    QCOMPARE(r.command("temp==300"), QStringList{QStringLiteral("ack")});
    QVERIFY(usb.wait(10000));
    QCOMPARE(usb.at(0).at(0).toString(), QStringLiteral("done"));
}

QTEST_GUILESS_MAIN(TestUpdateReception)
#include "tst_updatereception.moc"
