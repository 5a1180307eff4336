#include "popups/popupoverrideprog.h"

#include "ui_popupoverrideprog.h"
#include "widgets/confirmbuttons.h"

namespace ovra {
namespace Popups {

PopupOverrideProg::PopupOverrideProg(QWidget *parent)
    : PopupBase(parent)
    , ui(new Ui::PopupOverrideProg)
{
    ui->setupUi(this);
    GlobalElements::ConfirmButtons::Setup(ui->pushButton_OK, ui->pushButton_Cancel);
    connect(ui->pushButton_OK, &QPushButton::clicked, this, &PopupOverrideProg::SlotOk);
    connect(ui->pushButton_Cancel, &QPushButton::clicked, this, &PopupOverrideProg::SlotCancel);
}

PopupOverrideProg::~PopupOverrideProg() = default;

void PopupOverrideProg::Translate()
{
    ui->retranslateUi(this);
}

void PopupOverrideProg::SlotOk()
{
    emit SignalOverrideProg(true);
    accept();
}

void PopupOverrideProg::SlotCancel()
{
    emit SignalOverrideProg(false);
    reject();
}

} // namespace Popups
} // namespace ovra
