#include "popups/popuptempwarning.h"

#include "ui_popuptempwarning.h"

namespace ovra {
namespace Popups {

PopupTempWarning::PopupTempWarning(QWidget *parent)
    : PopupBase(parent)
    , ui(new Ui::PopupTempWarning)
{
    ui->setupUi(this);

    // A hidden band must keep its room, or the text and button would jump with every blink.
    QSizePolicy policy = ui->frame_Graphic->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    ui->frame_Graphic->setSizePolicy(policy);

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
    ui->frame_Graphic->setVisible(visible);
}

} // namespace Popups
} // namespace ovra
