#pragma once

#include "popups/popupbase.h"

#include <QPointer>

class QPlainTextEdit;
class QPushButton;

namespace ovra {
namespace GlobalElements {
class ErrorHandler;
}

namespace Popups {

// Lists the failures of the running process, one code per line. The list follows the
// error handler while it changes; SetFailurePopupText replaces it until the next change.
class PopupFailure : public PopupBase
{
    Q_OBJECT

public:
    // errors may be nullptr; the list is then only what SetFailurePopupText puts in.
    PopupFailure(ovra::GlobalElements::ErrorHandler *errors, QWidget *parent);
    ~PopupFailure() override;

    void Translate() override;

    void SetFailurePopupText(const QString &text);
    QString GetFailurePopupText() const;

private slots:
    void SlotErrorListChanged();

private:
    QPlainTextEdit *m_list;
    QPushButton *m_ok;
    QPointer<ovra::GlobalElements::ErrorHandler> m_errors;
};

} // namespace Popups
} // namespace ovra
