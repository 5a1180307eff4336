// A firing as the main window runs it: start requests, the one-second lock, progress reports,
// result and stop, pre-dry steps, the delayed start, the door and its hot-door warning,
// material change, door insulation and the argon check.
#include "app/mainwindow.h"
#include "communication/frame.h"
#include "communication/internalcommunicator.h"
#include "communication/messagehandler.h"
#include "fakeholdclock.h"
#include "panelharness.h"
#include "popups/popupargonfailure.h"
#include "popups/popupstop.h"
#include "popups/popuptempwarning.h"
#include "popups/timerpopup.h"
#include "process/chart.h"
#include "process/chartview.h"
#include "programs/newprogram.h"
#include "programs/programhandler.h"
#include "records/firingdetailview.h"
#include "records/firingexport.h"
#include "records/firinghistoryview.h"
#include "touch.h"
#include "widgets/iconbutton.h"
#include "widgets/programbutton.h"

#include <QLabel>
#include <QLineSeries>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QTcpSocket>
#include <QtTest>

using ovra::Mainwindow::MainWindow;
using ovra::Mainwindow::Page;
namespace Frame = ovra::Communication::Frame;

class TestFiring : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void startTheOneSecondLockAndCallingItOff();
    void preDrySteps();
    void delayedStart();
    void programPageIsRebuiltOnEntry();
    void progressReportsDriveTheProcessPage();
    void resultAndStop();
    void processPageAtAGlance();
    void chartOpensTheEditorOnlyWhileFiring();
    void saveAtOnceEndsWithTheEditor();
    void hotDoorWarning();
    void doorButtonLock();
    void materialChangeAndInsulation();
    void argonCheckStopsTheFiring();
    void failedFiringInTheHistory();
    void jobCodeFromScanToRecord();

private:
    QStringList send(const QByteArray &fields);
    void openProgram(const QString &name);
    void setDelayedStart(); // at 10:00, the clock standing at 9:00

    QScopedPointer<PanelHarness> m_panel;
    MainWindow *m_window = nullptr;
};

void TestFiring::init()
{
    m_panel.reset(new PanelHarness());
    m_window = m_panel->Window();
    send("time==1000$$date==20261122$$temp==293");
    send("heatfile==[metainfo];name=Speed;manufacturer=user;material=Zirkon;favorite=false;"
         "[1];rate=10;temp=1273;hold=1800;[2];rate=5;temp=1773;hold=600;");
}

QStringList TestFiring::send(const QByteArray &fields)
{
    // Page reports and favourite echoes are not what these cases look at.
    QStringList requests;
    for (const QString &p : m_panel->Send(fields)) {
        if (!p.startsWith(QLatin1String("guistate==")) && !p.startsWith(QLatin1String("tofavorite==")))
            requests << p;
    }
    return requests;
}

void TestFiring::openProgram(const QString &name)
{
    send("guistate==10"); // the user's own programs
    for (ovra::GlobalElements::ProgramButton *button : m_window->GetProgramButtons()) {
        if (button->GetText() == name) {
            PanelHarness::Click(button);
            break;
        }
    }
    QCOMPARE(m_window->CurrentPage(), Page::PlayProg);
    QCOMPARE(m_panel->Text("label_Name"), name);
    send("temp==293");
}

void TestFiring::setDelayedStart()
{
    m_window->GetTimerPopup()->SetClock([] { return QDateTime(QDate(2026, 11, 22), QTime(9, 0)); });
    m_panel->Tap("widget_timerPlayProg");
    QTRY_VERIFY(m_window->GetTimerPopup()->isVisible());
    Tap(m_window->GetTimerPopup(), "pushButton_ok");
    QVERIFY(m_panel->Widget("plainTextEdit_autostart") != nullptr);
}

void TestFiring::startTheOneSecondLockAndCallingItOff()
{
    openProgram(QStringLiteral("Speed"));
    m_panel->Tap("widget_playNewProg");
    QVERIFY(!m_panel->Enabled("widget_playNewProg"));
    QVERIFY(!m_panel->Enabled("widget_doorPlayNewProg"));
    m_panel->Tap("widget_playNewProg"); // the second tap within the second does nothing
    QCOMPARE(send("temp==293"), QStringList{QStringLiteral("hpstart==Speed,0")});
    QVERIFY(!m_panel->Shown("widget_timerPlayProg"));
    QTRY_VERIFY_WITH_TIMEOUT(m_panel->Enabled("widget_playNewProg") && m_panel->Enabled("widget_doorPlayNewProg"),
                             3000);
    m_panel->Tap("widget_playNewProg"); // pressed again: a cancel
    QCOMPARE(send("temp==293"), (QStringList{QStringLiteral("hpstop"), QStringLiteral("timer==")}));
    QVERIFY(m_panel->Shown("widget_timerPlayProg"));
}

void TestFiring::preDrySteps()
{
    // Oven 20 °C, clock 10:00: ramps of 98 and 100 minutes, holds of 30 and 10.
    openProgram(QStringLiteral("Speed"));
    QCOMPARE(m_panel->Text("widget_showPlayTime"), QStringLiteral("Ende 13:58"));
    for (int i = 0; i < 4; ++i) {
        m_panel->Tap("widget_timerPreDry");
        QCOMPARE(m_window->PreDryMinutes(), unsigned(15 * (i + 1)));
        QVERIFY(m_panel->Checked("widget_timerPreDry"));
    }
    m_panel->Tap("widget_timerPreDry");
    QCOMPARE(m_window->PreDryMinutes(), 0u);
    QVERIFY(!m_panel->Checked("widget_timerPreDry"));
    QCOMPARE(m_panel->Icon("widget_timerPreDry"), QStringLiteral(":/Vortrocknen/Dry_Up_Timer.png"));

    m_panel->Tap("widget_timerPreDry");
    QCOMPARE(m_panel->Text("widget_showPlayTime"), QStringLiteral("Ende 14:24")); // +15 and (130 - 20) / 10
    m_panel->Tap("widget_playNewProg");      // "hpstart==...,15": the simulated firing
    QCOMPARE(m_window->PreDryMinutes(), 0u); // used up by the start
}

void TestFiring::delayedStart()
{
    openProgram(QStringLiteral("Speed"));
    setDelayedStart();
    QCOMPARE(m_window->GetTimerPopup()->GetRequestedTimer(), QStringLiteral("timer==20261122,1000"));
    // The note takes the user buttons' place.
    QVERIFY(!m_panel->Shown("widget_playProgChange"));

    m_panel->Tap("widget_playNewProg");
    QCOMPARE(send("temp==293"), QStringList{QStringLiteral("timer==20261122,1000,Speed,0")});

    // Unchecking the timer button drops the note and the request.
    m_panel->Widget("widget_timerPlayProg")->setVisible(true);
    QTRY_VERIFY_WITH_TIMEOUT(m_panel->Enabled("widget_timerPlayProg"), 3000);
    m_panel->Tap("widget_timerPlayProg");
    QCOMPARE(m_window->GetTimerPopup()->GetRequestedTimer(), QString());
    QVERIFY(m_panel->Widget("plainTextEdit_autostart") == nullptr);
    QVERIFY(m_panel->Shown("widget_playProgChange"));

    // Left with its note up, a delayed start is gone when a program is chosen from the list.
    setDelayedStart();
    m_panel->Tap("widget_backPlayNewProg");
    openProgram(QStringLiteral("Speed"));
    QVERIFY(m_panel->Widget("plainTextEdit_autostart") == nullptr);
    QVERIFY(!m_panel->Checked("widget_timerPlayProg"));
    QVERIFY(m_panel->Shown("widget_playProgChange"));
    QTRY_VERIFY_WITH_TIMEOUT(m_panel->Enabled("widget_playNewProg"), 3000);
    m_panel->Tap("widget_playNewProg");
    QCOMPARE(send("temp==293"), QStringList{QStringLiteral("hpstart==Speed,0")});
}

void TestFiring::programPageIsRebuiltOnEntry()
{
    // A delayed start's note is up when the user leaves; the program changes meanwhile.
    openProgram(QStringLiteral("Speed"));
    setDelayedStart();
    send("guistate==3");
    send(PanelHarness::Heatfile("Speed", "user", "Argon"));

    // The controller brings the page back: name, material and estimate from the store.
    send("guistate==17");
    QCOMPARE(m_panel->Text("label_Name"), QStringLiteral("Speed"));
    QCOMPARE(m_panel->Icon("widget_materialPlay"), QStringLiteral(":/Play/Gas.png"));
    QVERIFY(m_panel->Widget("plainTextEdit_autostart") == nullptr);
    QCOMPARE(m_panel->Text("widget_showPlayTime"), QStringLiteral("Ende 13:48")); // the new program's

    // Back from the process page after a firing rebuilds it too; lower-case argon is not argon.
    send(PanelHarness::Heatfile("Speed", "user", "argon"));
    send("hpinfo==Speed;95;1;heat$$hpsuccess$$hpinfo==");
    m_panel->Tap("widget_backProcessProg");
    QCOMPARE(m_panel->Text("widget_materialPlay"), QStringLiteral("argon"));
    QCOMPARE(m_panel->Icon("widget_materialPlay"), QString());
}

void TestFiring::progressReportsDriveTheProcessPage()
{
    send("guistate==3");
    // A firing started elsewhere brings the panel to its process page.
    send("hpinfo==Speed;95;pre;pre");
    QCOMPARE(m_window->CurrentPage(), Page::ProcessProg);
    QVERIFY(!m_panel->Enabled("widget_exitProcessProg"));
    QCOMPARE(m_panel->Text("label_glanceEnd"), QStringLiteral("Ende 11:35"));

    send("temp==773$$hpinfo==Speed;80;1;heat");
    QVERIFY(!m_panel->Shown("widget_processPreDryInfo"));
    QVERIFY(m_panel->Find<ovra::GlobalElements::Chart>("widget_chart_process")->GetProgressSeries()->count() > 0);

    // The controller repeating its page report does not start the hold over.
    auto clock = std::make_unique<FakeHoldClock>();
    const FakeHoldClock *holds = clock.get();
    m_panel->Find<ovra::GlobalElements::Chart>("widget_chart_process")->SetHoldClock(std::move(clock));
    send("hpinfo==Speed;80;1;hold$$guistate==18$$hpinfo==Speed;80;1;hold");
    QCOMPARE(holds->restarts, 1);

    send("hpinfo==Speed;1;2"); // fewer than four fields: dropped
    QCOMPARE(m_panel->Text("label_glanceEnd"), QStringLiteral("Ende 11:20"));
    send("hpinfo==Unknown;5;1;heat"); // a name not in the store switches nothing
    QCOMPARE(m_window->CurrentPage(), Page::ProcessProg);

    // Display off during a firing leaves the door alone.
    QTcpSocket key;
    key.connectToHost(QHostAddress::LocalHost, m_window->GetInternalCommunicator()->Port());
    QVERIFY(key.waitForConnected(3000));
    key.write("aus");
    QTRY_VERIFY(!m_panel->TouchEnabled());
    QCOMPARE(send("temp==773"), QStringList());
    key.write("an");
    QTRY_VERIFY(m_panel->TouchEnabled());

    send("hpinfo==");
    QVERIFY(!m_window->Furnace().IsFiring());
    QVERIFY(m_panel->Enabled("widget_exitProcessProg"));
    QVERIFY(m_panel->Shown("widget_doorProcessProg"));

    // The header's temperature stands aside for the page's own, and is back on the next page
    // however the page was left, not only when the controller reports its main menu.
    QVERIFY(!m_panel->Shown("widget_temp"));
    m_panel->Tap("widget_exitProcessProg");
    QCOMPARE(m_window->CurrentPage(), Page::MainMenu);
    QVERIFY(m_panel->Shown("widget_temp"));
}

void TestFiring::resultAndStop()
{
    send("hpinfo==Speed;95;1;heat");
    send("hpsuccess"); // its symbol and a stop's: the simulated firings
    QVERIFY(!m_panel->Shown("widget_stopProcessProg"));
    QCOMPARE(m_panel->Text("label_processResultText"), QStringLiteral("Programm beendet"));

    send("error==E201$$hpfailed"); // the failure that ended the firing is named beside the symbol
    QCOMPARE(m_panel->Style("label_processResult"), QStringLiteral("border-image: url(:/Prozess/abort.png);"));
    QCOMPARE(m_panel->Text("label_processResultText"), QStringLiteral("Programm abgebrochen"));
    QCOMPARE(m_panel->Text("label_summaryFailures"), QStringLiteral("E201  Warnung"));

    // The stop asks first: the cross keeps the firing, OK stops it and shows the abort.
    send("guistate==3$$hpinfo==Speed;90;1;heat");
    QCOMPARE(m_panel->CurrentPage(), ovra::Mainwindow::Page::ProcessProg);
    auto *stop = m_window->findChild<ovra::Popups::PopupStop *>();
    m_panel->Tap("widget_stopProcessProg");
    QTRY_VERIFY(stop->isVisible());
    Tap(stop, "pushButton_Cancel");
    QCOMPARE(send("temp==293"), QStringList());
    QVERIFY(m_window->Furnace().IsFiring());
    m_panel->Tap("widget_stopProcessProg");
    QTRY_VERIFY(stop->isVisible());
    Tap(stop, "pushButton_OK");
    QCOMPARE(send("temp==293"), QStringList{QStringLiteral("hpstop")});
    QVERIFY(!m_window->Furnace().IsFiring());
    QCOMPARE(m_window->Furnace().CurrentFiring().result, ovra::Communication::FiringResult::Stopped);
    QCOMPARE(m_panel->Style("label_processResult"), QStringLiteral("border-image: url(:/Prozess/abort.png);"));
    QVERIFY(!m_panel->Shown("widget_stopProcessProg"));
}

void TestFiring::processPageAtAGlance()
{
    // A firing the controller runs: pre-dry, a ramp, the last hold, then its end with failures.
    send("guistate==3$$date==20261122$$time==0900$$temp==293");
    send("hpinfo==Speed;130;pre;pre");
    QCOMPARE(m_panel->Text("label_glanceTemperature"), QStringLiteral("20°C"));
    QCOMPARE(m_panel->Text("label_glanceStage"), QStringLiteral("Vortrocknen"));
    QCOMPARE(m_panel->Text("label_glanceSegment"), QString());
    QCOMPARE(m_panel->Text("label_glanceRemaining"), QStringLiteral("noch 2:10 h"));
    QVERIFY(!m_panel->Shown("widget_processSummary"));
    QCOMPARE(m_panel->Text("widget_stopProcessProg"), QStringLiteral("Stopp"));

    send("time==0942$$temp==1273$$hpinfo==Speed;88;1;heat");
    QCOMPARE(m_panel->Text("label_glanceStage"), QStringLiteral("Aufheizen"));
    QCOMPARE(m_panel->Text("label_glanceSegment"), QStringLiteral("Segment 1 von 2"));
    QCOMPARE(m_panel->Text("label_glanceRemaining"), QStringLiteral("noch 1:28 h"));
    QVERIFY(m_panel->Shown("progressBar_glance"));
    QVERIFY(m_panel->Find<QProgressBar>("progressBar_glance")->value() > 0);

    send("time==1110$$temp==1723$$hpinfo==Speed;0;2;hold$$error==F07,E201$$hpfailed$$hpinfo==");
    QVERIFY(m_panel->Shown("widget_processSummary"));
    QVERIFY(!m_panel->Shown("progressBar_glance"));
    QCOMPARE(m_panel->Text("label_glanceStage"), QString());
    QCOMPARE(m_panel->Text("label_processResultText"), QStringLiteral("Programm abgebrochen"));
    QCOMPARE(m_panel->Text("label_summaryFailures"), QStringLiteral("E201  Warnung\nF07  Schwerer Fehler"));
    QStringList shown;
    for (const QLabel *label : m_panel->Widget("widget_processSummary")->findChildren<QLabel *>())
        shown << label->text();
    for (const char *value : {"2:10 h", "11:10", "1450°C"})
        QVERIFY2(shown.contains(QString::fromUtf8(value)), value);

    // Leaving the page puts the summary away; coming back shows none.
    m_panel->Tap("widget_backProcessProg");
    send("guistate==18");
    QCOMPARE(m_panel->CurrentPage(), Page::ProcessProg);
    QVERIFY(!m_panel->Shown("widget_processSummary"));
}

void TestFiring::chartOpensTheEditorOnlyWhileFiring()
{
    send("hpinfo==Speed;95;1;heat");
    QTest::mouseClick(m_panel->Find<ovra::GlobalElements::Chart>("widget_chart_process")->GetView()->viewport(),
                      Qt::LeftButton);
    QVERIFY(m_window->IsEditMode());
    QCOMPARE(m_panel->ShownPageIndex(), int(Page::NewProg));
    // Progress reports leave the editor alone while the change is under way.
    send("hpinfo==Speed;90;1;heat");
    QCOMPARE(m_panel->ShownPageIndex(), int(Page::NewProg));

    m_panel->Tap("widget_exit");
    send("hpinfo==Speed;95;1;heat");
    send("hpsuccess");
    QTest::mouseClick(m_panel->Find<ovra::GlobalElements::Chart>("widget_chart_process")->GetView()->viewport(),
                      Qt::LeftButton);
    QVERIFY(!m_window->IsEditMode());
    QCOMPARE(m_window->CurrentPage(), Page::ProcessProg);
}

void TestFiring::saveAtOnceEndsWithTheEditor()
{
    send("heatfile==[metainfo];name=Other;manufacturer=user;material=Zirkon;favorite=false;"
         "[1];rate=10;temp=1273;hold=600;");
    auto *editor = m_panel->Find<ovra::GlobalElements::NewProgram>("widget_newProg");
    const auto programsSent = [this] {
        return send("temp==293").filter(QRegularExpression(QStringLiteral("^(heatfile|hpchange)==")));
    };
    // A change of the running program, left with the editor's exit, and one saved at once.
    for (const char *leave : {"widget_exit", "widget_fwd"}) {
        send("guistate==3$$hpinfo==Speed;95;1;heat");
        QTest::mouseClick(m_panel->Find<ovra::GlobalElements::Chart>("widget_chart_process")->GetView()->viewport(),
                          Qt::LeftButton);
        QCOMPARE(m_panel->ShownPageIndex(), int(Page::NewProg));
        m_panel->Tap(leave);
        send("hpsuccess$$hpinfo==");
        programsSent();

        // Another program opened for a change afterwards shows its chart before it is saved.
        openProgram(QStringLiteral("Other"));
        m_panel->Tap("widget_playProgChange");
        QCOMPARE(m_panel->ShownPageIndex(), int(Page::NewProg));
        m_panel->Tap("widget_fwd");
        QCOMPARE(editor->GetCurrentView(), int(ovra::GlobalElements::NewProgram::ViewChart));
        QCOMPARE(programsSent(), QStringList());
        m_panel->Tap("widget_exitChart");
    }
}

void TestFiring::hotDoorWarning()
{
    auto *warning = m_window->GetTempWarning();
    send("dooropen$$temp==573"); // exactly 300 °C: no warning
    QVERIFY(!warning->isVisible());
    send("temp==574");
    QVERIFY(warning->isVisible() && warning->IsBlinking());
    send("doorclosed");
    QVERIFY(!warning->isVisible());
    send("doorclose"); // closing is not closed
    QVERIFY(warning->isVisible());

    // The warning's own button asks the controller to close the door.
    Tap(warning, "pushButton_DoorClose");
    QCOMPARE(send("doorclosed"), QStringList{QStringLiteral("doorclose")});
    QVERIFY(!warning->isVisible());

    // Fahrenheit moves the limit to 572 °F.
    send("unit==f$$dooropen$$temp==573");
    QVERIFY(!warning->isVisible());
    send("temp==574");
    QVERIFY(warning->isVisible());
}

void TestFiring::doorButtonLock()
{
    openProgram(QStringLiteral("Speed"));
    m_panel->Tap("widget_doorPlayNewProg");
    m_panel->Tap("widget_doorPlayNewProg");
    QCOMPARE(send("temp==293"), QStringList{QStringLiteral("movedoor")});
    QVERIFY(!m_panel->Enabled("widget_playNewProg"));
    QTRY_VERIFY_WITH_TIMEOUT(m_panel->Enabled("widget_doorPlayNewProg"), 3000);
    send("dooropen");
    QCOMPARE(m_panel->Icon("widget_doorPlayNewProg"), QStringLiteral(":/Door/Door_Up.png"));
    send("doorfault==x");
    send("bogusdoor");
    send("doorclosed");
    QCOMPARE(m_panel->Icon("widget_doorProcessProg"), QStringLiteral(":/Door/Door_Down.png"));

    // The controller asks for one door movement on the process page.
    send("guistate==18$$waitforuserinteraction");
    QVERIFY(m_panel->Shown("widget_doorProcessProg"));
    m_panel->Tap("widget_doorProcessProg");
    QVERIFY(!m_panel->Shown("widget_doorProcessProg"));
}

void TestFiring::materialChangeAndInsulation()
{
    openProgram(QStringLiteral("Speed"));
    m_panel->Find<ovra::GlobalElements::Iconbutton>("widget_playNewProg")->SetChecked(true);
    send("matchanged==argon");
    QCOMPARE(int(m_panel->CurrentScreen()), 2);
    QVERIFY(m_panel->Style("page_MatChange").contains(QStringLiteral("url(:/Material/Argon.jpg);")));
    m_panel->Tap("widget_rejectMaterialChanged");
    QCOMPARE(int(m_panel->CurrentScreen()), 0);
    QCOMPARE(send("temp==293"),
             (QStringList{QStringLiteral("matnotchanged"), QStringLiteral("hpstop"), QStringLiteral("timer==")}));
    send("matchanged==Zirkon");
    QVERIFY(m_panel->Style("page_MatChange").contains(QStringLiteral("url(:/Material/Zirkon.jpg);")));
    QTRY_VERIFY_WITH_TIMEOUT(m_panel->Enabled("widget_acceptMaterialChanged"), 3000);
    m_panel->Tap("widget_acceptMaterialChanged");
    QCOMPARE(send("temp==293"), QStringList{QStringLiteral("matchanged")});

    send("insulationmissing");
    QCOMPARE(int(m_panel->CurrentScreen()), 3);
    QVERIFY(m_panel->Style("page_DoorIso").contains(QStringLiteral("TuerisoZirkon.jpg")));
    m_panel->Tap("widget_doorIsolation_accept");
    QCOMPARE(send("temp==293"), QStringList{QStringLiteral("insulationinsert")});
    QCOMPARE(int(m_panel->CurrentScreen()), 0);
    send("argon==True$$insulationmissing");
    QVERIFY(m_panel->Style("page_DoorIso").contains(QStringLiteral("TuerisoArgon.jpg")));
}

void TestFiring::argonCheckStopsTheFiring()
{
    send("stargon==fail"); // not an argon oven yet: nothing
    QCOMPARE(send("temp==293"), QStringList());
    send("argon==True");
    send("argon==True"); // connected once per report, kept so
    send("stargon==pass");
    QVERIFY(!m_window->GetArgonFailurePopup()->isVisible());
    QCOMPARE(send("stargon==fail"), (QStringList{QStringLiteral("hpstop"), QStringLiteral("hpstop")}));
    QVERIFY(m_window->GetArgonFailurePopup()->isVisible());
}

void TestFiring::failedFiringInTheHistory()
{
    // A firing that fails with a failure on the way is recorded with both.
    send("hpinfo==Speed;95;1;heat");
    send("error==E12");
    send("hpfailed$$hpinfo==");
    m_panel->Send("guistate==6");
    m_panel->Tap("widget_SettingsButtonFiringHistory");
    auto *history = m_window->findChild<ovra::Records::FiringHistoryView *>();
    auto *detail = m_window->findChild<ovra::Records::FiringDetailView *>();
    QVERIFY(history->isVisible());
    QCOMPARE(history->Count(), 1);
    QCOMPARE(history->geometry(), m_window->rect()); // the whole screen, the header too

    // A tap on the row opens it; the controller still sees the settings page, nothing else.
    auto *list = history->findChild<QListView *>();
    QVERIFY(list->visualRect(list->model()->index(0, 0)).height() >= 64);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(0, 0)).center());
    QTRY_VERIFY(detail->isVisible());
    QVERIFY(detail->Facts().join(QLatin1Char('|')).contains(QStringLiteral("E12")));
    QVERIFY(!detail->GetSeries().planned.isEmpty());
    for (const QString &request : m_panel->Send("temp==293"))
        QCOMPARE(request, QStringLiteral("guistate==%1").arg(int(Page::Settings)));

    // Home on the detail, as on every page: the main menu, both views gone.
    m_panel->Tap("widget_homeFiringDetail");
    QCOMPARE(m_window->CurrentPage(), Page::MainMenu);
    QVERIFY(!detail->isVisible() && !history->isVisible());

    // A page the controller selects closes both views.
    m_panel->Send("guistate==6");
    m_panel->Tap("widget_SettingsButtonFiringHistory");
    QVERIFY(history->isVisible());
    m_panel->Send("guistate==3");
    QVERIFY(!detail->isVisible() && !history->isVisible());
}

void TestFiring::jobCodeFromScanToRecord()
{
    // A scanner types like a keyboard: each scan replaces the code, what a label cannot hold is
    // left out, and 32 characters are the most.
    QStringList line;
    openProgram(QStringLiteral("Speed"));
    QCOMPARE(m_panel->Text("widget_jobPlay"), QString());
    m_panel->Scan(QString(40, QLatin1Char('7')));
    QCOMPARE(m_panel->Text("widget_jobPlay"), QString(32, QLatin1Char('7')));
    m_panel->Scan(QStringLiteral(" K-44#71.2€ "));
    QCOMPARE(m_panel->Text("widget_jobPlay"), QStringLiteral("K-4471.2"));
    QCOMPARE(m_window->CurrentPage(), Page::PlayProg); // Enter and space pressed nothing

    // The panel's keyboard goes on from the code; "/" has a key of its own.
    m_panel->Tap("widget_jobPlay");
    QWidget *keyboard = m_panel->Widget("widget_jobKeyboard");
    QVERIFY(keyboard->isVisible());
    Tap(keyboard, {"pushButton_jobSlash", "pushButton_1", "pushButton_backspace", "pushButton_2"});
    Tap(keyboard->findChild<ovra::GlobalElements::Iconbutton *>(QStringLiteral("widget_jobDone")));
    QVERIFY(!keyboard->isVisible());
    QCOMPARE(m_panel->Text("widget_jobPlay"), QStringLiteral("K-4471.2/2"));

    // Leaving the page without a start drops the code: it cannot reach another program's firing.
    m_panel->Tap("widget_backPlayNewProg");
    openProgram(QStringLiteral("Speed"));
    QCOMPARE(m_panel->Text("widget_jobPlay"), QString());
    m_panel->Scan(QStringLiteral("A-2026/0117"));

    // The start takes it: never on the line, gone for the next firing, shown while firing.
    m_panel->Tap("widget_playNewProg");
    line << send("temp==293");
    QCOMPARE(line, QStringList{QStringLiteral("hpstart==Speed,0")});
    QCOMPARE(m_panel->Text("widget_jobPlay"), QString());
    line << send("hpinfo==Speed;95;1;heat");
    QCOMPARE(m_window->CurrentPage(), Page::ProcessProg);
    QVERIFY(m_panel->Shown("label_jobProcess"));
    QVERIFY(m_panel->Text("label_jobProcess").endsWith(QStringLiteral("A-2026/0117")));
    line << send("hpsuccess$$hpinfo==");
    for (const QString &request : line + m_panel->Send("guistate==6"))
        QVERIFY2(!request.contains(QStringLiteral("2026/0117")), qPrintable(request));
    QVERIFY(!m_panel->Shown("label_jobProcess"));

    // Kept with the record: in the history's row, the firing's detail and the export.
    m_panel->Tap("widget_SettingsButtonFiringHistory");
    auto *list = m_window->findChild<ovra::Records::FiringHistoryView *>()->findChild<QListView *>();
    QVERIFY(list->model()->itemData(list->model()->index(0, 0)).values().contains(QStringLiteral("A-2026/0117")));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(0, 0)).center());
    QTRY_VERIFY(
        m_window->findChild<ovra::Records::FiringDetailView *>()->Facts().contains(QStringLiteral("A-2026/0117")));
    QString error;
    const QString out = m_panel->Home() + QStringLiteral("/out");
    QVERIFY(ovra::Records::ExportFirings(m_panel->Home(), out, &error, false));
    QFile csv(out + QStringLiteral("/firings.csv"));
    QVERIFY(csv.open(QIODevice::ReadOnly));
    const QList<QByteArray> rows = csv.readAll().split('\n');
    QVERIFY(rows.at(0).trimmed().endsWith(",job"));
    QVERIFY(rows.at(1).trimmed().endsWith(",success,,A-2026/0117"));
}

QTEST_MAIN(TestFiring)
#include "tst_firing.moc"
