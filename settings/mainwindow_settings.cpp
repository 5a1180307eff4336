// Temperature unit, language buttons, date and time, factory reset, licence.
#include "app/captions.h"
#include "app/mainwindow.h"
#include "communication/messagehandler.h"
#include "popups/popuplicense.h"
#include "popups/popuptimeadjust.h"
#include "programs/programhandler.h"
#include "settings/languages.h"
#include "ui_mainwindow.h"

namespace ovra {
namespace Mainwindow {

void MainWindow::PreparePageLanguageSelect()
{
    const QList<GlobalElements::Button *> buttons = {
        ui->widget_Lang1, ui->widget_Lang2, ui->widget_Lang3,  ui->widget_Lang4,
        ui->widget_Lang5, ui->widget_Lang6, ui->widget_Lang7,  ui->widget_Lang8,
        ui->widget_Lang9, ui->widget_Lang10, ui->widget_Lang11, ui->widget_Lang12};
    const QList<Settings::Language> &languages = Settings::Languages();
    // The offered languages close ranks in the grid; the others keep their places behind them.
    int cell = 0;
    for (bool offered : {true, false}) {
        for (int i = 0; i < buttons.size(); ++i) {
            if (languages.at(i).offered != offered)
                continue;
            buttons.at(i)->SetText(languages.at(i).label);
            buttons.at(i)->setVisible(offered);
            ui->gridLayout_lang->addWidget(buttons.at(i), cell / 3, cell % 3);
            ++cell;
        }
    }
}

void MainWindow::PreparePageUnitSelect()
{
    ui->widget_UnitC->SetText(tr("°C  Celsius"));
    ui->widget_UnitF->SetText(tr("°F  Fahrenheit"));
    ui->widget_UnitC->SetIcon(QStringLiteral(":/Icons/unit.png"));
    ui->widget_UnitF->SetIcon(QStringLiteral(":/Icons/unit.png"));
    ui->widget_UnitC->SetCheckable(true);
    ui->widget_UnitF->SetCheckable(true);
    ui->widget_UnitC->SetChecked(!m_fahrenheit);
    ui->widget_UnitF->SetChecked(m_fahrenheit);
}

void MainWindow::SlotSetUnit(const QString &unit)
{
    m_fahrenheit = unit == QLatin1String("f");
    m_doorTempLimit = m_fahrenheit ? 572 : 300;
}

void MainWindow::SlotUnitChanged()
{
    m_fahrenheit = sender() == ui->widget_UnitF;
    m_messageHandler->SetRequest(m_fahrenheit ? QStringLiteral("unit==f") : QStringLiteral("unit==c"));
    m_doorTempLimit = m_fahrenheit ? 572 : 300;
    ui->widget_UnitC->SetChecked(!m_fahrenheit);
    ui->widget_UnitF->SetChecked(m_fahrenheit);
}

void MainWindow::Slot_ShowTimeAdjustPopup()
{
    m_popupTimeAdjust->SetDateTime(ui->label_Date->text(), ui->label_Time->text());
    m_popupTimeAdjust->open();
}

void MainWindow::SlotAddTimeToRequest(const QString &time)
{
    m_messageHandler->SetRequest(QStringLiteral("time==") + time);
}

void MainWindow::SlotAddDateToRequest(const QString &date)
{
    m_messageHandler->SetRequest(QStringLiteral("date==") + date);
}

void MainWindow::SlotResetDeviceSettings(bool confirmed)
{
    if (!confirmed)
        return;
    // The user's own programs go first, each with its own "hpdelete==", so the controller's
    // store and ours agree before it restores its settings.
    QList<GlobalElements::Program *> *own =
        m_programHandler->GetProgramListSortedByManufacturer(ProgramHandler::ProgramHandler::userManufacturer);
    QStringList names;
    for (const GlobalElements::Program *program : qAsConst(*own))
        names << program->GetName();
    delete own;
    for (const QString &name : qAsConst(names))
        m_programHandler->Slot_DeleteProgramFromList(name);
    m_messageHandler->SetRequest(QStringLiteral("defaultsettings"));
}

void MainWindow::SlotShowLicense()
{
    m_popupLicense->open();
}

} // namespace Mainwindow
} // namespace ovra
