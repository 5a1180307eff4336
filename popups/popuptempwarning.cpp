#include "popups/popuptempwarning.h"

#include "widgets/iconcache.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVariant>

namespace ovra {
namespace Popups {

namespace {
QLabel *Symbol(const char *name, const QString &picture)
{
    constexpr int side = 80;
    auto *symbol = new QLabel;
    symbol->setObjectName(QString::fromLatin1(name));
    symbol->setFixedSize(side, side);
    symbol->setPixmap(GlobalElements::IconCache::Get(picture, side).pixmap(side, side));
    // Only the band blinks: it pales and drops its symbols, keeping its place, so the card
    // never turns into an empty white box and nothing on it jumps.
    QSizePolicy policy = symbol->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    symbol->setSizePolicy(policy);
    return symbol;
}
} // namespace

PopupTempWarning::PopupTempWarning(QWidget *parent)
    : PopupBase(parent), m_temp(Symbol("label_Temp", QStringLiteral(":/Play/temp.png"))),
      m_door(Symbol("label_Door", QStringLiteral(":/Door/Door_Up.png"))),
      m_close(AddButton(QStringLiteral("pushButton_DoorClose"), Verb::Action))
{
    resize(600, 320);
    SetAccent(Accent::Caution);
    QFrame *band = AccentBand();
    band->setObjectName(QStringLiteral("frame_Graphic"));
    band->setFixedHeight(104);
    auto *symbols = new QHBoxLayout(band);
    symbols->setSpacing(48);
    symbols->addStretch(1);
    symbols->addWidget(m_temp);
    symbols->addWidget(m_door);
    symbols->addStretch(1);
    MessageLabel()->setProperty("popupRole", QStringLiteral("warning"));
    m_close->setIcon(GlobalElements::IconCache::Get(QStringLiteral(":/Door/Door_Down.png"), 40));

    m_blinkTimer.setInterval(defaultBlinkInterval);
    connect(&m_blinkTimer, &QTimer::timeout, this, &PopupTempWarning::SlotToggleGraphic);
    connect(m_close, &QPushButton::clicked, this, &PopupTempWarning::SlotRequestDoorClose);
    Translate();
}

PopupTempWarning::~PopupTempWarning() = default;

void PopupTempWarning::Translate()
{
    SetMessage(tr("Achtung! Ofen ist heiß – Tür schließen!"));
    m_close->setText(tr("Tür schließen"));
}

void PopupTempWarning::Show()
{
    if (!m_blinkTimer.isActive()) {
        SetGraphicVisible(true);
        m_blinkTimer.start();
    }
    show();
    raise();
}

void PopupTempWarning::Hide()
{
    m_blinkTimer.stop();
    SetGraphicVisible(true);
    hide();
}

void PopupTempWarning::hideEvent(QHideEvent *event)
{
    // However the popup went away, it must not keep blinking, and it comes back lit.
    m_blinkTimer.stop();
    SetGraphicVisible(true);
    PopupBase::hideEvent(event);
}

void PopupTempWarning::SetBlinkInterval(int ms)
{
    m_blinkTimer.setInterval(ms);
}

void PopupTempWarning::SlotToggleGraphic()
{
    SetGraphicVisible(!m_graphicVisible);
}

void PopupTempWarning::SlotRequestDoorClose()
{
    emit SignalRequestDoorClose();
}

void PopupTempWarning::SetGraphicVisible(bool visible)
{
    m_graphicVisible = visible;
    m_temp->setVisible(visible);
    m_door->setVisible(visible);
    AccentBand()->setProperty("lit", visible);
    Repolish(AccentBand());
}

} // namespace Popups
} // namespace ovra
