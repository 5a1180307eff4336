// The USB stick menu without a window: the session with the controller (its words, the
// user's choices, the answer timer) and the panel's own file work between store and stick.
#include "programs/heatfiletext.h"
#include "programs/programhandler.h"
#include "settings/usbfileaction.h"
#include "settings/usbsession.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <utility>

using ovra::GlobalElements::Program;
using ovra::ProgramHandler::ProgramHandler;
using ovra::Settings::UsbSession;
using Action = UsbSession::Action;
namespace Files = ovra::Settings::UsbFileAction;

namespace {
// Everything the session tells the window, in order, as one word each.
struct Recorder
{
    explicit Recorder(UsbSession &session)
    {
        const auto name = [](Action action) {
            return QString::fromLatin1(QMetaEnum::fromType<Action>().valueToKey(int(action)));
        };
        QObject::connect(&session, &UsbSession::SignalShowMenu, [this] { said << QStringLiteral("show"); });
        QObject::connect(&session, &UsbSession::SignalCloseMenu, [this] { said << QStringLiteral("close"); });
        QObject::connect(&session, &UsbSession::SignalBegan,
                         [this, name](Action action) { said << QStringLiteral("began ") + name(action); });
        QObject::connect(&session, &UsbSession::SignalUnaskedResult, [this] { said << QStringLiteral("unasked"); });
        QObject::connect(&session, &UsbSession::SignalRequest,
                         [this](const QString &request) { said << QStringLiteral("request ") + request; });
        QObject::connect(&session, &UsbSession::SignalRunFileAction,
                         [this, name](Action action) { said << QStringLiteral("run ") + name(action); });
        QObject::connect(&session, &UsbSession::SignalFinished, [this](bool success, const QString &reason) {
            said << (success ? QStringLiteral("success") : QStringLiteral("failed: ") + reason);
        });
    }
    // What was said since the last call.
    QStringList Take() { return std::exchange(said, {}); }

    QStringList said;
};

Program *Made(const QString &name, const QString &manufacturer, bool fav)
{
    return new Program(name, QStringLiteral("Zirkon"), {{10, 900, 30}}, manufacturer, fav);
}

QStringList Names(const QList<Program *> &programs)
{
    QStringList names;
    for (const Program *program : programs)
        names << program->GetName();
    return names;
}

// The store's filtered lists are the caller's to delete.
QStringList Names(QList<Program *> *filtered)
{
    const QStringList names = Names(*filtered);
    delete filtered;
    return names;
}
} // namespace

class TestUsbSession : public QObject
{
    Q_OBJECT

private slots:
    void menuOpensOnlyWhereAllowed();
    void controllerUpdateAskedAndAnswered();
    void controllerUpdateFailsWithoutAnAnswer();
    void updateProgressKeepsTheWaitAlive();
    void fileWorkRunsAfterThePopupAndIgnoresTheController();
    void unaskedAndUnknownWords();

    void programsGoToTheStickAndBack();
    void loadRefusedWholeLeavesTheStoreAlone();
    void backupHoldsEveryProgram();
};

void TestUsbSession::menuOpensOnlyWhereAllowed()
{
    bool allowed = false;
    UsbSession session([&allowed] { return allowed; });
    Recorder recorder(session);
    session.SlotControllerSays(QStringLiteral("in"));
    QVERIFY(session.IsStickIn()); // the stick counts as in, the menu waits
    QCOMPARE(recorder.Take(), QStringList());
    allowed = true;
    session.SlotControllerSays(QStringLiteral("in"));
    QCOMPARE(recorder.Take(), QStringList{QStringLiteral("show")});
    session.SlotControllerSays(QStringLiteral("out"));
    QVERIFY(!session.IsStickIn());
    QCOMPARE(recorder.Take(), QStringList{QStringLiteral("close")});

    UsbSession anywhere(nullptr);
    QSignalSpy shown(&anywhere, &UsbSession::SignalShowMenu);
    anywhere.SlotControllerSays(QStringLiteral("in"));
    QCOMPARE(shown.count(), 1);
}

void TestUsbSession::controllerUpdateAskedAndAnswered()
{
    UsbSession session(nullptr);
    Recorder recorder(session);
    // Without the controller's word that a stick is in, it is not asked.
    QTest::ignoreMessage(QtDebugMsg, "usb: failed: \"the controller reports no stick\"");
    session.Begin(Action::Firmware);
    QCOMPARE(recorder.Take(), (QStringList{QStringLiteral("began Firmware"),
                                           QStringLiteral("failed: the controller reports no stick")}));
    QCOMPARE(session.LastResult().reason, QStringLiteral("the controller reports no stick"));

    session.SlotControllerSays(QStringLiteral("in"));
    recorder.Take();
    session.Begin(Action::Firmware);
    session.Begin(Action::Config);           // one action at a time
    session.FileActionDone(true, QString()); // not the panel's work
    QVERIFY(session.IsAwaitingAnswer());
    QCOMPARE(session.CurrentAction(), Action::Firmware);
    session.SlotControllerSays(QStringLiteral("done"));
    QCOMPARE(recorder.Take(), (QStringList{QStringLiteral("began Firmware"), QStringLiteral("request fwupdate"),
                                           QStringLiteral("success")}));
    QVERIFY(!session.IsAwaitingAnswer());
    QVERIFY(session.LastResult().success);
    QCOMPARE(session.CurrentAction(), Action::None);

    session.Begin(Action::Config);
    QTest::ignoreMessage(QtDebugMsg, "usb: failed: \"the controller reports failed\"");
    session.SlotControllerSays(QStringLiteral("failed"));
    QCOMPARE(recorder.Take(), (QStringList{QStringLiteral("began Config"), QStringLiteral("request configupdate"),
                                           QStringLiteral("failed: the controller reports failed")}));

    // A pulled stick fails the update before the menu goes.
    session.Begin(Action::Config);
    QTest::ignoreMessage(QtDebugMsg, "usb: failed: \"the stick was pulled\"");
    session.SlotControllerSays(QStringLiteral("out"));
    QCOMPARE(recorder.Take(), (QStringList{QStringLiteral("began Config"), QStringLiteral("request configupdate"),
                                           QStringLiteral("failed: the stick was pulled"), QStringLiteral("close")}));
    QVERIFY(!session.IsAwaitingAnswer());
    QVERIFY(!session.LastResult().success);
}

void TestUsbSession::controllerUpdateFailsWithoutAnAnswer()
{
    UsbSession session(nullptr);
    session.SetAnswerTimeoutMs(20);
    session.SlotControllerSays(QStringLiteral("in"));
    QSignalSpy finished(&session, &UsbSession::SignalFinished);
    QTest::ignoreMessage(QtDebugMsg, "usb: failed: \"no answer from the controller\"");
    session.Begin(Action::Config);
    QVERIFY(finished.wait(5000));
    QCOMPARE(finished.at(0), (QVariantList{false, QStringLiteral("no answer from the controller")}));
    QCOMPARE(session.CurrentAction(), Action::None);
    // A late answer finds nothing under way and is shown as the controller's own.
    QSignalSpy unasked(&session, &UsbSession::SignalUnaskedResult);
    session.SlotControllerSays(QStringLiteral("done"));
    QCOMPARE(unasked.count(), 1);
}

void TestUsbSession::updateProgressKeepsTheWaitAlive()
{
    UsbSession session(nullptr);
    session.SetAnswerTimeoutMs(1000);
    session.SlotUpdateProgress(); // nothing awaited: nothing starts
    QVERIFY(!session.IsAwaitingAnswer());

    session.SlotControllerSays(QStringLiteral("in"));
    session.Begin(Action::Firmware);
    QSignalSpy finished(&session, &UsbSession::SignalFinished);
    // Progress every 20 ms for well over the timeout's second.
    QTimer blocks;
    blocks.setInterval(20);
    int received = 0;
    connect(&blocks, &QTimer::timeout, &session, [&] {
        ++received;
        session.SlotUpdateProgress();
    });
    blocks.start();
    QTRY_VERIFY_WITH_TIMEOUT(received >= 75, 20000);
    QCOMPARE(finished.count(), 0);
    QVERIFY(session.IsAwaitingAnswer());
    blocks.stop();
    QTest::ignoreMessage(QtDebugMsg, "usb: failed: \"no answer from the controller\"");
    QVERIFY(finished.wait(5000));
}

void TestUsbSession::fileWorkRunsAfterThePopupAndIgnoresTheController()
{
    UsbSession session(nullptr);
    Recorder recorder(session);
    session.FileActionDone(true, QString()); // nothing under way
    session.Begin(Action::SavePrograms);
    QCOMPARE(recorder.said, QStringList{QStringLiteral("began SavePrograms")}); // the stick waits for the event loop
    QVERIFY(!session.IsAwaitingAnswer());

    QTest::ignoreMessage(QtDebugMsg, "usb: controller's \"done\" while the panel works on the stick, ignored");
    session.SlotControllerSays(QStringLiteral("done"));
    QTest::ignoreMessage(QtDebugMsg, "usb: controller's \"failed\" while the panel works on the stick, ignored");
    session.SlotControllerSays(QStringLiteral("failed"));
    session.SlotControllerSays(QStringLiteral("out")); // the panel finds out itself
    QTRY_COMPARE(recorder.said.size(), 3);
    QCOMPARE(recorder.Take(), (QStringList{QStringLiteral("began SavePrograms"), QStringLiteral("close"),
                                           QStringLiteral("run SavePrograms")}));
    QCOMPARE(session.CurrentAction(), Action::SavePrograms);

    QTest::ignoreMessage(QtDebugMsg, "usb: failed: \"no USB stick is mounted\"");
    session.FileActionDone(false, QStringLiteral("no USB stick is mounted"));
    session.FileActionDone(true, QString()); // once only
    QCOMPARE(recorder.Take(), QStringList{QStringLiteral("failed: no USB stick is mounted")});
    QCOMPARE(session.CurrentAction(), Action::None);

    // No stick word needed for the panel's own work; none goes to the controller.
    session.Begin(Action::None);
    session.Begin(Action::Backup);
    QTRY_COMPARE(recorder.said.size(), 2);
    session.FileActionDone(true, QString());
    QCOMPARE(recorder.Take(),
             (QStringList{QStringLiteral("began Backup"), QStringLiteral("run Backup"), QStringLiteral("success")}));
    QVERIFY(session.LastResult().success);
}

void TestUsbSession::unaskedAndUnknownWords()
{
    UsbSession session(nullptr);
    Recorder recorder(session);
    // An update the controller began on its own is reported as a firmware update.
    session.SlotControllerSays(QStringLiteral("done"));
    QCOMPARE(recorder.Take(), (QStringList{QStringLiteral("unasked"), QStringLiteral("success")}));
    QTest::ignoreMessage(QtDebugMsg, "usb: failed: \"the controller reports failed\"");
    session.SlotControllerSays(QStringLiteral("failed"));
    QCOMPARE(recorder.Take(),
             (QStringList{QStringLiteral("unasked"), QStringLiteral("failed: the controller reports failed")}));

    for (const QString &word : {QStringLiteral("IN"), QStringLiteral(""), QStringLiteral("done ")}) {
        QTest::ignoreMessage(QtDebugMsg, qPrintable(QStringLiteral("usb: unknown state \"%1\"").arg(word)));
        session.SlotControllerSays(word);
    }
    QCOMPARE(recorder.Take(), QStringList());
    QVERIFY(!session.IsStickIn());
    QCOMPARE(session.CurrentAction(), Action::None);
}

void TestUsbSession::programsGoToTheStickAndBack()
{
    QTemporaryDir stick;
    ProgramHandler panel;
    panel.Slot_AddReceivedProgram(Made(QStringLiteral("ZS Speed"), QStringLiteral("Zircos"), false));
    panel.Slot_AddReceivedProgram(Made(QStringLiteral("Krone"), ProgramHandler::userManufacturer, false));
    Program *evening = Made(QStringLiteral("Abend"), ProgramHandler::userManufacturer, true);
    panel.Slot_AddReceivedProgram(evening);
    panel.Slot_SetProgramToFav(evening);
    QString error;
    QVERIFY2(Files::SavePrograms(panel, stick.path(), &error), qPrintable(error));

    // Another furnace: the same maker's program, and a "Krone" of its own, a favourite.
    ProgramHandler other;
    other.Slot_AddReceivedProgram(Made(QStringLiteral("ZS Speed"), QStringLiteral("Zircos"), false));
    Program *oldCrown = Made(QStringLiteral("Krone"), ProgramHandler::userManufacturer, true);
    oldCrown->SetMatrix({{5, 1500, 60}});
    other.Slot_AddReceivedProgram(oldCrown);
    other.Slot_SetProgramToFav(oldCrown);
    QStringList requests;
    QTest::ignoreMessage(QtDebugMsg, "usb: 2 programs loaded");
    QVERIFY2(Files::LoadPrograms(
                 other, stick.path(), [&](const QString &request) { requests << request; }, &error),
             qPrintable(error));

    // Only the user's programs travelled; a name already there was replaced, not doubled.
    QCOMPARE(Names(other.GetProgramListSortedByManufacturer(ProgramHandler::userManufacturer)),
             (QStringList{QStringLiteral("Krone"), QStringLiteral("Abend")}));
    QCOMPARE(Names(other.GetFavoriteProgramList()), QStringList{QStringLiteral("Abend")});
    const Program *crown = other.GetProgramByName(QStringLiteral("Krone"));
    QCOMPARE(*crown->GetMatrix(), (Program::Matrix{{10, 900, 30}}));
    QVERIFY(!crown->IsFav());
    QCOMPARE(requests,
             (QStringList{QStringLiteral("heatfile==") + ovra::GlobalElements::HeatfileText::Write(*crown),
                          QStringLiteral("heatfile==") + ovra::GlobalElements::HeatfileText::Write(*evening)}));
}

void TestUsbSession::loadRefusedWholeLeavesTheStoreAlone()
{
    QTemporaryDir stick;
    ProgramHandler source;
    source.Slot_AddReceivedProgram(Made(QStringLiteral("Abend"), ProgramHandler::userManufacturer, false));
    source.Slot_AddReceivedProgram(Made(QStringLiteral("ZS Speed"), ProgramHandler::userManufacturer, false));
    QString error;
    QVERIFY(Files::SavePrograms(source, stick.path(), &error));

    // Here "ZS Speed" is the maker's: the whole file is refused, "Abend" too.
    ProgramHandler panel;
    panel.Slot_AddReceivedProgram(Made(QStringLiteral("ZS Speed"), QStringLiteral("Zircos"), false));
    QStringList requests;
    QVERIFY(!Files::LoadPrograms(
        panel, stick.path(), [&](const QString &request) { requests << request; }, &error));
    QVERIFY2(error.contains(QStringLiteral("'ZS Speed' is taken")), qPrintable(error));
    QCOMPARE(Names(*panel.GetProgramList()), QStringList{QStringLiteral("ZS Speed")});
    QCOMPARE(requests, QStringList());
}

void TestUsbSession::backupHoldsEveryProgram()
{
    QTemporaryDir stick, home, logs;
    ProgramHandler panel;
    panel.Slot_AddReceivedProgram(Made(QStringLiteral("ZS Speed"), QStringLiteral("Zircos"), false));
    panel.Slot_AddReceivedProgram(Made(QStringLiteral("Krone"), ProgramHandler::userManufacturer, false));
    Files::BackupSources sources;
    sources.deviceText = QStringLiteral("Model: X\n");
    sources.serialNumber = QStringLiteral("S1-0087");
    sources.logFolder = logs.path();
    sources.now = QDateTime(QDate(2026, 11, 25), QTime(14, 30, 5));
    sources.home = home.path();
    const QString folder = stick.filePath(QStringLiteral("ovra/backup/S1-0087_20261125_143005"));
    QString error;
    QTest::ignoreMessage(QtDebugMsg, qPrintable(QStringLiteral("usb: backup written to \"%1\"").arg(folder)));
    QVERIFY2(Files::Backup(panel, stick.path(), sources, &error), qPrintable(error));
    QFile programs(folder + QStringLiteral("/programs.txt"));
    QVERIFY(programs.open(QIODevice::ReadOnly));
    const QByteArray text = programs.readAll();
    QVERIFY(text.contains("name=ZS Speed;manufacturer=Zircos") && text.contains("name=Krone;manufacturer=user"));
    QVERIFY(QFileInfo::exists(folder + QStringLiteral("/records/firings.csv")));
}

QTEST_GUILESS_MAIN(TestUsbSession)
#include "tst_usbsession.moc"
