// The main window as the controller and the user drive it: start-up, the page state
// machine's guards, navigation buttons, the display key and the self-test page.
#include "app/mainwindow.h"
#include "communication/frame.h"
#include "communication/internalcommunicator.h"
#include "communication/messagehandler.h"
#include "communication/updateblock.h"
#include "faults/errorhandler.h"
#include "faults/popupdeletefailurelist.h"
#include "panelharness.h"
#include "popups/popupusb.h"
#include "touch.h"
#include "widgets/iconbutton.h"

#include <QProgressBar>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QtTest>

using ovra::Mainwindow::MainWindow;
using ovra::Mainwindow::Page;
namespace Frame = ovra::Communication::Frame;

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void splashThenDeviceDataStartsTheSelftest();
    void guardsOfTheStateMachine();
    void commissioning();
    void badGuiStateText();
    void menuButtonsAndNavigation();
    void navigationButtonsShowWhereTheyLead();
    void backFromDeviceDataFollowsTheCommissioningOrder();
    void displayKeyClosesTheDoor();
    void selftestProgressAndResult();
    void selftestFromServiceStays();
    void failuresShowTheWorstSymbol();
    void pinPadRefusesAfterFiveWrongEntries();
    void updateLeftUnfinishedIsShownFailed();

private:
    // Feeds one controller frame and returns the requests that went out with the answer.
    QStringList send(const QByteArray &fields) { return m_panel->Send(fields); }

    QScopedPointer<PanelHarness> m_panel;
    MainWindow *m_window = nullptr;
};

void TestMainWindow::init()
{
    m_panel.reset(new PanelHarness(30));
    m_window = m_panel->Window();
}

void TestMainWindow::splashThenDeviceDataStartsTheSelftest()
{
    // The splash, the device data and the self-test as the user sees them: tst_startup.
    QCOMPARE(send("temp==300"), QStringList());
    QCOMPARE(send("name==S1$$serialno==42$$hwver==3$$swver==1.2$$ophours==77"),
             QStringList{QStringLiteral("guistate==1")});
    QCOMPARE(m_panel->ShownPageIndex(), int(Page::DeviceData));
    QVERIFY(m_window->IsSelftestPending());
    QCOMPARE(m_panel->Text("widget_Data42"), QStringLiteral("1.2 / " OVRA_VERSION_TEXT));

    // The injected delay stands for the furnace's 7000 ms.
    QTRY_COMPARE(m_window->CurrentPage(), Page::Selftest);
    const QStringList requests = send("temp==300");
    QVERIFY(requests.contains(QStringLiteral("guistate==2")));
    QCOMPARE(requests.indexOf(QStringLiteral("guistate==2")) < requests.indexOf(QStringLiteral("redost")), true);
    // The keep-alive pulse reports the page every second from the device data on.
    QStringList pulses;
    QTRY_VERIFY_WITH_TIMEOUT((pulses += send("temp==300")).contains(QStringLiteral("guistate==2")), 3000);
}

void TestMainWindow::guardsOfTheStateMachine()
{
    // 26 before the start-up page: no page, but the oven is told.
    QCOMPARE(send("guistate==26"), QStringList{QStringLiteral("guistate==26")});
    QCOMPARE(int(m_panel->CurrentScreen()), 0);
    QCOMPARE(m_window->CurrentPage(), Page::OvenReady);

    send("initialstart"); // keep the self-test timer out of this test
    send("ophours==1");
    send("guistate==6");
    QCOMPARE(send("ophours==1"), QStringList()); // page 1 again: nothing at all
    QCOMPARE(m_window->CurrentPage(), Page::Settings);

    // Re-selecting the current page prepares it again but reports nothing.
    QCOMPARE(send("guistate==6"), QStringList());
    QCOMPARE(m_panel->Text("label_Name"), QStringLiteral("EINSTELLUNGEN"));
    // A page number beyond the last keeps the page shown: a rule of the random walk.
}

void TestMainWindow::commissioning()
{
    // Commissioning skips the self-test.
    send("initialstart");
    send("ophours==1");
    QCOMPARE(m_window->CurrentPage(), Page::DeviceData);
    QVERIFY(!send("temp==300").contains(QStringLiteral("redost")));
    send("guistate==12");
    QVERIFY(m_window->Furnace().IsCommissioning());

    // On the language page the oven's main menu ends commissioning and changes nothing else.
    QCOMPARE(send("guistate==26"), QStringList());
    QVERIFY(!m_window->Furnace().IsCommissioning());
    QCOMPARE(m_window->CurrentPage(), Page::LangSelect);

    // Now 26 is the main menu with the temperature shown.
    m_panel->Widget("widget_temp")->setVisible(false);
    QCOMPARE(send("guistate==26"), QStringList{QStringLiteral("guistate==3")});
    QCOMPARE(m_window->CurrentPage(), Page::MainMenu);
    QVERIFY(m_panel->Shown("widget_temp"));
}

void TestMainWindow::badGuiStateText()
{
    send("guistate==5");
    QCOMPARE(send("guistate==five"), QStringList{QStringLiteral("guistate==0")});
    QCOMPARE(m_panel->ShownPageIndex(), int(Page::StartUp));
    QCOMPARE(send("guistate==-3"), QStringList());         // also reads as 0
    QCOMPARE(send("guistate==4294967296"), QStringList()); // out of range reads as 0
}

void TestMainWindow::menuButtonsAndNavigation()
{
    send("guistate==3");
    m_panel->Tap("widget_MainMenuButtonSettings");
    QCOMPARE(m_window->CurrentPage(), Page::Settings);
    m_panel->Tap("widget_SettingsButtonLangSelect");
    QCOMPARE(m_window->CurrentPage(), Page::LangSelect);
    QVERIFY(m_panel->Shown("widget_Lang2"));
    QVERIFY(!m_panel->Shown("widget_Lang3"));
    m_panel->Tap("widget_fwdLang");
    QCOMPARE(m_window->CurrentPage(), Page::UnitSelect);
    QVERIFY(m_panel->Checked("widget_UnitC"));
    m_panel->Tap("widget_UnitF");
    QVERIFY(m_window->Furnace().IsFahrenheit());
    QVERIFY(m_panel->Checked("widget_UnitF") && !m_panel->Checked("widget_UnitC"));
    m_panel->Tap("widget_backUnit");
    QCOMPARE(m_window->CurrentPage(), Page::LangSelect);
    m_panel->Tap("widget_exitLang");
    QCOMPARE(m_window->CurrentPage(), Page::MainMenu);

    const QStringList requests = send("temp==300");
    QCOMPARE(requests,
             (QStringList{QStringLiteral("guistate==6"), QStringLiteral("guistate==12"), QStringLiteral("guistate==13"),
                          QStringLiteral("unit==f"), QStringLiteral("guistate==12"), QStringLiteral("guistate==3")}));

    // Forward from the material filter leads to the program options.
    send("guistate==23");
    m_panel->Tap("widget_fwdDisplayMaterial");
    QCOMPARE(m_window->CurrentPage(), Page::Progs);
    QVERIFY(!m_panel->Shown("widget_ProgsButtonDisplayOptions"));
}

void TestMainWindow::navigationButtonsShowWhereTheyLead()
{
    // The name makes a button go back, home or forward; its icon comes from the form, where a
    // button added to a page could be left without one.
    const QList<QPair<QString, QString>> kinds = {{QStringLiteral("widget_back"), QStringLiteral(":/Icons/back.png")},
                                                  {QStringLiteral("widget_exit"), QStringLiteral(":/Icons/home.png")},
                                                  {QStringLiteral("widget_fwd"), QStringLiteral(":/Icons/next.png")}};
    int seen = 0;
    for (const auto *button : m_window->findChildren<ovra::GlobalElements::Iconbutton *>()) {
        for (const auto &kind : kinds) {
            if (!button->objectName().startsWith(kind.first))
                continue;
            QVERIFY2(button->GetIcon() == kind.second,
                     qPrintable(button->objectName() + " shows " + button->GetIcon()));
            ++seen;
        }
    }
    QVERIFY(seen > 0);
}

void TestMainWindow::backFromDeviceDataFollowsTheCommissioningOrder()
{
    send("guistate==6");
    m_panel->Tap("widget_SettingsButtonDeviceData");
    QCOMPARE(m_window->CurrentPage(), Page::DeviceData2);
    m_panel->Tap("widget_backDeviceData2");
    QCOMPARE(m_window->CurrentPage(), Page::DateTime);

    send("guistate==7");
    m_panel->Tap("widget_ServiceDeviceData");
    m_panel->Tap("widget_backDeviceData2");
    QCOMPARE(m_window->CurrentPage(), Page::Service);
}

void TestMainWindow::displayKeyClosesTheDoor()
{
    QTcpSocket key;
    key.connectToHost(QHostAddress::LocalHost, m_window->GetInternalCommunicator()->Port());
    QVERIFY(key.waitForConnected(3000));

    QByteArray answers;
    key.write("aus");
    QTRY_VERIFY(!m_panel->TouchEnabled());
    QTRY_COMPARE((answers += key.readAll()), QByteArray("ack"));
    key.write("an");
    QTRY_VERIFY(m_panel->TouchEnabled());
    key.write("aus");
    QTRY_VERIFY(!m_panel->TouchEnabled());
    QCOMPARE(send("temp==300"), (QStringList{QStringLiteral("doorclose"), QStringLiteral("doorclose")}));
    // During a firing it does not: the firing test.
}

void TestMainWindow::selftestProgressAndResult()
{
    send("guistate==2");
    QCOMPARE(m_panel->Find<QProgressBar>("progressBar_selftest")->value(), 0);
    QVERIFY(!m_panel->Shown("widget_redoSelftest"));
    send("stheater==pass$$stdoor==fail");
    send("stheater==pass"); // a second result of a row counts nothing
    QCOMPARE(m_panel->Find<QProgressBar>("progressBar_selftest")->value(), 50);
    send("stcooling==pass");
    QCOMPARE(m_panel->Find<QProgressBar>("progressBar_selftest")->maximum(), 75); // reached: tst_startup

    send("st==PASS"); // only the exact word passes
    QCOMPARE(m_window->CurrentPage(), Page::Selftest);
    QVERIFY(m_panel->Shown("widget_redoSelftest"));
    QVERIFY(m_panel->Shown("widget_exitSelftest"));

    m_panel->Tap("widget_redoSelftest");
    QCOMPARE(m_panel->Find<QProgressBar>("progressBar_selftest")->value(), 0);
    QVERIFY(send("temp==300").contains(QStringLiteral("redost")));
    send("st==pass");
    QCOMPARE(m_window->CurrentPage(), Page::MainMenu);
}

void TestMainWindow::selftestFromServiceStays()
{
    send("guistate==7");
    m_panel->Tap("widget_ServiceSelftest");
    QCOMPARE(m_window->CurrentPage(), Page::Selftest);
    QCOMPARE(send("temp==300"), (QStringList{QStringLiteral("redost"), QStringLiteral("guistate==2")}));
    send("st==pass");
    QCOMPARE(m_window->CurrentPage(), Page::Selftest);
    QVERIFY(m_panel->Shown("widget_backSelftest"));
    m_panel->Tap("widget_backSelftest");
    QCOMPARE(m_window->CurrentPage(), Page::Service);

    // During a firing the automatic self-test does not take the screen.
    send("ophours==1$$guistate==18"); // device data arm the self-test; it falls due on the process page
    QTRY_VERIFY(!m_window->IsSelftestPending());
    QCOMPARE(m_window->CurrentPage(), Page::ProcessProg);
}

void TestMainWindow::failuresShowTheWorstSymbol()
{
    send("guistate==3");
    QVERIFY(!m_panel->Shown("pushButton_infoMainMenu"));
    send("date==20261122$$time==0905$$error==E123,E12");
    QVERIFY(m_panel->Shown("pushButton_infoMainMenu"));
    QCOMPARE(m_panel->Style("widget_processError"), QStringLiteral("background-image: url(:/Failure/schwer.png);"));
    send("reseterror==E12");
    QCOMPARE(m_panel->Style("widget_processError"), QStringLiteral("background-image: url(:/Failure/mittel.png);"));

    // The history, drawn when its page is entered and kept current while it is shown; a
    // withdrawn failure stays in it.
    const auto history = [this] { return m_panel->Find<QTextEdit>("textEdit_FailureList")->toPlainText(); };
    send("guistate==20");
    QVERIFY(history().startsWith(QStringLiteral("22.11.2026, 09:05: E12  Schwerer Fehler\n")));
    send("time==0910$$error==I3050");
    QVERIFY(history().startsWith(QStringLiteral("22.11.2026, 09:10: I3050  Hinweis\n22.11.2026, 09:05: E12")));
    m_panel->Tap("widget_deleteFailureList");
    Tap(m_window->findChild<ovra::Popups::PopupDeleteFailureList *>(), "pushButton_OKDel");
    QVERIFY(!m_panel->Shown("pushButton_infoMainMenu"));
    QCOMPARE(send("temp==300"), QStringList{QStringLiteral("deletefailurelist")});
    send("error==E77");
    QVERIFY(m_panel->Shown("pushButton_infoMainMenu"));
}

void TestMainWindow::pinPadRefusesAfterFiveWrongEntries()
{
    send("code==42$$guistate==8");
    QCOMPARE(m_window->CurrentPage(), Page::ServicePIN);
    QWidget *pad = m_panel->Widget("widget_numpad");
    const auto enter = [pad](const QString &keys) {
        for (const QChar key : keys)
            PanelView::Click(pad->findChild<QPushButton *>(QStringLiteral("pushButton_") + key));
        PanelView::Click(pad->findChild<QPushButton *>(QStringLiteral("pushButton_ok")));
    };
    for (int i = 0; i < 4; ++i)
        enter(QStringLiteral("41"));
    QCOMPARE(m_panel->Text("label_servicePinLock"), QString());
    enter(QStringLiteral("41"));
    QCOMPARE(m_panel->Text("label_servicePinLock"), QStringLiteral("Zu viele falsche Eingaben.\nGesperrt: noch 60 s"));

    // Locked, the right PIN opens nothing; the page says so again when entered anew.
    enter(QStringLiteral("0042"));
    QCOMPARE(m_window->CurrentPage(), Page::ServicePIN);
    send("guistate==3$$guistate==8");
    QVERIFY(m_panel->Text("label_servicePinLock").startsWith(QStringLiteral("Zu viele falsche Eingaben.")));
}

void TestMainWindow::updateLeftUnfinishedIsShownFailed()
{
    // The controller falls silent one block short; asked once, it stays silent.
    m_window->GetMessageHandler()->SetUpdateQuietTiming(10, 1);
    send("update==2");
    m_panel->Feed(Frame::startByte + ovra::Communication::UpdateBlock::Encode(0, "zero") + Frame::endByte);
    auto *usb = m_window->findChild<ovra::Popups::PopupUSB *>();
    QTRY_COMPARE_WITH_TIMEOUT(usb->GetText(), QStringLiteral("  Fehlgeschlagen."), 5000);
    QVERIFY(usb->isVisible());
    QVERIFY(!m_window->GetMessageHandler()->IsUpdateActive());
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
