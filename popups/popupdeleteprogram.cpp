#include "popups/popupdeleteprogram.h"

#include "ui_popupdeleteprogram.h"
#include "widgets/confirmbuttons.h"

namespace ovra {
namespace Popups {

PopupDeleteProgram::PopupDeleteProgram(QWidget *parent)
    : PopupBase(parent)
    , ui(new Ui::PopupDeleteProgram)
{
    ui->setupUi(this);
    GlobalElements::ConfirmButtons::Setup(ui->pushButton_OK, ui->pushButton_Cancel);
    connect(ui->pushButton_OK, &QPushButton::clicked, this, &PopupDeleteProgram::SlotOk);
    connect(ui->pushButton_Cancel, &QPushButton::clicked, this, &QDialog::reject);
}

PopupDeleteProgram::~PopupDeleteProgram() = default;

void PopupDeleteProgram::Translate()
{
    ui->retranslateUi(this);
}

void PopupDeleteProgram::SlotOk()
{
    emit SignalDeleteProgram();
    accept();
}

} // namespace Popups
} // namespace ovra
