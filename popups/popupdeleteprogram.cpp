#include "popups/popupdeleteprogram.h"

#include <QCoreApplication>

namespace ovra {
namespace Popups {

PopupDeleteProgram::PopupDeleteProgram(QWidget *parent) : PopupConfirm(Role::Destructive, parent)
{
    connect(this, &PopupConfirm::SignalAnswered, this, [this](bool confirmed) {
        if (confirmed)
            emit SignalDeleteProgram();
    });
    Translate();
}

void PopupDeleteProgram::Translate()
{
    SetTexts(QCoreApplication::translate("PopupDeleteProgram", "Programm löschen"),
             QCoreApplication::translate("PopupDeleteProgram", "Programm wird endgültig gelöscht!"),
             QCoreApplication::translate("PopupDeleteProgram", "Löschen"));
}

} // namespace Popups
} // namespace ovra
