#include "popups/popupsettings.h"

#include <QCoreApplication>

namespace ovra {
namespace Popups {

PopupSettings::PopupSettings(QWidget *parent) : PopupConfirm(Role::Destructive, parent)
{
    resize(560, 320);
    connect(this, &PopupConfirm::SignalAnswered, this, &PopupSettings::SignalPopupSettingsButton);
    Translate();
}

void PopupSettings::Translate()
{
    SetTexts(
        QCoreApplication::translate("PopupSettings", "Werkseinstellungen"),
        QCoreApplication::translate(
            "PopupSettings", "Alle eigenen Programme werden gelöscht und die Werkseinstellungen wiederhergestellt!"),
        QCoreApplication::translate("PopupSettings", "Zurücksetzen"));
}

} // namespace Popups
} // namespace ovra
