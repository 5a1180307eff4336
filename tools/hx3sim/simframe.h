#pragma once

// Frame handling of the HX3 line, written independently of the panel's own code on purpose:
// when the simulator and the panel disagree, one of the two is wrong, and a shared
// implementation would hide exactly that.

#include <QByteArray>
#include <QList>
#include <QString>

#include <utility>

namespace simframe {

constexpr char kStx = 0x02;
constexpr char kEtx = 0x03;

// Sum of the bytes of all fields, taken as unsigned, modulo 256. Separators are not part of it.
int byteSum(const QList<QByteArray> &fields);

// The checksum field for a body: the decimal text of the negated byte sum ("-47", or "0").
QByteArray checksumField(const QList<QByteArray> &bodyFields);

// Body fields joined by "$$", then "$$" and the checksum field; no start or end byte.
QByteArray buildContent(const QList<QByteArray> &bodyFields);

// The complete frame as it goes on the wire: start byte, content, end byte.
QByteArray buildFrame(const QList<QByteArray> &bodyFields);

QList<QByteArray> splitFields(const QByteArray &content);

// The receiving side's rule: the last field read as a decimal integer (anything that is not a
// number reads as 0) plus the byte sum of all other fields must be exactly zero.
bool checksumMatches(const QList<QByteArray> &allFields);

struct Answer
{
    bool valid = false;
    bool nack = false;
    QList<QByteArray> requests; // every body field after "ack"/"nack"
    QString error;              // why it is not valid, for the log
};

// Content is what lies between the start and the end byte.
Answer parseAnswer(const QByteArray &content);

// Cuts every complete frame out of a receive buffer and returns their contents. Bytes before a
// start byte are noise and dropped; a second start byte before an end byte restarts the frame,
// since the first one can never be completed any more. An incomplete tail stays in the buffer.
QList<QByteArray> takeFrames(QByteArray &buffer);

// "keyword==param" -> {keyword, param}; a field without "==" is all keyword.
std::pair<QByteArray, QByteArray> splitCommand(const QByteArray &field);

// Raw bytes for a log line: start/end bytes as <STX>/<ETX>, other control bytes as <XX>.
QString printable(const QByteArray &raw);

// Short description of a frame for log lines; heatfile texts are long, so it is cut.
QString summary(const QList<QByteArray> &bodyFields);

} // namespace simframe
