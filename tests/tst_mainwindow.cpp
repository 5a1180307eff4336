// The main window as the controller and the user drive it: start-up, the page state
// machine's guards, navigation buttons, the display key and the self-test page.
#include "app/mainwindow.h"
#include "panelharness.h"
#include "communication/frame.h"
#include "communication/internalcommunicator.h"
#include "communication/messagehandler.h"
#include "faults/errorhandler.h"
#include "ui_mainwindow.h"

#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

using ovra::Mainwindow::MainWindow;
using ovra::Mainwindow::Page;
namespace Frame = ovra::Communication::Frame;

namespace {
void quiet(QtMsgType, const QMessageLogContext &, const QString &) {}
} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void startsOnTheSplashAndSendsNothing();
    void deviceDataStartsTheSelftest();
    void commissioningSkipsTheSelftest();
    void guardsOfTheStateMachine();
    void mainMenuDuringCommissioning();
    void badGuiStateText();
    void menuButtonsAndNavigation();
    void backFromDeviceDataFollowsTheCommissioningOrder();
    void displayKeyClosesTheDoorUnlessFiring();
    void selftestProgressAndResult();
    void selftestFromServiceStays();
    void failuresShowTheWorstSymbol();

private:
    // Feeds one controller frame and returns the requests that went out with the answer.
    QStringList send(const QByteArray &fields);
    void click(QWidget *kitWidget);

    QScopedPointer<PanelHarness> m_panel;
    MainWindow *m_window = nullptr;
    Ui::MainWindow *ui = nullptr;
};

void TestMainWindow::initTestCase()
{
    Q_INIT_RESOURCE(resources);
    qInstallMessageHandler(quiet);
}

void TestMainWindow::init()
{
    m_panel.reset(new PanelHarness(30));
    m_window = m_panel->Window();
    ui = m_window->GetUi();
}

void TestMainWindow::cleanup()
{
    m_panel.reset();
    m_window = nullptr;
}

QStringList TestMainWindow::send(const QByteArray &fields)
{
    return m_panel->Send(fields);
}

void TestMainWindow::click(QWidget *kitWidget)
{
    PanelHarness::Click(kitWidget);
}

void TestMainWindow::startsOnTheSplashAndSendsNothing()
{
    QCOMPARE(ui->stackedWidget_main->currentIndex(), 1);
    QCOMPARE(send("temp==300"), QStringList());
}

void TestMainWindow::deviceDataStartsTheSelftest()
{
    QCOMPARE(send("name==S1$$serialno==42$$hwver==3$$swver==1.2$$ophours==77"),
             QStringList{QStringLiteral("guistate==1")});
    QCOMPARE(ui->stackedWidget_main->currentIndex(), 0);
    QCOMPARE(ui->stackedWidget->currentIndex(), int(Page::DeviceData));
    QCOMPARE(ui->label_Name->text(), QStringLiteral("GERÄTEDATEN"));
    QVERIFY(m_window->IsSelftestPending());
    QCOMPARE(ui->widget_Data1->GetText(), QStringLiteral("S1"));
    QCOMPARE(ui->widget_Data42->GetText(), QStringLiteral("1.2 / R02E.1"));

    // The injected delay stands for the furnace's 7000 ms.
    QTRY_COMPARE(m_window->CurrentPage(), Page::Selftest);
    const QStringList requests = send("temp==300");
    QVERIFY(requests.contains(QStringLiteral("guistate==2")));
    QVERIFY(requests.contains(QStringLiteral("redost")));
    QCOMPARE(requests.indexOf(QStringLiteral("guistate==2")) < requests.indexOf(QStringLiteral("redost")), true);
    // The keep-alive pulse reports the page every second from the device data on.
    QStringList pulses;
    QTRY_VERIFY_WITH_TIMEOUT((pulses += send("temp==300")).contains(QStringLiteral("guistate==2")), 3000);
}

void TestMainWindow::commissioningSkipsTheSelftest()
{
    send("initialstart");
    send("ophours==77");
    QCOMPARE(m_window->CurrentPage(), Page::DeviceData);
    QVERIFY(!m_window->IsSelftestPending());
    QVERIFY(!send("temp==300").contains(QStringLiteral("redost")));
}

void TestMainWindow::guardsOfTheStateMachine()
{
    // 26 before the start-up page: no page, but the oven is told.
    QCOMPARE(send("guistate==26"), QStringList{QStringLiteral("guistate==26")});
    QCOMPARE(ui->stackedWidget_main->currentIndex(), 0);
    QCOMPARE(m_window->CurrentPage(), Page::OvenReady);

    send("initialstart"); // keep the self-test timer out of this test
    send("ophours==1");
    QVERIFY(m_window->IsStartupShown());
    send("guistate==6");
    QCOMPARE(send("ophours==1"), QStringList()); // page 1 again: nothing at all
    QCOMPARE(m_window->CurrentPage(), Page::Settings);

    // Re-selecting the current page prepares it again but reports nothing.
    QCOMPARE(send("guistate==6"), QStringList());
    QCOMPARE(ui->label_Name->text(), QStringLiteral("EINSTELLUNGEN"));

    send("guistate==14");
    QCOMPARE(ui->label_Name->text(), QStringLiteral("DATUM & UHRZEIT"));
    QCOMPARE(ui->widget_DateTimeAdjust->GetText(), QStringLiteral("Datum && Uhrzeit einstellen"));

    // A page number beyond the last: the stack stays, the oven is told.
    QCOMPARE(send("guistate==99"), QStringList{QStringLiteral("guistate==99")});
    QCOMPARE(ui->stackedWidget->currentIndex(), int(Page::DateTime));
    QCOMPARE(int(m_window->CurrentPage()), 99);
}

void TestMainWindow::mainMenuDuringCommissioning()
{
    send("initialstart");
    send("ophours==1");
    send("guistate==12");
    QVERIFY(m_window->IsInitialStartup());

    // On the language page the oven's main menu ends commissioning and changes nothing else.
    QCOMPARE(send("guistate==26"), QStringList());
    QVERIFY(!m_window->IsInitialStartup());
    QCOMPARE(m_window->CurrentPage(), Page::LangSelect);

    // Now 26 is the main menu with the temperature shown.
    ui->widget_temp->setVisible(false);
    QCOMPARE(send("guistate==26"), QStringList{QStringLiteral("guistate==3")});
    QCOMPARE(m_window->CurrentPage(), Page::MainMenu);
    QVERIFY(ui->widget_temp->isVisible());
}

void TestMainWindow::badGuiStateText()
{
    send("guistate==5");
    QCOMPARE(send("guistate==five"), QStringList{QStringLiteral("guistate==0")});
    QCOMPARE(ui->stackedWidget->currentIndex(), int(Page::StartUp));
    QCOMPARE(send("guistate==-3"), QStringList());     // also reads as 0
    QCOMPARE(send("guistate==4294967296"), QStringList()); // out of range reads as 0
}

void TestMainWindow::menuButtonsAndNavigation()
{
    send("guistate==3");
    QCOMPARE(ui->widget_MainMenuButtonSettings->GetText(), QStringLiteral("Einstellungen"));
    click(ui->widget_MainMenuButtonSettings);
    QCOMPARE(m_window->CurrentPage(), Page::Settings);
    click(ui->widget_SettingsButtonLangSelect);
    QCOMPARE(m_window->CurrentPage(), Page::LangSelect);
    QVERIFY(ui->widget_Lang2->isVisibleTo(ui->page_LangSelect));
    QVERIFY(!ui->widget_Lang3->isVisibleTo(ui->page_LangSelect));
    click(ui->widget_fwdLang);
    QCOMPARE(m_window->CurrentPage(), Page::UnitSelect);
    QVERIFY(ui->widget_UnitC->IsChecked());
    click(ui->widget_UnitF);
    QVERIFY(m_window->IsFahrenheit());
    QVERIFY(ui->widget_UnitF->IsChecked() && !ui->widget_UnitC->IsChecked());
    click(ui->widget_backUnit);
    QCOMPARE(m_window->CurrentPage(), Page::LangSelect);
    click(ui->widget_exitLang);
    QCOMPARE(m_window->CurrentPage(), Page::MainMenu);

    const QStringList requests = send("temp==300");
    QCOMPARE(requests, (QStringList{QStringLiteral("guistate==6"), QStringLiteral("guistate==12"),
                                    QStringLiteral("guistate==13"), QStringLiteral("unit==f"),
                                    QStringLiteral("guistate==12"), QStringLiteral("guistate==3")}));

    // Forward from the material filter leads to the program options.
    send("guistate==23");
    click(ui->widget_fwdDisplayMaterial);
    QCOMPARE(m_window->CurrentPage(), Page::Progs);
    QVERIFY(!ui->widget_ProgsButtonDisplayOptions->isVisibleTo(ui->page_Progs));
}

void TestMainWindow::backFromDeviceDataFollowsTheCommissioningOrder()
{
    send("guistate==6");
    click(ui->widget_SettingsButtonDeviceData);
    QCOMPARE(m_window->CurrentPage(), Page::DeviceData2);
    click(ui->widget_backDeviceData2);
    QCOMPARE(m_window->CurrentPage(), Page::DateTime);

    send("guistate==7");
    click(ui->widget_ServiceDeviceData);
    click(ui->widget_backDeviceData2);
    QCOMPARE(m_window->CurrentPage(), Page::Service);
}

void TestMainWindow::displayKeyClosesTheDoorUnlessFiring()
{
    QTcpSocket key;
    key.connectToHost(QHostAddress::LocalHost, m_window->GetInternalCommunicator()->Port());
    QVERIFY(key.waitForConnected(3000));

    QByteArray answers;
    key.write("aus");
    QTRY_VERIFY(!ui->stackedWidget_main->isEnabled());
    QTRY_COMPARE((answers += key.readAll()), QByteArray("ack"));
    key.write("an");
    QTRY_VERIFY(ui->stackedWidget_main->isEnabled());
    key.write("aus");
    QTRY_VERIFY(!ui->stackedWidget_main->isEnabled());
    QCOMPARE(send("temp==300"), (QStringList{QStringLiteral("doorclose"), QStringLiteral("doorclose")}));

    m_window->SetHeatProgramInProgress(true);
    m_window->Slot_SetTouchEnable(false);
    QCOMPARE(send("temp==300"), QStringList());
}

void TestMainWindow::selftestProgressAndResult()
{
    send("guistate==2");
    QCOMPARE(ui->progressBar_selftest->value(), 0);
    QVERIFY(!ui->widget_redoSelftest->isVisibleTo(ui->page_Selftest));
    send("stheater==pass$$stdoor==fail");
    send("stheater==pass"); // a second result of a row counts nothing
    QCOMPARE(ui->progressBar_selftest->value(), 50);
    send("stcooling==pass");
    QCOMPARE(ui->progressBar_selftest->value(), 75);
    QCOMPARE(ui->progressBar_selftest->maximum(), 75);

    send("st==PASS"); // only the exact word passes
    QCOMPARE(m_window->CurrentPage(), Page::Selftest);
    QVERIFY(ui->widget_redoSelftest->isVisibleTo(ui->page_Selftest));
    QVERIFY(ui->widget_exitSelftest->isVisibleTo(ui->page_Selftest));

    click(ui->widget_redoSelftest);
    QCOMPARE(ui->progressBar_selftest->value(), 0);
    QVERIFY(send("temp==300").contains(QStringLiteral("redost")));
    send("st==pass");
    QCOMPARE(m_window->CurrentPage(), Page::MainMenu);
}

void TestMainWindow::selftestFromServiceStays()
{
    send("guistate==7");
    click(ui->widget_ServiceSelftest);
    QCOMPARE(m_window->CurrentPage(), Page::Selftest);
    QCOMPARE(send("temp==300"), (QStringList{QStringLiteral("redost"), QStringLiteral("guistate==2")}));
    send("st==pass");
    QCOMPARE(m_window->CurrentPage(), Page::Selftest);
    QVERIFY(ui->widget_backSelftest->isVisibleTo(ui->page_Selftest));
    click(ui->widget_backSelftest);
    QCOMPARE(m_window->CurrentPage(), Page::Service);

    // During a firing the automatic self-test does not take the screen.
    send("guistate==18");
    m_window->Slot_StartSelftest();
    QCOMPARE(m_window->CurrentPage(), Page::ProcessProg);
}

void TestMainWindow::failuresShowTheWorstSymbol()
{
    send("guistate==3");
    QVERIFY(!ui->pushButton_infoMainMenu->isVisibleTo(ui->page_MainMenu));
    send("date==20261122$$time==0905$$error==E123,E12");
    QVERIFY(ui->pushButton_infoMainMenu->isVisibleTo(ui->page_MainMenu));
    QCOMPARE(ui->widget_processError->styleSheet(), QStringLiteral("background-image: url(:/Failure/schwer.png);"));
    QVERIFY(ui->textEdit_FailureList->toPlainText().startsWith(QStringLiteral("22.11.2026, 09:05: E12\n")));
    send("reseterror==E12");
    QCOMPARE(ui->widget_processError->styleSheet(), QStringLiteral("background-image: url(:/Failure/mittel.png);"));

    m_window->SlotDeleteFailure();
    QVERIFY(!ui->pushButton_infoMainMenu->isVisibleTo(ui->page_MainMenu));
    QCOMPARE(send("temp==300"), QStringList{QStringLiteral("deletefailurelist")});
    send("error==E77");
    QVERIFY(ui->pushButton_infoMainMenu->isVisibleTo(ui->page_MainMenu));
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
