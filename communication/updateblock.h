#pragma once

#include <QByteArray>
#include <QString>

namespace ovra {
namespace Communication {

// One block of an update file as the controller sends it while an update is received:
// block number, declared length, Base64 data, "&", MD5 of the data in lower-case hex.
// Plain functions so that tests and benchmarks work on the text alone.
namespace UpdateBlock {

constexpr int defaultNumberWidth = 6;
constexpr int defaultLengthWidth = 3;

// Fills `number` as soon as the text is long enough to hold one (a non-number reads as 0)
// and leaves it alone otherwise. On a digest mismatch `data` becomes the declared length's
// worth of '_' so that nothing of the damaged block can pass for content. True only for a
// block whose data match their digest.
bool Decode(const QString &text, QByteArray &data, int &number, int numberWidth = defaultNumberWidth,
            int lengthWidth = defaultLengthWidth);

// The block text for `data` (at most 999 bytes with the default widths).
QByteArray Encode(int number, const QByteArray &data, int numberWidth = defaultNumberWidth,
                  int lengthWidth = defaultLengthWidth);

// "37%": applied * 100 / total in whole percent; empty when total is below 1.
QString ProgressText(int applied, int total);

} // namespace UpdateBlock
} // namespace Communication
} // namespace ovra
