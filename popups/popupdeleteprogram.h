#pragma once

#include "popups/popupconfirm.h"

namespace ovra {
namespace Popups {

// Asks before a program is deleted.
class PopupDeleteProgram : public PopupConfirm
{
    Q_OBJECT

public:
    explicit PopupDeleteProgram(QWidget *parent = nullptr);

    void Translate() override;

signals:
    // Sent only when the deletion is confirmed.
    void SignalDeleteProgram();
};

} // namespace Popups
} // namespace ovra
