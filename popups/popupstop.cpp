#include "popups/popupstop.h"

#include <QCoreApplication>

namespace ovra {
namespace Popups {

PopupStop::PopupStop(QWidget *parent) : PopupConfirm(Role::Caution, parent)
{
    connect(this, &PopupConfirm::SignalAnswered, this, &PopupStop::SignalPopupStopButton);
    Translate();
}

void PopupStop::Translate()
{
    SetTexts(QCoreApplication::translate("PopupStop", "Prozess wird abgebrochen!"));
}

} // namespace Popups
} // namespace ovra
