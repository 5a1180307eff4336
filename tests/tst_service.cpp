// Settings and service functions of the window as the user and the controller drive them:
// start-up scripts, factory reset, the USB stick menu when things go wrong, the QR code; and
// end to end against the controller simulator: its PIN opens the service pages, its "usb"
// states open and close the stick menu, the user's programs go to the stick and back into
// its store, and it answers the firmware update asked for.
#include "app/mainwindow.h"
#include "panelharness.h"
#include "popups/popupqrcode.h"
#include "popups/popupsettings.h"
#include "popups/popupusb.h"
#include "programs/programhandler.h"
#include "records/firinghistory.h"
#include "records/firingstore.h"
#include "simulatorprocess.h"
#include "touch.h"

#include <QDirIterator>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QtTest>

using ovra::Mainwindow::Page;

class TestService : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void startupScriptsGoIntoTheGivenHomeOnly();
    void factoryResetDeletesOwnProgramsFirst();
    void backupKeepsEveryFiringOnPaper(); // before the stick is pulled for good
    void stickMenuFailsWithoutHanging();
    void qrCodeScansToTheDeviceData();
    void pinAndStickFromTheController();

private:
    QStringList send(const QByteArray &fields) { return m_panel->Send(fields); }
    static void click(QWidget *widget) { PanelHarness::Click(widget); }
    // Presses a stick menu button and returns the popup's last word, closing it.
    QString usbResult(QWidget *button);

    QTemporaryDir m_stick;
    QScopedPointer<PanelHarness> m_panel;
    ovra::Popups::PopupUSB *m_usb = nullptr;
};

void TestService::init()
{
    const QString stick = m_stick.path();
    m_panel.reset(new PanelHarness(7000, [stick](ovra::GlobalElements::PanelOptions &options) {
        options.usbDir = stick;
        options.usbAnswerTimeoutMs = 100; // stands for two minutes
    }));
    m_usb = m_panel->Window()->findChild<ovra::Popups::PopupUSB *>();
    send("guistate==1"); // started up: device data, then the main menu
    send("guistate==3");
}

QString TestService::usbResult(QWidget *button)
{
    click(button);
    if (!QTest::qWaitFor([this] { return !m_usb->IsBusy(); }, 5000))
        return QStringLiteral("<still busy>");
    const QString text = m_usb->GetText();
    Tap(m_usb, "pushButton_USBProgress");
    return text;
}

void TestService::startupScriptsGoIntoTheGivenHomeOnly()
{
    const QStringList device = {
        QStringLiteral("/home/pi/Downloads/makeExecutable.py"), QStringLiteral("/home/pi/autostartUserinterface.sh"),
        QStringLiteral("/home/pi/Downloads/decode_and_unzip_lin.py"), QStringLiteral("/home/pi/DispOn/dispOn.py")};
    QList<bool> onDevice;
    for (const QString &path : device)
        onDevice << QFile::exists(path);
    PanelHarness panel;
    QStringList expected, written;
    for (const QString &path : device)
        expected << panel.Home() + path.mid(8); // "/home/pi" swapped for the given home
    for (QDirIterator it(panel.Home(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); it.hasNext();)
        written << it.next();
    expected.sort();
    written.sort();
    QCOMPARE(written, expected);
    QVERIFY(QFileInfo(panel.Home() + QStringLiteral("/DispOn/dispOn.py")).isExecutable());
    for (int i = 0; i < device.size(); ++i)
        QCOMPARE(QFile::exists(device.at(i)), onDevice.at(i));
}

void TestService::factoryResetDeletesOwnProgramsFirst()
{
    send(PanelHarness::Heatfile("Krone", "user") + "$$" + PanelHarness::Heatfile("ZS Speed", "Zircos") + "$$" +
         PanelHarness::Heatfile("Bruecke", "user"));
    auto *popup = m_panel->Window()->findChild<ovra::Popups::PopupSettings *>();
    send("guistate==6");
    m_panel->Tap("widget_SettingsButtonDeviceReset");
    Tap(popup, "pushButton_Cancel");
    QCOMPARE(send("temp==300"), QStringList());
    m_panel->Tap("widget_SettingsButtonDeviceReset");
    Tap(popup, "pushButton_OK");
    QCOMPARE(send("temp==300"), (QStringList{QStringLiteral("hpdelete==Krone"), QStringLiteral("hpdelete==Bruecke"),
                                             QStringLiteral("defaultsettings")}));
    QVERIFY(m_panel->Window()->GetProgramHandler()->GetProgramByName(QStringLiteral("ZS Speed")) != nullptr);
}

void TestService::stickMenuFailsWithoutHanging()
{
    const QString failed = QStringLiteral("  Fehlgeschlagen.");
    // Not before the controller says a stick is in: it is not asked.
    send("guistate==24");
    QCOMPARE(usbResult(m_panel->Widget("widget_USBMenuFWUpdate")), failed);
    QCOMPARE(send("temp==300"), QStringList());

    // A stick never pulls the user out of the self-test; a menu page gives way.
    send("guistate==2$$usb==in");
    QCOMPARE(m_panel->Window()->CurrentPage(), Page::Selftest);
    send("guistate==3$$usb==in");
    QCOMPARE(m_panel->Window()->CurrentPage(), Page::USB);

    // A controller that never answers.
    QCOMPARE(usbResult(m_panel->Widget("widget_USBMenuConfigUpdate")), failed);
    QCOMPARE(send("temp==300"), QStringList{QStringLiteral("configupdate")});

    // A file naming a maker's program is refused whole: nothing goes to the controller.
    send(PanelHarness::Heatfile("ZS Speed", "Zircos"));
    QVERIFY(QDir(m_stick.path()).mkpath(QStringLiteral("ovra")));
    QFile file(m_stick.filePath(QStringLiteral("ovra/myprograms.txt")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(PanelHarness::Heatfile("Abend", "user").mid(10) + '\n' +
               PanelHarness::Heatfile("ZS Speed", "user").mid(10) + '\n');
    file.close();
    QCOMPARE(usbResult(m_panel->Widget("widget_USBMenuLoadMyProgs")), failed);
    QCOMPARE(send("temp==300"), QStringList());

    // No stick at all.
    QVERIFY(m_stick.remove());
    QCOMPARE(usbResult(m_panel->Widget("widget_USBMenuBackup")), failed);
    QVERIFY(!QFileInfo::exists(m_stick.path()));

    // Pulled while the controller works: failed, and the menu goes.
    m_panel->Tap("widget_USBMenuFWUpdate");
    QVERIFY(m_usb->IsBusy());
    send("usb==out");
    QCOMPARE(m_usb->GetText(), failed); // the menu goes: the controller's own stick, below
}

void TestService::backupKeepsEveryFiringOnPaper()
{
    send(PanelHarness::Heatfile("Krone", "user") + "$$name==Ovra S1$$serialno==S1-0087");
    send("temp==573$$hpinfo==Krone;10;1;heat");
    send("hpsuccess$$hpinfo==");
    send("guistate==24");
    QCOMPARE(usbResult(m_panel->Widget("widget_USBMenuBackup")), QStringLiteral("  Erfolgreich."));
    QStringList reports;
    for (QDirIterator it(m_stick.path(), {QStringLiteral("*.pdf")}, QDir::Files, QDirIterator::Subdirectories);
         it.hasNext();)
        reports << it.next();
    QCOMPARE(reports.size(), 1);
    QVERIFY(reports[0].endsWith(QStringLiteral("/records/firing-1.pdf")));
    QVERIFY(QFileInfo(reports[0]).size() > 1000);
    // The furnace's data went with the firing, for an export without the controller.
    ovra::Records::FiringRecord record;
    QVERIFY(ovra::Records::FiringHistory(ovra::Records::FiringStore::FileIn(m_panel->Home())).Load(1, &record));
    QVERIFY(record.device.startsWith(QStringLiteral("Ovra S1\nS1-0087\n")));
}

void TestService::qrCodeScansToTheDeviceData()
{
    const QString zbarimg = QStandardPaths::findExecutable(QStringLiteral("zbarimg"));
    if (zbarimg.isEmpty())
        QSKIP("zbarimg (zbar-tools) is not installed");
    send("name==Sinterofen S1$$serialno==SN-0042$$hwver==HW 2.1$$swver==V 3.04$$ophours==1234$$error==E123,E12");
    send("usb==in");
    m_panel->Tap("widget_USBMenuQRCode");
    auto *popup = m_panel->Window()->findChild<ovra::Popups::PopupQRCode *>();
    QVERIFY(popup->isVisible() && popup->HasImage());
    const QString png = m_panel->Home() + QStringLiteral("/shown.png");
    QVERIFY(popup->findChild<QLabel *>(QStringLiteral("label_QRCode"))->pixmap(Qt::ReturnByValue).save(png));
    QProcess reader;
    reader.start(zbarimg, {QStringLiteral("--raw"), QStringLiteral("-q"), png});
    QVERIFY(reader.waitForFinished(20000));
    QCOMPARE(QString::fromUtf8(reader.readAllStandardOutput()).trimmed(),
             QStringLiteral("Model: Sinterofen S1\nSerial: SN-0042\nHW: HW 2.1\nSW: V 3.04 / " OVRA_VERSION_TEXT "\n"
                            "Hours: 1234\nFailures: E12,E123"));
}

void TestService::pinAndStickFromTheController()
{
    Simulator sim({QStringLiteral("--pin"), QStringLiteral("2468"), QStringLiteral("--usb-ms"), QStringLiteral("100"),
                   QStringLiteral("--verbose")});
    const QString slave = sim.SlavePath();
    QTemporaryDir stick;
    PanelHarness panel(200, [&](ovra::GlobalElements::PanelOptions &options) {
        options.port = slave;
        options.usbDir = stick.path();
    });
    const PanelView &view = panel;
    auto *usb = panel.Window()->findChild<ovra::Popups::PopupUSB *>();
    QTRY_VERIFY_WITH_TIMEOUT(sim.AnsweredFrameWith(QStringLiteral("guistate==26")), 20000);

    sim.Command("send guistate==8"); // the PIN pad is the controller's to show
    QTRY_COMPARE_WITH_TIMEOUT(panel.Window()->CurrentPage(), Page::ServicePIN, 5000);
    for (const char *key : {"pushButton_2", "pushButton_4", "pushButton_6", "pushButton_8", "pushButton_ok"})
        view.Widget("widget_numpad")->findChild<QPushButton *>(QString::fromLatin1(key))->click();
    QCOMPARE(panel.Window()->CurrentPage(), Page::Service);

    sim.Command("usb in");
    QTRY_COMPARE_WITH_TIMEOUT(panel.Window()->CurrentPage(), Page::USB, 5000);
    for (QWidget *button : {view.Widget("widget_USBMenuSaveMyProgs"), view.Widget("widget_USBMenuLoadMyProgs"),
                            view.Widget("widget_USBMenuFWUpdate")}) {
        PanelHarness::Click(button);
        QTRY_COMPARE_WITH_TIMEOUT(usb->GetText(), QStringLiteral("  Erfolgreich."), 5000);
        usb->accept();
    }
    QVERIFY(sim.Printed(QStringLiteral("stored: Standard Zirkon")));
    QVERIFY(sim.Printed(QStringLiteral("usb: firmware update done")));
    sim.Command("usb out");
    QTRY_COMPARE_WITH_TIMEOUT(panel.Window()->CurrentPage(), Page::MainMenu, 5000);
}

QTEST_MAIN(TestService)
#include "tst_service.moc"
