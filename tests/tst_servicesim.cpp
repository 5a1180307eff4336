// The service functions end to end against the controller simulator: the PIN it hands over
// opens the service pages, its "usb" states open and close the stick menu, the programs go to
// the stick and back into its store, and it answers the updates asked for.
#include "app/mainwindow.h"
#include "popups/popupusb.h"
#include "simulatorprocess.h"
#include "ui_mainwindow.h"

#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

using ovra::Mainwindow::MainWindow;
using ovra::Mainwindow::Page;

namespace {
void quiet(QtMsgType, const QMessageLogContext &, const QString &) {}

void press(QWidget *w)
{
    auto *button = qobject_cast<QAbstractButton *>(w);
    if (button == nullptr)
        button = w->findChild<QAbstractButton *>();
    QTest::mouseClick(button, Qt::LeftButton);
}
} // namespace

class TestServiceWithSimulator : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pinAndStickFromTheController();
};

void TestServiceWithSimulator::initTestCase()
{
    Q_INIT_RESOURCE(resources);
    qInstallMessageHandler(quiet);
}

void TestServiceWithSimulator::pinAndStickFromTheController()
{
    Simulator sim({QStringLiteral("--pin"), QStringLiteral("2468"), QStringLiteral("--usb-ms"), QStringLiteral("100"),
                   QStringLiteral("--verbose")});
    const QString slave = sim.SlavePath();
    QVERIFY(!slave.isEmpty());
    QTemporaryDir home;
    QTemporaryDir stick;
    ovra::GlobalElements::PanelOptions options = ovra::GlobalElements::PanelOptions::Sandbox(home.path());
    options.port = slave;
    options.selftestDelayMs = 200;
    options.usbDir = stick.path();
    MainWindow window(options);
    window.show();
    Ui::MainWindow *ui = window.GetUi();
    auto *usb = window.findChild<ovra::Popups::PopupUSB *>();
    QTRY_VERIFY_WITH_TIMEOUT(sim.AnsweredFrameWith(QStringLiteral("guistate==26")), 20000);

    // The PIN pad opens with the controller's PIN.
    window.Statemachine(Page::ServicePIN);
    for (const char *key : {"pushButton_2", "pushButton_4", "pushButton_6", "pushButton_8", "pushButton_ok"})
        ui->widget_numpad->findChild<QPushButton *>(QString::fromLatin1(key))->click();
    QCOMPARE(window.CurrentPage(), Page::Service);

    sim.Command("usb in");
    QTRY_COMPARE_WITH_TIMEOUT(window.CurrentPage(), Page::USB, 5000);

    // The sample store's own programs to the stick and back into the controller's store.
    press(ui->widget_USBMenuSaveMyProgs);
    QTRY_COMPARE(usb->GetText(), QStringLiteral("  Erfolgreich."));
    usb->accept();
    press(ui->widget_USBMenuLoadMyProgs);
    QTRY_COMPARE(usb->GetText(), QStringLiteral("  Erfolgreich."));
    usb->accept();
    QTRY_VERIFY_WITH_TIMEOUT(sim.Printed(QStringLiteral("stored: Standard Zirkon")), 5000);

    press(ui->widget_USBMenuFWUpdate);
    QTRY_VERIFY_WITH_TIMEOUT(sim.Printed(QStringLiteral("usb: firmware update started")), 5000);
    QTRY_COMPARE_WITH_TIMEOUT(usb->GetText(), QStringLiteral("  Erfolgreich."), 5000);
    usb->accept();

    sim.Command("usb answer failed");
    press(ui->widget_USBMenuConfigUpdate);
    QTRY_COMPARE_WITH_TIMEOUT(usb->GetText(), QStringLiteral("  Fehlgeschlagen."), 5000);
    usb->accept();

    sim.Command("usb out");
    QTRY_COMPARE_WITH_TIMEOUT(window.CurrentPage(), Page::MainMenu, 5000);
}

QTEST_MAIN(TestServiceWithSimulator)
#include "tst_servicesim.moc"
