#pragma once

#include "popups/popupbase.h"

class QLabel;
class QPushButton;

namespace ovra {
namespace Settings {
class QrCode;
}
namespace Popups {

// Shows a QR code: drawn from its modules, or a picture made elsewhere (a file on disk).
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
    // Draws the code in whole pixels per module with its quiet zone; an empty code shows
    // the notice.
    void SetCode(const Settings::QrCode &code);
    bool HasImage() const { return m_hasImage; }
    // A line beneath the code, for readers that cannot scan it; empty hides it.
    void SetCaption(const QString &text);

private:
    void ShowMissingNotice();

    QLabel *m_code;
    QLabel *m_caption;
    QPushButton *m_ok;
    bool m_hasImage = false;
};

} // namespace Popups
} // namespace ovra
