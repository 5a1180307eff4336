#pragma once

#include "popups/popupbase.h"

class QLabel;
class QProgressBar;
class QPushButton;

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

    // While busy the popup cannot be closed: its OK stays disabled until the action has ended.
    void SetBusy(bool busy);
    bool IsBusy() const;

    int GetProgress() const;

public slots:
    // "37" or "37%"; anything that is not a percentage is ignored.
    void SlotUpdateProgress(const QString &percent);

private:
    QLabel *m_text;
    QProgressBar *m_bar;
    QLabel *m_percent;
    QPushButton *m_ok;
};

} // namespace Popups
} // namespace ovra
