#include "popups/popupqrcode.h"

#include "settings/qrcode.h"

#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

namespace ovra {
namespace Popups {

PopupQRCode::PopupQRCode(QWidget *parent)
    : PopupBase(parent), m_code(new QLabel), m_caption(new QLabel),
      m_ok(AddButton(QStringLiteral("pushButton_OK"), Verb::Action))
{
    resize(560, 420);
    SetTitleIcon(QStringLiteral(":/Icons/qrcode.png"));
    m_code->setObjectName(QStringLiteral("label_QRCode"));
    m_code->setProperty("popupRole", QStringLiteral("message"));
    m_code->setAlignment(Qt::AlignCenter);
    m_code->setWordWrap(true);
    m_code->setMinimumHeight(imageSide);
    Body()->addWidget(m_code, 1);
    m_caption->setObjectName(QStringLiteral("label_QRCodeCaption"));
    m_caption->setProperty("popupRole", QStringLiteral("message"));
    m_caption->setAlignment(Qt::AlignCenter);
    m_caption->setWordWrap(true);
    m_caption->hide();
    Body()->addWidget(m_caption);
    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
    Translate();
}

PopupQRCode::~PopupQRCode() = default;

void PopupQRCode::Translate()
{
    SetTitle(tr("QR Code erzeugen"));
    m_ok->setText(tr("OK"));
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
    m_code->setText(QString());
    m_code->setPixmap(image);
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
    m_code->setText(QString());
    m_code->setPixmap(QPixmap::fromImage(image));
}

void PopupQRCode::SetCaption(const QString &text)
{
    m_caption->setText(text);
    m_caption->setVisible(!text.isEmpty());
}

void PopupQRCode::ShowMissingNotice()
{
    m_code->setPixmap(QPixmap());
    m_code->setText(tr("QR Code nicht verfügbar"));
}

} // namespace Popups
} // namespace ovra
