#pragma once

#include "popups/popupconfirm.h"

namespace ovra {
namespace Popups {

// Asks before a running process is aborted.
class PopupStop : public PopupConfirm
{
    Q_OBJECT

public:
    explicit PopupStop(QWidget *parent = nullptr);

    void Translate() override;

signals:
    // true: abort the process; false: keep it running.
    void SignalPopupStopButton(bool confirmed);
};

} // namespace Popups
} // namespace ovra
