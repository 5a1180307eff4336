#include "popups/popupquitprogram.h"

#include <QCoreApplication>

namespace ovra {
namespace Popups {

PopupQuitProgram::PopupQuitProgram(QWidget *parent)
    : PopupConfirm(Role::Destructive, parent, "pushButton_okQuit", "pushButton_nokQuit")
{
    connect(this, &PopupConfirm::SignalAnswered, this, [this](bool confirmed) {
        if (confirmed)
            emit SignalQuitProgram();
    });
    Translate();
}

void PopupQuitProgram::Translate()
{
    SetTexts(QCoreApplication::translate("PopupQuitProgram", "Programm löschen"),
             QCoreApplication::translate("PopupQuitProgram", "Programm wird endgültig gelöscht!"),
             QCoreApplication::translate("PopupQuitProgram", "Löschen"));
}

} // namespace Popups
} // namespace ovra
