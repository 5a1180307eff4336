// The USB stick menu and the QR code of the device data: what the service technician and
// the operator do with a stick in the furnace's socket. The protocol is in docs/usb.md.
#include "app/captions.h"
#include "app/logutils.h"
#include "app/mainwindow.h"
#include "communication/messagehandler.h"
#include "communication/requests.h"
#include "faults/errorhandler.h"
#include "popups/popupqrcode.h"
#include "popups/popupusb.h"
#include "programs/heatfiletext.h"
#include "programs/programhandler.h"
#include "records/firingexport.h"
#include "records/firingreport.h"
#include "settings/devicereport.h"
#include "settings/qrcode.h"
#include "settings/usbfiles.h"
#include "settings/usbstick.h"
#include "ui_mainwindow.h"

#include <QCoreApplication>
#include <QDebug>
#include <QTimer>

#include <algorithm>
#include <tuple>

namespace ovra {
namespace Mainwindow {

using GlobalElements::Program;

namespace {
const QString stickIn = QStringLiteral("in");
const QString stickOut = QStringLiteral("out");
const QString actionDone = QStringLiteral("done");
const QString actionFailed = QStringLiteral("failed");

QList<const Program *> Constant(const QList<Program *> &programs)
{
    QList<const Program *> result;
    for (const Program *program : programs)
        result << program;
    return result;
}

// The store's filtered lists are the caller's to delete.
QList<const Program *> Taken(QList<Program *> *programs)
{
    const QList<const Program *> result = Constant(*programs);
    delete programs;
    return result;
}
} // namespace

void MainWindow::PreparePageUSBMenu()
{
    ui->pushButton_USBProgress->setText(Caption(Captions::Bereit));
    ui->widget_USBMenuFWUpdate->SetText(Caption(Captions::FirmwareAktualisierung));
    ui->widget_USBMenuConfigUpdate->SetText(Caption(Captions::KonfigurationAktualisieren));
    ui->widget_USBMenuLoadMyProgs->SetText(Caption(Captions::MeineProgrammeLaden));
    ui->widget_USBMenuSaveMyProgs->SetText(Caption(Captions::MeineProgrammeSichern));
    ui->widget_USBMenuBackup->SetText(Caption(Captions::DatenSichern));
    ui->widget_USBMenuQRCode->SetText(Caption(Captions::QrCodeErzeugen));
}

bool MainWindow::CanShowUsbMenu() const
{
    // A stick never pulls the user out of a firing, the editor, the self-test or start-up.
    const QList<Page> busy = {Page::StartUp,  Page::DeviceData,  Page::Selftest,  Page::NewProg,
                              Page::PlayProg, Page::ProcessProg, Page::ChangeProg};
    return m_startupShown && !m_furnace.IsCommissioning() && !m_furnace.IsFiring() && !m_editMode &&
           ui->stackedWidget_main->currentIndex() == 0 && !busy.contains(m_furnace.CurrentPage());
}

void MainWindow::SlotCheckUsbStick(const QString &state)
{
    if (state == stickIn) {
        m_usbStickIn = true;
        if (CanShowUsbMenu())
            Statemachine(Page::USB);
    } else if (state == stickOut) {
        m_usbStickIn = false;
        if (m_usbAction == UsbAction::Firmware || m_usbAction == UsbAction::Config)
            FinishUsbAction(false, QStringLiteral("the stick was pulled"));
        if (m_furnace.CurrentPage() == Page::USB)
            Statemachine(Page::MainMenu);
    } else if (state == actionDone || state == actionFailed) {
        if (m_usbAction != UsbAction::None && m_usbAction != UsbAction::Firmware && m_usbAction != UsbAction::Config) {
            qDebug() << "usb: controller's" << state << "while the panel works on the stick, ignored";
            return;
        }
        if (m_usbAction == UsbAction::None) {
            // An update the controller began on its own: its result is shown all the same.
            m_usbAction = UsbAction::Firmware;
            m_popupUSB->open();
        }
        FinishUsbAction(state == actionDone, QStringLiteral("the controller reports ") + state);
    } else {
        qDebug() << "usb: unknown state" << state;
    }
}

void MainWindow::SlotUSBInProgress()
{
    if (m_usbAction != UsbAction::None)
        return;
    const QList<std::tuple<QObject *, UsbAction, const char *>> actions = {
        {ui->widget_USBMenuFWUpdate, UsbAction::Firmware, Captions::ProgressFirmware},
        {ui->widget_USBMenuConfigUpdate, UsbAction::Config, Captions::ProgressConfig},
        {ui->widget_USBMenuLoadMyProgs, UsbAction::LoadPrograms, Captions::ProgressLoad},
        {ui->widget_USBMenuSaveMyProgs, UsbAction::SavePrograms, Captions::ProgressSave},
        {ui->widget_USBMenuBackup, UsbAction::Backup, Captions::ProgressBackup},
    };
    for (const auto &action : actions) {
        if (std::get<0>(action) == sender())
            m_usbAction = std::get<1>(action);
    }
    const auto chosen =
        std::find_if(actions.cbegin(), actions.cend(), [this](const auto &a) { return std::get<1>(a) == m_usbAction; });
    if (chosen == actions.cend())
        return;
    qDebug() << "usb:" << QString::fromUtf8(std::get<2>(*chosen)).simplified();
    m_popupUSB->SetText(Caption(std::get<2>(*chosen)));
    m_popupUSB->SlotUpdateProgress(QStringLiteral("0"));
    m_popupUSB->SetBusy(true);
    m_popupUSB->open();

    if (m_usbAction == UsbAction::Firmware || m_usbAction == UsbAction::Config) {
        // The controller does these from the stick; without its word that one is in, it cannot.
        if (!m_usbStickIn) {
            FinishUsbAction(false, QStringLiteral("the controller reports no stick"));
            return;
        }
        m_messageHandler->SetRequest(m_usbAction == UsbAction::Firmware
                                         ? Communication::Requests::FirmwareUpdateFromStick()
                                         : Communication::Requests::ConfigUpdateFromStick());
        m_usbAnswerTimer->start();
        return;
    }
    // The popup is painted with its "please wait" before the stick is touched.
    QTimer::singleShot(0, this, &MainWindow::RunUsbFileAction);
}

void MainWindow::RunUsbFileAction()
{
    const QString stick = Settings::UsbStick::Find(m_options.usbDir);
    const Settings::UsbFiles files(stick);
    QString error;
    bool success = false;
    if (stick.isEmpty()) {
        error = QStringLiteral("no USB stick is mounted");
    } else if (m_usbAction == UsbAction::SavePrograms) {
        success = files.SavePrograms(Taken(m_programHandler->GetProgramListSortedByManufacturer(
                                         ProgramHandler::ProgramHandler::userManufacturer)),
                                     &error);
    } else if (m_usbAction == UsbAction::LoadPrograms) {
        success = LoadProgramsFromStick(stick, &error);
    } else if (m_usbAction == UsbAction::Backup) {
        const QString folder =
            files.Backup(Constant(*m_programHandler->GetProgramList()), DeviceReportText(), m_furnace.Device().serial,
                         GlobalElements::logFolderName, QDateTime::currentDateTime(), &error);
        success = !folder.isEmpty();
        if (success) {
            m_firingRecorder.Store().Flush();
            // Two thousand firings take minutes on the board: the controller's frames are
            // answered meanwhile, and the popup counts up.
            const auto progress = [this](int done, int total) {
                m_popupUSB->SlotUpdateProgress(QString::number(done * 100 / std::max(total, 1)));
                QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            };
            success = Records::ExportFirings(m_paths.Home(), folder + QStringLiteral("/records"), &error, false,
                                             Records::FiringReport::Writer(DeviceData(), m_furnace.IsFahrenheit()), progress);
            qDebug() << "usb: backup written to" << folder;
        }
    }
    FinishUsbAction(success, error);
}

bool MainWindow::LoadProgramsFromStick(const QString &stick, QString *error)
{
    QStringList taken;
    // The store's own list, not a copy.
    for (const Program *program : qAsConst(*m_programHandler->GetProgramList())) {
        if (program->GetManufacturer() != ProgramHandler::ProgramHandler::userManufacturer)
            taken << program->GetName();
    }
    QList<Program *> loaded;
    if (!Settings::UsbFiles(stick).LoadPrograms(taken, &loaded, error))
        return false;
    // Like programs from the controller: one of the same name is replaced, in our store and,
    // through "heatfile==", in the controller's.
    for (Program *program : qAsConst(loaded)) {
        m_programHandler->Slot_AddReceivedProgram(program);
        if (program->IsFav())
            m_programHandler->Slot_SetProgramToFav(program);
        else
            m_programHandler->Slot_DeleteProgramFromFavoriteList(program);
        m_messageHandler->SetRequest(
            Communication::Requests::NewProgram(GlobalElements::HeatfileText::Write(*program)));
    }
    qDebug() << "usb:" << loaded.size() << "programs loaded";
    return true;
}

void MainWindow::FinishUsbAction(bool success, const QString &reason)
{
    if (m_usbAction == UsbAction::None)
        return;
    if (!success)
        qDebug() << "usb: failed:" << reason;
    m_usbAnswerTimer->stop();
    m_usbAction = UsbAction::None;
    if (success)
        m_popupUSB->SlotUpdateProgress(QStringLiteral("100"));
    m_popupUSB->SetText(Caption(success ? Captions::ProgressSuccess : Captions::ProgressFailed));
    m_popupUSB->SetBusy(false);
}

QString MainWindow::DeviceReportText() const
{
    Settings::DeviceReport::Data device = DeviceData();
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
