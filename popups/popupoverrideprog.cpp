#include "popups/popupoverrideprog.h"

#include <QCoreApplication>

namespace ovra {
namespace Popups {

PopupOverrideProg::PopupOverrideProg(QWidget *parent) : PopupConfirm(Role::Destructive, parent)
{
    connect(this, &PopupConfirm::SignalAnswered, this, &PopupOverrideProg::SignalOverrideProg);
    Translate();
}

void PopupOverrideProg::Translate()
{
    SetTexts(QCoreApplication::translate("PopupOverrideProg", "Programm überschreiben"),
             QCoreApplication::translate("PopupOverrideProg", "Programm wird überschrieben!"),
             QCoreApplication::translate("PopupOverrideProg", "Überschreiben"));
}

} // namespace Popups
} // namespace ovra
