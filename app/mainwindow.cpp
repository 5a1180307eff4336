#include "app/mainwindow.h"

#include "app/captions.h"
#include "app/paths.h"
#include "app/scriptupkeep.h"
#include "communication/communicator.h"
#include "communication/internalcommunicator.h"
#include "communication/messagehandler.h"
#include "communication/requests.h"
#include "faults/errorhandler.h"
#include "faults/popupdeletefailurelist.h"
#include "faults/popupfailure.h"
#include "lablink/lablink.h"
#include "lablink/lablinkview.h"
#include "popups/popup.h"
#include "popups/popupargonfailure.h"
#include "popups/popupdeleteprogram.h"
#include "popups/popuplicense.h"
#include "popups/popupqrcode.h"
#include "popups/popupsettings.h"
#include "popups/popupstop.h"
#include "popups/popuptempwarning.h"
#include "popups/popuptimeadjust.h"
#include "popups/popupusb.h"
#include "popups/timerpopup.h"
#include "programs/newprogram.h"
#include "programs/programhandler.h"
#include "ui_mainwindow.h"

#include <QApplication>
#include <QDebug>
#include <QFile>
#include <QTimer>

namespace ovra {
namespace Mainwindow {

using Communication::MessageHandler;
using GlobalElements::Button;
using GlobalElements::Iconbutton;

MainWindow::MainWindow(const GlobalElements::PanelOptions &options, QWidget *parent)
    : QMainWindow(parent), ui(new Ui::MainWindow), m_options(options), m_paths(options.home)
{
    ui->setupUi(this);
    ApplyStyle();
    ui->label_splashVersion->setText(GlobalElements::Pageinterface::versionInfo);

    CreateComponents();
    CreateTimers();

    ConnectOvenLink();
    ConnectComponents();
    SetUpNavigation();
    ConnectPageButtons();
    ConnectPrograms();
    ConnectRecords();
    m_labLink = LabLink::LabLink::FromHome(m_paths.Home(), m_furnace, m_firingRecorder.Store());
    connect(ui->widget_ServiceLabLink, &Button::SignalButtonClicked,
            new LabLink::LabLinkView(m_labLink.get(), m_paths.Home(), this), &QDialog::open);

    ui->stackedWidget_main->setCurrentIndex(1);
    ui->widget_playNewProg->SetCheckable(true);
    ui->widget_timerPlayProg->SetCheckable(true);
    ui->widget_timerPreDry->SetCheckable(true);

    PreparePageUnitSelect();
    PreparePageLanguageSelect();
    ui->progressBar_selftest->setMaximum(GlobalElements::SelftestProgress::maximum);
    ui->pushButton_USBProgress->setEnabled(false);
    // The panel offers its filters from the program lists only.
    for (QWidget *filters : {ui->widget_ProgsButtonDisplayOptions, ui->widget_SettingsButtonDisplayOptions}) {
        filters->setVisible(false);
        filters->setEnabled(false);
    }
    ErrorHandling(); // no failures yet: their symbols and fields stay hidden

    m_externalScripts = QStringList{
        QStringLiteral("/home/pi/Downloads/makeExecutable.py"), QStringLiteral("/home/pi/autostartUserinterface.sh"),
        QStringLiteral("/home/pi/Downloads/decode_and_unzip_lin.py"), QStringLiteral("/home/pi/DispOn/dispOn.py")};
    RewriteExternalScripts();
}

// The parentless core objects are freed here too, so that a leak checker sees a clean exit;
// the line goes first, its handler after it.
MainWindow::~MainWindow()
{
    QCoreApplication::removeTranslator(&m_translator);
    ReleaseListScrolling();
    delete m_communicator;
    delete m_internalCommunicator;
    delete m_messageHandler;
    delete m_programHandler;
    delete m_errorHandler;
    delete m_unusedPulseTimer;
    delete m_preDryPulseTimer;
    delete m_playEnableTimer;
    delete m_selftestStartTimer;
    delete ui;
}

void MainWindow::DrawDevice()
{
    // The start-up page's fields, then the settings page's, in the same order.
    const GlobalElements::DeviceInfo &d = m_furnace.Device();
    const QStringList texts{d.type, d.serial, d.hardware, d.software, d.hours};
    const QList<GlobalElements::DisplayElement *> fields{
        ui->widget_Data1,  ui->widget_Data2,  ui->widget_Data3,  ui->widget_Data4,  ui->widget_Data5,
        ui->widget_Data12, ui->widget_Data22, ui->widget_Data32, ui->widget_Data42, ui->widget_Data52};
    for (int i = 0; i < fields.size(); ++i)
        fields.at(i)->SetText(texts.at(i % texts.size()));
}

void MainWindow::DrawClock()
{
    ui->label_Time->setText(m_furnace.Time());
    ui->widget_time->SetText(m_furnace.Time());
    ui->widget_showTime->SetText(m_furnace.Time());
    ui->label_Date->setText(m_furnace.Date());
    ui->widget_showDate->SetText(m_furnace.Date());
}

bool MainWindow::IsSelftestPending() const
{
    return m_selftestStartTimer->isActive();
}

QString MainWindow::Caption(const char *source) const
{
    return QCoreApplication::translate(Captions::context, source);
}

void MainWindow::ApplyStyle()
{
    QString sheet;
    for (const char *path : {":/style/panel.qss", ":/style/popups.qss"}) {
        QFile file(QString::fromLatin1(path));
        if (file.open(QIODevice::ReadOnly))
            sheet += QString::fromUtf8(file.readAll()) + QLatin1Char('\n');
    }
    qApp->setStyleSheet(sheet);
}

void MainWindow::CreateComponents()
{
    m_errorHandler = new GlobalElements::ErrorHandler();
    m_popupMaterial = new Popups::Popup(this);
    m_popupSettings = new Popups::PopupSettings(this);
    m_popupDeleteFailureList = new Popups::PopupDeleteFailureList(this, m_errorHandler);
    m_timerPopup = new Popups::TimerPopup(this);
    m_popupLicense = new Popups::PopupLicense(this);
    m_popupTimeAdjust = new Popups::PopupTimeAdjust(this);
    m_popupFailure = new Popups::PopupFailure(m_errorHandler, this);
    m_popupStop = new Popups::PopupStop(this);
    m_popupUSB = new Popups::PopupUSB(this);
    m_popupQRCode = new Popups::PopupQRCode(this);
    m_popupArgonFailure = new Popups::PopupArgonFailure(this);
    m_programHandler = new ProgramHandler::ProgramHandler();
    m_messageHandler = new MessageHandler(m_paths);
    m_communicator =
        new Communication::Communicator(m_messageHandler, nullptr, m_options.port, m_options.lineWatchdogMs);
    m_internalCommunicator = new Communication::InternalCommunicator(nullptr, m_options.keyPort);
    m_popupDeleteProgram = new Popups::PopupDeleteProgram(this);
    m_popupTempWarning = new Popups::PopupTempWarning(this);
}

void MainWindow::CreateTimers()
{
    // A first pulse timer has always been made and replaced at once; it is never used.
    m_unusedPulseTimer = new QTimer();
    m_unusedPulseTimer->setInterval(1000);
    m_preDryPulseTimer = new QTimer();
    m_preDryPulseTimer->setInterval(1000);
    connect(m_preDryPulseTimer, &QTimer::timeout, this, &MainWindow::PulsePreDryTimeout);

    m_playEnableTimer = new QTimer();
    m_playEnableTimer->setInterval(m_options.playLockMs);
    m_playEnableTimer->setSingleShot(true);
    connect(m_playEnableTimer, &QTimer::timeout, this, &MainWindow::EnablePlay);

    m_selftestStartTimer = new QTimer();
    m_selftestStartTimer->setSingleShot(true);
    connect(m_selftestStartTimer, &QTimer::timeout, this, &MainWindow::Slot_StartSelftest);
}

void MainWindow::ConnectOvenLink()
{
    MessageHandler *h = m_messageHandler;
    m_furnace.Follow(h);
    connect(&m_furnace, &GlobalElements::FurnaceState::DeviceChanged, this, &MainWindow::DrawDevice);
    connect(&m_furnace, &GlobalElements::FurnaceState::ClockChanged, this, &MainWindow::DrawClock);
    connect(h, &MessageHandler::SignalGuiState, this, &MainWindow::SlotSetRecvGuiState);
    // The controller's "esttime" is the clock time the firing ends at, and says so.
    connect(&m_furnace, &GlobalElements::FurnaceState::FiringEndChanged, this,
            [this](const QString &end) { ui->widget_showPlayTime->SetText(Caption(Captions::EndeUm).arg(end)); });
    connect(h, &MessageHandler::SignalOvenConnected, this, &MainWindow::Statemachine);
    connect(&m_furnace, &GlobalElements::FurnaceState::SelftestChanged, this,
            [this](GlobalElements::FurnaceState::SelftestRow row, const QString &result) {
                using Row = GlobalElements::FurnaceState::SelftestRow;
                if (row == Row::Door)
                    ui->widget_testDoor->SetIconResult(result);
                else if (row == Row::Heater)
                    ui->widget_testHeatsystem->SetIconResult(result);
                else if (row == Row::Cooling)
                    ui->widget_testCooling->SetIconResult(result);
                else if (row == Row::Overall)
                    SlotSelftestResult(result);
            });
    connect(h, &MessageHandler::SignalFailure, this, &MainWindow::SlotErrorHandling);
    connect(h, &MessageHandler::SignalResetFailure, this, &MainWindow::SlotResetError);
    connect(h, &MessageHandler::SignalServicePin, ui->widget_numpad, &GlobalElements::NumPad::SetCode);
    connect(h, &MessageHandler::SignalUserInteractionRequest, this, &MainWindow::SlotUserInteractionRequest);
    connect(h, &MessageHandler::SignalSetLanguage, this, &MainWindow::SlotSetLanguage);
    connect(h, &MessageHandler::SignalSetInitalStartup, this, &MainWindow::SlotSetInitialStartup);
    connect(h, &MessageHandler::SignalSetUnit, this, &MainWindow::SlotSetUnit);
    ConnectUsb();
    ConnectProcessLink();
}

void MainWindow::ConnectComponents()
{
    connect(m_internalCommunicator, &Communication::InternalCommunicator::SignalReceivedTouchEvent, this,
            &MainWindow::Slot_SetTouchEnable);
    connect(m_popupTimeAdjust, &Popups::PopupTimeAdjust::SignalTimeAdjust, this, &MainWindow::SlotAddTimeToRequest);
    connect(m_popupTimeAdjust, &Popups::PopupTimeAdjust::SignalDateAdjust, this, &MainWindow::SlotAddDateToRequest);
    connect(m_popupSettings, &Popups::PopupSettings::SignalPopupSettingsButton, this,
            &MainWindow::SlotResetDeviceSettings);
    connect(m_popupTempWarning, &Popups::PopupTempWarning::SignalRequestDoorClose, this,
            &MainWindow::SlotRequestDoorClose);
    connect(m_popupDeleteFailureList, &Popups::PopupDeleteFailureList::SignalPopupDeleteFailureListButton, this,
            &MainWindow::SlotDeleteFailure);
    connect(m_errorHandler, &GlobalElements::ErrorHandler::SignalErrorListChanged, this, &MainWindow::ErrorHandling);
}

QList<Iconbutton *> MainWindow::PageButtons() const
{
    // The editor has back, exit and forward buttons of its own, which it handles itself.
    QList<Iconbutton *> buttons;
    for (Iconbutton *button : findChildren<Iconbutton *>()) {
        if (!ui->widget_newProg->isAncestorOf(button))
            buttons << button;
    }
    return buttons;
}

void MainWindow::SetUpNavigation()
{
    for (Iconbutton *button : PageButtons()) {
        const QString name = button->objectName();
        if (name.startsWith(QLatin1String("widget_back"))) {
            connect(button, &Iconbutton::Signal_ButtonClicked, this, &MainWindow::SlotBackButtonClicked);
            // A page without a way back keeps its home button where every page has it; the
            // form cannot say so, as uic knows no retainSizeWhenHidden.
            QSizePolicy policy = button->sizePolicy();
            policy.setRetainSizeWhenHidden(true);
            button->setSizePolicy(policy);
        } else if (name.startsWith(QLatin1String("widget_exit")))
            connect(button, &Iconbutton::Signal_ButtonClicked, this, &MainWindow::SlotExitButtonClicked);
        else if (name.startsWith(QLatin1String("widget_fwd")))
            connect(button, &Iconbutton::Signal_ButtonClicked, this, &MainWindow::SlotFwdButtonClicked);
    }

    // The service self-test button asks the controller first, then changes the page.
    connect(ui->widget_ServiceSelftest, &Button::SignalButtonClicked, this, &MainWindow::SlotServiceSelftest);
    // A new program asks for its material first: its tile does not lead to the editor itself.
    for (const Tile &tile : Tiles()) {
        if (tile.next != Page::StartUp && tile.button != ui->widget_ProgsButtonNew)
            connect(tile.button, &Button::SignalButtonClicked, this, &MainWindow::Statemachine);
    }
    connect(ui->widget_numpad, &GlobalElements::NumPad::SignalCorrectCode, this, &MainWindow::Statemachine);
}

void MainWindow::ConnectPageButtons()
{
    for (Iconbutton *door : {ui->widget_doorPlayNewProg, ui->widget_doorProcessProg})
        connect(door, &Iconbutton::Signal_ButtonClicked, this, &MainWindow::SlotMoveDoor);
    connect(ui->widget_MainMenuButtonDoor, &Button::SignalButtonClicked, this, &MainWindow::SlotMoveDoor);
    connect(ui->widget_SettingsButtonDeviceReset, &Button::SignalButtonClicked, m_popupSettings, &QDialog::open);
    connect(ui->widget_stopProcessProg, &Iconbutton::Signal_ButtonClicked, m_popupStop, &QDialog::open);
    connect(ui->widget_processErrorInfo, &Iconbutton::Signal_ButtonClicked, m_popupFailure, &QDialog::open);
    connect(ui->widget_deleteFailureList, &Button::SignalButtonClicked, m_popupDeleteFailureList, &QDialog::open);
    connect(ui->widget_playProgDelete, &Button::SignalButtonClicked, m_popupDeleteProgram, &QDialog::open);
    connect(ui->widget_DateTimeAdjust, &Button::SignalButtonClicked, this, &MainWindow::Slot_ShowTimeAdjustPopup);
    connect(ui->widget_UnitF, &Button::SignalButtonClicked, this, &MainWindow::SlotUnitChanged);
    connect(ui->widget_UnitC, &Button::SignalButtonClicked, this, &MainWindow::SlotUnitChanged);
    for (Button *language : {ui->widget_Lang1, ui->widget_Lang2, ui->widget_Lang3, ui->widget_Lang4, ui->widget_Lang5,
                             ui->widget_Lang6, ui->widget_Lang7, ui->widget_Lang8, ui->widget_Lang9, ui->widget_Lang10,
                             ui->widget_Lang11, ui->widget_Lang12})
        connect(language, &Button::SignalButtonClicked, this, &MainWindow::SlotLanguageChange);
    connect(ui->widget_redoSelftest, &Button::SignalButtonClicked, this, &MainWindow::Slot_StartSelftest);
    connect(ui->widget_LicenseButton, &Button::SignalButtonClicked, this, &MainWindow::SlotShowLicense);
    connect(ui->widget_USBMenuQRCode, &Button::SignalButtonClicked, this, &MainWindow::GenerateQRCode);
    for (GlobalElements::TestDisplayElement *row :
         {ui->widget_testDoor, ui->widget_testHeatsystem, ui->widget_testCooling}) {
        connect(row, &GlobalElements::TestDisplayElement::SignalSelftestResult, this,
                &MainWindow::SlotIncreaseSelftestProgress);
    }
}

void MainWindow::SlotSetRecvGuiState(const QString &state)
{
    // Not a number selects the start page, as the controller expects.
    Statemachine(static_cast<Page>(state.toUInt()));
}

void MainWindow::SlotSetInitialStartup()
{
    // The one place the controller's "initialstart" reaches the model.
    m_furnace.SetCommissioning(true);
}

void MainWindow::SlotUserInteractionRequest()
{
    ui->widget_doorProcessProg->setVisible(true);
}

void MainWindow::Slot_SetTouchEnable(bool enable)
{
    ui->stackedWidget_main->setEnabled(enable);
    // A door left open is closed when the display goes dark, but never during a firing.
    if (!enable && !m_furnace.IsFiring())
        m_messageHandler->SetRequest(Communication::Requests::CloseDoor());
}

void MainWindow::EnablePlay()
{
    ui->widget_playNewProg->setEnabled(true);
    ui->widget_doorPlayNewProg->setEnabled(true);
    m_playEnableTimer->stop();
}

void MainWindow::PulsePreDryButton(bool run)
{
    if (run && !m_preDryPulseTimer->isActive()) {
        m_preDryPulseTimer->start();
    } else if (!run && m_preDryPulseTimer->isActive()) {
        m_preDryPulseTimer->stop();
        ui->widget_timerPreDry->SetIcon(QStringLiteral(":/Vortrocknen/released0.png"));
    }
}

void MainWindow::PulsePreDryTimeout()
{
    m_messageHandler->SetRequest(Communication::Requests::GuiState(m_furnace.CurrentPage()));
}

void MainWindow::RewriteExternalScripts()
{
    GlobalElements::ScriptUpkeep(m_paths).Run(m_externalScripts);
}

} // namespace Mainwindow
} // namespace ovra
