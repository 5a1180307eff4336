#include "popups/popupstop.h"

#include "ui_popupstop.h"
#include "widgets/confirmbuttons.h"

namespace ovra {
namespace Popups {

PopupStop::PopupStop(QWidget *parent)
    : PopupBase(parent)
    , ui(new Ui::PopupStop)
{
    ui->setupUi(this);
    GlobalElements::ConfirmButtons::Setup(ui->pushButton_OK, ui->pushButton_Cancel);
    connect(ui->pushButton_OK, &QPushButton::clicked, this, &PopupStop::SlotOk);
    connect(ui->pushButton_Cancel, &QPushButton::clicked, this, &PopupStop::SlotCancel);
}

PopupStop::~PopupStop() = default;

void PopupStop::Translate()
{
    ui->retranslateUi(this);
}

void PopupStop::SlotOk()
{
    emit SignalPopupStopButton(true);
    accept();
}

void PopupStop::SlotCancel()
{
    emit SignalPopupStopButton(false);
    reject();
}

} // namespace Popups
} // namespace ovra
