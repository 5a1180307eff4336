#include "popups/popupusb.h"

#include "ui_popupusb.h"
#include "widgets/confirmbuttons.h"

#include <algorithm>

namespace ovra {
namespace Popups {

PopupUSB::PopupUSB(QWidget *parent) : PopupBase(parent), ui(new Ui::PopupUSB)
{
    ui->setupUi(this);
    GlobalElements::ConfirmButtons::Setup(ui->pushButton_USBProgress, nullptr);
    ui->progressBar_USB->setRange(0, 100);
    connect(ui->pushButton_USBProgress, &QPushButton::clicked, this, &QDialog::accept);
}

PopupUSB::~PopupUSB() = default;

void PopupUSB::Translate()
{
    ui->retranslateUi(this);
}

void PopupUSB::SetText(const QString &text)
{
    ui->label_USBText->setText(text);
}

QString PopupUSB::GetText() const
{
    return ui->label_USBText->text();
}

void PopupUSB::SetBusy(bool busy)
{
    ui->pushButton_USBProgress->setEnabled(!busy);
}

bool PopupUSB::IsBusy() const
{
    return !ui->pushButton_USBProgress->isEnabled();
}

int PopupUSB::GetProgress() const
{
    return ui->progressBar_USB->value();
}

void PopupUSB::SlotUpdateProgress(const QString &percent)
{
    QString number = percent.trimmed();
    if (number.endsWith(QLatin1Char('%')))
        number = number.chopped(1).trimmed();
    bool ok = false;
    const int value = number.toInt(&ok);
    if (!ok)
        return;
    const int clamped = std::clamp(value, 0, 100);
    ui->progressBar_USB->setValue(clamped);
    ui->label_Percent->setText(QStringLiteral("%1%").arg(clamped));
}

} // namespace Popups
} // namespace ovra
