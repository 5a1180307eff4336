#include "communication/frame.h"

#include <QStringList>

namespace ovra {
namespace Communication {
namespace Frame {

const QString fieldSeparator = QStringLiteral("$$");

quint8 BodySum(const QByteArray &body)
{
    unsigned int sum = 0;
    const int size = body.size();
    for (int i = 0; i < size; ++i) {
        if (body.at(i) == '$' && i + 1 < size && body.at(i + 1) == '$') {
            ++i;
            continue;
        }
        sum += static_cast<unsigned char>(body.at(i));
    }
    return static_cast<quint8>(sum & 0xFFu);
}

QString ChecksumText(quint8 sum)
{
    return QString::number(-static_cast<int>(sum));
}

bool IsChecksumValid(const QString &frame)
{
    QString text = frame;
    text.remove(QLatin1Char(startByte));
    text.remove(QLatin1Char(endByte));
    // Field by field, exactly as the frame is split: a lone '$' at a field's edge counts.
    const QStringList fields = text.split(fieldSeparator, Qt::KeepEmptyParts);
    unsigned int sum = 0;
    for (int f = 0; f + 1 < fields.size(); ++f) {
        for (const QChar c : fields.at(f)) {
            if (c.unicode() < 256)
                sum += c.unicode();
        }
    }
    const int checksum = fields.constLast().toInt(); // a non-number reads as 0
    return checksum + static_cast<int>(sum & 0xFFu) == 0;
}

QString ReceivedText(const QByteArray &frame)
{
    const int zero = frame.indexOf('\0');
    const QByteArray bytes = zero >= 0 ? frame.left(zero) : frame;
    // Deliberately not byte by byte alone: see the header. Invalid UTF-8 decodes to U+FFFD
    // and so does not survive the round trip back to the same bytes.
    const QString utf8 = QString::fromUtf8(bytes);
    return utf8.toUtf8() == bytes ? utf8 : QString::fromLatin1(bytes);
}

QByteArray Build(const QByteArray &body)
{
    QByteArray frame;
    frame.reserve(body.size() + 8);
    frame.append(startByte);
    frame.append(body);
    frame.append("$$");
    frame.append(ChecksumText(BodySum(body)).toLatin1());
    frame.append(endByte);
    return frame;
}

} // namespace Frame
} // namespace Communication
} // namespace ovra
