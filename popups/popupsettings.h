#pragma once

#include "popups/popupbase.h"

#include <memory>

namespace Ui {
class PopupSettings;
}

namespace ovra {
namespace Popups {

// Asks before the factory settings are restored, which deletes every own program.
class PopupSettings : public PopupBase
{
    Q_OBJECT

public:
    explicit PopupSettings(QWidget *parent = nullptr);
    ~PopupSettings() override;

    void Translate() override;

signals:
    // true: restore the factory settings; false: leave everything as it is.
    void SignalPopupSettingsButton(bool confirmed);

private slots:
    void SlotOk();
    void SlotCancel();

private:
    std::unique_ptr<Ui::PopupSettings> ui;
};

} // namespace Popups
} // namespace ovra
