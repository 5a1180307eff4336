#include "tools/screenshots/screenshottour.h"

#include "app/mainwindow.h"
#include "communication/frame.h"
#include "communication/messagehandler.h"
#include "lablink/lablinkview.h"
#include "popups/popupusb.h"
#include "popups/timerpopup.h"
#include "programs/heatfiletext.h"
#include "programs/newprogram.h"
#include "programs/programfilter.h"
#include "programs/programhandler.h"
#include "programs/tablerow.h"
#include "records/firingdetailview.h"
#include "records/firinghistoryview.h"
#include "records/firingstore.h"
#include "ui_mainwindow.h"
#include "widgets/button.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QToolButton>

#include <cmath>

namespace ovra {
namespace Tools {

using Mainwindow::Page;

namespace {

const char *const pageNames[] = {"startup",
                                 "devicedata",
                                 "selftest",
                                 "mainmenu",
                                 "favourites",
                                 "programoptions",
                                 "settings",
                                 "service",
                                 "servicepin",
                                 "lists",
                                 "myprograms",
                                 "fixprograms",
                                 "language",
                                 "unit",
                                 "datetime",
                                 "devicedata2",
                                 "editor",
                                 "program",
                                 "process",
                                 "serviceprograms",
                                 "failures",
                                 "filteroptions",
                                 "filtermanufacturer",
                                 "filtermaterial",
                                 "usb",
                                 "changeprogram"};

void settle()
{
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
}

} // namespace

ScreenshotTour::ScreenshotTour(Mainwindow::MainWindow *window, const QString &folder)
    : m_window(window), m_folder(folder)
{
}

void ScreenshotTour::Feed(const QByteArray &fields)
{
    m_window->GetMessageHandler()->HandleMessage(QString::fromLatin1(Communication::Frame::Build(fields)));
    settle();
}

void ScreenshotTour::Scan(const QString &code)
{
    for (const QChar c : code) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(m_window, &press);
    }
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QApplication::sendEvent(m_window, &enter);
    settle();
}

void ScreenshotTour::SaveHistory(const std::function<QString(const QString &)> &numbered, const QString &prefix,
                                 qint64 firing)
{
    m_window->Statemachine(GlobalElements::Pageinterface::Settings);
    m_window->GetUi()->widget_SettingsButtonFiringHistory->GetPushButtonObject()->click();
    Save(numbered(prefix + QStringLiteral("firinghistory")));
    emit m_window->findChild<Records::FiringHistoryView *>()->SignalOpen(firing);
    Save(numbered(prefix + QStringLiteral("firingdetail")));
}

bool ScreenshotTour::Save(const QString &name)
{
    settle();
    const QString path = m_folder + QLatin1Char('/') + name + QStringLiteral(".png");
    if (!m_window->grab().save(path))
        return false;
    m_written << path;
    return true;
}

bool ScreenshotTour::SavePopup(const QString &name, QDialog *popup)
{
    // The popup is drawn inside the window, over the dimmed page.
    popup->open();
    const bool saved = Save(name);
    popup->close();
    settle();
    return saved;
}

QStringList ScreenshotTour::Run()
{
    if (!QDir().mkpath(m_folder))
        return {};
    Ui::MainWindow *ui = m_window->GetUi();
    m_window->show();
    settle();
    int n = 0;
    auto numbered = [&n](const QString &name) {
        return QStringLiteral("%1_%2").arg(n++, 2, 10, QLatin1Char('0')).arg(name);
    };

    Save(numbered(QStringLiteral("splash")));

    // What the controller says at start-up; commissioning keeps the self-test timer quiet.
    Feed("initialstart");
    Feed("name==Ovra S1$$serialno==S1-2304-0087$$hwver==HX3-C$$swver==3.12.0$$ophours==1234");
    Feed("time==0935$$date==20261122$$temp==295$$lang==deutsch$$unit==c");
    Feed("doorclosed"); // the firings below are hot: an open door would bring up the warning
    Feed("code==4711");
    Feed("stdoor==pass$$stheater==pass$$stcooling==fail");
    Feed("error==E1234,E201");
    FeedPrograms();
    const qint64 recorded = m_recorded = SeedFiringRecords();
    Feed("guistate==26"); // leaves the device data page, which ends commissioning
    Feed("guistate==12");
    Feed("guistate==26");

    ProgramHandler::ProgramHandler *store = m_window->GetProgramHandler();
    GlobalElements::Program *speed = store->GetProgramByName(QStringLiteral("Zirkon Speed"));
    GlobalElements::NewProgram *editor = ui->widget_newProg;

    for (int page = 0; page <= int(Page::ChangeProg); ++page) {
        if (page == int(Page::DeviceData)) {
            ui->stackedWidget->setCurrentIndex(page); // shown only once at start-up
            ui->label_Name->setText(QStringLiteral("GERÄTEDATEN"));
        } else if (page == int(Page::PlayProg) || page == int(Page::ProcessProg)) {
            // The program page's firing starts, with the job code scanned there.
            if (page == int(Page::ProcessProg)) {
                ui->widget_playNewProg->GetButtonObject()->click();
                // The later pictures of the program page show it as before a start.
                m_window->EnablePlay();
                ui->widget_timerPlayProg->setVisible(true);
            }
            m_window->Slot_ShowChoosenProgram(speed, static_cast<Page>(page));
            if (page == int(Page::PlayProg))
                Scan(QStringLiteral("A-2026/0117"));
        } else if (page == int(Page::ChangeProg)) {
            m_window->Slot_ShowChoosenProgram(speed, Page::PlayProg);
            m_window->Statemachine(Page::ChangeProg);
        } else {
            m_window->Statemachine(static_cast<Page>(page));
        }
        if (page == int(Page::Selftest)) // results arrive after the page is prepared
            Feed("stdoor==pass$$stheater==pass$$stcooling==fail$$st==fail");
        if (page == int(Page::ServicePIN))
            ui->lineEdit_servicePin->setText(QStringLiteral("12"));
        if (page == int(Page::NewProg)) {
            editor->AddRow(20, 900, 10);
            // The user taps the new row's temperature: the cell the pad types into is marked.
            QWidget *cell = editor->GetRows().last()->GetTempField();
            QMouseEvent tap(QEvent::MouseButtonPress, QPointF(4, 4), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(cell, &tap);
        }
        if (page == int(Page::ProcessProg))
            Feed("temp==1373$$hpinfo==Zirkon Speed;74;2;heat$$esttime==10:49");
        if (page == int(Page::DisplayManufacturer) || page == int(Page::DisplayMaterial)) {
            // One choice made, as the user would.
            const auto buttons = ui->stackedWidget->currentWidget()->findChildren<GlobalElements::Button *>();
            for (GlobalElements::Button *button : buttons) {
                if (button->GetText() == GlobalElements::ProgramFilter::ShownValue(QStringLiteral("user")) ||
                    button->GetText() == QLatin1String("Zirkon"))
                    button->SetChecked(true);
            }
        }
        Save(numbered(QString::fromLatin1(pageNames[page])));
    }
    editor->SlotDeleteTableContent();

    // The editor's other two views, and a refused name.
    m_window->Statemachine(Page::MyProgs);
    m_window->Slot_ShowChoosenProgram(store->GetProgramByName(QStringLiteral("Mein Langzeit")), Page::PlayProg);
    m_window->Statemachine(Page::ChangeProg);
    editor->SlotCreateChart();
    Save(numbered(QStringLiteral("editor_chart")));
    editor->SlotSaveProg(Page::NewProg);
    Save(numbered(QStringLiteral("editor_save")));
    editor->GetNameField()->setText(QStringLiteral("Krone; neu"));
    editor->SlotCheckOverride();
    Save(numbered(QStringLiteral("editor_refused")));
    editor->SlotDeleteTableContent();
    m_window->SlotExitButtonClicked();

    // A program with pre-dry, and with a delayed start.
    m_window->Slot_ShowChoosenProgram(speed, Page::PlayProg);
    m_window->SlotIncPreDryTime();
    m_window->SlotIncPreDryTime();
    Save(numbered(QStringLiteral("program_predry")));
    m_window->Slot_ShowChoosenProgram(speed, Page::PlayProg);
    ui->widget_timerPlayProg->SetChecked(true);
    m_window->GetTimerPopup()->SetDateTime(QStringLiteral("23.11.2026"), QStringLiteral("06:30"));
    m_window->GetTimerPopup()->findChild<QPushButton *>(QStringLiteral("pushButton_ok"))->click();
    Save(numbered(QStringLiteral("program_autostart")));

    // Fahrenheit: the program and a firing under way, then its end.
    Feed("unit==f");
    m_window->Slot_ShowChoosenProgram(store->GetProgramByName(QStringLiteral("Mein Langzeit")), Page::PlayProg);
    Save(numbered(QStringLiteral("program_fahrenheit")));
    m_window->Slot_ShowChoosenProgram(store->GetProgramByName(QStringLiteral("Mein Langzeit")), Page::ProcessProg);
    Feed("temp==1473$$hpinfo==Mein Langzeit;45;2;hold");
    Save(numbered(QStringLiteral("process_fahrenheit")));
    Feed("time==1020$$hpsuccess$$hpinfo==");
    Save(numbered(QStringLiteral("process_success")));
    Feed("unit==c$$time==0935");
    m_window->Slot_ShowChoosenProgram(speed, Page::ProcessProg);
    Feed("temp==1073$$hpinfo==Zirkon Speed;90;1;heat");
    Feed("time==0950$$hpfailed$$hpinfo==");
    Save(numbered(QStringLiteral("process_abort")));
    Feed("time==0935");
    // Pre-drying, then a firing that ends with a failure of each severity.
    m_window->Slot_ShowChoosenProgram(speed, Page::ProcessProg);
    Feed("temp==333$$hpinfo==Zirkon Speed;142;pre;pre");
    Save(numbered(QStringLiteral("process_predry")));
    Feed("temp==1800$$time==1152$$hpinfo==Zirkon Speed;25;3;hold");
    Feed("error==F07,E201,I3050$$hpfailed$$hpinfo==");
    Save(numbered(QStringLiteral("process_result_failures")));
    Feed("time==0935");

    // The job code typed on the panel's keyboard.
    m_window->Slot_ShowChoosenProgram(speed, Page::PlayProg);
    ui->widget_jobPlay->click();
    Scan(QStringLiteral("Praxis Lange 14"));
    ui->widget_jobPlay->click();
    Save(numbered(QStringLiteral("program_jobkeyboard")));
    Scan(QString());

    // The firing history over the settings page, and one firing opened.
    SaveHistory(numbered, QString(), recorded);

    m_window->Statemachine(Page::MainMenu);
    ui->stackedWidget_main->setCurrentIndex(2);
    ui->page_MatChange->setStyleSheet(
        QStringLiteral("QWidget#page_MatChange { background: url(:/Material/Argon.jpg); }"));
    Save(numbered(QStringLiteral("materialchange")));
    ui->stackedWidget_main->setCurrentIndex(3);
    ui->page_DoorIso->setStyleSheet(
        QStringLiteral("QWidget#page_DoorIso { background: url(:/Tuerisolation/TuerisoZirkon.jpg); }"));
    Save(numbered(QStringLiteral("doorinsulation")));
    ui->stackedWidget_main->setCurrentIndex(0);

    // The stick menu as the controller opens it, and the QR code of the device data.
    Feed("usb==in");
    Save(numbered(QStringLiteral("usb_stick")));
    m_window->GenerateQRCode();
    // A phone paired with the lab view, when the home names one: its code popup.
    auto *lab = m_window->findChild<LabLink::LabLinkView *>();
    if (lab != nullptr && lab->Pairing().Config().Available()) {
        QEventLoop answered;
        QObject::connect(&lab->Pairing(), &LabLink::LabPairing::Paired, &answered, &QEventLoop::quit);
        QObject::connect(&lab->Pairing(), &LabLink::LabPairing::Failed, &answered, &QEventLoop::quit);
        lab->Pairing().Start();
        answered.exec();
    }

    SavePopups(numbered, QString());
    SaveLanguages(numbered);
    SaveProcessLanguages(numbered);
    return m_written;
}

void ScreenshotTour::SetLanguages(const QStringList &keywords, bool everything)
{
    m_languages = keywords;
    m_everything = everything;
}

void ScreenshotTour::SavePopups(const std::function<QString(const QString &)> &numbered, const QString &prefix)
{
    m_window->Slot_ShowChoosenProgram(m_window->GetProgramHandler()->GetProgramByName(QStringLiteral("Zirkon Speed")),
                                      Page::PlayProg);
    const QList<QDialog *> popups = m_window->findChildren<QDialog *>();
    for (QDialog *popup : popups) // one at a time, each over the page alone
        popup->close();
    for (QDialog *popup : popups) {
        if (auto *usb = qobject_cast<Popups::PopupUSB *>(popup)) {
            usb->SetText(QCoreApplication::translate("ovra::MainWindow::MainWindow",
                                                     "  Firmware Aktualisierung...\n  Bitte warten..."));
            usb->SlotUpdateProgress(QStringLiteral("37%"));
            usb->SetBusy(true);
        }
        const QString name =
            QString::fromLatin1(popup->metaObject()->className()).section(QStringLiteral("::"), -1).toLower();
        SavePopup(numbered(prefix + QStringLiteral("popup_") + name), popup);
    }
}

// Pages only a full tour in every language shows: the manufacturer filter.
void ScreenshotTour::SaveExtras(const std::function<QString(const QString &)> &numbered, const QString &prefix)
{
    m_window->Statemachine(Page::DisplayManufacturer);
    Save(numbered(prefix + QStringLiteral("filtermanufacturer")));
    m_window->Statemachine(Page::MainMenu);
}

bool ScreenshotTour::InstallTranslations(const QString &builtFolder, const QString &home)
{
    const QString folder = home + QStringLiteral("/Downloads/translations/");
    const QDir built(builtFolder);
    const QStringList files = built.entryList({QStringLiteral("*.qm")});
    if (files.isEmpty() || !QDir().mkpath(folder))
        return false;
    for (const QString &file : files) {
        QFile::remove(folder + file);
        if (!QFile::copy(built.filePath(file), folder + file))
            return false;
    }
    return true;
}

QStringList ScreenshotTour::TourLanguages()
{
    // The six languages the language page offers, then two with other scripts.
    return {QStringLiteral("deutsch"),      QStringLiteral("englischUS"),  QStringLiteral("spanisch"),
            QStringLiteral("franzoesisch"), QStringLiteral("italienisch"), QStringLiteral("portugisisch"),
            QStringLiteral("japanisch"),    QStringLiteral("chinesishc")};
}

QList<int> ScreenshotTour::TourPages()
{
    return {Page::MainMenu,   Page::Progs,    Page::Settings,    Page::Service,  Page::Lists,   Page::LangSelect,
            Page::UnitSelect, Page::DateTime, Page::DeviceData2, Page::Selftest, Page::NewProg, Page::PlayProg};
}

QStringList ScreenshotTour::ProcessLanguages()
{
    return {QStringLiteral("deutsch"),  QStringLiteral("englischUS"), QStringLiteral("franzoesisch"),
            QStringLiteral("russisch"), QStringLiteral("japanisch"),  QStringLiteral("chinesishc")};
}

void ScreenshotTour::SaveProcessLanguages(const std::function<QString(const QString &)> &numbered)
{
    GlobalElements::Program *speed = m_window->GetProgramHandler()->GetProgramByName(QStringLiteral("Zirkon Speed"));
    for (const QString &language : ProcessLanguages()) {
        Feed("lang==" + language.toLatin1());
        for (const char *unit : {"c", "f"}) {
            Feed(QByteArray("unit==") + unit + "$$time==0935");
            m_window->Slot_ShowChoosenProgram(speed, Page::ProcessProg);
            Feed("temp==1373$$hpinfo==Zirkon Speed;74;2;hold");
            Save(numbered(QStringLiteral("%1_%2_process").arg(language, QLatin1String(unit))));
            Feed("temp==1528$$time==1104$$error==F07,E201$$hpsuccess$$hpinfo==");
            Save(numbered(QStringLiteral("%1_%2_process_result").arg(language, QLatin1String(unit))));
        }
    }
    Feed("unit==c$$time==0935$$lang==deutsch");
}

void ScreenshotTour::SaveLanguages(const std::function<QString(const QString &)> &numbered)
{
    Ui::MainWindow *ui = m_window->GetUi();
    GlobalElements::Program *speed = m_window->GetProgramHandler()->GetProgramByName(QStringLiteral("Zirkon Speed"));
    for (const QString &language : qAsConst(m_languages)) {
        Feed("lang==" + language.toLatin1());
        for (int page : TourPages()) {
            if (page == Page::PlayProg) {
                m_window->Slot_ShowChoosenProgram(speed, Page::PlayProg);
                Scan(QStringLiteral("A-2026/0117"));
            } else {
                m_window->Statemachine(static_cast<Page>(page));
            }
            if (page == Page::Selftest)
                Feed("stdoor==pass$$stheater==pass$$stcooling==fail$$st==fail");
            Save(numbered(QStringLiteral("%1_%2").arg(language, QString::fromLatin1(pageNames[page]))));
        }
        SaveHistory(numbered, language + QLatin1Char('_'), m_recorded);
        if (m_everything) {
            SaveExtras(numbered, language + QLatin1Char('_'));
            SavePopups(numbered, language + QLatin1Char('_'));
        }
        m_window->Statemachine(Page::MainMenu);
        ui->stackedWidget_main->setCurrentIndex(0);
    }
    Feed("lang==deutsch");
}

qint64 ScreenshotTour::SeedFiringRecords()
{
    // Earlier days' firings as the panel would have recorded them; the tour's own come after.
    Records::FiringStore store(Records::FiringStore::FileIn(m_window->GetPaths().Home()));
    const auto begin = [this, &store](const char *name, const QString &date, const QString &time, int preDry,
                                      const QString &job = QString()) {
        Records::FiringStart start;
        start.job = job;
        start.program = QString::fromUtf8(name);
        if (const GlobalElements::Program *program = m_window->GetProgramHandler()->GetProgramByName(start.program)) {
            start.heatfileText = GlobalElements::HeatfileText::Write(*program);
            start.material = program->GetMaterial();
        }
        start.preDryMinutes = preDry;
        start.device = QStringLiteral("Ovra S1\nS1-2304-0087\nHX3-C\n3.12.0 / R02E.1\n1210");
        start.date = date;
        start.time = time;
        return store.Begin(start);
    };
    // A furnace that follows the profile a little late, with a small overshoot at each hold.
    const auto fire = [&store](const QList<QList<unsigned int>> &rows, int seconds, int from) {
        double t = 22.0;
        int row = 0;
        int held = 0;
        for (int s = from; s < seconds; ++s) {
            const QList<unsigned int> &r = rows.at(std::min(row, rows.size() - 1));
            if (row < rows.size() && t < r.at(1) - 0.5) {
                t += std::min(r.at(0) / 72.0, (r.at(1) - t) * 0.01 + 0.02);
            } else if (row < rows.size() && ++held >= int(r.at(2)) * 60) {
                ++row;
                held = 0;
            } else if (row >= rows.size()) {
                t -= (t - 200) * 0.0009;
            }
            store.AddSample(s, t + 1.5 * std::sin(s / 40.0));
        }
    };
    begin("Mein Langzeit", QStringLiteral("18.11.2026"), QStringLiteral("07:12"), 0);
    fire({{10, 900, 30}}, 3100, 0);
    store.End(Records::Result::Stopped, QStringLiteral("18.11.2026"), QStringLiteral("08:04"));
    begin("Brücke 14-gliedrig", QStringLiteral("19.11.2026"), QStringLiteral("16:40"), 0);
    fire({{8, 1100, 60}, {4, 1480, 150}}, 9000, 0);
    store.End(Records::Result::Interrupted, QString(), QString());
    begin("DC Zirkon HT", QStringLiteral("20.11.2026"), QStringLiteral("09:05"), 0, QStringLiteral("K-4471.2"));
    fire({{10, 1000, 30}, {5, 1530, 120}}, 6400, 0);
    store.AddFailure(QStringLiteral("20.11.2026 10:52"), QStringLiteral("E1234"));
    store.End(Records::Result::Failed, QStringLiteral("20.11.2026"), QStringLiteral("10:52"));
    const qint64 shown =
        begin("Zirkon Speed", QStringLiteral("21.11.2026"), QStringLiteral("13:30"), 10, QStringLiteral("A-2026/0112"));
    fire({{10, 130, 10}, {40, 900, 0}, {25, 1450, 20}, {10, 1530, 40}}, 11000, 0);
    store.AddFailure(QStringLiteral("21.11.2026 14:41"), QStringLiteral("E201"));
    store.End(Records::Result::Success, QStringLiteral("21.11.2026"), QStringLiteral("16:34"));
    return shown;
}

void ScreenshotTour::FeedPrograms()
{
    struct Sample
    {
        const char *name;
        const char *maker;
        const char *material;
        bool fav;
        QList<QList<unsigned int>> segments; // rate, °C, minutes
    };
    const QList<Sample> samples = {
        {"Zirkon Speed", "user", "Zirkon", true, {{40, 900, 0}, {25, 1450, 20}, {10, 1530, 40}}},
        {"Mein Langzeit", "user", "Zirkon", false, {{10, 900, 30}, {5, 1450, 60}, {3, 1500, 120}}},
        {"Brücke 14-gliedrig", "user", "Zirkon", true, {{8, 1100, 60}, {4, 1480, 150}}},
        {"Argon Krone", "user", "Argon", false, {{15, 850, 10}, {10, 1250, 30}}},
        {"Abendprogramm", "user", "Zirkon", false, {{5, 1500, 180}}},
        {"DC Zirkon HT", "DentaCeram", "Zirkon", false, {{10, 1000, 30}, {5, 1530, 120}}},
        {"DC Zirkon Speed", "DentaCeram", "Zirkon", false, {{35, 1560, 25}}},
        {"ZS Translucent", "Zircos", "Zirkon", false, {{20, 1100, 0}, {8, 1500, 90}}},
        {"ZS Multilayer", "Zircos", "Zirkon", true, {{15, 1200, 20}, {6, 1480, 100}}},
        {"MX Kobalt-Chrom", "Metallix", "Argon", false, {{25, 900, 15}, {10, 1280, 45}}},
        {"Kalibrierung", "service", "Zirkon", false, {{20, 1200, 60}}},
        {"Ausheizen", "service", "Zirkon", false, {{10, 1600, 90}}},
    };
    for (const Sample &sample : samples) {
        // The line carries Latin-1: that is how the panel reads the controller's bytes.
        QByteArray text = "heatfile==[metainfo];name=" + QString::fromUtf8(sample.name).toLatin1() +
                          ";manufacturer=" + sample.maker + ";material=" + sample.material +
                          ";favorite=" + (sample.fav ? "true" : "false") + ";";
        for (int i = 0; i < sample.segments.size(); ++i) {
            const QList<unsigned int> &row = sample.segments.at(i);
            text += "[" + QByteArray::number(i + 1) + "];rate=" + QByteArray::number(row.at(0)) +
                    ";temp=" + QByteArray::number(row.at(1) + 273) + ";hold=" + QByteArray::number(row.at(2) * 60) +
                    ";";
            if (QByteArray(sample.material) == "Argon")
                text += "argon=on;";
        }
        Feed(text);
    }
    for (int i = 1; i <= 14; ++i) // enough to make the user's list scroll
        Feed("heatfile==[metainfo];name=Kunde " + QByteArray::number(100 + i) +
             ";manufacturer=user;material=Zirkon;favorite=false;[1];rate=20;temp=1773;hold=3600;");
}

} // namespace Tools
} // namespace ovra
