#include "communication/updateblock.h"

#include <QCryptographicHash>

namespace ovra {
namespace Communication {
namespace UpdateBlock {

bool Decode(const QString &text, QByteArray &data, int &number, int numberWidth, int lengthWidth)
{
    if (text.size() < numberWidth)
        return false;
    number = text.left(numberWidth).toInt();
    const int declaredLength = text.mid(numberWidth, lengthWidth).toInt();

    const int separator = text.indexOf(QLatin1Char('&'));
    if (separator < 0)
        return false;
    const int dataStart = numberWidth + lengthWidth;
    const QByteArray decoded = QByteArray::fromBase64(text.mid(dataStart, separator - dataStart).toLatin1());
    const QString digest = text.mid(separator + 1);

    if (QString::fromLatin1(QCryptographicHash::hash(decoded, QCryptographicHash::Md5).toHex()) == digest) {
        data = decoded;
        return true;
    }
    data = QByteArray(qMax(0, declaredLength), '_');
    return false;
}

QByteArray Encode(int number, const QByteArray &data, int numberWidth, int lengthWidth)
{
    QByteArray block;
    block.reserve(numberWidth + lengthWidth + data.size() * 4 / 3 + 40);
    block += QByteArray::number(number).rightJustified(numberWidth, '0');
    block += QByteArray::number(data.size()).rightJustified(lengthWidth, '0');
    block += data.toBase64();
    block += '&';
    block += QCryptographicHash::hash(data, QCryptographicHash::Md5).toHex();
    return block;
}

QString ProgressText(int applied, int total)
{
    if (total < 1)
        return QString();
    return QString::asprintf("%d%%", applied * 100 / total);
}

} // namespace UpdateBlock
} // namespace Communication
} // namespace ovra
