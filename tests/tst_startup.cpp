// The panel's start-up against the controller simulator over a pseudo-terminal: splash,
// device data, the automatic self-test, the main menu, and the commissioning walk.
#include "app/mainwindow.h"
#include "panelharness.h"
#include "programs/newprogram.h"
#include "programs/tablerow.h"
#include "simulatorprocess.h"
#include "touch.h"
#include "widgets/programbutton.h"

#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QtTest>

using ovra::Mainwindow::MainWindow;
using ovra::Mainwindow::Page;

class TestStartUp : public QObject
{
    Q_OBJECT

private slots:
    void selftestThenAProgramTypedOnThePanelReachesTheController();
    void commissioningWalksTheSettingsPages();
};

void TestStartUp::selftestThenAProgramTypedOnThePanelReachesTheController()
{
    Simulator sim({QStringLiteral("--verbose")});
    const QString slave = sim.SlavePath();
    QVERIFY(!slave.isEmpty());
    // 300 ms stand for the furnace's 7000 ms before the self-test.
    PanelHarness view(300, [&slave](auto &options) { options.port = slave; });
    MainWindow *window = view.Window();
    QCOMPARE(int(view.CurrentScreen()), 1); // the splash until the oven speaks

    QTRY_COMPARE_WITH_TIMEOUT(window->CurrentPage(), Page::DeviceData, 10000);
    QCOMPARE(int(view.CurrentScreen()), 0);
    QTRY_COMPARE_WITH_TIMEOUT(view.Text("widget_Data1"), QStringLiteral("Ovra S1"), 5000);
    QTRY_COMPARE_WITH_TIMEOUT(window->CurrentPage(), Page::Selftest, 5000);
    QTRY_VERIFY_WITH_TIMEOUT(sim.Printed(QStringLiteral("request: redost")), 5000);
    QTRY_COMPARE_WITH_TIMEOUT(view.Find<QProgressBar>("progressBar_selftest")->value(), 75, 5000);
    QTRY_COMPARE_WITH_TIMEOUT(window->CurrentPage(), Page::MainMenu, 5000);
    QTRY_VERIFY_WITH_TIMEOUT(sim.Printed(QStringLiteral("request: guistate==3")), 5000);
    QCOMPARE(view.Text("label_Name"), QStringLiteral("HAUPTMENÜ"));
    QVERIFY(view.Shown("widget_temp"));
    QTRY_VERIFY_WITH_TIMEOUT(!view.Text("label_Time").isEmpty(), 5000);
    // The controller's own "main menu" after the self-test, before the user starts typing.
    QTRY_VERIFY_WITH_TIMEOUT(sim.AnsweredFrameWith(QStringLiteral("guistate==26")), 5000);

    // The controller's user programs are listed.
    for (const char *button : {"widget_MainMenuButtonProgs", "widget_ProgsButtonLists", "widget_ListsButtonMyProgs"})
        view.Tap(button);
    QTRY_VERIFY_WITH_TIMEOUT(window->GetProgramButtons().size() >= 3, 5000);

    // A new program, typed on the panel's own pads.
    view.Tap("widget_myProgsNew");
    QCOMPARE(window->CurrentPage(), Page::NewProg);
    auto *editor = view.Find<ovra::GlobalElements::NewProgram>("widget_newProg");
    const auto key = [editor](const QString &name) { PanelView::Click(editor->findChild<QWidget *>(name)); };
    ovra::GlobalElements::TableRow *row = editor->GetRows().first();
    TypeDigits(editor, row->GetRateField(), QStringLiteral("25"));
    TypeDigits(editor, row->GetTempField(), QStringLiteral("1450"));
    TypeDigits(editor, row->GetTimeField(), QStringLiteral("40"));
    key(QStringLiteral("pushButton_padEnter"));
    ovra::GlobalElements::TableRow *second = editor->GetRows().at(1);
    TypeDigits(editor, second->GetRateField(), QStringLiteral("10"));
    TypeDigits(editor, second->GetTempField(), QStringLiteral("1530"));
    TypeDigits(editor, second->GetTimeField(), QStringLiteral("120"));
    key(QStringLiteral("widget_fwd"));
    key(QStringLiteral("widget_fwdChart"));
    for (const char *letter : {"shift", "k", "r", "o", "n", "e"})
        key(QStringLiteral("pushButton_") + QLatin1String(letter));
    QCOMPARE(editor->GetNameField()->text(), QStringLiteral("Krone"));
    key(QStringLiteral("widget_save"));

    // The controller stores exactly what the panel wrote; the panel shows the new program.
    QTRY_VERIFY_WITH_TIMEOUT(sim.Printed(QStringLiteral("heatfile text: [metainfo];name=Krone;manufacturer=user;"
                                                        "material=Zirkon;favorite=false;[1];rate=25;temp=1723;"
                                                        "hold=2400;[2];rate=10;temp=1803;hold=7200;")),
                             5000);
    QVERIFY(sim.Printed(QStringLiteral("stored: Krone")));
    QCOMPARE(window->CurrentPage(), Page::PlayProg);
    QCOMPARE(view.Text("label_Name"), QStringLiteral("Krone"));
    view.Tap("widget_backPlayNewProg"); // to the list the editor was opened from
    QVERIFY(window->GetProgramButtons().last()->GetText() == QStringLiteral("Krone"));
}

void TestStartUp::commissioningWalksTheSettingsPages()
{
    Simulator sim({QStringLiteral("--commissioning")});
    const QString slave = sim.SlavePath();
    QVERIFY(!slave.isEmpty());
    PanelHarness view(300, [&slave](auto &options) { options.port = slave; });
    MainWindow *window = view.Window();

    QTRY_COMPARE_WITH_TIMEOUT(window->CurrentPage(), Page::LangSelect, 10000);
    QVERIFY(window->Furnace().IsCommissioning());
    QVERIFY(!window->IsSelftestPending());

    view.Tap("widget_fwdLang");
    QCOMPARE(window->CurrentPage(), Page::UnitSelect);
    view.Tap("widget_UnitF");
    view.Tap("widget_fwdUnit");
    view.Tap("widget_fwdDateTime");
    QCOMPARE(window->CurrentPage(), Page::DeviceData2);
    view.Tap("widget_fwdDeviceData2");
    QCOMPARE(window->CurrentPage(), Page::Settings);

    // The controller closes the commissioning with the main menu.
    QTRY_VERIFY_WITH_TIMEOUT(sim.Printed(QStringLiteral("unit: f")), 5000);
    QTRY_VERIFY_WITH_TIMEOUT(sim.Printed(QStringLiteral("commissioning done")), 5000);
    QTRY_COMPARE_WITH_TIMEOUT(window->CurrentPage(), Page::MainMenu, 5000);
}

QTEST_MAIN(TestStartUp)
#include "tst_startup.moc"
