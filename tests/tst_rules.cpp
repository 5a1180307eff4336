// The window's rules as plain functions: the progress report, the start-up redirects, the
// self-test bar, the filter buttons, the door and the requests the firing sends.
#include "app/pagetables.h"
#include "communication/requests.h"
#include "faults/selftestprogress.h"
#include "process/firingrules.h"
#include "programs/program.h"
#include "programs/programfilter.h"

#include <QtTest>

using ovra::Mainwindow::Page;
namespace PageTables = ovra::Mainwindow::PageTables;
namespace Requests = ovra::Communication::Requests;
using namespace ovra::Process;

class TestRules : public QObject
{
    Q_OBJECT

private slots:
    void progressReport()
    {
        QCOMPARE(ParseHeatInfo(QString()).kind, HeatInfo::Kind::Over);
        QCOMPARE(ParseHeatInfo(QStringLiteral("Speed;1;2")).kind, HeatInfo::Kind::Unreadable);
        const HeatInfo pre = ParseHeatInfo(QStringLiteral("Speed;95;pre;pre"));
        QVERIFY(pre.preDrying);
        QCOMPARE(pre.stage, 0u);
        const HeatInfo heat = ParseHeatInfo(QStringLiteral("Zirkon HT;80;3;hold;extra"));
        QCOMPARE(heat.program, QStringLiteral("Zirkon HT"));
        QCOMPARE(heat.minutesLeft, QStringLiteral("80"));
        QCOMPARE(heat.stage, 3u);
        QCOMPARE(heat.stageText, QStringLiteral("hold"));
        QCOMPARE(ParseHeatInfo(QStringLiteral("X;1;two;heat")).stage, 0u); // not a number reads as 0
    }

    void startUpRedirects()
    {
        using Action = PageTables::Redirect::Action;
        // Before the start-up page the oven-ready page is shown as it is.
        QCOMPARE(PageTables::ResolveRequest(Page::OvenReady, Page::StartUp, false, false).page, Page::OvenReady);
        QCOMPARE(PageTables::ResolveRequest(Page::DeviceData, Page::MainMenu, true, false).action, Action::Ignore);
        const PageTables::Redirect ready = PageTables::ResolveRequest(Page::OvenReady, Page::Selftest, true, false);
        QCOMPARE(ready.page, Page::MainMenu);
        QVERIFY(ready.showTemperature);
        QCOMPARE(PageTables::ResolveRequest(Page::MainMenu, Page::LangSelect, true, true).action,
                 Action::EndCommissioning);
        QCOMPARE(PageTables::ResolveRequest(Page::OvenReady, Page::UnitSelect, true, true).page, Page::MainMenu);
        QCOMPARE(PageTables::ResolveRequest(Page::Settings, Page::LangSelect, true, true).page, Page::Settings);
    }

    void selftestRowsCountOncePerEntry()
    {
        using Row = ovra::GlobalElements::SelftestProgress::Row;
        ovra::GlobalElements::SelftestProgress progress;
        QCOMPARE(progress.Count(Row::Door) + progress.Count(Row::Heater) + progress.Count(Row::Door), 50);
        QCOMPARE(progress.Count(Row::Cooling), 25);
        progress.Reset();
        QCOMPARE(progress.Count(Row::Door), 25);
    }

    void filterButtonsOnePerValue()
    {
        using ovra::GlobalElements::Program;
        QList<Program *> programs;
        for (const char *material : {"Zirkon", "Argon", "Zirkon", " Argon "})
            programs << new Program(QStringLiteral("P"), QString::fromLatin1(material), {}, QStringLiteral("user"),
                                    false);
        // A value with blanks never matches its own button, so it gets one each time.
        QCOMPARE(ovra::GlobalElements::ProgramFilter::NewButtonValues(programs, false, {QStringLiteral("Argon")}),
                 (QStringList{QStringLiteral("Zirkon"), QStringLiteral(" Argon ")}));
        qDeleteAll(programs);
    }

    void doorAndWarning()
    {
        QCOMPARE(Door::FromReport(QStringLiteral("Closed")), Door::State::Unknown); // case counts
        QVERIFY(Door::Icon(Door::State::Unknown).isEmpty());
        QVERIFY(!Door::WarnHot(300, 300, Door::State::Opening)); // strictly above
        QVERIFY(Door::WarnHot(301, 300, Door::State::Closing));  // closing is not closed
        QVERIFY(!Door::WarnHot(900, 300, Door::State::Closed));
        QVERIFY(IsArgon(QStringLiteral(" Argon ")) && !IsArgon(QStringLiteral("argon")));
    }

    void preDryAndDelayedStart()
    {
        unsigned int minutes = 0;
        QList<unsigned int> cycle;
        for (int i = 0; i < 5; ++i)
            cycle << (minutes = NextPreDryStep(minutes).minutes);
        QCOMPARE(cycle, (QList<unsigned int>{15, 30, 45, 60, 0}));
        QCOMPARE(NextPreDryStep(7).minutes, 0u);
        QCOMPARE(AutostartNote(QStringLiteral("timer==20261224,0730")),
                 QStringLiteral("      Autostart: \n      07:30\n      24/12/2026"));
        QCOMPARE(Requests::DelayedStart(QStringLiteral("timer==20261224,0730"), QStringLiteral("Brücke"), 15),
                 QStringLiteral("timer==20261224,0730,Brücke,15"));
        QCOMPARE(Requests::CancelDelayedStart(), QStringLiteral("timer=="));
    }
};

QTEST_GUILESS_MAIN(TestRules)
#include "tst_rules.moc"
