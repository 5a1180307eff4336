// Settings and service functions of the window as the user and the controller drive them:
// start-up scripts, service PIN, factory reset, USB stick menu and QR code.
#include "app/mainwindow.h"
#include "panelharness.h"
#include "popups/popupqrcode.h"
#include "popups/popupsettings.h"
#include "popups/popupusb.h"
#include "programs/programhandler.h"
#include "ui_mainwindow.h"

#include <QDirIterator>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QtTest>

using ovra::Mainwindow::MainWindow;
using ovra::Mainwindow::Page;

namespace {
void quiet(QtMsgType, const QMessageLogContext &, const QString &) {}

const QStringList deviceScripts = {QStringLiteral("/home/pi/Downloads/makeExecutable.py"),
                                   QStringLiteral("/home/pi/autostartUserinterface.sh"),
                                   QStringLiteral("/home/pi/Downloads/decode_and_unzip_lin.py"),
                                   QStringLiteral("/home/pi/DispOn/dispOn.py")};

QByteArray Heatfile(const char *name, const char *maker)
{
    return QByteArray("heatfile==[metainfo];name=") + name + ";manufacturer=" + maker
           + ";material=Zirkon;favorite=false;[1];rate=10;temp=1173;hold=600;";
}

QStringList FilesUnder(const QString &folder)
{
    QStringList files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext())
        files << it.next();
    files.sort();
    return files;
}
} // namespace

class TestService : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void startupScriptsGoIntoTheGivenHomeOnly();
    void factoryResetDeletesOwnProgramsFirst();
    void servicePinComesFromTheController();
    void stickInOpensTheMenuAndOutLeavesIt();
    void myProgramsToTheStickAndBack();
    void missingStickFails();
    void updatesWaitForTheControllersWord();
    void qrCodeScansToTheDeviceData();

private:
    QStringList send(const QByteArray &fields) { return m_panel->Send(fields); }
    static void click(QWidget *widget) { PanelHarness::Click(widget); }
    void tapPopup(QDialog *popup, const char *button);
    QString usbText() const;

    QTemporaryDir m_stick;
    QScopedPointer<PanelHarness> m_panel;
    MainWindow *m_window = nullptr;
    Ui::MainWindow *ui = nullptr;
    ovra::Popups::PopupUSB *m_usb = nullptr;
};

void TestService::initTestCase()
{
    Q_INIT_RESOURCE(resources);
    qInstallMessageHandler(quiet);
}

void TestService::init()
{
    const QString stick = m_stick.path();
    m_panel.reset(new PanelHarness(7000, [stick](ovra::GlobalElements::PanelOptions &options) {
        options.usbDir = stick;
        options.usbAnswerTimeoutMs = 100; // stands for two minutes
    }));
    m_window = m_panel->Window();
    ui = m_window->GetUi();
    m_usb = m_window->findChild<ovra::Popups::PopupUSB *>();
    // Started up: device data shown, then the main menu.
    send("guistate==1");
    send("guistate==3");
}

void TestService::cleanup()
{
    m_panel.reset();
    QDir(m_stick.path()).removeRecursively();
    QDir().mkpath(m_stick.path());
}

void TestService::tapPopup(QDialog *popup, const char *button)
{
    QVERIFY(popup->isVisible());
    auto *pushButton = popup->findChild<QPushButton *>(QString::fromLatin1(button));
    QVERIFY(pushButton != nullptr && pushButton->isEnabled());
    pushButton->click();
}

QString TestService::usbText() const
{
    return m_usb->GetText();
}

void TestService::startupScriptsGoIntoTheGivenHomeOnly()
{
    QList<bool> onDevice;
    for (const QString &path : deviceScripts)
        onDevice << QFile::exists(path);

    PanelHarness panel;
    QStringList expected;
    for (const QString &path : deviceScripts) {
        const QString resource = QStringLiteral(":/scripts/") + QFileInfo(path).fileName();
        if (QFile::exists(resource))
            expected << panel.Home() + path.mid(QStringLiteral("/home/pi").size());
    }
    expected.sort();
    QVERIFY(expected.size() >= 3);
    QCOMPARE(FilesUnder(panel.Home()), expected);
    QVERIFY(QFileInfo(panel.Home() + QStringLiteral("/DispOn/dispOn.py")).isExecutable());
    for (int i = 0; i < deviceScripts.size(); ++i)
        QCOMPARE(QFile::exists(deviceScripts.at(i)), onDevice.at(i));
}

void TestService::factoryResetDeletesOwnProgramsFirst()
{
    send(Heatfile("Krone", "user") + "$$" + Heatfile("ZS Speed", "Zircos") + "$$" + Heatfile("Bruecke", "user"));
    auto *popup = m_window->findChild<ovra::Popups::PopupSettings *>();
    send("guistate==6");
    click(ui->widget_SettingsButtonDeviceReset);
    tapPopup(popup, "pushButton_Cancel");
    QCOMPARE(send("temp==300"), QStringList());

    click(ui->widget_SettingsButtonDeviceReset);
    tapPopup(popup, "pushButton_OK");
    QCOMPARE(send("temp==300"), (QStringList{QStringLiteral("hpdelete==Krone"), QStringLiteral("hpdelete==Bruecke"),
                                             QStringLiteral("defaultsettings")}));
    QVERIFY(m_window->GetProgramHandler()->GetProgramByName(QStringLiteral("ZS Speed")) != nullptr);
    QVERIFY(m_window->GetProgramHandler()->GetProgramByName(QStringLiteral("Krone")) == nullptr);
}

void TestService::servicePinComesFromTheController()
{
    const auto type = [this](const QString &digits) {
        for (const QChar digit : digits)
            ui->widget_numpad->findChild<QPushButton *>(QStringLiteral("pushButton_") + digit)->click();
        ui->widget_numpad->findChild<QPushButton *>(QStringLiteral("pushButton_ok"))->click();
    };
    send("guistate==8");
    type(QStringLiteral("0")); // no PIN from the controller yet: nothing opens the door
    QCOMPARE(m_window->CurrentPage(), Page::ServicePIN);
    send("code==4711");
    send("guistate==8");
    type(QStringLiteral("1234"));
    QCOMPARE(m_window->CurrentPage(), Page::ServicePIN);
    send("guistate==8");
    type(QStringLiteral("4711"));
    QCOMPARE(m_window->CurrentPage(), Page::Service);
}

void TestService::stickInOpensTheMenuAndOutLeavesIt()
{
    QCOMPARE(send("usb==in"), QStringList{QStringLiteral("guistate==24")});
    QCOMPARE(m_window->CurrentPage(), Page::USB);
    QCOMPARE(ui->label_Name->text(), QStringLiteral("USB STICK ERKANNT"));
    send("usb==out");
    QCOMPARE(m_window->CurrentPage(), Page::MainMenu);

    // Never out of a firing or the editor; the stick counts as in all the same.
    send(Heatfile("Krone", "user"));
    m_window->Slot_ShowChoosenProgram(m_window->GetProgramHandler()->GetProgramByName(QStringLiteral("Krone")),
                                      Page::PlayProg);
    send("usb==in");
    QCOMPARE(m_window->CurrentPage(), Page::PlayProg);
    send("usb==stuck"); // unknown: logged, nothing else
    QCOMPARE(m_window->CurrentPage(), Page::PlayProg);
}

void TestService::myProgramsToTheStickAndBack()
{
    send(Heatfile("Krone", "user") + "$$" + Heatfile("ZS Speed", "Zircos"));
    send("usb==in");
    click(ui->widget_USBMenuSaveMyProgs);
    QVERIFY(m_usb->isVisible());
    QCOMPARE(usbText(), QStringLiteral("  Meine Programme werden gesichert.\n  Bitte warten..."));
    QTRY_COMPARE(usbText(), QStringLiteral("  Erfolgreich."));
    tapPopup(m_usb, "pushButton_USBProgress");
    QFile saved(m_stick.filePath(QStringLiteral("ovra/myprograms.txt")));
    QVERIFY(saved.open(QIODevice::ReadOnly));
    const QByteArray text = saved.readAll();
    QVERIFY(text.contains("name=Krone;manufacturer=user"));
    QVERIFY(!text.contains("ZS Speed"));

    // The stick comes back from another furnace with one more program of the user's.
    saved.close();
    QVERIFY(saved.open(QIODevice::Append));
    saved.write(Heatfile("Abend", "user").mid(10) + '\n');
    saved.close();
    click(ui->widget_USBMenuLoadMyProgs);
    QTRY_COMPARE(usbText(), QStringLiteral("  Erfolgreich."));
    const QStringList requests = send("temp==300");
    QCOMPARE(requests.size(), 2);
    QVERIFY(requests.at(0).startsWith(QStringLiteral("heatfile==[metainfo];name=Krone;")));
    QVERIFY(requests.at(1).startsWith(QStringLiteral("heatfile==[metainfo];name=Abend;")));
    QVERIFY(m_window->GetProgramHandler()->GetProgramByName(QStringLiteral("Abend")) != nullptr);
    tapPopup(m_usb, "pushButton_USBProgress");

    // A file that names a maker's program is refused whole.
    QVERIFY(saved.open(QIODevice::Append));
    saved.write(Heatfile("ZS Speed", "user").mid(10) + '\n');
    saved.close();
    click(ui->widget_USBMenuLoadMyProgs);
    QTRY_COMPARE(usbText(), QStringLiteral("  Fehlgeschlagen."));
    QCOMPARE(send("temp==300"), QStringList());
}

void TestService::missingStickFails()
{
    QVERIFY(m_stick.remove());
    send("usb==in");
    for (QWidget *button : {ui->widget_USBMenuSaveMyProgs, ui->widget_USBMenuLoadMyProgs, ui->widget_USBMenuBackup}) {
        click(button);
        QTRY_COMPARE(usbText(), QStringLiteral("  Fehlgeschlagen."));
        tapPopup(m_usb, "pushButton_USBProgress");
    }
    QVERIFY(!QFileInfo::exists(m_stick.path()));
}

void TestService::updatesWaitForTheControllersWord()
{
    // Without the controller's word that a stick is in, it is not asked.
    send("guistate==24");
    click(ui->widget_USBMenuFWUpdate);
    QCOMPARE(usbText(), QStringLiteral("  Fehlgeschlagen."));
    QCOMPARE(send("temp==300"), QStringList());
    tapPopup(m_usb, "pushButton_USBProgress");

    send("usb==in");
    click(ui->widget_USBMenuFWUpdate);
    QCOMPARE(usbText(), QStringLiteral("  Firmware Aktualisierung...\n  Bitte warten..."));
    QVERIFY(m_usb->IsBusy());
    click(ui->widget_USBMenuBackup); // one thing at a time
    QCOMPARE(send("temp==300"), QStringList{QStringLiteral("fwupdate")});
    send("usb==done");
    QCOMPARE(usbText(), QStringLiteral("  Erfolgreich."));
    QVERIFY(!m_usb->IsBusy());
    tapPopup(m_usb, "pushButton_USBProgress");

    // A controller that never answers, or a stick pulled on the way: failed, never a hang.
    click(ui->widget_USBMenuConfigUpdate);
    QCOMPARE(send("temp==300"), QStringList{QStringLiteral("configupdate")});
    QTRY_COMPARE(usbText(), QStringLiteral("  Fehlgeschlagen."));
    tapPopup(m_usb, "pushButton_USBProgress");
    click(ui->widget_USBMenuConfigUpdate);
    send("usb==out");
    QCOMPARE(usbText(), QStringLiteral("  Fehlgeschlagen."));
    QCOMPARE(m_window->CurrentPage(), Page::MainMenu);
}

void TestService::qrCodeScansToTheDeviceData()
{
    const QString zbarimg = QStandardPaths::findExecutable(QStringLiteral("zbarimg"));
    if (zbarimg.isEmpty())
        QSKIP("zbarimg (zbar-tools) is not installed");
    send("name==Sinterofen S1$$serialno==SN-0042$$hwver==HW 2.1$$swver==V 3.04$$ophours==1234$$error==E123,E12");
    send("usb==in");
    click(ui->widget_USBMenuQRCode);
    auto *popup = m_window->findChild<ovra::Popups::PopupQRCode *>();
    QVERIFY(popup->isVisible() && popup->HasImage());
    const QPixmap shown = popup->findChild<QLabel *>(QStringLiteral("label_QRCode"))->pixmap(Qt::ReturnByValue);
    const QString png = m_panel->Home() + QStringLiteral("/shown-qrcode.png");
    QVERIFY(shown.save(png));

    QProcess reader;
    reader.start(zbarimg, {QStringLiteral("--raw"), QStringLiteral("-q"), png});
    QVERIFY(reader.waitForFinished(20000));
    QCOMPARE(QString::fromUtf8(reader.readAllStandardOutput()).trimmed(),
             QStringLiteral("Model: Sinterofen S1\nSerial: SN-0042\nHW: HW 2.1\nSW: V 3.04 / R02E.1\n"
                            "Hours: 1234\nFailures: E12,E123"));
}

QTEST_MAIN(TestService)
#include "tst_service.moc"
