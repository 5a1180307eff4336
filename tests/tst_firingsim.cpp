// Firings run end to end against the controller simulator, sped up: a start with pre-dry
// through heat and hold to success and a firing stopped by the user, both on record; a
// program name with an umlaut stored on the controller and read back after a restart; the
// language switched by the controller and by the user.
#include "app/mainwindow.h"
#include "panelharness.h"
#include "popups/popupstop.h"
#include "process/chart.h"
#include "programs/program.h"
#include "programs/programhandler.h"
#include "records/firinghistory.h"
#include "records/firingstore.h"
#include "simulatorprocess.h"
#include "widgets/programbutton.h"

#include <QDir>
#include <QFile>
#include <QLineSeries>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using ovra::Mainwindow::MainWindow;
using ovra::Mainwindow::Page;

namespace {
// Where the fill of the process chart has got to (0 before anything is filled).
double frontX(ovra::GlobalElements::Chart *chart)
{
    const auto *progress = chart->GetProgressSeries();
    return progress->count() > 1 ? progress->at(1).x() : 0.0;
}

// The panel on the simulator's line, its self-test shortened to 200 ms.
std::function<void(ovra::GlobalElements::PanelOptions &)> onLine(Simulator &sim)
{
    return [&sim](ovra::GlobalElements::PanelOptions &options) { options.port = sim.SlavePath(); };
}
} // namespace

class TestFiringWithSimulator : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void firings();
    void umlautNameSurvivesARestart();
    void languageFromTheControllerAndFromTheUser();

private:
    QTemporaryDir m_dir;
};

void TestFiringWithSimulator::initTestCase()
{
    // One short program: 22 °C to 300 °C at 20 °C/min, 10 minutes' hold.
    QFile programs(m_dir.path() + QStringLiteral("/programs.txt"));
    QVERIFY(programs.open(QIODevice::WriteOnly));
    programs.write("[metainfo];name=Kurz;manufacturer=user;material=Zirkon;favorite=false;"
                   "[1];rate=20;temp=573;hold=600;\n");
}

void TestFiringWithSimulator::firings()
{
    // 300 furnace seconds pass in one real second; a report every 100 ms is 30 s of furnace time.
    Simulator sim({QStringLiteral("--interval"), QStringLiteral("100"), QStringLiteral("--speed"),
                   QStringLiteral("300"), QStringLiteral("--door-ms"), QStringLiteral("200"),
                   QStringLiteral("--verbose"), QStringLiteral("--programs"),
                   m_dir.path() + QStringLiteral("/programs.txt")});
    PanelHarness view(200, onLine(sim));
    MainWindow &window = *view.Window();
    QTRY_VERIFY_WITH_TIMEOUT(sim.AnsweredFrameWith(QStringLiteral("guistate==26")), 20000); // in the main menu

    // The user picks the program, adds 15 minutes of pre-drying and starts.
    for (const char *button : {"widget_MainMenuButtonProgs", "widget_ProgsButtonLists", "widget_ListsButtonMyProgs"})
        view.Tap(button);
    QTRY_VERIFY_WITH_TIMEOUT(!window.GetProgramButtons().isEmpty(), 5000);
    PanelView::Click(window.GetProgramButtons().first());
    QCOMPARE(window.CurrentPage(), Page::PlayProg);
    view.Tap("widget_timerPreDry");
    view.Tap("widget_playNewProg");
    QTRY_VERIFY_WITH_TIMEOUT(sim.Printed(QStringLiteral("request: hpstart==Kurz,15")), 5000);

    // Pre-dry, then the fill moves through the ramp and the hold.
    QTRY_COMPARE_WITH_TIMEOUT(window.CurrentPage(), Page::ProcessProg, 5000);
    QTRY_VERIFY_WITH_TIMEOUT(view.Shown("widget_processPreDryInfo"), 5000);
    QVERIFY(window.Furnace().IsFiring());
    ovra::GlobalElements::Chart *chart = view.Find<ovra::GlobalElements::Chart>("widget_chart_process");
    QTRY_VERIFY_WITH_TIMEOUT(frontX(chart) > 0.05 && frontX(chart) < 1.0, 10000); // heating
    QTRY_VERIFY_WITH_TIMEOUT(frontX(chart) > 1.0 && frontX(chart) < 2.0, 10000);  // holding
    QTRY_VERIFY_WITH_TIMEOUT(view.Style("label_processResult").contains(QStringLiteral("success.png")), 10000);
    QCOMPARE(frontX(chart), 2.0);
    QVERIFY(!window.Furnace().IsFiring());
    QVERIFY(view.Shown("widget_exitProcessProg"));
    // The controller's empty report closes the firing and frees the page's buttons.
    QTRY_VERIFY_WITH_TIMEOUT(view.Enabled("widget_backProcessProg"), 5000);

    // A second firing, stopped by the user through the stop question.
    view.Tap("widget_backProcessProg");
    QCOMPARE(window.CurrentPage(), Page::PlayProg);
    QTRY_VERIFY_WITH_TIMEOUT(view.Enabled("widget_playNewProg"), 3000);
    view.Tap("widget_playNewProg");
    QTRY_VERIFY_WITH_TIMEOUT(view.Shown("widget_stopProcessProg") && window.CurrentPage() == Page::ProcessProg &&
                                 frontX(chart) > 0.0,
                             10000);
    view.Tap("widget_stopProcessProg");
    auto *stop = window.findChild<ovra::Popups::PopupStop *>();
    QTRY_VERIFY(stop->isVisible());
    PanelView::Click(stop->findChild<QPushButton *>(QStringLiteral("pushButton_OK")));
    QCOMPARE(view.Style("label_processResult"), QStringLiteral("border-image: url(:/Prozess/abort.png);"));
    QTRY_VERIFY_WITH_TIMEOUT(sim.Printed(QStringLiteral("firing stopped")), 5000);
    // Both firings are on record: the first with a sample for every report of its run.
    const ovra::Records::FiringHistory history(ovra::Records::FiringStore::FileIn(view.Home()));
    const QList<ovra::Records::FiringSummary> records = history.List(); // newest first
    QCOMPARE(records.size(), 2);
    QCOMPARE(records[1].program + QLatin1Char(':') + records[1].result, QStringLiteral("Kurz:success"));
    QCOMPARE(records[0].result, QStringLiteral("stopped"));
    ovra::Records::FiringRecord first;
    QVERIFY(history.Load(records[1].id, &first));
    QVERIFY(first.samples.size() > 20);
}

void TestFiringWithSimulator::umlautNameSurvivesARestart()
{
    Simulator sim({QStringLiteral("--interval"), QStringLiteral("100"), QStringLiteral("--verbose"),
                   QStringLiteral("--programs"), m_dir.path() + QStringLiteral("/programs.txt")});
    const QString name = QStringLiteral("Br\u00FCcke");
    auto panel = std::make_unique<PanelHarness>(200, onLine(sim));
    QTRY_VERIFY_WITH_TIMEOUT(sim.AnsweredFrameWith(QStringLiteral("guistate==26")), 20000);
    panel->Window()->GetProgramHandler()->Slot_AddProgramToList(new ovra::GlobalElements::Program(
        name, QStringLiteral("Zirkon"), {{10, 1000, 5}}, QStringLiteral("user"), false));
    QTRY_VERIFY_WITH_TIMEOUT(sim.Printed(QStringLiteral("stored: ") + name), 5000);

    // The controller notices the silent line, waits for a panel and sends it every program.
    panel.reset();
    QTRY_VERIFY_WITH_TIMEOUT(sim.Printed(QStringLiteral("panel lost")), 10000);
    panel = std::make_unique<PanelHarness>(200, onLine(sim)); // a home of its own: nothing kept there
    QTRY_VERIFY_WITH_TIMEOUT(panel->Window()->GetProgramHandler()->GetProgramByName(name) != nullptr, 20000);
}

void TestFiringWithSimulator::languageFromTheControllerAndFromTheUser()
{
    Simulator sim({QStringLiteral("--interval"), QStringLiteral("100"), QStringLiteral("--verbose")});
    PanelHarness view(200, onLine(sim));
    view.InstallTranslations(); // before the first frame, which only the event loop reads
    MainWindow &window = *view.Window();
    QTRY_VERIFY_WITH_TIMEOUT(sim.AnsweredFrameWith(QStringLiteral("guistate==26")), 20000);
    QTRY_COMPARE_WITH_TIMEOUT(window.CurrentPage(), Page::MainMenu, 5000);

    sim.Command("lang spanisch");
    QTRY_COMPARE_WITH_TIMEOUT(view.Text("label_Name"), QStringLiteral("MENÚ PRINCIPAL"), 5000);
    QTRY_VERIFY_WITH_TIMEOUT(sim.Printed(QStringLiteral("language: spanisch")), 5000);
    const QList<QPair<const char *, QString>> steps = {
        {"widget_MainMenuButtonSettings", QStringLiteral("AJUSTES")},
        {"widget_SettingsButtonLangSelect", QStringLiteral("IDIOMA")},
    };
    for (const auto &step : steps) {
        view.Tap(step.first);
        QCOMPARE(view.Text("label_Name"), step.second);
    }
    QVERIFY(view.Checked("widget_Lang4")); // Español

    view.Tap("widget_Lang5");
    QCOMPARE(view.Text("label_Name"), QStringLiteral("LANGUE"));
    QTRY_VERIFY_WITH_TIMEOUT(sim.Printed(QStringLiteral("language: franzoesisch")), 5000);
}

QTEST_MAIN(TestFiringWithSimulator)
#include "tst_firingsim.moc"
