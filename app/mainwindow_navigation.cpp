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
    if (redirect.showTemperature)
        ui->widget_temp->setVisible(true);

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
    switch (page) {
    case Page::DeviceData: PreparePageDeviceDataStartUp(); break;
    case Page::Selftest:
        if (from == Page::Service)
            m_origins.selftestOrigin = Page::Service;
        PreparePageSelftest();
        break;
    case Page::MainMenu: PreparePageMainMenu(); break;
    case Page::MyHitlist:
        PreparePageMyHitlist();
        if (from != Page::PlayProg)
            m_origins.hitlistOrigin = static_cast<Page>(from);
        break;
    case Page::Progs: PreparePageProgs(); break;
    case Page::Settings: PreparePageSettings(); break;
    case Page::Service: PreparePageService(); break;
    case Page::ServicePIN: PreparePageServicePin(); break;
    case Page::Lists: PreparePageLists(); break;
    case Page::MyProgs: PreparePageMyPrograms(); break;
    case Page::FixProgs: PreparePageFixPrograms(); break;
    case Page::LangSelect: PreparePageLanguageSelect(); break;
    case Page::UnitSelect: PreparePageUnitSelect(); break;
    case Page::DateTime: PreparePageDateTime(); break;
    case Page::DeviceData2: PreparePageDeviceData(from); break;
    case Page::NewProg:
        if (PageTables::RemembersEditorOrigin(page, from))
            m_origins.editorOrigin = static_cast<Page>(from);
        break;
    case Page::ServiceProgs: PreparePageServicePrograms(); break;
    case Page::FailureList: ui->widget_deleteFailureList->SetText(Caption(Captions::FehlerLoeschen)); break;
    case Page::DisplayOptions:
        if (from == Page::Progs || from == Page::Settings)
            m_origins.filterOrigin = static_cast<Page>(from);
        PreparePageDisplayOptions();
        break;
    case Page::DisplayManufacturer: PreparePageDisplayManufacturer(); break;
    case Page::DisplayMaterial: PreparePageDisplayMaterial(); break;
    case Page::USB: PreparePageUSBMenu(); break;
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

void MainWindow::PreparePageMainMenu()
{
    ui->widget_MainMenuButtonHitlist->SetText(Caption(Captions::Favoriten));
    ui->widget_MainMenuButtonHitlist->SetNextPageIndex(Page::MyHitlist);
    ui->widget_MainMenuButtonSettings->SetText(Caption(Captions::Einstellungen));
    ui->widget_MainMenuButtonSettings->SetNextPageIndex(Page::Settings);
    ui->widget_MainMenuButtonProgs->SetText(Caption(Captions::Programmoptionen));
    ui->widget_MainMenuButtonProgs->SetNextPageIndex(Page::Progs);
    ui->widget_MainMenuButtonService->SetText(Caption(Captions::Service));
    ui->widget_MainMenuButtonService->SetNextPageIndex(Page::Service);
    ui->widget_USBMenuQRCode->SetText(Caption(Captions::QrCodeErzeugen));
    ui->widget_MainMenuButtonDoor->SetText(Caption(Captions::TuerOeffnenSchliessen));
}

void MainWindow::PreparePageProgs()
{
    ui->widget_ProgsButtonLists->SetText(Caption(Captions::Programme));
    ui->widget_ProgsButtonLists->SetNextPageIndex(Page::Lists);
    ui->widget_ProgsButtonNew->SetText(Caption(Captions::NeuesProgramm));
    ui->widget_ProgsButtonNew->SetNextPageIndex(Page::NewProg);
    ui->widget_ProgsButtonService->SetText(Caption(Captions::ServiceProgramme));
    ui->widget_ProgsButtonService->SetNextPageIndex(Page::ServiceProgs);
    ui->widget_ProgsButtonDisplayOptions->SetText(Caption(Captions::Filteroptionen));
    ui->widget_ProgsButtonDisplayOptions->setVisible(false);
    ui->widget_ProgsButtonDisplayOptions->setEnabled(false);
}

void MainWindow::PreparePageSettings()
{
    ui->widget_SettingsButtonLangSelect->SetText(Caption(Captions::Sprache));
    ui->widget_SettingsButtonLangSelect->SetNextPageIndex(Page::LangSelect);
    ui->widget_SettingsButtonUnitSelect->SetText(Caption(Captions::Temperatureinheit));
    ui->widget_SettingsButtonUnitSelect->SetNextPageIndex(Page::UnitSelect);
    ui->widget_SettingsButtonDateTime->SetText(Caption(Captions::DatumUhrzeitButton));
    ui->widget_SettingsButtonDateTime->SetNextPageIndex(Page::DateTime);
    ui->widget_SettingsButtonDeviceData->SetText(Caption(Captions::Geraetedaten));
    ui->widget_SettingsButtonDeviceData->SetNextPageIndex(Page::DeviceData2);
    ui->widget_SettingsButtonDisplayOptions->SetText(Caption(Captions::Filteroptionen));
    ui->widget_SettingsButtonDisplayOptions->setVisible(false);
    ui->widget_SettingsButtonDisplayOptions->setEnabled(false);
    ui->widget_SettingsButtonDeviceReset->SetText(Caption(Captions::Werkseinstellungen));
    ui->widget_LicenseButton->SetText(Caption(Captions::Lizenz));
    ui->widget_SettingsButtonFiringHistory->SetText(Caption(Captions::Brennprotokolle));
}

void MainWindow::PreparePageService()
{
    ui->widget_ServiceDeviceData->SetText(Caption(Captions::Geraetedaten));
    ui->widget_ServiceDeviceData->SetNextPageIndex(Page::DeviceData2);
    ui->widget_ServiceFailureMM->SetText(Caption(Captions::Fehler));
    ui->widget_ServiceFailureMM->SetNextPageIndex(Page::FailureList);
    ui->widget_ServiceSelftest->SetText(Caption(Captions::Systemtest));
    ui->widget_ServiceSelftest->SetNextPageIndex(Page::Selftest);
}

void MainWindow::PreparePageServicePin()
{
    ui->lineEdit_servicePin->clear();
    ui->widget_numpad->Initialize(ui->lineEdit_servicePin, Page::Service);
}

void MainWindow::PreparePageLists()
{
    ui->widget_ListsButtonHitlist->SetText(Caption(Captions::Favoriten));
    ui->widget_ListsButtonHitlist->SetNextPageIndex(Page::MyHitlist);
    ui->widget_ListsButtonMyProgs->SetText(Caption(Captions::MeineProgramme));
    ui->widget_ListsButtonMyProgs->SetNextPageIndex(Page::MyProgs);
    ui->widget_ListsButtonStaticProgs->SetText(Caption(Captions::FesteProgramme));
    ui->widget_ListsButtonStaticProgs->SetNextPageIndex(Page::FixProgs);
}

void MainWindow::PreparePageDateTime()
{
    ui->widget_DateTimeAdjust->SetText(Caption(Captions::DatumUhrzeitEinstellen));
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
    Statemachine(Page::MainMenu);
    m_editMode = false;
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
