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
// the sum of the other fields' characters (one above 255 counts as 0). Start and end bytes
// are ignored. Only text with one character per received byte gives the controller's byte
// sum: not ReceivedText(), whose "Ä" may have come as one byte or as two.
bool IsChecksumValid(const QString &frame);
// The text of a received frame (cut at a NUL byte): UTF-8 when the bytes are valid UTF-8,
// else one character per byte. The controller's words are ASCII, which reads the same both
// ways; program names the panel sent as UTF-8 come back whole this way, where reading byte
// by byte alone turned "Brücke" into "BrÃ¼cke" after a restart.
QString ReceivedText(const QByteArray &frame);
// 0x02 + body + "$$" + checksum + 0x03.
QByteArray Build(const QByteArray &body);

} // namespace Frame
} // namespace Communication
} // namespace ovra
