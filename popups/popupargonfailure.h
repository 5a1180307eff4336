#pragma once

#include "popups/popupconfirm.h"

namespace ovra {
namespace Popups {

// Reports that the argon supply check failed and what to do about it.
class PopupArgonFailure : public PopupConfirm
{
    Q_OBJECT

public:
    explicit PopupArgonFailure(QWidget *parent = nullptr);

    void Translate() override;

signals:
    void SignalPopupArgonFailureOK();

public slots:
    void on_pushButton_ArgonFailureOK_clicked();
};

} // namespace Popups
} // namespace ovra
