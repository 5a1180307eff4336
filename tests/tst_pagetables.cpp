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
