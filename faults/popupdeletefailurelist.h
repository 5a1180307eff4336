#pragma once

#include "popups/popupbase.h"

#include <memory>

namespace Ui {
class PopupDeleteFailureList;
}

namespace ovra {
namespace Popups {

// Asks before the failure list is deleted.
class PopupDeleteFailureList : public PopupBase
{
    Q_OBJECT

public:
    explicit PopupDeleteFailureList(QWidget *parent = nullptr);
    ~PopupDeleteFailureList() override;

    void Translate() override;

signals:
    // Sent only when the deletion is confirmed.
    void SignalPopupDeleteFailureListButton();

private slots:
    void SlotOk();

private:
    std::unique_ptr<Ui::PopupDeleteFailureList> ui;
};

} // namespace Popups
} // namespace ovra
