#pragma once

#include "popups/popupconfirm.h"

namespace ovra {
namespace Popups {

// Asks before the factory settings are restored, which deletes every own program.
class PopupSettings : public PopupConfirm
{
    Q_OBJECT

public:
    explicit PopupSettings(QWidget *parent = nullptr);

    void Translate() override;

signals:
    // true: restore the factory settings; false: leave everything as it is.
    void SignalPopupSettingsButton(bool confirmed);
};

} // namespace Popups
} // namespace ovra
