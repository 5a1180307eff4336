// The USB stick menu and the QR code of the device data: what the service technician and
// the operator do with a stick in the furnace's socket. The protocol is in docs/usb.md.
#include "app/captions.h"
#include "app/logutils.h"
#include "app/mainwindow.h"
#include "communication/messagehandler.h"
#include "faults/errorhandler.h"
#include "popups/popupqrcode.h"
#include "popups/popupusb.h"
#include "records/firingreport.h"
#include "settings/devicereport.h"
#include "settings/qrcode.h"
#include "settings/usbfileaction.h"
#include "settings/usbstick.h"
#include "ui_mainwindow.h"

#include <QCoreApplication>
#include <QDebug>
#include <QMap>

#include <algorithm>
#include <tuple>

namespace ovra {
namespace Mainwindow {

using Communication::MessageHandler;
using GlobalElements::Button;

void MainWindow::PreparePageUSBMenu()
{
    // The menu's tiles are captioned with the page; the popup's progress button is no tile.
    ui->pushButton_USBProgress->setText(Caption(Captions::Bereit));
}

bool MainWindow::CanShowUsbMenu() const
{
    // A stick never pulls the user out of a firing, the editor, the self-test or start-up.
    const QList<Page> busy = {Page::StartUp,  Page::DeviceData,  Page::Selftest,  Page::NewProg,
                              Page::PlayProg, Page::ProcessProg, Page::ChangeProg};
    return m_startupShown && !m_furnace.IsCommissioning() && !m_furnace.IsFiring() && !m_editMode &&
           ui->stackedWidget_main->currentIndex() == 0 && !busy.contains(m_furnace.CurrentPage());
}

void MainWindow::ConnectUsb()
{
    using Settings::UsbSession;
    using Action = UsbSession::Action;
    UsbSession *usb = &m_furnace.Usb();
    const QList<std::tuple<Button *, Action, const char *>> actions = {
        {ui->widget_USBMenuFWUpdate, Action::Firmware, Captions::ProgressFirmware},
        {ui->widget_USBMenuConfigUpdate, Action::Config, Captions::ProgressConfig},
        {ui->widget_USBMenuLoadMyProgs, Action::LoadPrograms, Captions::ProgressLoad},
        {ui->widget_USBMenuSaveMyProgs, Action::SavePrograms, Captions::ProgressSave},
        {ui->widget_USBMenuBackup, Action::Backup, Captions::ProgressBackup},
    };
    QMap<Action, const char *> progress;
    for (const auto &entry : actions) {
        const Action action = std::get<1>(entry);
        connect(std::get<0>(entry), &Button::SignalButtonClicked, this, [usb, action] { usb->Begin(action); });
        progress.insert(action, std::get<2>(entry));
    }
    usb->SetAnswerTimeoutMs(m_options.usbAnswerTimeoutMs);
    usb->SetMenuGuard([this] { return CanShowUsbMenu(); });
    connect(usb, &UsbSession::SignalShowMenu, this, [this] { Statemachine(Page::USB); });
    connect(usb, &UsbSession::SignalCloseMenu, this, [this] {
        if (m_furnace.CurrentPage() == Page::USB)
            Statemachine(Page::MainMenu);
    });
    connect(usb, &UsbSession::SignalBegan, this, [this, progress](Action action) {
        qDebug() << "usb:" << QString::fromUtf8(progress.value(action)).simplified();
        m_popupUSB->SetText(Caption(progress.value(action)));
        m_popupUSB->SlotUpdateProgress(QStringLiteral("0"));
        m_popupUSB->SetBusy(true);
        m_popupUSB->open();
    });
    connect(usb, &UsbSession::SignalUnaskedResult, m_popupUSB, &QDialog::open);
    connect(usb, &UsbSession::SignalRequest, m_messageHandler, &MessageHandler::SetRequest);
    connect(usb, &UsbSession::SignalRunFileAction, this, &MainWindow::RunUsbFileAction);
    connect(usb, &UsbSession::SignalFinished, this, [this](bool success) {
        if (success)
            m_popupUSB->SlotUpdateProgress(QStringLiteral("100"));
        m_popupUSB->SetText(Caption(success ? Captions::ProgressSuccess : Captions::ProgressFailed));
        m_popupUSB->SetBusy(false);
    });

    connect(m_messageHandler, &MessageHandler::SignalUpdateProgress, m_popupUSB, &Popups::PopupUSB::SlotUpdateProgress);
}

void MainWindow::RunUsbFileAction(Settings::UsbSession::Action action)
{
    using Action = Settings::UsbSession::Action;
    namespace Files = Settings::UsbFileAction;
    const QString stick = Settings::UsbStick::Find(m_options.usbDir);
    QString error;
    bool success = false;
    if (stick.isEmpty()) {
        error = QStringLiteral("no USB stick is mounted");
    } else if (action == Action::SavePrograms) {
        success = Files::SavePrograms(*m_programHandler, stick, &error);
    } else if (action == Action::LoadPrograms) {
        success = Files::LoadPrograms(
            *m_programHandler, stick, [this](const QString &request) { m_messageHandler->SetRequest(request); },
            &error);
    } else if (action == Action::Backup) {
        // Two thousand firings take minutes on the board: the controller's frames are
        // answered meanwhile, and the popup counts up.
        const auto progress = [this](int done, int total) {
            m_popupUSB->SlotUpdateProgress(QString::number(done * 100 / std::max(total, 1)));
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        };
        const auto report =
            Records::FiringReport::Writer(Settings::DeviceReport::From(m_furnace.Device()), m_furnace.IsFahrenheit());
        const Files::BackupSources sources{
            DeviceReportText(), m_furnace.Device().serial, m_paths.Home(), &m_firingRecorder.Store(), report, progress};
        success = Files::Backup(*m_programHandler, stick, sources, &error);
    }
    m_furnace.Usb().FileActionDone(success, error);
}

QString MainWindow::DeviceReportText() const
{
    Settings::DeviceReport::Data device = Settings::DeviceReport::From(m_furnace.Device());
    device.failures = m_errorHandler->GetErrorList().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    return Settings::DeviceReport::Text(device);
}

void MainWindow::GenerateQRCode()
{
    const Settings::QrCode code = Settings::QrCode::Encode(DeviceReportText().toUtf8());
    if (code.Size() == 0)
        qDebug() << "QR code: the device data do not fit into one";
    m_popupQRCode->SetCode(code);
    m_popupQRCode->open();
}

} // namespace Mainwindow
} // namespace ovra
