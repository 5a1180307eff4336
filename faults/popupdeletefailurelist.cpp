#include "faults/popupdeletefailurelist.h"

#include "ui_popupdeletefailurelist.h"
#include "widgets/confirmbuttons.h"

namespace ovra {
namespace Popups {

PopupDeleteFailureList::PopupDeleteFailureList(QWidget *parent)
    : PopupBase(parent)
    , ui(new Ui::PopupDeleteFailureList)
{
    ui->setupUi(this);
    GlobalElements::ConfirmButtons::Setup(ui->pushButton_OKDel, ui->pushButton_XDel);
    connect(ui->pushButton_OKDel, &QPushButton::clicked, this, &PopupDeleteFailureList::SlotOk);
    connect(ui->pushButton_XDel, &QPushButton::clicked, this, &QDialog::reject);
}

PopupDeleteFailureList::~PopupDeleteFailureList() = default;

void PopupDeleteFailureList::Translate()
{
    ui->retranslateUi(this);
}

void PopupDeleteFailureList::SlotOk()
{
    emit SignalPopupDeleteFailureListButton();
    accept();
}

} // namespace Popups
} // namespace ovra
