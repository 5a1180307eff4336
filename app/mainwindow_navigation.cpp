// Page changes: the state machine and the back, forward and exit buttons.
#include "app/captions.h"
#include "app/mainwindow.h"
#include "communication/messagehandler.h"
#include "communication/requests.h"
#include "programs/newprogram.h"
#include "ui_mainwindow.h"

#include <QTimer>

namespace ovra {
namespace Mainwindow {

using GlobalElements::Pageinterface;

void MainWindow::Statemachine(Pageinterface::en_pages requested)
{
    const Page current = m_furnace.CurrentPage();
    const int from = current;
    const PageTables::Redirect redirect =
        PageTables::ResolveRequest(requested, current, m_startupShown, m_furnace.IsCommissioning());
    if (redirect.action == PageTables::Redirect::Action::Ignore)
        return;
    if (redirect.action == PageTables::Redirect::Action::EndCommissioning) {
        m_furnace.SetCommissioning(false);
        return;
    }
    Page page = redirect.page;

    QString title;
    const char *titleSource = nullptr;
    bool upperCase = true;
    if (page == Page::PlayProg) {
        PreparePagePlay(from);
        ui->stackedWidget_main->setCurrentIndex(0);
        title = m_title;
        upperCase = false;
    } else if (page == Page::ProcessProg) {
        PreparePageProcess(from);
        ui->stackedWidget_main->setCurrentIndex(0);
        title = m_title;
        upperCase = false;
    } else {
        ui->stackedWidget_main->setCurrentIndex(0);
        if (page >= Page::DeviceData && page <= Page::ChangeProg) {
            titleSource = PageTables::Title(page);
            if (titleSource != nullptr)
                title = Caption(titleSource);
            if (page == Page::ChangeProg) {
                titleSource = nullptr;
                title = m_title;
                upperCase = from != Page::PlayProg && from != Page::ProcessProg;
                if (PageTables::RemembersEditorOrigin(page, from))
                    m_origins.editorOrigin = static_cast<Page>(from);
                PreparePageChangeProgram(title);
                page = Page::NewProg; // shown and reported as the editor
            } else {
                PreparePage(page, from);
            }
        }
    }

    SetTitle(title, upperCase);
    m_titleSource = titleSource;

    if (!m_editMode || page == Page::NewProg)
        ui->stackedWidget->setCurrentIndex(static_cast<int>(page));
    ui->widget_temp->setVisible(PageTables::HeaderShowsTemperature(page));

    if (page != current)
        m_messageHandler->SetRequest(Communication::Requests::GuiState(page));
    m_furnace.SetPage(page);
}

void MainWindow::SetTitle(const QString &title, bool upperCase)
{
    m_title = upperCase ? title.toUpper() : title;
    ui->label_Name->setText(m_title);
}

void MainWindow::PreparePage(Page page, int from)
{
    CaptionTiles(page);
    switch (page) {
    case Page::DeviceData: PreparePageDeviceDataStartUp(); break;
    case Page::Selftest:
        if (from == Page::Service)
            m_origins.selftestOrigin = Page::Service;
        PreparePageSelftest();
        break;
    case Page::MyHitlist:
        PreparePageMyHitlist();
        if (from != Page::PlayProg)
            m_origins.hitlistOrigin = static_cast<Page>(from);
        break;
    case Page::ServicePIN: PreparePageServicePin(); break;
    case Page::MyProgs: PreparePageMyPrograms(); break;
    case Page::FixProgs: PreparePageFixPrograms(); break;
    case Page::LangSelect: PreparePageLanguageSelect(); break;
    case Page::UnitSelect: PreparePageUnitSelect(); break;
    case Page::DeviceData2: PreparePageDeviceData(from); break;
    case Page::NewProg:
        if (PageTables::RemembersEditorOrigin(page, from))
            m_origins.editorOrigin = static_cast<Page>(from);
        break;
    case Page::ServiceProgs: PreparePageServicePrograms(); break;
    case Page::DisplayOptions:
        if (from == Page::Progs || from == Page::Settings)
            m_origins.filterOrigin = static_cast<Page>(from);
        break;
    case Page::DisplayManufacturer: PreparePageDisplayManufacturer(); break;
    case Page::DisplayMaterial: PreparePageDisplayMaterial(); break;
    case Page::USB: PreparePageUSBMenu(); break;
    case Page::FailureList: ShowFailureHistory(); break;
    default: break;
    }
}

void MainWindow::PreparePageDeviceDataStartUp()
{
    SetDeviceDataCaptions();
    if (!m_furnace.IsCommissioning())
        m_selftestStartTimer->start(m_options.selftestDelayMs);
    m_preDryPulseTimer->start();
    m_startupShown = true;
}

void MainWindow::PreparePageServicePin()
{
    ui->lineEdit_servicePin->clear();
    ui->widget_numpad->Initialize(ui->lineEdit_servicePin, ui->label_servicePinLock, Page::Service);
}

QList<MainWindow::Tile> MainWindow::Tiles() const
{
    const Page none = Page::StartUp; // a tile that leads to no page of its own
    return {
        {Page::MainMenu, ui->widget_MainMenuButtonHitlist, Captions::Favoriten, Page::MyHitlist},
        {Page::MainMenu, ui->widget_MainMenuButtonSettings, Captions::Einstellungen, Page::Settings},
        {Page::MainMenu, ui->widget_MainMenuButtonProgs, Captions::Programmoptionen, Page::Progs},
        {Page::MainMenu, ui->widget_MainMenuButtonService, Captions::Service, Page::Service},
        {Page::MainMenu, ui->widget_MainMenuButtonDoor, Captions::TuerOeffnenSchliessen, none},
        {Page::Progs, ui->widget_ProgsButtonLists, Captions::Programme, Page::Lists},
        {Page::Progs, ui->widget_ProgsButtonNew, Captions::NeuesProgramm, Page::NewProg},
        {Page::Progs, ui->widget_ProgsButtonService, Captions::ServiceProgramme, Page::ServiceProgs},
        {Page::Progs, ui->widget_ProgsButtonDisplayOptions, Captions::Filteroptionen, none},
        {Page::Settings, ui->widget_SettingsButtonLangSelect, Captions::Sprache, Page::LangSelect},
        {Page::Settings, ui->widget_SettingsButtonUnitSelect, Captions::Temperatureinheit, Page::UnitSelect},
        {Page::Settings, ui->widget_SettingsButtonDateTime, Captions::DatumUhrzeitButton, Page::DateTime},
        {Page::Settings, ui->widget_SettingsButtonDeviceData, Captions::Geraetedaten, Page::DeviceData2},
        {Page::Settings, ui->widget_SettingsButtonDisplayOptions, Captions::Filteroptionen, none},
        {Page::Settings, ui->widget_SettingsButtonDeviceReset, Captions::Werkseinstellungen, none},
        {Page::Settings, ui->widget_LicenseButton, Captions::Lizenz, none},
        {Page::Settings, ui->widget_SettingsButtonFiringHistory, Captions::Brennprotokolle, none},
        {Page::Service, ui->widget_ServiceDeviceData, Captions::Geraetedaten, Page::DeviceData2},
        {Page::Service, ui->widget_ServiceFailureMM, Captions::Fehler, Page::FailureList},
        {Page::Service, ui->widget_ServiceSelftest, Captions::Systemtest, Page::Selftest},
        {Page::Service, ui->widget_ServiceLabLink, Captions::LaborVerbindung, none},
        {Page::Lists, ui->widget_ListsButtonHitlist, Captions::Favoriten, Page::MyHitlist},
        {Page::Lists, ui->widget_ListsButtonMyProgs, Captions::MeineProgramme, Page::MyProgs},
        {Page::Lists, ui->widget_ListsButtonStaticProgs, Captions::FesteProgramme, Page::FixProgs},
        {Page::DateTime, ui->widget_DateTimeAdjust, Captions::DatumUhrzeitEinstellen, none},
        {Page::DisplayOptions, ui->widget_DisplayButtonManufacturer, Captions::Hersteller, Page::DisplayManufacturer},
        {Page::DisplayOptions, ui->widget_DisplayButtonMaterial, Captions::Material, Page::DisplayMaterial},
        {Page::MyProgs, ui->widget_myProgsNew, Captions::NeuesProgramm, none},
        {Page::FailureList, ui->widget_deleteFailureList, Captions::FehlerLoeschen, none},
        {Page::PlayProg, ui->widget_playProgChange, Captions::ProgrammAendern, none},
        {Page::PlayProg, ui->widget_playProgDelete, Captions::ProgrammLoeschen, none},
        {Page::USB, ui->widget_USBMenuFWUpdate, Captions::FirmwareAktualisierung, none},
        {Page::USB, ui->widget_USBMenuConfigUpdate, Captions::KonfigurationAktualisieren, none},
        {Page::USB, ui->widget_USBMenuLoadMyProgs, Captions::MeineProgrammeLaden, none},
        {Page::USB, ui->widget_USBMenuSaveMyProgs, Captions::MeineProgrammeSichern, none},
        {Page::USB, ui->widget_USBMenuBackup, Captions::DatenSichern, none},
        {Page::USB, ui->widget_USBMenuQRCode, Captions::QrCodeErzeugen, none},
    };
}

void MainWindow::CaptionTiles(int page)
{
    for (const Tile &tile : Tiles()) {
        if (page >= 0 && static_cast<int>(tile.page) != page)
            continue;
        tile.button->SetText(Caption(tile.caption));
        if (tile.next != Page::StartUp)
            tile.button->SetNextPageIndex(tile.next);
    }
}

void MainWindow::PreparePageDeviceData(int from)
{
    m_origins.deviceDataOrigin = static_cast<Page>(from);
    SetDeviceDataCaptions();
}

void MainWindow::SetDeviceDataCaptions()
{
    const char *captions[] = {Captions::TypBaureihe, Captions::Seriennummer, Captions::Hardwareversion,
                              Captions::Softwareversion, Captions::Betriebsstunden};
    QLabel *startUp[] = {ui->label_DeviceData1, ui->label_DeviceData2, ui->label_DeviceData3, ui->label_DeviceData4,
                         ui->label_DeviceData5};
    QLabel *menu[] = {ui->label_DeviceData21, ui->label_DeviceData22, ui->label_DeviceData23, ui->label_DeviceData24,
                      ui->label_DeviceData25};
    for (int i = 0; i < 5; ++i) {
        startUp[i]->setText(Caption(captions[i]));
        menu[i]->setText(Caption(captions[i]));
    }
}

void MainWindow::SlotExitButtonClicked()
{
    ui->widget_newProg->ResetName();
    // A change of the running program, and its saving at once, end with the editor.
    m_changeInProcess = false;
    m_saveAtOnce = false;
    // Out of edit mode first: the main menu is shown, not only reported.
    m_editMode = false;
    Statemachine(Page::MainMenu);
}

void MainWindow::SlotBackButtonClicked()
{
    const int shown = ui->stackedWidget->currentIndex();
    if (shown == Page::NewProg) {
        m_editMode = false;
        m_changeInProcess = false;
        m_saveAtOnce = false;
        ui->widget_newProg->ResetName();
    }
    Statemachine(PageTables::BackTarget(shown, m_origins));
}

void MainWindow::SlotFwdButtonClicked()
{
    Statemachine(PageTables::ForwardTarget(ui->stackedWidget->currentIndex()));
}

} // namespace Mainwindow
} // namespace ovra
