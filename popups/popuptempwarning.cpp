#include "popups/popuptempwarning.h"

#include "ui_popuptempwarning.h"

namespace ovra {
namespace Popups {

PopupTempWarning::PopupTempWarning(QWidget *parent) : PopupBase(parent), ui(new Ui::PopupTempWarning)
{
    ui->setupUi(this);

    // Only the band blinks: it pales and drops its symbols, keeping its place, so the card
    // never turns into an empty white box and nothing on it jumps.
    for (QWidget *symbol : {ui->label_Temp, ui->label_Door}) {
        QSizePolicy policy = symbol->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        symbol->setSizePolicy(policy);
    }

    m_blinkTimer.setInterval(defaultBlinkInterval);
    connect(&m_blinkTimer, &QTimer::timeout, this, &PopupTempWarning::SlotToggleGraphic);
    connect(ui->pushButton_DoorClose, &QPushButton::clicked, this, &PopupTempWarning::SlotRequestDoorClose);
}

PopupTempWarning::~PopupTempWarning() = default;

void PopupTempWarning::Translate()
{
    ui->retranslateUi(this);
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
    ui->label_Temp->setVisible(visible);
    ui->label_Door->setVisible(visible);
    ui->frame_Graphic->setProperty("lit", visible);
    Repolish(ui->frame_Graphic);
}

} // namespace Popups
} // namespace ovra
