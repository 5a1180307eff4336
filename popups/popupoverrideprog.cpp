#include "popups/popupoverrideprog.h"

#include <QCoreApplication>

namespace ovra {
namespace Popups {

PopupOverrideProg::PopupOverrideProg(QWidget *parent) : PopupConfirm(Role::Caution, parent)
{
    connect(this, &PopupConfirm::SignalAnswered, this, &PopupOverrideProg::SignalOverrideProg);
    Translate();
}

void PopupOverrideProg::Translate()
{
    SetTexts(QCoreApplication::translate("PopupOverrideProg", "Programm wird überschrieben!"));
}

} // namespace Popups
} // namespace ovra
