#pragma once

#include "popups/popupbase.h"

class QPlainTextEdit;
class QPushButton;

namespace ovra {
namespace Popups {

// The licence notice of the toolkit the panel is built on.
class PopupLicense : public PopupBase
{
    Q_OBJECT

public:
    explicit PopupLicense(QWidget *parent = nullptr);
    ~PopupLicense() override;

    void Translate() override;

    QString GetLicenseText() const;

private:
    QPlainTextEdit *m_text;
    QPushButton *m_ok;
};

} // namespace Popups
} // namespace ovra
