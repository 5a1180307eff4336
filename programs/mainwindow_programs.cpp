// The program list and filter pages, favourites, deletion and the change of a program.
#include "app/captions.h"
#include "app/mainwindow.h"
#include "communication/messagehandler.h"
#include "communication/requests.h"
#include "popups/popup.h"
#include "popups/popupdeleteprogram.h"
#include "process/chart.h"
#include "programs/newprogram.h"
#include "programs/programfilter.h"
#include "programs/programhandler.h"
#include "ui_mainwindow.h"
#include "widgets/button.h"
#include "widgets/programbutton.h"

#include <QScroller>
#include <QTimer>

#include <algorithm>

namespace ovra {
namespace Mainwindow {

using GlobalElements::Button;
using GlobalElements::Program;
using GlobalElements::ProgramButton;
using ProgramHandler::ProgramHandler;

namespace {
// Five rows fill the list page; the first rows cover a flick down as well. The rest come in
// one go: every batch into a shown list lays out all its rows again.
constexpr int firstListRows = 24;
} // namespace

void MainWindow::ConnectPrograms()
{
    using Communication::MessageHandler;
    GlobalElements::NewProgram *editor = ui->widget_newProg;
    connect(editor, &GlobalElements::NewProgram::SignalSaveNewProg, m_programHandler,
            &ProgramHandler::Slot_AddProgramToList);
    connect(m_programHandler, &ProgramHandler::SignalSendProgToHX3, m_messageHandler, &MessageHandler::SetRequest);
    connect(m_programHandler, &ProgramHandler::SignalSendProgToHX3, this, &MainWindow::CheckChangeInProcess);
    connect(m_programHandler, &ProgramHandler::SignalAddToRequest, m_messageHandler, &MessageHandler::SetRequest);
    connect(m_programHandler, &ProgramHandler::SignalShowProg, this,
            [this](Program *program) { Slot_ShowChoosenProgram(program, Page::PlayProg); });
    connect(m_messageHandler, &MessageHandler::SignalMaxRate, editor, &GlobalElements::NewProgram::SetMaxHeatRate);
    connect(m_messageHandler, &MessageHandler::SignalHeatfileReceived, m_programHandler,
            &ProgramHandler::Slot_AddReceivedProgram);
    connect(m_messageHandler, &MessageHandler::SignalSetProgToFav, this, &MainWindow::SlotSetProgToFav);
    connect(m_messageHandler, &MessageHandler::SignalHeatfileCount, this, &MainWindow::SlotCheckHeatfileCount);

    connect(m_popupMaterial, &Popups::Popup::SignalPopupButton, this, &MainWindow::Slot_MaterialSelected);
    // A new program starts as a zirconia program without asking: the material preset first,
    // then the editor is told a new program is under way.
    for (Button *newButton : {ui->widget_ProgsButtonNew, ui->widget_myProgsNew}) {
        connect(newButton, &Button::SignalButtonClicked, m_popupMaterial,
                &Popups::Popup::on_pushButton_ZirkonPopup_clicked);
        connect(newButton, &Button::SignalButtonClicked, editor, &GlobalElements::NewProgram::SlotSetNewProgram);
    }
    connect(ui->widget_playProgChange, &Button::SignalButtonClicked, this, &MainWindow::SlotChangeProg);
    connect(m_popupDeleteProgram, &Popups::PopupDeleteProgram::SignalDeleteProgram, this, &MainWindow::SlotDeleteProg);
    connect(editor, &GlobalElements::NewProgram::SignalExitNewProg, this, &MainWindow::SlotExitButtonClicked);
    connect(editor, &GlobalElements::NewProgram::SignalBackToProgs, this, &MainWindow::SlotBackButtonClicked);

    // Long lists scroll with a finger, with momentum.
    for (QScrollArea *area : ListAreas())
        QScroller::grabGesture(area->viewport(), QScroller::LeftMouseButtonGesture);
}

QList<QScrollArea *> MainWindow::ListAreas() const
{
    return {ui->scrollArea_Hitlist,      ui->scrollArea_MyProgs,      ui->scrollArea_FixProgs,
            ui->scrollArea_ServiceProgs, ui->scrollArea_Manufacturer, ui->scrollArea_Material};
}

void MainWindow::ReleaseListScrolling()
{
    // Leaves no flick gesture registered for a widget that is going away.
    for (QScrollArea *area : ListAreas())
        QScroller::ungrabGesture(area->viewport());
}

void MainWindow::ClearProgramButtons()
{
    // A batch still queued for the old list finds nothing left, or the new list's rows.
    m_pendingPrograms.clear();
    for (ProgramButton *button : qAsConst(m_programButtons)) {
        button->hide();
        button->deleteLater();
    }
    m_programButtons.clear();
    // No button holds a replaced or deleted program any more.
    m_programHandler->ReleaseRetired();
}

void MainWindow::FillProgramList(QVBoxLayout *layout, QList<Program *> *programs)
{
    ClearProgramButtons();
    m_pendingLayout = layout;
    m_pendingPrograms = *programs;
    delete programs;
    // A row costs a quarter of a millisecond here and more on the board. A screenful and
    // more is built before the page shows, so the tap is answered at once however long the
    // list; the rest follows as soon as the page is up.
    AddProgramRows(firstListRows);
}

void MainWindow::AddProgramRows(int count)
{
    if (m_pendingPrograms.isEmpty())
        return;
    // One repaint for the whole batch, not one per row.
    QWidget *list = m_pendingLayout->parentWidget();
    list->setUpdatesEnabled(false);
    int at = m_pendingLayout->count() - 1; // before the closing spacer
    for (; count > 0 && !m_pendingPrograms.isEmpty(); --count) {
        auto *button = new ProgramButton();
        button->SetButtonProgram(m_pendingPrograms.takeFirst()); // shows the name and the favourite state too
        m_pendingLayout->insertWidget(at++, button);
        connect(button, &ProgramButton::SignalProgButtonClicked, this,
                [this](Program *p) { Slot_ShowChoosenProgram(p, Page::PlayProg); });
        connect(button, &ProgramButton::SignalSetProgToFav, this, &MainWindow::SlotSetProgToFav);
        m_programButtons.append(button);
    }
    list->setUpdatesEnabled(true);
    if (m_pendingPrograms.isEmpty())
        return;
    QTimer::singleShot(0, this, [this] { AddProgramRows(m_pendingPrograms.size()); });
}

void MainWindow::PreparePageMyHitlist()
{
    FillProgramList(ui->verticalLayout_listHitlist, m_programHandler->GetFavoriteProgramList());
}

void MainWindow::PreparePageMyPrograms()
{
    ui->widget_myProgsNew->SetText(Caption(Captions::NeuesProgramm));
    QList<Program *> *programs = m_programHandler->GetProgramListSortedByManufacturer(ProgramHandler::userManufacturer);
    CheckForFilterOption(*programs);
    FillProgramList(ui->verticalLayout_listMyProgs, programs);
}

void MainWindow::PreparePageFixPrograms()
{
    FillProgramList(ui->verticalLayout_listFixProgs, m_programHandler->GetFixProgramList());
}

void MainWindow::PreparePageServicePrograms()
{
    FillProgramList(ui->verticalLayout_listServiceProgs,
                    m_programHandler->GetProgramListSortedByManufacturer(ProgramHandler::serviceManufacturer));
}

void MainWindow::CheckForFilterOption(QList<Program *> &programs) const
{
    auto checkedTexts = [](const QList<Button *> &buttons) {
        QStringList texts;
        for (const Button *button : buttons) {
            if (button->IsChecked())
                texts << button->GetText().remove(QLatin1Char(' '));
        }
        return texts;
    };
    GlobalElements::ProgramFilter::Apply(programs, checkedTexts(m_manufacturerButtons),
                                         checkedTexts(m_materialButtons));
}

void MainWindow::PreparePageDisplayOptions()
{
    ui->widget_DisplayButtonManufacturer->SetText(Caption(Captions::Hersteller));
    ui->widget_DisplayButtonManufacturer->SetNextPageIndex(Page::DisplayManufacturer);
    ui->widget_DisplayButtonMaterial->SetText(Caption(Captions::Material));
    ui->widget_DisplayButtonMaterial->SetNextPageIndex(Page::DisplayMaterial);
}

void MainWindow::AddFilterButtons(QVBoxLayout *layout, QList<Button *> &buttons, bool byManufacturer)
{
    QStringList shown;
    for (const Button *button : qAsConst(buttons))
        shown << button->GetText();
    const QStringList values =
        GlobalElements::ProgramFilter::NewButtonValues(*m_programHandler->GetProgramList(), byManufacturer, shown);
    for (const QString &value : values) {
        auto *button = new Button();
        button->SetText(value);
        button->SetCheckable(true);
        button->setMinimumHeight(64);
        layout->insertWidget(layout->count() - 1, button);
        buttons.append(button);
    }
}

void MainWindow::PreparePageDisplayManufacturer()
{
    AddFilterButtons(ui->verticalLayout_listManufacturer, m_manufacturerButtons, true);
}

void MainWindow::PreparePageDisplayMaterial()
{
    AddFilterButtons(ui->verticalLayout_listMaterial, m_materialButtons, false);
}

void MainWindow::SlotSetProgToFav(bool on, Program *program)
{
    if (program == nullptr)
        return;
    if (on)
        m_programHandler->Slot_SetProgramToFav(program);
    else
        m_programHandler->Slot_DeleteProgramFromFavoriteList(program);
    m_messageHandler->SetRequest(Communication::Requests::Favourite(program->GetName(), on));
}

void MainWindow::SlotDeleteProg()
{
    const QString name = m_title;
    m_programHandler->Slot_DeleteProgramFromList(name);
    m_pendingPrograms.erase(std::remove_if(m_pendingPrograms.begin(), m_pendingPrograms.end(),
                                           [&name](const Program *p) { return p->GetName() == name; }),
                            m_pendingPrograms.end());
    for (int i = m_programButtons.size() - 1; i >= 0; --i) {
        if (m_programButtons.at(i)->GetText() == name) {
            m_programButtons.at(i)->hide();
            m_programButtons.at(i)->deleteLater();
            m_programButtons.removeAt(i);
        }
    }
    // Back to the list the program was chosen from, now without it.
    SlotBackButtonClicked();
}

void MainWindow::SlotChangeProg()
{
    Statemachine(Page::ChangeProg);
}

void MainWindow::PreparePageChangeProgram(const QString &name)
{
    m_programHandler->SetChangeActive();
    QList<Program *> *own = m_programHandler->GetProgramListSortedByManufacturer(ProgramHandler::userManufacturer);
    Program *found = nullptr;
    for (Program *program : qAsConst(*own)) {
        if (program->GetName() == name)
            found = program;
    }
    delete own;
    ui->widget_newProg->SetSelectedMaterial(ui->widget_materialPlay->GetText());
    if (found != nullptr)
        ui->widget_newProg->ChangeProgram(found, m_saveAtOnce);
}

void MainWindow::CheckChangeInProcess(const QString &message)
{
    // Whatever program carried it, the change of the running program has gone out: the next
    // program opened for a change is saved the usual way, and progress reports count again.
    if (message.contains(QLatin1String("hpchange"))) {
        m_saveAtOnce = false;
        m_changeInProcess = false;
    }
}

void MainWindow::SlotCheckHeatfileCount(int count)
{
    if (ProgramHandler::ProgramHandler::NeedsResend(count, m_programHandler->GetProgramList()->size(),
                                                    m_hfresendCount)) {
        m_messageHandler->SetRequest(Communication::Requests::ResendHeatfiles());
        ++m_hfresendCount;
    }
}

void MainWindow::Slot_MaterialSelected(const QString &material)
{
    ui->widget_newProg->SetSelectedMaterial(material);
    Statemachine(Page::NewProg);
}

} // namespace Mainwindow
} // namespace ovra
