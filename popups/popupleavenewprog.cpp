#include "popups/popupleavenewprog.h"

#include "ui_popupleavenewprog.h"
#include "widgets/confirmbuttons.h"

namespace ovra {
namespace Popups {

PopupLeaveNewProg::PopupLeaveNewProg(Destination destination, QWidget *parent)
    : PopupBase(parent)
    , ui(new Ui::PopupLeaveNewProg)
    , m_destination(destination)
{
    ui->setupUi(this);
    GlobalElements::ConfirmButtons::Setup(ui->pushButton_OK, ui->pushButton_Cancel);
    connect(ui->pushButton_OK, &QPushButton::clicked, this, &PopupLeaveNewProg::SlotOk);
    connect(ui->pushButton_Cancel, &QPushButton::clicked, this, &PopupLeaveNewProg::SlotCancel);
    Translate();
}

PopupLeaveNewProg::~PopupLeaveNewProg() = default;

QString PopupLeaveNewProg::GetMessage() const
{
    return ui->label_Message->text();
}

void PopupLeaveNewProg::Translate()
{
    ui->retranslateUi(this);
    ui->label_Message->setText(m_destination == Destination::MainMenu
                                   ? tr("Programm nicht gespeichert!\nZum Hauptmenü?")
                                   : tr("Programm nicht gespeichert!\nZurück?"));
}

void PopupLeaveNewProg::SlotOk()
{
    emit SignalLeave(true);
    accept();
}

void PopupLeaveNewProg::SlotCancel()
{
    emit SignalLeave(false);
    reject();
}

} // namespace Popups
} // namespace ovra
