#pragma once

#include "popups/popupconfirm.h"

#include <QPointer>

namespace ovra {
namespace GlobalElements {
class ErrorHandler;
}

namespace Popups {

// Asks before the failure list is deleted, naming the failures that go with their severity.
class PopupDeleteFailureList : public PopupConfirm
{
    Q_OBJECT

public:
    // errors may be nullptr: the question alone.
    explicit PopupDeleteFailureList(QWidget *parent = nullptr, GlobalElements::ErrorHandler *errors = nullptr);

    void Translate() override;

signals:
    // Sent only when the deletion is confirmed.
    void SignalPopupDeleteFailureListButton();

protected:
    void showEvent(QShowEvent *event) override;

private:
    QPointer<GlobalElements::ErrorHandler> m_errors;
};

} // namespace Popups
} // namespace ovra
