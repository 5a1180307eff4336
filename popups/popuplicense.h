#pragma once

#include "popups/popupbase.h"

#include <memory>

namespace Ui {
class PopupLicense;
}

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
    std::unique_ptr<Ui::PopupLicense> ui;
};

} // namespace Popups
} // namespace ovra
