#pragma once

#include "popups/popupbase.h"

#include <memory>

namespace Ui {
class PopupQRCode;
}

namespace ovra {
namespace Popups {

// Shows a QR code picture made elsewhere (a file on disk).
class PopupQRCode : public PopupBase
{
    Q_OBJECT

public:
    static constexpr int imageSide = 220;

    explicit PopupQRCode(QWidget *parent = nullptr);
    ~PopupQRCode() override;

    void Translate() override;

    // Loads the picture; a missing or unreadable file shows a notice instead.
    void SetImage(const QString &path);
    bool HasImage() const { return m_hasImage; }

private:
    void ShowMissingNotice();

    std::unique_ptr<Ui::PopupQRCode> ui;
    bool m_hasImage = false;
};

} // namespace Popups
} // namespace ovra
