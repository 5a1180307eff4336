#include "popups/popupleavenewprog.h"

namespace ovra {
namespace Popups {

PopupLeaveNewProg::PopupLeaveNewProg(Destination destination, QWidget *parent)
    : PopupConfirm(Role::Destructive, parent), m_destination(destination)
{
    connect(this, &PopupConfirm::SignalAnswered, this, &PopupLeaveNewProg::SignalLeave);
    Translate();
}

void PopupLeaveNewProg::Translate()
{
    SetTexts(tr("Editor verlassen"),
             m_destination == Destination::MainMenu ? tr("Programm nicht gespeichert!\nZum Hauptmenü?")
                                                    : tr("Programm nicht gespeichert!\nZurück?"),
             tr("Verwerfen"));
}

} // namespace Popups
} // namespace ovra
