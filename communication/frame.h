#pragma once

#include <QByteArray>
#include <QString>

namespace ovra {
namespace Communication {

// The byte-level rules of a frame on the controller line, as plain functions so that tests,
// benchmarks and fuzz targets can call them on raw bytes.
namespace Frame {

constexpr char startByte = 0x02;
constexpr char endByte = 0x03;
extern const QString fieldSeparator; // "$$"

// Sum of the bytes modulo 256, with every "$$" left out.
quint8 BodySum(const QByteArray &body);
// The checksum field's text for a sum: "-s" in decimal, "0" for 0.
QString ChecksumText(quint8 sum);
// True when the last "$$"-field, read as a decimal integer (non-numbers read as 0), cancels
// the sum of the other fields; a character above 255 counts as 0. Start and end bytes are
// ignored.
bool IsChecksumValid(const QString &frame);
// 0x02 + body + "$$" + checksum + 0x03.
QByteArray Build(const QByteArray &body);

} // namespace Frame
} // namespace Communication
} // namespace ovra
