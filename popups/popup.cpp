#include "popups/popup.h"

#include "widgets/iconcache.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

namespace ovra {
namespace Popups {

namespace {
QPushButton *MaterialButton(const char *name, const QString &photo)
{
    auto *button = new QPushButton;
    button->setObjectName(QString::fromLatin1(name));
    button->setProperty("popupRole", QStringLiteral("choice"));
    button->setFocusPolicy(Qt::NoFocus);
    button->setIconSize(QSize(120, 72));
    // Set here and not in a form: a form would decode both photos at start-up.
    button->setIcon(GlobalElements::IconCache::Get(photo));
    return button;
}
} // namespace

// The answer is the choice itself: the card has no button row.
Popup::Popup(QWidget *parent)
    : PopupBase(parent), m_argon(MaterialButton("pushButton_ArgonPopup", QStringLiteral(":/Material/Argon.jpg"))),
      m_zirkon(MaterialButton("pushButton_ZirkonPopup", QStringLiteral(":/Material/Zirkon.jpg")))
{
    resize(680, 260);
    auto *row = new QHBoxLayout;
    row->setSpacing(24);
    row->addWidget(m_argon, 1);
    row->addWidget(m_zirkon, 1);
    Body()->addStretch(1);
    Body()->addLayout(row);
    Body()->addStretch(1);
    connect(m_argon, &QPushButton::clicked, this, &Popup::on_pushButton_ArgonPopup_clicked);
    connect(m_zirkon, &QPushButton::clicked, this, &Popup::on_pushButton_ZirkonPopup_clicked);
    Translate();
}

Popup::~Popup() = default;

void Popup::Translate()
{
    SetTitle(tr("Argon oder Zirkon?"));
    m_argon->setText(tr("Argon"));
    m_zirkon->setText(tr("Zirkon"));
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
