// Language and temperature unit, date and time, factory reset, licence.
#include "app/captions.h"
#include "app/mainwindow.h"
#include "communication/messagehandler.h"
#include "communication/requests.h"
#include "faults/failureseverity.h"
#include "popups/popupbase.h"
#include "popups/popuplicense.h"
#include "popups/popuptimeadjust.h"
#include "programs/newprogram.h"
#include "programs/programhandler.h"
#include "settings/languages.h"
#include "settings/temperatureunit.h"
#include "ui_mainwindow.h"

#include <QDebug>
#include <QEvent>
#include <QFileInfo>

namespace ovra {
namespace Mainwindow {

void MainWindow::SlotSetLanguage(const QString &lang)
{
    if (lang == m_furnace.Language())
        return;
    ApplyLanguage(Settings::ChoiceFromController(lang));
}

void MainWindow::SlotLanguageChange()
{
    const auto *button = qobject_cast<const GlobalElements::Button *>(sender());
    if (button == nullptr)
        return;
    ApplyLanguage(Settings::ChoiceFromButton(button->GetText()));
}

void MainWindow::ApplyLanguage(const Settings::LanguageChoice &choice)
{
    QCoreApplication::removeTranslator(&m_translator);
    m_languageFile.clear();
    const QString path = Settings::TranslationPath(m_paths, choice.file);
    // Only the named file: the translator would otherwise fall back to shorter names.
    if (QFileInfo(path).isFile() && m_translator.load(path)) {
        QCoreApplication::installTranslator(&m_translator);
        m_languageFile = choice.file;
        for (Popups::PopupBase *popup : findChildren<Popups::PopupBase *>())
            popup->Translate();
        ui->widget_newProg->Translate();
        m_messageHandler->SetRequest(Communication::Requests::Language(choice.keyword));
        m_furnace.SetLanguage(choice.current);
        qDebug() << "language" << choice.keyword << "from" << path;
    } else {
        // Nothing is reported, so the controller's next "lang" tries the same file again.
        qDebug() << "translation not loaded:" << path << "- German texts shown";
    }
    RetranslateWindow();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        RetranslateWindow();
    QMainWindow::changeEvent(event);
}

void MainWindow::RetranslateWindow()
{
    ui->retranslateUi(this);
    if (m_titleSource != nullptr)
        SetTitle(Caption(m_titleSource), true);
    // The captions of every page, not only the one showing: some pages are shown again without
    // being prepared (the editor's, the program page coming back from a firing).
    CaptionTiles(-1);
    PreparePageLanguageSelect();
    PreparePageUnitSelect();
    PreparePageUSBMenu();
    SetDeviceDataCaptions();
    SetSelftestCaptions();
    ui->textEdit_FailureList->setPlainText(GlobalElements::FailureSeverity::History(m_furnace.FailureLog()));
    ErrorHandling();
    ui->widget_processGlance->Refresh();
    ui->widget_processSummary->Refresh();
    SetPlayButtonCaptions();
}

void MainWindow::PreparePageLanguageSelect()
{
    const QList<GlobalElements::Button *> buttons = {
        ui->widget_Lang1, ui->widget_Lang2, ui->widget_Lang3, ui->widget_Lang4,  ui->widget_Lang5,  ui->widget_Lang6,
        ui->widget_Lang7, ui->widget_Lang8, ui->widget_Lang9, ui->widget_Lang10, ui->widget_Lang11, ui->widget_Lang12};
    const QList<Settings::Language> &languages = Settings::Languages();
    const int shown = Settings::ShownLanguageRow(m_languageFile);
    int cell = 0;
    for (int i : Settings::LanguagePageOrder(shown)) {
        buttons.at(i)->setVisible(Settings::OnLanguagePage(i, shown));
        buttons.at(i)->SetText(languages.at(i).label);
        buttons.at(i)->SetCheckable(true);
        buttons.at(i)->SetChecked(i == shown);
        ui->gridLayout_lang->addWidget(buttons.at(i), cell / 3, cell % 3);
        ++cell;
    }
}

void MainWindow::PreparePageUnitSelect()
{
    ui->widget_UnitC->SetText(Caption(Captions::Celsius));
    ui->widget_UnitF->SetText(Caption(Captions::Fahrenheit));
    ui->widget_UnitC->SetCheckable(true);
    ui->widget_UnitF->SetCheckable(true);
    ui->widget_UnitC->SetChecked(!m_furnace.IsFahrenheit());
    ui->widget_UnitF->SetChecked(m_furnace.IsFahrenheit());
}

// The model has taken the controller's unit already; the editor and the unit page follow it.
void MainWindow::SlotSetUnit(const QString &)
{
    ui->widget_newProg->SetUnitToFahrenheit(m_furnace.IsFahrenheit());
    PreparePageUnitSelect();
}

void MainWindow::SlotUnitChanged()
{
    m_furnace.SetFahrenheit(sender() == ui->widget_UnitF);
    m_messageHandler->SetRequest(Communication::Requests::Unit(m_furnace.IsFahrenheit()));
    SlotSetUnit(QString());
}

void MainWindow::Slot_ShowTimeAdjustPopup()
{
    m_popupTimeAdjust->SetDateTime(m_furnace.Date(), m_furnace.Time());
    m_popupTimeAdjust->open();
}

void MainWindow::SlotAddTimeToRequest(const QString &time)
{
    m_messageHandler->SetRequest(Communication::Requests::Time(time));
}

void MainWindow::SlotAddDateToRequest(const QString &date)
{
    m_messageHandler->SetRequest(Communication::Requests::Date(date));
}

void MainWindow::SlotResetDeviceSettings(bool confirmed)
{
    if (!confirmed)
        return;
    // The user's own programs go first, each with its own "hpdelete==", so the controller's
    // store and ours agree before it restores its settings.
    m_programHandler->DeleteUserPrograms();
    m_messageHandler->SetRequest(Communication::Requests::FactoryReset());
}

void MainWindow::SlotShowLicense()
{
    m_popupLicense->open();
}

} // namespace Mainwindow
} // namespace ovra
