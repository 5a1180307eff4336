#pragma once

#include <QByteArray>

namespace ovra {
namespace Communication {

// Turns the serial line's chunks into frames the way the controller's transport expects,
// without a port, so tests and fuzz targets can feed it bytes.
class FrameAssembler
{
public:
    // A partial frame that grows past this is noise, not a frame.
    static constexpr int maxBufferBytes = 1024 * 1024;

    // True when the chunk completes a frame: *frame is then the collected bytes up to (not
    // including) the end byte, start byte included, and the buffer is empty again.
    bool Feed(const QByteArray &chunk, QByteArray *frame);
    int BufferedBytes() const { return m_buffer.size(); }

private:
    // False when the bytes would overflow the buffer; the partial frame is then dropped.
    bool AppendToBuffer(const QByteArray &bytes);

    QByteArray m_buffer;
    bool m_discarding = false; // after an overflow, until the next start byte
};

} // namespace Communication
} // namespace ovra
