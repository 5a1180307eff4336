#include "settings/qrcode.h"

#include <qrencode.h>

namespace ovra {
namespace Settings {

QrCode QrCode::Encode(const QByteArray &text)
{
    QrCode code;
    // Level M survives a smudged or slightly curved panel glass; version 0: as small as fits.
    QRcode *raw =
        QRcode_encodeData(text.size(), reinterpret_cast<const unsigned char *>(text.constData()), 0, QR_ECLEVEL_M);
    if (raw == nullptr)
        return code;
    code.m_size = raw->width;
    code.m_modules.resize(raw->width * raw->width);
    for (int i = 0; i < code.m_modules.size(); ++i)
        code.m_modules[i] = (raw->data[i] & 1) != 0; // bit 0: dark module
    QRcode_free(raw);
    return code;
}

} // namespace Settings
} // namespace ovra
