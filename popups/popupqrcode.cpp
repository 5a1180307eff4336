#include "popups/popupqrcode.h"

#include "ui_popupqrcode.h"
#include "widgets/confirmbuttons.h"

#include <QPixmap>

namespace ovra {
namespace Popups {

PopupQRCode::PopupQRCode(QWidget *parent)
    : PopupBase(parent)
    , ui(new Ui::PopupQRCode)
{
    ui->setupUi(this);
    GlobalElements::ConfirmButtons::Setup(ui->pushButton_OK, nullptr);
    connect(ui->pushButton_OK, &QPushButton::clicked, this, &QDialog::accept);
    ShowMissingNotice();
}

PopupQRCode::~PopupQRCode() = default;

void PopupQRCode::Translate()
{
    ui->retranslateUi(this);
    if (!m_hasImage)
        ShowMissingNotice();
}

void PopupQRCode::SetImage(const QString &path)
{
    QPixmap image;
    m_hasImage = !path.isEmpty() && image.load(path);
    if (!m_hasImage) {
        ShowMissingNotice();
        return;
    }
    // A QR code is made of square modules: never smooth them into grey.
    if (image.width() > imageSide || image.height() > imageSide)
        image = image.scaled(imageSide, imageSide, Qt::KeepAspectRatio, Qt::FastTransformation);
    ui->label_QRCode->setText(QString());
    ui->label_QRCode->setPixmap(image);
}

void PopupQRCode::ShowMissingNotice()
{
    ui->label_QRCode->setPixmap(QPixmap());
    ui->label_QRCode->setText(tr("QR Code nicht verfügbar"));
}

} // namespace Popups
} // namespace ovra
