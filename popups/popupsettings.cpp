#include "popups/popupsettings.h"

#include <QCoreApplication>

namespace ovra {
namespace Popups {

PopupSettings::PopupSettings(QWidget *parent) : PopupConfirm(Role::Danger, parent)
{
    resize(560, 320);
    connect(this, &PopupConfirm::SignalAnswered, this, &PopupSettings::SignalPopupSettingsButton);
    Translate();
}

void PopupSettings::Translate()
{
    const QString title = QCoreApplication::translate("PopupSettings", "Werkseinstellungen");
    SetTexts(
        QCoreApplication::translate(
            "PopupSettings", "Alle eigenen Programme werden gelöscht und die Werkseinstellungen wiederhergestellt!"),
        title);
}

} // namespace Popups
} // namespace ovra
