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
    void startUpRedirects();
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

// Each origin once as remembered, and where an origin the page does not go back to leads.
void TestPageTables::backFollowsOrigins()
{
    struct Case
    {
        Page PageOrigins::*origin;
        P from; // where the page was entered from
        P shown;
        P back;
    };
    const Case cases[] = {
        {&PageOrigins::hitlistOrigin, P::Lists, P::MyHitlist, P::Lists},
        {&PageOrigins::hitlistOrigin, P::PlayProg, P::MyHitlist, P::MainMenu},
        {&PageOrigins::editorOrigin, P::ProcessProg, P::NewProg, P::ProcessProg},
        {&PageOrigins::editorOrigin, P::MainMenu, P::NewProg, P::Progs},
        {&PageOrigins::playOrigin, P::MyHitlist, P::PlayProg, P::MyHitlist},
        {&PageOrigins::playOrigin, P::NewProg, P::PlayProg, P::MyProgs}, // from the editor: the user's programs
        {&PageOrigins::playOrigin, P::StartUp, P::PlayProg, P::MainMenu},
        {&PageOrigins::filterOrigin, P::Settings, P::DisplayOptions, P::Settings},
        {&PageOrigins::filterOrigin, P::Lists, P::DisplayOptions, P::MainMenu},
    };
    for (const Case &c : cases) {
        PageOrigins o;
        o.*c.origin = c.from;
        QCOMPARE(PageTables::BackTarget(c.shown, o), c.back);
    }
}

// Where a page request lands while the panel starts and while the oven is commissioned.
void TestPageTables::startUpRedirects()
{
    using Action = PageTables::Redirect::Action;
    // Before the start-up page the oven-ready page is shown as it is.
    QCOMPARE(PageTables::ResolveRequest(P::OvenReady, P::StartUp, false, false).page, P::OvenReady);
    QCOMPARE(PageTables::ResolveRequest(P::DeviceData, P::MainMenu, true, false).action, Action::Ignore);
    const PageTables::Redirect ready = PageTables::ResolveRequest(P::OvenReady, P::Selftest, true, false);
    QCOMPARE(ready.page, P::MainMenu);
    QCOMPARE(PageTables::ResolveRequest(P::MainMenu, P::LangSelect, true, true).action, Action::EndCommissioning);
    QCOMPARE(PageTables::ResolveRequest(P::OvenReady, P::UnitSelect, true, true).page, P::MainMenu);
    QCOMPARE(PageTables::ResolveRequest(P::Settings, P::LangSelect, true, true).page, P::Settings);
}

QTEST_GUILESS_MAIN(TestPageTables)
#include "tst_pagetables.moc"
