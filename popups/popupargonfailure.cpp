#include "popups/popupargonfailure.h"

#include "ui_popupargonfailure.h"
#include "widgets/confirmbuttons.h"

namespace ovra {
namespace Popups {

// The OK button reaches its slot through setupUi's connect-by-name.
PopupArgonFailure::PopupArgonFailure(QWidget *parent)
    : PopupBase(parent)
    , ui(new Ui::PopupArgonFailure)
{
    ui->setupUi(this);
    GlobalElements::ConfirmButtons::Setup(ui->pushButton_ArgonFailureOK, nullptr);
}

PopupArgonFailure::~PopupArgonFailure() = default;

void PopupArgonFailure::Translate()
{
    ui->retranslateUi(this);
}

void PopupArgonFailure::on_pushButton_ArgonFailureOK_clicked()
{
    emit SignalPopupArgonFailureOK();
    hide();
}

} // namespace Popups
} // namespace ovra
