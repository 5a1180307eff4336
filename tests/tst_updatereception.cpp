// Reception of an update file over the line: blocks in and out of order, damaged, repeated and
// lost blocks, a controller that falls silent, the closing requests, and the report of the
// unpacking script.
#include "communication/frame.h"
#include "communication/messagehandler.h"
#include "communication/updateblock.h"
#include "updatefiles.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>
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
    QString file() const { return home.path() + QStringLiteral("/Downloads/outfile.txt"); }
    QByteArray written() const { return UpdateFiles::Read(file()); }
    void script(const QByteArray &text)
    {
        UpdateFiles::Write(home.path() + QStringLiteral("/Downloads/decode_and_unzip_lin.py"), text + '\n');
        handler.SetUnpackInterpreters({UpdateFiles::Python()});
    }
    // Blocks 0 to total - 1, in order.
    static QByteArray whole(int total)
    {
        QByteArray data;
        for (int n = 0; n < total; ++n)
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
    void resendServedLateIsWrittenInItsPlace_data();
    void resendServedLateIsWrittenInItsPlace();
    void repeatedBlocksAreWrittenOnce();
    void silenceIsAskedAboutThenTheUpdateFails();
    void everyRunEndsExactOrFailed();
    void secondUpdateStartsAfresh();
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
    QCOMPARE(r.written(), Receiver::whole(3));
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
    // Too short for a number, read as block 0, which is in the file already: nothing to ask.
    QTest::newRow("short") << QStringLiteral("12") << "";
}

void TestUpdateReception::damagedBlocksAreAskedForAgain()
{
    QFETCH(QString, bad);
    QFETCH(QString, request);
    Receiver r;
    r.command("update==3");
    QCOMPARE(r.send(block(0)), QStringList());
    QCOMPARE(r.send(bad), request.isEmpty() ? QStringList() : QStringList{request});
    QCOMPARE(r.written(), Receiver::whole(1));
}

void TestUpdateReception::resendServedLateIsWrittenInItsPlace_data()
{
    QTest::addColumn<QStringList>("blocks"); // "d" before a number: damaged
    QTest::addColumn<QList<QStringList>>("answers");
    const QStringList none;
    // Block 2 came ahead of the gap at 1 and damaged; 3 comes before the resend of 2.
    QTest::newRow("resend after the next block")
        << QStringList{"0", "d2", "3", "1", "2", "4"}
        << QList<QStringList>{none, {"resend==1"}, none, {"resend==2"}, none, closing};
    QTest::newRow("resend after the last block")
        << QStringList{"0", "d2", "3", "1", "4", "2"}
        << QList<QStringList>{none, {"resend==1"}, none, {"resend==2"}, none, closing};
    QTest::newRow("resent block damaged again")
        << QStringList{"0", "d2", "3", "1", "4", "d2", "2"}
        << QList<QStringList>{none, {"resend==1"}, none, {"resend==2"}, none, {"resend==2"}, closing};
}

void TestUpdateReception::resendServedLateIsWrittenInItsPlace()
{
    QFETCH(QStringList, blocks);
    QFETCH(QList<QStringList>, answers);
    Receiver r;
    QSignalSpy progress(&r.handler, &MessageHandler::SignalUpdateProgress);
    r.command("update==5");
    for (int i = 0; i < blocks.size(); ++i) {
        const bool bad = blocks.at(i).startsWith(QLatin1Char('d'));
        const int number = blocks.at(i).right(1).toInt();
        QCOMPARE(r.send(bad ? damaged(number) : block(number)), answers.at(i));
    }
    QCOMPARE(r.written(), Receiver::whole(5));
    QCOMPARE(progress.last().at(0).toString(), QStringLiteral("100%"));
}

void TestUpdateReception::repeatedBlocksAreWrittenOnce()
{
    Receiver r;
    r.command("update==4");
    r.send(block(0));
    r.send(block(0));
    QCOMPARE(r.send(block(2)), QStringList{"resend==1"});
    QCOMPARE(r.send(block(2)), QStringList());
    QCOMPARE(r.send(damaged(2)), QStringList()); // an intact copy is held
    r.send(block(1));
    r.send(block(1));
    QCOMPARE(r.written(), Receiver::whole(3));
    QCOMPARE(r.send(block(3)), closing);
    QCOMPARE(r.written(), Receiver::whole(4));
}

void TestUpdateReception::silenceIsAskedAboutThenTheUpdateFails()
{
    // The last block is lost and the controller falls silent.
    Receiver r;
    r.handler.SetUpdateQuietTiming(20, 3);
    QSignalSpy unasked(&r.handler, &MessageHandler::SignalUnaskedFrame);
    QSignalSpy usb(&r.handler, &MessageHandler::SignalUSB);
    r.command("update==3");
    r.send(block(0));
    r.send(block(1));
    QTRY_COMPARE_WITH_TIMEOUT(usb.count(), 1, 5000);
    QCOMPARE(usb.at(0).at(0).toString(), QStringLiteral("failed"));
    QCOMPARE(unasked.count(), 3);
    for (const QList<QVariant> &frame : qAsConst(unasked))
        QCOMPARE(answerFields(frame.at(0).toByteArray()), QStringList{"resend==2"});
    QVERIFY(!r.handler.IsUpdateActive());
    QVERIFY(!QFile::exists(r.file())); // nothing half-received left to unpack
    QCOMPARE(r.command("temp==300"), QStringList{QStringLiteral("ack")});

    // A block after a re-ask starts the count again, and the served request ends the update.
    r.command("update==2");
    r.send(block(0));
    QTRY_COMPARE_WITH_TIMEOUT(unasked.count(), 5, 5000);
    QCOMPARE(r.send(block(1)), closing);
    QCOMPARE(r.written(), Receiver::whole(2));
    QTest::qWait(100);
    QCOMPARE(usb.count(), 1);
}

// A controller on a bad line, after a seed: blocks lost, damaged in their data or their number,
// repeated and swapped with the next; requests lost now and then, served a few blocks late.
// Every run ends with the whole file in order, or failed with nothing left to unpack.
void TestUpdateReception::everyRunEndsExactOrFailed()
{
    const int runs = 300;
    int exact = 0;
    for (quint32 seed = 1; seed <= quint32(runs); ++seed) {
        QRandomGenerator random(seed);
        const auto chance = [&random](int percent) { return int(random.bounded(100)) < percent; };
        Receiver r;
        r.handler.SetUpdateQuietTiming(2, 3);
        QSignalSpy unasked(&r.handler, &MessageHandler::SignalUnaskedFrame);
        QSignalSpy usb(&r.handler, &MessageHandler::SignalUSB);
        const int total = int(random.bounded(1, 25));
        r.command("update==" + QByteArray::number(total));

        QList<int> firstPass;
        for (int n = 0; n < total; ++n)
            firstPass << n;
        for (int i = 0; i + 1 < total; ++i) {
            if (chance(10))
                firstPass.swapItemsAt(i, i + 1);
        }
        QList<QPair<int, int>> resends; // number, blocks still to go before it
        bool ended = false;
        const auto take = [&](const QStringList &requests) {
            for (const QString &request : requests) {
                if (request == QLatin1String("endupdate"))
                    ended = true;
                else if (request.startsWith(QLatin1String("resend==")) && !chance(15))
                    resends << qMakePair(request.mid(8).toInt(), int(random.bounded(4)));
            }
        };

        for (int sent = 0; !ended && usb.isEmpty(); ++sent) {
            QVERIFY2(sent < 40 * total + 100, qPrintable(QStringLiteral("seed %1 does not end").arg(seed)));
            int number = -1;
            for (int i = 0; i < resends.size(); ++i) {
                if (number < 0 && resends.at(i).second <= 0)
                    number = resends.takeAt(i--).first;
                else
                    --resends[i].second;
            }
            if (number < 0 && !firstPass.isEmpty())
                number = firstPass.takeFirst();
            if (number < 0 && !resends.isEmpty())
                number = resends.takeFirst().first;
            if (number < 0) { // nothing left to send: the line falls silent
                // One re-ask at a time: the controller answers each before the next is due.
                const int before = unasked.count();
                QEventLoop panelSpeaks;
                QTimer::singleShot(5000, &panelSpeaks, &QEventLoop::quit);
                connect(&r.handler, &MessageHandler::SignalUnaskedFrame, &panelSpeaks, &QEventLoop::quit);
                connect(&r.handler, &MessageHandler::SignalUSB, &panelSpeaks, &QEventLoop::quit);
                panelSpeaks.exec();
                QVERIFY(unasked.count() > before || !usb.isEmpty());
                for (int i = before; i < unasked.count(); ++i)
                    take(answerFields(unasked.at(i).at(0).toByteArray()));
                continue;
            }
            if (chance(8))
                continue; // lost on the line
            QString text = block(number);
            if (chance(8))
                text = damaged(number);
            else if (chance(3))
                text[0] = QLatin1Char('9'); // a number past the total
            take(r.send(text));
            if (chance(5))
                take(r.send(text));
        }
        QVERIFY(!r.handler.IsUpdateActive());
        if (ended) {
            QVERIFY2(r.written() == Receiver::whole(total), qPrintable(QStringLiteral("seed %1").arg(seed)));
            ++exact;
        } else {
            QCOMPARE(usb.at(0).at(0).toString(), QStringLiteral("failed"));
            QVERIFY(!QFile::exists(r.file()));
        }
    }
    // Failure is for a controller that stops serving requests, not the rule.
    QVERIFY2(exact >= runs * 9 / 10, qPrintable(QStringLiteral("%1 of %2 runs ended exact").arg(exact).arg(runs)));
}

void TestUpdateReception::secondUpdateStartsAfresh()
{
    Receiver r;
    QSignalSpy progress(&r.handler, &MessageHandler::SignalUpdateProgress);
    r.command("update==2");
    r.send(block(0));
    QCOMPARE(r.send(block(1)), closing);
    r.command("update==2");
    QCOMPARE(r.written(), QByteArray()); // emptied for the new file
    progress.clear();
    QCOMPARE(r.send(block(0)), QStringList());
    QCOMPARE(r.send(block(1)), closing);
    QCOMPARE(progress.count(), 2);
    QCOMPARE(progress.at(1).at(0).toString(), QStringLiteral("100%"));
    QCOMPARE(r.written(), Receiver::whole(2));
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
