#include "popups/popup.h"

#include "ui_popup.h"
#include "widgets/iconcache.h"

namespace ovra {
namespace Popups {

// The buttons reach the slots through setupUi's connect-by-name.
Popup::Popup(QWidget *parent) : PopupBase(parent), ui(new Ui::Popup)
{
    ui->setupUi(this);
    // Set here rather than in the form: the form would decode both photos at start-up.
    ui->pushButton_ArgonPopup->setIcon(GlobalElements::IconCache::Get(QStringLiteral(":/Material/Argon.jpg")));
    ui->pushButton_ZirkonPopup->setIcon(GlobalElements::IconCache::Get(QStringLiteral(":/Material/Zirkon.jpg")));
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
