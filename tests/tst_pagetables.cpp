// The navigation tables where they depend on where the user came from, and on pages they do
// not know. The fixed targets are tapped through by the window tests.
#include "app/pagetables.h"

#include <QtTest>

using namespace ovra::Mainwindow;
using P = Page;

class TestPageTables : public QObject
{
    Q_OBJECT

private slots:
    void unknownPagesFallBack();
    void backFollowsOrigins();
};

// Pages the tables do not know fall back to the main menu instead of indexing past a table.
void TestPageTables::unknownPagesFallBack()
{
    for (int shown : {-1, 27, 1000}) {
        QCOMPARE(PageTables::BackTarget(shown, PageOrigins()), P::MainMenu);
        QCOMPARE(PageTables::ForwardTarget(shown), P::MainMenu);
        QCOMPARE(PageTables::Title(static_cast<P>(shown)), nullptr);
    }
}

void TestPageTables::backFollowsOrigins()
{
    PageOrigins o;
    o.hitlistOrigin = P::Lists;
    QCOMPARE(PageTables::BackTarget(P::MyHitlist, o), P::Lists);
    o.hitlistOrigin = P::PlayProg;
    QCOMPARE(PageTables::BackTarget(P::MyHitlist, o), P::MainMenu);

    // Device data steps back through the commissioning order unless the service opened it.
    o.deviceDataOrigin = P::Settings;
    QCOMPARE(PageTables::BackTarget(P::DeviceData2, o), P::DateTime);
    o.deviceDataOrigin = P::Service;
    QCOMPARE(PageTables::BackTarget(P::DeviceData2, o), P::Service);

    for (P origin : {P::MyProgs, P::PlayProg, P::ProcessProg}) {
        o.editorOrigin = origin;
        QCOMPARE(PageTables::BackTarget(P::NewProg, o), origin);
    }
    o.editorOrigin = P::Progs;
    QCOMPARE(PageTables::BackTarget(P::NewProg, o), P::Progs);
    o.editorOrigin = P::MainMenu;
    QCOMPARE(PageTables::BackTarget(P::NewProg, o), P::Progs);

    for (P origin : {P::MyHitlist, P::FixProgs, P::ServiceProgs}) {
        o.playOrigin = origin;
        QCOMPARE(PageTables::BackTarget(P::PlayProg, o), origin);
    }
    // Entered from the editor, back leads to the user's programs.
    o.playOrigin = P::NewProg;
    QCOMPARE(PageTables::BackTarget(P::PlayProg, o), P::MyProgs);
    o.playOrigin = P::MyProgs;
    QCOMPARE(PageTables::BackTarget(P::PlayProg, o), P::MyProgs);
    o.playOrigin = P::StartUp;
    QCOMPARE(PageTables::BackTarget(P::PlayProg, o), P::MainMenu);

    o.filterOrigin = P::Settings;
    QCOMPARE(PageTables::BackTarget(P::DisplayOptions, o), P::Settings);
    o.filterOrigin = P::Progs;
    QCOMPARE(PageTables::BackTarget(P::DisplayOptions, o), P::Progs);
    o.filterOrigin = P::Lists;
    QCOMPARE(PageTables::BackTarget(P::DisplayOptions, o), P::MainMenu);
}

QTEST_GUILESS_MAIN(TestPageTables)
#include "tst_pagetables.moc"
