#include "popups/popup.h"

#include "ui_popup.h"

namespace ovra {
namespace Popups {

// The buttons reach the slots through setupUi's connect-by-name.
Popup::Popup(QWidget *parent)
    : PopupBase(parent)
    , ui(new Ui::Popup)
{
    ui->setupUi(this);
}

Popup::~Popup() = default;

void Popup::Translate()
{
    ui->retranslateUi(this);
}

void Popup::on_pushButton_ArgonPopup_clicked()
{
    emit SignalPopupButton(QStringLiteral("Argon"));
    accept();
}

void Popup::on_pushButton_ZirkonPopup_clicked()
{
    emit SignalPopupButton(QStringLiteral("Zirkon"));
    accept();
}

} // namespace Popups
} // namespace ovra
