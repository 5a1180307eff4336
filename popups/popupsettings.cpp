#include "popups/popupsettings.h"

#include "ui_popupsettings.h"
#include "widgets/confirmbuttons.h"

namespace ovra {
namespace Popups {

PopupSettings::PopupSettings(QWidget *parent)
    : PopupBase(parent)
    , ui(new Ui::PopupSettings)
{
    ui->setupUi(this);
    GlobalElements::ConfirmButtons::Setup(ui->pushButton_OK, ui->pushButton_Cancel);
    connect(ui->pushButton_OK, &QPushButton::clicked, this, &PopupSettings::SlotOk);
    connect(ui->pushButton_Cancel, &QPushButton::clicked, this, &PopupSettings::SlotCancel);
}

PopupSettings::~PopupSettings() = default;

void PopupSettings::Translate()
{
    ui->retranslateUi(this);
}

void PopupSettings::SlotOk()
{
    emit SignalPopupSettingsButton(true);
    accept();
}

void PopupSettings::SlotCancel()
{
    emit SignalPopupSettingsButton(false);
    reject();
}

} // namespace Popups
} // namespace ovra
