#pragma once

#include "app/commandline.h"
#include "app/furnacestate.h"
#include "app/pageinterface.h"
#include "app/pagetables.h"
#include "app/paths.h"
#include "faults/selftestprogress.h"
#include "process/firingrules.h"
#include "process/firingsummary.h"
#include "process/jobcode.h"
#include "records/firingrecorder.h"
#include "settings/devicereport.h"
#include "settings/usbsession.h"

#include <QMainWindow>
#include <QStringList>
#include <QTranslator>

#include <memory>

class QTimer;
class QPlainTextEdit;
class QScrollArea;
class QVBoxLayout;

namespace Ui {
class MainWindow;
}

namespace ovra {
namespace Communication {
class Communicator;
class InternalCommunicator;
class MessageHandler;
} // namespace Communication
namespace GlobalElements {
class Button;
class Iconbutton;
class ErrorHandler;
class Program;
class ProgramButton;
class ProgramLists;
} // namespace GlobalElements
namespace ProgramHandler {
class ProgramHandler;
} // namespace ProgramHandler
namespace Popups {
class Popup;
class PopupArgonFailure;
class PopupDeleteFailureList;
class PopupDeleteProgram;
class PopupFailure;
class PopupLicense;
class PopupQRCode;
class PopupSettings;
class PopupStop;
class PopupTempWarning;
class PopupTimeAdjust;
class PopupUSB;
class TimerPopup;
} // namespace Popups
namespace Settings {
struct LanguageChoice;
} // namespace Settings
namespace Process {
class AutostartNoteView;
}
namespace Records {
class FiringHistoryScreens;
} // namespace Records
namespace LabLink {
class LabLink;
} // namespace LabLink

namespace Mainwindow {

// The one window: creates, owns and wires every object of the panel. Slots read widgets,
// call the logic that lives elsewhere and write widgets back.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(const GlobalElements::PanelOptions &options, QWidget *parent = nullptr);
    ~MainWindow() override;

    Communication::MessageHandler *GetMessageHandler() const { return m_messageHandler; }
    Communication::Communicator *GetCommunicator() const { return m_communicator; }
    Communication::InternalCommunicator *GetInternalCommunicator() const { return m_internalCommunicator; }
    GlobalElements::ErrorHandler *GetErrorHandler() const { return m_errorHandler; }
    ProgramHandler::ProgramHandler *GetProgramHandler() const { return m_programHandler; }
    const QList<GlobalElements::ProgramButton *> &GetProgramButtons() const;
    Ui::MainWindow *GetUi() const { return ui; }
    const GlobalElements::Paths &GetPaths() const { return m_paths; }
    Page CurrentPage() const { return m_furnace.CurrentPage(); }
    bool IsEditMode() const { return m_editMode; }
    bool IsStartupShown() const { return m_startupShown; }
    const PageOrigins &Origins() const { return m_origins; }
    const GlobalElements::FurnaceState &Furnace() const { return m_furnace; }
    unsigned int PreDryMinutes() const { return m_preDryMinutes; }
    Popups::TimerPopup *GetTimerPopup() const { return m_timerPopup; }
    Popups::PopupTempWarning *GetTempWarning() const { return m_popupTempWarning; }
    Popups::PopupArgonFailure *GetArgonFailurePopup() const { return m_popupArgonFailure; }
    bool IsSelftestPending() const;

public slots:
    // The only way to change the page.
    void Statemachine(ovra::GlobalElements::Pageinterface::en_pages page);
    void SlotExitButtonClicked();
    void SlotBackButtonClicked();
    void SlotFwdButtonClicked();

    void SlotSetRecvGuiState(const QString &state);
    void SlotSetInitialStartup();
    void SlotUserInteractionRequest();
    void Slot_SetTouchEnable(bool enable);
    void EnablePlay();
    void PulsePreDryButton(bool run);
    void PulsePreDryTimeout();

    // Self-test.
    void Slot_StartSelftest();
    void SlotServiceSelftest();
    void SlotIncreaseSelftestProgress(const QString &result);
    void SlotSelftestResult(const QString &result);

    // Failures.
    void SlotErrorHandling(const QString &codes);
    void SlotResetError(const QString &codes);
    void ErrorHandling();
    void SlotDeleteFailure();

    // Programs: list pages, filters, favourites, deletion, change.
    void Slot_ShowChoosenProgram(ovra::GlobalElements::Program *program,
                                 ovra::GlobalElements::Pageinterface::en_pages page);
    void SlotSetProgToFav(bool on, ovra::GlobalElements::Program *program);
    void SlotDeleteProg();
    void SlotChangeProg();
    void CheckChangeInProcess(const QString &message);
    void SlotCheckHeatfileCount(int count);
    void Slot_MaterialSelected(const QString &material);

    // Firing: start, progress, result, stop, end-time estimate, pre-dry and delayed start.
    void SlotGenerateProgRequest();
    void SlotHeatfileInProgress();
    void SlotSetHeatProcessResult(ovra::Communication::FiringResult result);
    void SlotReqStopHeatfile(bool confirmed);
    void SlotChartClicked();
    void CalculateProcessTime(ovra::GlobalElements::Program *program, unsigned short preDry, const QString &timer);
    void UpdateProcessTime();
    void DisplayRemainingTime(qint64 minutes);
    void SlotIncPreDryTime();
    void Slot_ShowTimerPopup();

    // Material, door insulation and argon.
    void SlotMaterialChanged(const QString &material);
    void SlotMaterialChangedReaction();
    void SlotSetArgonOven(const QString &text);
    void SlotArgonPressureFailure(const QString &result);
    void SlotInsulationMissing();
    void SlotDoorIsolationInsert();

    // Temperature and door.
    void SlotTempReceived();
    void CheckTempDoor();
    void SlotDoor(ovra::Communication::DoorState state);
    void SlotMoveDoor();
    void SlotRequestDoorClose();

    // Language, unit and date/time (settings).
    void SlotSetLanguage(const QString &lang);
    void SlotLanguageChange();
    void SlotSetUnit(const QString &unit);
    void SlotUnitChanged();
    void Slot_ShowTimeAdjustPopup();
    void SlotAddTimeToRequest(const QString &time);
    void SlotAddDateToRequest(const QString &date);
    void SlotResetDeviceSettings(bool confirmed);
    void SlotShowLicense();

    // QR code (service).
    void GenerateQRCode();

protected:
    void changeEvent(QEvent *event) override;

private:
    void CreateComponents();
    void CreateTimers();
    void ConnectOvenLink();
    void ConnectComponents();
    void SetUpNavigation();
    QList<GlobalElements::Iconbutton *> PageButtons() const;
    void ConnectPageButtons();
    void ConnectProcessLink();
    void DrawDevice();
    void DrawClock();
    void ApplyStyle();

    QString Caption(const char *source) const;
    // A menu tile: its page, caption and the page it leads to (StartUp: none of its own).
    struct Tile
    {
        Page page;
        GlobalElements::Button *button;
        const char *caption;
        Page next;
    };
    QList<Tile> Tiles() const;
    void CaptionTiles(int page); // -1: every page's
    void SetTitle(const QString &title, bool upperCase);
    void PreparePage(Page page, int from);

    // Page preparations; those of the program, filter and service pages grow with them.
    void PreparePageDeviceDataStartUp();
    void PreparePageServicePin();
    void PreparePageLanguageSelect();
    void PreparePageUnitSelect();
    void PreparePageDeviceData(int from);
    void PreparePageSelftest();
    void PreparePageMyHitlist();
    void PreparePageMyPrograms();
    void PreparePageFixPrograms();
    void PreparePageServicePrograms();
    void PreparePageDisplayManufacturer();
    void PreparePageDisplayMaterial();
    void PreparePageUSBMenu();
    void ShowFailureHistory();
    void PreparePageChangeProgram(const QString &name);
    void PreparePagePlay(int from);
    // Fills the program or process page from a program without switching to it.
    void FillProgramPage(GlobalElements::Program *program, bool play);
    void PreparePageProcess(int from);
    // The caption under the result symbol, in the language now shown; none without a result.
    void ShowProcessEndButtons();
    void RemoveAutostartNote();
    void SetPlayButtonCaptions();
    void SetDeviceDataCaptions();
    void SetSelftestCaptions();
    void ApplyLanguage(const Settings::LanguageChoice &choice);
    // Every text of the window's own pages again, in the language now installed.
    void RetranslateWindow();
    void ConnectPrograms();
    QList<QScrollArea *> ListAreas() const;
    void ReleaseListScrolling();
    void RewriteExternalScripts();

    bool CanShowUsbMenu() const;
    void ConnectUsb();
    void RunUsbFileAction(Settings::UsbSession::Action action);
    QString DeviceReportText() const;

    Ui::MainWindow *ui;
    GlobalElements::PanelOptions m_options;
    const GlobalElements::Paths m_paths;
    // Firing records: they observe the furnace, and are never seen by the controller.
    Records::FiringRecorder m_firingRecorder{m_paths.Home()};
    // What the panel knows of the furnace; declared after the recorder that observes it.
    GlobalElements::FurnaceState m_furnace;
    // The furnace on the lab's broker, when <home>/lablink.ini asks for it; observes the two above.
    std::unique_ptr<LabLink::LabLink> m_labLink;
    // The job code for the next start, entered on the program page; follows the furnace's page.
    Process::JobCode m_jobCode{m_furnace};
    Process::FiringSummary m_firingSummary;
    // The page title as shown: the program's name on the program, process and editor pages.
    QString m_title;
    // The firing history, shown over the current page (records/mainwindow_records.cpp).
    void ConnectRecords();
    Records::FiringHistoryScreens *m_firingHistory = nullptr;

    // Owned components, created in this order. The parentless ones live until the
    // process ends; the popups belong to the window.
    GlobalElements::ErrorHandler *m_errorHandler = nullptr;
    Popups::Popup *m_popupMaterial = nullptr;
    Popups::PopupSettings *m_popupSettings = nullptr;
    Popups::PopupDeleteFailureList *m_popupDeleteFailureList = nullptr;
    Popups::TimerPopup *m_timerPopup = nullptr;
    Popups::PopupLicense *m_popupLicense = nullptr;
    Popups::PopupTimeAdjust *m_popupTimeAdjust = nullptr;
    Popups::PopupFailure *m_popupFailure = nullptr;
    Popups::PopupStop *m_popupStop = nullptr;
    Popups::PopupUSB *m_popupUSB = nullptr;
    Popups::PopupQRCode *m_popupQRCode = nullptr;
    Popups::PopupArgonFailure *m_popupArgonFailure = nullptr;
    ProgramHandler::ProgramHandler *m_programHandler = nullptr;
    Communication::MessageHandler *m_messageHandler = nullptr;
    Communication::Communicator *m_communicator = nullptr;
    Communication::InternalCommunicator *m_internalCommunicator = nullptr;
    Popups::PopupDeleteProgram *m_popupDeleteProgram = nullptr;
    Popups::PopupTempWarning *m_popupTempWarning = nullptr;

    QTimer *m_unusedPulseTimer = nullptr;
    QTimer *m_preDryPulseTimer = nullptr;
    QTimer *m_playEnableTimer = nullptr;
    QTimer *m_selftestStartTimer = nullptr;

    QStringList m_externalScripts;

    // Language: the file whose texts show (empty: the German source texts), and the one
    // translator; the keyword is the furnace model's.
    QString m_languageFile;
    QTranslator m_translator;
    // Caption of the page title, re-applied on a language change; none for a program's name.
    const char *m_titleSource = nullptr;
    // The USB stick menu's dealings with the controller; the window draws them.

    // State flags.
    bool m_startupShown = false;
    bool m_editMode = false;
    const QString m_selftestPassWord = QStringLiteral("pass");

    // Program pages: their rows and filter buttons.
    GlobalElements::ProgramLists *m_programLists = nullptr;
    quint16 m_hfresendCount = 0;
    bool m_saveAtOnce = false;
    bool m_changeInProcess = false;

    // Firing.
    unsigned int m_preDryMinutes = 0;
    Process::AutostartNoteView *m_autostartNote = nullptr;
    // The program last shown on the program or process page: the program page is rebuilt from
    // it whenever it is entered, by back or by the controller, when the title holds another page's.
    QString m_shownProgramName;
    // Set while Slot_ShowChoosenProgram switches to the page it has just filled.
    bool m_programPageFilled = false;

    // Navigation memory; the current page is the furnace model's.
    PageOrigins m_origins;

    // Self-test rows counted since the page was entered.
    GlobalElements::SelftestProgress m_selftestProgress;
};

} // namespace Mainwindow
} // namespace ovra
