#pragma once

#include "popups/popupconfirm.h"

namespace ovra {
namespace Popups {

// Asks before the program editor is left with a program that has not been saved.
class PopupLeaveNewProg : public PopupConfirm
{
    Q_OBJECT

public:
    enum class Destination { MainMenu, Back };

    explicit PopupLeaveNewProg(Destination destination, QWidget *parent = nullptr);

    Destination GetDestination() const { return m_destination; }

    void Translate() override;

signals:
    // true: leave and drop the table; false: stay in the editor.
    void SignalLeave(bool confirmed);

private:
    Destination m_destination;
};

} // namespace Popups
} // namespace ovra
