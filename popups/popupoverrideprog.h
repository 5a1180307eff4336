#pragma once

#include "popups/popupconfirm.h"

namespace ovra {
namespace Popups {

// Asks before a stored program is overwritten with the edited one.
class PopupOverrideProg : public PopupConfirm
{
    Q_OBJECT

public:
    explicit PopupOverrideProg(QWidget *parent = nullptr);

    void Translate() override;

signals:
    // true: overwrite; false: keep the stored program.
    void SignalOverrideProg(bool confirmed);
};

} // namespace Popups
} // namespace ovra
