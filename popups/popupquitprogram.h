#pragma once

#include "popups/popupconfirm.h"

namespace ovra {
namespace Popups {

// Asks before a program that is being edited is thrown away.
class PopupQuitProgram : public PopupConfirm
{
    Q_OBJECT

public:
    explicit PopupQuitProgram(QWidget *parent = nullptr);

    void Translate() override;

signals:
    // Sent only when the user confirms.
    void SignalQuitProgram();
};

} // namespace Popups
} // namespace ovra
