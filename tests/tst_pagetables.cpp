// The navigation tables on their own: back, forward, titles and remembered origins.
#include "app/pagetables.h"

#include <QtTest>

using namespace ovra::Mainwindow;
using P = Page;

class TestPageTables : public QObject
{
    Q_OBJECT

private slots:
    void backFixedTargets_data();
    void backFixedTargets();
    void backFollowsOrigins();
    void forwardTable_data();
    void forwardTable();
    void titles();
    void remembersOrigins();
};

void TestPageTables::backFixedTargets_data()
{
    QTest::addColumn<int>("shown");
    QTest::addColumn<int>("target");
    const QList<QPair<int, int>> rows = {
        {0, 3}, {1, 3}, {3, 3}, {5, 3}, {6, 3}, {7, 3}, {8, 3}, {24, 3}, {25, 3}, {26, 3}, {99, 3}, {-1, 3},
        {2, 7}, {20, 7}, {9, 5}, {19, 5}, {10, 9}, {11, 9}, {12, 6}, {13, 12}, {14, 13}, {18, 17},
        {22, 21}, {23, 22}};
    for (const auto &r : rows)
        QTest::addRow("%d", r.first) << r.first << r.second;
}

void TestPageTables::backFixedTargets()
{
    QFETCH(int, shown);
    QFETCH(int, target);
    QCOMPARE(int(PageTables::BackTarget(shown, PageOrigins())), target);
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

void TestPageTables::forwardTable_data()
{
    QTest::addColumn<int>("shown");
    QTest::addColumn<int>("target");
    const QList<QPair<int, int>> rows = {{12, 13}, {13, 14}, {14, 15}, {15, 6}, {16, 5}, {17, 3}, {18, 3},
                                         {19, 3}, {20, 3}, {21, 3}, {22, 23}, {23, 5}, {11, 3}, {24, 3},
                                         {0, 3}, {-5, 3}, {1000, 3}};
    for (const auto &r : rows)
        QTest::addRow("%d", r.first) << r.first << r.second;
}

void TestPageTables::forwardTable()
{
    QFETCH(int, shown);
    QFETCH(int, target);
    QCOMPARE(int(PageTables::ForwardTarget(shown)), target);
}

void TestPageTables::titles()
{
    QCOMPARE(QString::fromUtf8(PageTables::Title(P::DateTime)), QStringLiteral("Datum & Uhrzeit"));
    QCOMPARE(QString::fromUtf8(PageTables::Title(P::ServicePIN)), QStringLiteral("Service"));
    QCOMPARE(QString::fromUtf8(PageTables::Title(P::DisplayMaterial)), QStringLiteral("Filteroptionen"));
    QCOMPARE(PageTables::Title(P::PlayProg), nullptr);
    QCOMPARE(PageTables::Title(P::StartUp), nullptr);
    QCOMPARE(PageTables::Title(static_cast<P>(27)), nullptr);
}

void TestPageTables::remembersOrigins()
{
    for (int from : {4, 10, 11, 16, 19})
        QVERIFY(PageTables::RemembersPlayOrigin(from));
    for (int from : {3, 17, 18, 9})
        QVERIFY(!PageTables::RemembersPlayOrigin(from));
    QVERIFY(PageTables::RemembersEditorOrigin(P::NewProg, P::MyProgs));
    QVERIFY(!PageTables::RemembersEditorOrigin(P::NewProg, P::PlayProg));
    QVERIFY(PageTables::RemembersEditorOrigin(P::ChangeProg, P::ProcessProg));
    QVERIFY(!PageTables::RemembersEditorOrigin(P::ChangeProg, P::MainMenu));
}

QTEST_GUILESS_MAIN(TestPageTables)
#include "tst_pagetables.moc"
