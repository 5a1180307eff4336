#pragma once

#include "popups/popupbase.h"

#include <memory>

namespace Ui {
class PopupStop;
}

namespace ovra {
namespace Popups {

// Asks before a running process is aborted.
class PopupStop : public PopupBase
{
    Q_OBJECT

public:
    explicit PopupStop(QWidget *parent = nullptr);
    ~PopupStop() override;

    void Translate() override;

signals:
    // true: abort the process; false: keep it running.
    void SignalPopupStopButton(bool confirmed);

private slots:
    void SlotOk();
    void SlotCancel();

private:
    std::unique_ptr<Ui::PopupStop> ui;
};

} // namespace Popups
} // namespace ovra
