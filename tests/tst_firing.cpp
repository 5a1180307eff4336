// A firing as the main window runs it: start requests, the one-second lock, progress reports,
// result and stop, pre-dry steps, the delayed start, the door and its hot-door warning,
// material change, door insulation and the argon check.
#include "app/mainwindow.h"
#include "panelharness.h"
#include "communication/frame.h"
#include "communication/messagehandler.h"
#include "popups/popupargonfailure.h"
#include "popups/popuptempwarning.h"
#include "popups/timerpopup.h"
#include "process/chart.h"
#include "process/chartview.h"
#include "programs/programhandler.h"
#include "ui_mainwindow.h"
#include "widgets/programbutton.h"

#include <QLineSeries>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>

using ovra::Mainwindow::MainWindow;
using ovra::Mainwindow::Page;
namespace Frame = ovra::Communication::Frame;

namespace {
void quiet(QtMsgType, const QMessageLogContext &, const QString &) {}
} // namespace

class TestFiring : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void startRequestAndTheOneSecondLock();
    void pressingStartAgainCallsItOff();
    void preDrySteps();
    void delayedStart();
    void progressReportsDriveTheProcessPage();
    void resultAndStop();
    void chartOpensTheEditorOnlyWhileFiring();
    void hotDoorWarning();
    void doorButtonLock();
    void materialChangeAndInsulation();
    void argonCheckStopsTheFiring();
    void endTimeEstimate();

private:
    QStringList send(const QByteArray &fields);
    void click(QWidget *kit);
    void openProgram(const QString &name);

    QScopedPointer<PanelHarness> m_panel;
    MainWindow *m_window = nullptr;
    Ui::MainWindow *ui = nullptr;
};

void TestFiring::initTestCase()
{
    Q_INIT_RESOURCE(resources);
    qInstallMessageHandler(quiet);
}

void TestFiring::init()
{
    m_panel.reset(new PanelHarness());
    m_window = m_panel->Window();
    ui = m_window->GetUi();
    send("time==1000$$date==20261122$$temp==293");
    send("heatfile==[metainfo];name=Speed;manufacturer=user;material=Zirkon;favorite=false;"
         "[1];rate=10;temp=1273;hold=1800;[2];rate=5;temp=1773;hold=600;");
    send("heatfile==[metainfo];name=Glanz;manufacturer=DentaCeram;material= Argon ;favorite=false;"
         "[1];rate=20;temp=1073;hold=60;");
}

void TestFiring::cleanup()
{
    m_panel.reset();
    m_window = nullptr;
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

void TestFiring::click(QWidget *kit)
{
    PanelHarness::Click(kit);
}

void TestFiring::openProgram(const QString &name)
{
    m_window->Slot_ShowChoosenProgram(m_window->GetProgramHandler()->GetProgramByName(name), Page::PlayProg);
    QCOMPARE(m_window->CurrentPage(), Page::PlayProg);
    send("temp==293");
}

void TestFiring::startRequestAndTheOneSecondLock()
{
    openProgram(QStringLiteral("Speed"));
    click(ui->widget_playNewProg);
    QVERIFY(!ui->widget_playNewProg->isEnabled());
    QVERIFY(!ui->widget_doorPlayNewProg->isEnabled());
    click(ui->widget_playNewProg); // the second tap within the second does nothing
    QCOMPARE(send("temp==293"), QStringList{QStringLiteral("hpstart==Speed,0")});
    QVERIFY(!ui->widget_timerPlayProg->isVisibleTo(ui->page_playProg));
    QTRY_VERIFY_WITH_TIMEOUT(ui->widget_playNewProg->isEnabled() && ui->widget_doorPlayNewProg->isEnabled(), 3000);
}

void TestFiring::pressingStartAgainCallsItOff()
{
    openProgram(QStringLiteral("Speed"));
    m_window->SlotGenerateProgRequest(); // unchecked: a cancel
    QCOMPARE(send("temp==293"), (QStringList{QStringLiteral("hpstop"), QStringLiteral("timer==")}));
    QVERIFY(ui->widget_timerPlayProg->isVisibleTo(ui->page_playProg));
}

void TestFiring::preDrySteps()
{
    openProgram(QStringLiteral("Speed"));
    const QStringList icons = {QStringLiteral(":/Vortrocknen/released15_1.png"), QStringLiteral(":/Vortrocknen/released30_1.png"),
                               QStringLiteral(":/Vortrocknen/released45_1.png"), QStringLiteral(":/Vortrocknen/released60_1.png")};
    for (int i = 0; i < 4; ++i) {
        click(ui->widget_timerPreDry);
        QCOMPARE(m_window->PreDryMinutes(), unsigned(15 * (i + 1)));
        QVERIFY(ui->widget_timerPreDry->IsChecked());
        QCOMPARE(ui->widget_timerPreDry->GetIcon(), icons.at(i));
    }
    click(ui->widget_timerPreDry);
    QCOMPARE(m_window->PreDryMinutes(), 0u);
    QVERIFY(!ui->widget_timerPreDry->IsChecked());
    QCOMPARE(ui->widget_timerPreDry->GetIcon(), QStringLiteral(":/Vortrocknen/Dry_Up_Timer.png"));

    click(ui->widget_timerPreDry);
    click(ui->widget_playNewProg);
    QCOMPARE(send("temp==293"), QStringList{QStringLiteral("hpstart==Speed,15")});
    QCOMPARE(m_window->PreDryMinutes(), 0u); // used up by the start
}

void TestFiring::delayedStart()
{
    openProgram(QStringLiteral("Speed"));
    m_window->GetTimerPopup()->SetClock([] { return QDateTime(QDate(2026, 11, 22), QTime(9, 0)); });
    click(ui->widget_timerPlayProg);
    QTRY_VERIFY(m_window->GetTimerPopup()->isVisible());
    auto *ok = m_window->GetTimerPopup()->findChild<QPushButton *>(QStringLiteral("pushButton_ok"));
    QTest::mouseClick(ok, Qt::LeftButton);
    QCOMPARE(m_window->GetTimerPopup()->GetRequestedTimer(), QStringLiteral("timer==20261122,1000"));
    // The note takes the user buttons' place and the estimate starts at the chosen time.
    QVERIFY(ui->page_playProg->findChild<QPlainTextEdit *>(QStringLiteral("plainTextEdit_autostart")) != nullptr);
    QVERIFY(!ui->widget_playProgChange->isVisibleTo(ui->page_playProg));

    click(ui->widget_playNewProg);
    QCOMPARE(send("temp==293"), QStringList{QStringLiteral("timer==20261122,1000,Speed,0")});

    // Unchecking the timer button drops the note and the request.
    ui->widget_timerPlayProg->setVisible(true);
    QTRY_VERIFY_WITH_TIMEOUT(ui->widget_timerPlayProg->isEnabled(), 3000);
    click(ui->widget_timerPlayProg);
    QCOMPARE(m_window->GetTimerPopup()->GetRequestedTimer(), QString());
    QVERIFY(ui->page_playProg->findChild<QPlainTextEdit *>(QStringLiteral("plainTextEdit_autostart")) == nullptr);
    QVERIFY(ui->widget_playProgChange->isVisibleTo(ui->page_playProg));
}

void TestFiring::progressReportsDriveTheProcessPage()
{
    send("guistate==3");
    // A firing started elsewhere brings the panel to its process page.
    send("hpinfo==Speed;95;pre;pre");
    QCOMPARE(m_window->CurrentPage(), Page::ProcessProg);
    QVERIFY(m_window->IsHeatProgramInProgress());
    QVERIFY(ui->widget_processPreDryInfo->isVisibleTo(ui->page_processProg));
    QVERIFY(!ui->widget_exitProcessProg->isEnabled());
    QCOMPARE(ui->widget_showProcessTime->GetText(), QStringLiteral("11:35"));

    send("temp==773$$hpinfo==Speed;80;1;heat");
    QVERIFY(!ui->widget_processPreDryInfo->isVisibleTo(ui->page_processProg));
    QVERIFY(ui->widget_chart_process->GetProgressSeries()->count() > 0);

    send("hpinfo==Speed;1;2"); // fewer than four fields: dropped
    QCOMPARE(ui->widget_showProcessTime->GetText(), QStringLiteral("11:20"));
    send("hpinfo==Unknown;5;1;heat"); // a name not in the store switches nothing
    QCOMPARE(m_window->CurrentPage(), Page::ProcessProg);

    // Display off during a firing leaves the door alone.
    m_window->Slot_SetTouchEnable(false);
    QCOMPARE(send("temp==773"), QStringList());
    m_window->Slot_SetTouchEnable(true);

    send("hpinfo==");
    QVERIFY(!m_window->IsHeatProgramInProgress());
    QVERIFY(ui->widget_exitProcessProg->isEnabled());
    QVERIFY(ui->widget_doorProcessProg->isVisibleTo(ui->page_processProg));
}

void TestFiring::resultAndStop()
{
    send("hpinfo==Speed;95;1;heat");
    send("hpsuccess");
    QCOMPARE(ui->label_processResult->styleSheet(), QStringLiteral("background-image: url(:/Prozess/success.png);"));
    QVERIFY(!ui->widget_stopProcessProg->isVisibleTo(ui->page_processProg));
    QVERIFY(ui->widget_exitProcessProg->isVisibleTo(ui->page_processProg));

    send("hpfailed");
    QCOMPARE(ui->label_processResult->styleSheet(), QStringLiteral("background-image: url(:/Prozess/abort.png);"));

    // A stop keeps a failure symbol that was shown before it.
    ui->label_processResult->setStyleSheet(QStringLiteral("background-image: url(:/Failure/schwer.png);"));
    m_window->SlotReqStopHeatfile(false);
    QCOMPARE(send("temp==293"), QStringList());
    m_window->SlotReqStopHeatfile(true);
    QCOMPARE(send("temp==293"), QStringList{QStringLiteral("hpstop")});
    QVERIFY(ui->label_processResult->styleSheet().contains(QStringLiteral("Failure")));
    ui->label_processResult->setStyleSheet(QString());
    m_window->SlotReqStopHeatfile(true);
    QCOMPARE(ui->label_processResult->styleSheet(), QStringLiteral("background-image: url(:/Prozess/abort.png);"));
}

void TestFiring::chartOpensTheEditorOnlyWhileFiring()
{
    send("hpinfo==Speed;95;1;heat");
    QTest::mouseClick(ui->widget_chart_process->GetView()->viewport(), Qt::LeftButton);
    QVERIFY(m_window->IsEditMode());
    QCOMPARE(ui->stackedWidget->currentIndex(), int(Page::NewProg));
    // Progress reports leave the editor alone while the change is under way.
    send("hpinfo==Speed;90;1;heat");
    QCOMPARE(ui->stackedWidget->currentIndex(), int(Page::NewProg));

    m_window->SlotExitButtonClicked();
    send("hpinfo==Speed;95;1;heat");
    send("hpsuccess");
    QTest::mouseClick(ui->widget_chart_process->GetView()->viewport(), Qt::LeftButton);
    QVERIFY(!m_window->IsEditMode());
    QCOMPARE(m_window->CurrentPage(), Page::ProcessProg);
}

void TestFiring::hotDoorWarning()
{
    auto *warning = m_window->GetTempWarning();
    warning->SetBlinkInterval(20);
    send("dooropen$$temp==573"); // exactly 300 °C: no warning
    QVERIFY(!warning->isVisible());
    send("temp==574");
    QVERIFY(warning->isVisible());
    QTRY_VERIFY(!warning->IsGraphicVisible()); // blinking
    QTRY_VERIFY(warning->IsGraphicVisible());
    send("doorclosed");
    QVERIFY(!warning->isVisible());
    send("doorclose"); // closing is not closed
    QVERIFY(warning->isVisible());

    // The warning's own button asks the controller to close the door.
    auto *button = warning->findChild<QPushButton *>(QStringLiteral("pushButton_DoorClose"));
    QTest::mouseClick(button, Qt::LeftButton);
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
    click(ui->widget_doorPlayNewProg);
    click(ui->widget_doorPlayNewProg);
    QCOMPARE(send("temp==293"), QStringList{QStringLiteral("movedoor")});
    QVERIFY(!ui->widget_playNewProg->isEnabled());
    QTRY_VERIFY_WITH_TIMEOUT(ui->widget_doorPlayNewProg->isEnabled(), 3000);
    send("dooropen");
    QCOMPARE(ui->widget_doorPlayNewProg->GetIcon(), QStringLiteral(":/Door/Door_Up.png"));
    send("doorfault==x");
    send("bogusdoor");
    send("doorclosed");
    QCOMPARE(ui->widget_doorProcessProg->GetIcon(), QStringLiteral(":/Door/Door_Down.png"));

    // The controller asks for one door movement on the process page.
    send("waitforuserinteraction");
    QVERIFY(ui->widget_doorProcessProg->isVisibleTo(ui->page_processProg));
    m_window->SlotMoveDoor();
    QVERIFY(!ui->widget_doorProcessProg->isVisibleTo(ui->page_processProg));
}

void TestFiring::materialChangeAndInsulation()
{
    openProgram(QStringLiteral("Speed"));
    ui->widget_playNewProg->SetChecked(true);
    send("matchanged==argon");
    QCOMPARE(ui->stackedWidget_main->currentIndex(), 2);
    QVERIFY(ui->page_MatChange->styleSheet().contains(QStringLiteral("url(:/Material/Argon.jpg);")));
    click(ui->widget_rejectMaterialChanged);
    QCOMPARE(ui->stackedWidget_main->currentIndex(), 0);
    QCOMPARE(send("temp==293"), (QStringList{QStringLiteral("matnotchanged"), QStringLiteral("hpstop"),
                                             QStringLiteral("timer==")}));
    send("matchanged==Zirkon");
    QVERIFY(ui->page_MatChange->styleSheet().contains(QStringLiteral("url(:/Material/Zirkon.jpg);")));
    QTRY_VERIFY_WITH_TIMEOUT(ui->widget_acceptMaterialChanged->isEnabled(), 3000);
    click(ui->widget_acceptMaterialChanged);
    QCOMPARE(send("temp==293"), QStringList{QStringLiteral("matchanged")});

    send("insulationmissing");
    QCOMPARE(ui->stackedWidget_main->currentIndex(), 3);
    QVERIFY(ui->page_DoorIso->styleSheet().contains(QStringLiteral("TuerisoZirkon.jpg")));
    click(ui->widget_doorIsolation_accept);
    QCOMPARE(send("temp==293"), QStringList{QStringLiteral("insulationinsert")});
    QCOMPARE(ui->stackedWidget_main->currentIndex(), 0);
    send("argon==True$$insulationmissing");
    QVERIFY(ui->page_DoorIso->styleSheet().contains(QStringLiteral("TuerisoArgon.jpg")));
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

void TestFiring::endTimeEstimate()
{
    // Oven 20 °C, clock 10:00: ramps of 98 and 100 minutes, holds of 30 and 10.
    openProgram(QStringLiteral("Speed"));
    QCOMPARE(ui->widget_showPlayTime->GetText(), QStringLiteral("13:58"));
    click(ui->widget_timerPreDry); // +15 and (130 - 20) / 10 = 11
    QCOMPARE(ui->widget_showPlayTime->GetText(), QStringLiteral("14:24"));
    // A maker's program with spaces around Argon still shows the gas symbol.
    openProgram(QStringLiteral("Glanz"));
    QCOMPARE(ui->widget_materialPlay->GetIcon(), QStringLiteral(":/Play/Gas.png"));
    QVERIFY(!ui->widget_playProgDelete->isVisibleTo(ui->page_playProg));
}

QTEST_MAIN(TestFiring)
#include "tst_firing.moc"
