#include "popups/popupstop.h"

#include <QCoreApplication>

namespace ovra {
namespace Popups {

PopupStop::PopupStop(QWidget *parent) : PopupConfirm(Role::Destructive, parent)
{
    connect(this, &PopupConfirm::SignalAnswered, this, &PopupStop::SignalPopupStopButton);
    Translate();
}

void PopupStop::Translate()
{
    // "Abbrechen" would read as the stop itself here: the way out says the firing goes on.
    SetTexts(QCoreApplication::translate("PopupStop", "Prozess stoppen"),
             QCoreApplication::translate("PopupStop", "Prozess wird abgebrochen!"),
             QCoreApplication::translate("PopupStop", "Stoppen"),
             QCoreApplication::translate("PopupStop", "Fortsetzen"));
}

} // namespace Popups
} // namespace ovra
