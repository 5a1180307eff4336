#pragma once

#include "popups/popupbase.h"

#include <memory>

namespace Ui {
class PopupUSB;
}

namespace ovra {
namespace Popups {

// Progress of an action on the USB stick (update, export, import).
class PopupUSB : public PopupBase
{
    Q_OBJECT

public:
    explicit PopupUSB(QWidget *parent = nullptr);
    ~PopupUSB() override;

    void Translate() override;

    // Multi-line progress text, already translated by the caller.
    void SetText(const QString &text);
    QString GetText() const;

    // While busy the popup cannot be closed.
    void SetBusy(bool busy);
    bool IsBusy() const;

    int GetProgress() const;

public slots:
    // "37" or "37%"; anything that is not a percentage is ignored.
    void SlotUpdateProgress(const QString &percent);

private:
    std::unique_ptr<Ui::PopupUSB> ui;
};

} // namespace Popups
} // namespace ovra
