#pragma once

#include "popups/popupbase.h"

#include <QTimer>

class QLabel;
class QPushButton;

namespace ovra {
namespace Popups {

// Warns that the door is open while the furnace is hot. The warning band blinks until the
// main window takes the popup away (when the door reports closed); the button only asks
// the controller to close the door.
class PopupTempWarning : public PopupBase
{
    Q_OBJECT

public:
    static constexpr int defaultBlinkInterval = 500;

    explicit PopupTempWarning(QWidget *parent = nullptr);
    ~PopupTempWarning() override;

    void Translate() override;

    // Shows without blocking and starts blinking; when already blinking it carries on in
    // the same rhythm.
    void Show();
    // Stops blinking and hides.
    void Hide();

    void SetBlinkInterval(int ms);
    int GetBlinkInterval() const { return m_blinkTimer.interval(); }

    bool IsBlinking() const { return m_blinkTimer.isActive(); }
    bool IsGraphicVisible() const { return m_graphicVisible; }

signals:
    void SignalRequestDoorClose();

public slots:
    void SlotToggleGraphic();
    void SlotRequestDoorClose();

protected:
    void hideEvent(QHideEvent *event) override;

private:
    void SetGraphicVisible(bool visible);

    QLabel *m_temp;
    QLabel *m_door;
    QPushButton *m_close;
    QTimer m_blinkTimer;
    bool m_graphicVisible = true;
};

} // namespace Popups
} // namespace ovra
