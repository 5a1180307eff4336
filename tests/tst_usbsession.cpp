// The USB stick menu without a window: the session with the controller (its words, the
// user's choices, the answer timer) and the panel's own file work between store and stick.
// Where the menu may open, refused files, backups and a controller that never answers are
// the window's tests (tst_service, tst_servicecore).
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
    void controllerUpdateAskedAndAnswered();
    void updateProgressKeepsTheWaitAlive();
    void fileWorkRunsAfterThePopupAndIgnoresTheController();

    void programsGoToTheStickAndBack();
};

void TestUsbSession::controllerUpdateAskedAndAnswered()
{
    UsbSession session(nullptr);
    Recorder recorder(session);
    // Without a stick reported, and pulled while the controller works: tst_service.
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

    // An update the controller began on its own is reported as a firmware update.
    session.SlotControllerSays(QStringLiteral("done"));
    QCOMPARE(recorder.Take(), (QStringList{QStringLiteral("unasked"), QStringLiteral("success")}));
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

QTEST_GUILESS_MAIN(TestUsbSession)
#include "tst_usbsession.moc"
