// The program pages with a real window: programs from the controller are listed by class,
// favoured, filtered, shown, deleted; short counts are asked for again, ten times at most.
#include "app/mainwindow.h"
#include "communication/frame.h"
#include "communication/messagehandler.h"
#include "panelharness.h"
#include "popups/popupdeleteprogram.h"
#include "process/chart.h"
#include "programs/programhandler.h"
#include "touch.h"
#include "widgets/button.h"
#include "widgets/programbutton.h"

#include <QPushButton>
#include <QtTest>

using ovra::GlobalElements::Program;
using ovra::GlobalElements::ProgramButton;
using ovra::Mainwindow::MainWindow;
using ovra::Mainwindow::Page;
namespace Frame = ovra::Communication::Frame;

class TestProgramPages : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void listsByClass();
    void favouritesToTheController();
    void filtersNarrowTheUserList();
    void showingAndDeletingAProgram();
    void replacedProgramOnAShownListStaysSafe();
    void longListFollowsItsFirstRows();
    void resendIsAskedForTenTimesAtMost();

private:
    QStringList send(const QByteArray &fields) { return m_panel->Send(fields); }
    QStringList listed() const;
    static void click(QWidget *kit) { PanelHarness::Click(kit); }
    // The filter page's buttons of one kind: "Manufacturer" or "Material".
    QList<ovra::GlobalElements::Button *> filters(const QString &kind) const
    {
        return m_panel->Widget(QStringLiteral("scrollAreaWidgetContents_") + kind)
            ->findChildren<ovra::GlobalElements::Button *>();
    }

    QScopedPointer<PanelHarness> m_panel;
    MainWindow *m_window = nullptr;
};

void TestProgramPages::init()
{
    m_panel.reset(new PanelHarness());
    m_window = m_panel->Window();
    send(PanelHarness::Heatfile("Mein Speed", "user", "Zirkon", true));
    send(PanelHarness::Heatfile("Mein Argon", "user", "Argon", false));
    send(PanelHarness::Heatfile("Zirkon HT", "DentaCeram", "Zirkon", false));
    send(PanelHarness::Heatfile("Glanz", "Dental Werk", "Glaskeramik", false));
    send(PanelHarness::Heatfile("Kalibrierung", "service", "Zirkon", false));
}

QStringList TestProgramPages::listed() const
{
    QStringList names;
    for (const ProgramButton *button : m_window->GetProgramButtons())
        names << button->GetText();
    return names;
}

void TestProgramPages::listsByClass()
{
    send("guistate==10");
    QCOMPARE(listed(), (QStringList{QStringLiteral("Mein Speed"), QStringLiteral("Mein Argon")}));
    send("guistate==11");
    QCOMPARE(listed(), (QStringList{QStringLiteral("Zirkon HT"), QStringLiteral("Glanz")}));
    send("guistate==19");
    QCOMPARE(listed(), QStringList{QStringLiteral("Kalibrierung")});
    // The favourites: with the favourite toggle below.
}

void TestProgramPages::favouritesToTheController()
{
    // Every heatfile's favourite flag goes back to the controller as it was received.
    QCOMPARE(send(PanelHarness::Heatfile("Neu", "user", "Zirkon", false)),
             QStringList{QStringLiteral("tofavorite==Neu,false")});
    send("guistate==10");
    ProgramButton *argon = m_window->GetProgramButtons().at(1);
    QTest::mouseClick(argon->GetFavButtonObject(), Qt::LeftButton);
    QCOMPARE(send("temp==300"), QStringList{QStringLiteral("tofavorite==Mein Argon,true")});
    send("guistate==4");
    QCOMPARE(listed(), (QStringList{QStringLiteral("Mein Speed"), QStringLiteral("Mein Argon")}));
    QTest::mouseClick(m_window->GetProgramButtons().at(0)->GetFavButtonObject(), Qt::LeftButton);
    QCOMPARE(send("temp==300"), QStringList{QStringLiteral("tofavorite==Mein Speed,false")});
}

void TestProgramPages::filtersNarrowTheUserList()
{
    send(PanelHarness::Heatfile("Fremd", "user", "Glaskeramik", false));
    send("guistate==22");
    QStringList makers;
    for (auto *b : filters(QStringLiteral("Manufacturer"))) {
        makers << b->GetText();
        if (b->GetText() == QLatin1String("Meine Programme"))
            click(b);
    }
    // The classes "user" and "service" show in words; the filter still matches their values.
    makers.sort();
    QCOMPARE(makers, (QStringList{QStringLiteral("DentaCeram"), QStringLiteral("Dental Werk"),
                                  QStringLiteral("Meine Programme"), QStringLiteral("Service Programme")}));
    send("guistate==23");
    const auto materials = filters(QStringLiteral("Material"));
    QCOMPARE(materials.size(), 3);
    for (auto *b : materials) {
        if (b->GetText() == QLatin1String("Zirkon"))
            click(b);
    }
    send("guistate==10");
    QCOMPARE(listed(), QStringList{QStringLiteral("Mein Speed")});

    // Visiting the filter page again adds no second button for a known value.
    send("guistate==23");
    QCOMPARE(filters(QStringLiteral("Material")).size(), 3);
    // "Dental Werk" never matches its own button: with it checked nothing is listed.
    send("guistate==22");
    for (auto *b : filters(QStringLiteral("Manufacturer"))) {
        if (b->GetText() == QLatin1String("Dental Werk") || b->GetText() == QLatin1String("Meine Programme"))
            click(b); // the user's own class off again
    }
    // ... and it gets another button on every visit.
    send("guistate==22");
    QCOMPARE(filters(QStringLiteral("Manufacturer")).size(), 6);
    send("guistate==10");
    QCOMPARE(listed(), QStringList());
}

void TestProgramPages::showingAndDeletingAProgram()
{
    send("guistate==11");
    click(m_window->GetProgramButtons().at(0)); // Zirkon HT, a maker's program
    QCOMPARE(m_window->CurrentPage(), Page::PlayProg);
    QCOMPARE(m_panel->Text("label_Name"), QStringLiteral("Zirkon HT")); // not in upper case
    QVERIFY(!m_panel->Shown("widget_playProgChange") && !m_panel->Shown("widget_playProgDelete"));
    QCOMPARE(m_panel->Find<ovra::GlobalElements::Chart>("widget_chart_play")->GetProfile().points.size(),
             4); // summary: (0,0) and three points

    m_panel->Tap("widget_backPlayNewProg");
    QCOMPARE(m_window->CurrentPage(), Page::FixProgs);

    send("guistate==10");
    click(m_window->GetProgramButtons().at(1)); // Mein Argon
    QVERIFY(m_panel->Shown("widget_playProgDelete"));
    QCOMPARE(m_panel->Find<ovra::GlobalElements::Chart>("widget_chart_play")->GetProfile().points.size(), 5);
    m_panel->Tap("widget_playProgDelete");
    Tap(m_window->findChild<ovra::Popups::PopupDeleteProgram *>(), "pushButton_OK");
    QVERIFY(send("temp==300").contains(QStringLiteral("hpdelete==Mein Argon")));
    QCOMPARE(m_window->CurrentPage(), Page::MyProgs);
    QCOMPARE(listed(), QStringList{QStringLiteral("Mein Speed")});
}

void TestProgramPages::replacedProgramOnAShownListStaysSafe()
{
    send("guistate==10");
    ProgramButton *shown = m_window->GetProgramButtons().at(0);
    // The controller replaces the program while its button is on screen.
    send(PanelHarness::Heatfile("Mein Speed", "user", "Argon", false));
    click(shown); // the old record is still alive (checked under the sanitizer build)
    QCOMPARE(m_window->CurrentPage(), Page::PlayProg);
    m_panel->Tap("widget_backPlayNewProg");
    QCOMPARE(m_window->CurrentPage(), Page::MyProgs);
    QCOMPARE(m_window->GetProgramHandler()->RetiredCount(), 0); // freed with the rebuilt list
    click(m_window->GetProgramButtons().at(0));
    QCOMPARE(m_panel->Text("widget_materialPlay"), QStringLiteral("Argon"));
}

void TestProgramPages::resendIsAskedForTenTimesAtMost()
{
    int asked = 0;
    for (int i = 0; i < 12; ++i)
        asked += send("hfcount==9").count(QStringLiteral("hfresend"));
    QCOMPARE(asked, 10);
    QCOMPARE(send("hfcount==5"), QStringList()); // as many as stored: nothing to ask
}

void TestProgramPages::longListFollowsItsFirstRows()
{
    for (int i = 0; i < 30; ++i)
        send(PanelHarness::Heatfile(qPrintable(QStringLiteral("Serie %1").arg(i)), "user"));
    send("guistate==10");
    // The tap is answered with the first rows; the others follow once the page is up.
    QVERIFY(listed().size() < 32);
    QTRY_COMPARE(listed().size(), 32);
    QCOMPARE(listed().last(), QStringLiteral("Serie 29"));
    // Rows still to come for a list the user has left never reach the next list.
    send("guistate==11");
    send("guistate==10");
    send("guistate==11");
    for (int turn = 0; turn < 3; ++turn)
        QCoreApplication::processEvents();
    QCOMPARE(listed(), (QStringList{QStringLiteral("Zirkon HT"), QStringLiteral("Glanz")}));
}

QTEST_MAIN(TestProgramPages)
#include "tst_programpages.moc"
