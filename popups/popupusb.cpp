#include "popups/popupusb.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

#include <algorithm>

namespace ovra {
namespace Popups {

PopupUSB::PopupUSB(QWidget *parent)
    : PopupBase(parent), m_text(MessageLabel()), m_bar(new QProgressBar), m_percent(new QLabel),
      m_ok(AddButton(QStringLiteral("pushButton_USBProgress"), Verb::Action))
{
    resize(560, 320);
    SetTitleIcon(QStringLiteral(":/Icons/usb.png"));
    m_text->setObjectName(QStringLiteral("label_USBText"));
    m_text->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_text->show();
    m_bar->setObjectName(QStringLiteral("progressBar_USB"));
    m_bar->setRange(0, 100);
    m_bar->setValue(0);
    m_bar->setTextVisible(false);
    m_percent->setObjectName(QStringLiteral("label_Percent"));
    m_percent->setProperty("popupRole", QStringLiteral("percent"));
    m_percent->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_percent->setMinimumWidth(88);
    m_percent->setText(QStringLiteral("0%"));
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(m_bar, 1);
    row->addWidget(m_percent);
    Body()->addLayout(row);
    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
    Translate();
}

PopupUSB::~PopupUSB() = default;

void PopupUSB::Translate()
{
    SetTitle(tr("USB-Stick"));
    m_ok->setText(tr("OK"));
}

void PopupUSB::SetText(const QString &text)
{
    m_text->setText(text);
}

QString PopupUSB::GetText() const
{
    return m_text->text();
}

void PopupUSB::SetBusy(bool busy)
{
    m_ok->setEnabled(!busy);
}

bool PopupUSB::IsBusy() const
{
    return !m_ok->isEnabled();
}

int PopupUSB::GetProgress() const
{
    return m_bar->value();
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
    m_bar->setValue(clamped);
    m_percent->setText(QStringLiteral("%1%").arg(clamped));
}

} // namespace Popups
} // namespace ovra
