#pragma once

#include "popups/popupbase.h"

#include <memory>

namespace Ui {
class PopupOverrideProg;
}

namespace ovra {
namespace Popups {

// Asks before a stored program is overwritten with the edited one.
class PopupOverrideProg : public PopupBase
{
    Q_OBJECT

public:
    explicit PopupOverrideProg(QWidget *parent = nullptr);
    ~PopupOverrideProg() override;

    void Translate() override;

signals:
    // true: overwrite; false: keep the stored program.
    void SignalOverrideProg(bool confirmed);

private slots:
    void SlotOk();
    void SlotCancel();

private:
    std::unique_ptr<Ui::PopupOverrideProg> ui;
};

} // namespace Popups
} // namespace ovra
