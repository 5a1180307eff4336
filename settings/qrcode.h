#pragma once

#include <QByteArray>
#include <QVector>

namespace ovra {
namespace Settings {

// A QR code as its square of modules, made in-process by libqrencode: no interpreter, no
// child process and no file between the panel and the picture.
class QrCode
{
public:
    // Empty (Size() 0) when the text does not fit a QR code.
    static QrCode Encode(const QByteArray &text);

    int Size() const { return m_size; }
    bool IsDark(int x, int y) const { return m_modules.at(y * m_size + x); }

private:
    int m_size = 0;
    QVector<bool> m_modules;
};

} // namespace Settings
} // namespace ovra
