#include "popups/popuplicense.h"

#include "popups/licensetext.h"
#include "ui_popuplicense.h"
#include "widgets/confirmbuttons.h"

#include <QScroller>

namespace ovra {
namespace Popups {

PopupLicense::PopupLicense(QWidget *parent) : PopupBase(parent), ui(new Ui::PopupLicense)
{
    ui->setupUi(this);
    GlobalElements::ConfirmButtons::Setup(ui->pushButton_OK, nullptr);
    connect(ui->pushButton_OK, &QPushButton::clicked, this, &QDialog::accept);
    // A finger drags the text; the scroll bar alone is a small target.
    QScroller::grabGesture(ui->plainTextEdit_License->viewport(), QScroller::LeftMouseButtonGesture);
    ui->plainTextEdit_License->setPlainText(LicenseNoticeText(QString::fromLatin1(qVersion())));
}

PopupLicense::~PopupLicense()
{
    // Leaves no flick gesture registered for a widget that is going away.
    QScroller::ungrabGesture(ui->plainTextEdit_License->viewport());
}

void PopupLicense::Translate()
{
    ui->retranslateUi(this);
    ui->plainTextEdit_License->setPlainText(LicenseNoticeText(QString::fromLatin1(qVersion())));
}

QString PopupLicense::GetLicenseText() const
{
    return ui->plainTextEdit_License->toPlainText();
}

} // namespace Popups
} // namespace ovra
