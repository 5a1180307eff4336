#include "communication/frameassembler.h"

#include "communication/frame.h"

#include <QDebug>

namespace ovra {
namespace Communication {

bool FrameAssembler::Feed(const QByteArray &chunk, QByteArray *frame)
{
    const int start = chunk.indexOf(Frame::startByte);
    if (start >= 0) {
        // A start byte only restarts the buffer, even when the end byte came along: the
        // controller always sends the end byte on its own, and a frame is dispatched by
        // that later chunk alone.
        m_buffer.clear();
        m_discarding = false;
        AppendToBuffer(chunk.mid(start));
        return false;
    }

    const int end = chunk.indexOf(Frame::endByte);
    if (m_discarding) {
        // The tail of a dropped oversized frame is not a frame: wait for the next start.
        if (end >= 0) {
            m_discarding = false;
            qDebug() << "end of dropped oversized frame";
        }
        return false;
    }
    if (end < 0) {
        AppendToBuffer(chunk);
        return false;
    }
    if (!AppendToBuffer(chunk.left(end)))
        return false;
    *frame = m_buffer;
    m_buffer.clear();
    return true;
}

bool FrameAssembler::AppendToBuffer(const QByteArray &bytes)
{
    if (m_buffer.size() + bytes.size() > maxBufferBytes) {
        qDebug() << "receive buffer overflow: partial frame of" << m_buffer.size() + bytes.size() << "bytes dropped";
        m_buffer.clear();
        m_discarding = true;
        return false;
    }
    m_buffer.append(bytes);
    return true;
}

} // namespace Communication
} // namespace ovra
