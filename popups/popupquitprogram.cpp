#include "popups/popupquitprogram.h"

#include "ui_popupquitprogram.h"
#include "widgets/confirmbuttons.h"

namespace ovra {
namespace Popups {

PopupQuitProgram::PopupQuitProgram(QWidget *parent)
    : PopupBase(parent)
    , ui(new Ui::PopupQuitProgram)
{
    ui->setupUi(this);
    GlobalElements::ConfirmButtons::Setup(ui->pushButton_okQuit, ui->pushButton_nokQuit);
    connect(ui->pushButton_okQuit, &QPushButton::clicked, this, &PopupQuitProgram::SlotOk);
    connect(ui->pushButton_nokQuit, &QPushButton::clicked, this, &QDialog::reject);
}

PopupQuitProgram::~PopupQuitProgram() = default;

void PopupQuitProgram::Translate()
{
    ui->retranslateUi(this);
}

void PopupQuitProgram::SlotOk()
{
    emit SignalQuitProgram();
    accept();
}

} // namespace Popups
} // namespace ovra
