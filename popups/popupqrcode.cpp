#include "popups/popupqrcode.h"

#include "settings/qrcode.h"
#include "ui_popupqrcode.h"
#include "widgets/confirmbuttons.h"

#include <QImage>
#include <QPixmap>

namespace ovra {
namespace Popups {

PopupQRCode::PopupQRCode(QWidget *parent) : PopupBase(parent), ui(new Ui::PopupQRCode)
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

void PopupQRCode::SetCode(const Settings::QrCode &code)
{
    // Readers need four light modules round the code.
    constexpr int quietZone = 4;
    const int modules = code.Size() + 2 * quietZone;
    m_hasImage = code.Size() > 0;
    if (!m_hasImage) {
        ShowMissingNotice();
        return;
    }
    const int scale = qMax(1, imageSide / modules);
    QImage image(modules * scale, modules * scale, QImage::Format_Mono);
    image.setColor(0, qRgb(255, 255, 255));
    image.setColor(1, qRgb(0, 0, 0));
    image.fill(0);
    for (int y = 0; y < code.Size(); ++y) {
        for (int x = 0; x < code.Size(); ++x) {
            if (!code.IsDark(x, y))
                continue;
            for (int dy = 0; dy < scale; ++dy) {
                for (int dx = 0; dx < scale; ++dx)
                    image.setPixel((x + quietZone) * scale + dx, (y + quietZone) * scale + dy, 1);
            }
        }
    }
    ui->label_QRCode->setText(QString());
    ui->label_QRCode->setPixmap(QPixmap::fromImage(image));
}

void PopupQRCode::ShowMissingNotice()
{
    ui->label_QRCode->setPixmap(QPixmap());
    ui->label_QRCode->setText(tr("QR Code nicht verfügbar"));
}

} // namespace Popups
} // namespace ovra
