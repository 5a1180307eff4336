#pragma once

#include "popups/popupconfirm.h"

namespace ovra {
namespace Popups {

// Asks before the failure list is deleted.
class PopupDeleteFailureList : public PopupConfirm
{
    Q_OBJECT

public:
    explicit PopupDeleteFailureList(QWidget *parent = nullptr);

    void Translate() override;

signals:
    // Sent only when the deletion is confirmed.
    void SignalPopupDeleteFailureListButton();
};

} // namespace Popups
} // namespace ovra
