// Any bytes the line can carry, handed to the frame handler as the transport would; and, when
// the first byte is 0x01, the rest as the body of a frame with a valid checksum, so the
// commands behind the checksum are reached too.
#include "communication/frame.h"
#include "harness.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    if (bytes.startsWith('\x01'))
        bytes = ovra::Communication::Frame::Build(bytes.mid(1));
    const QByteArray answer = fuzz::Handle(QString::fromLatin1(bytes));
    // An answer is always a whole frame or nothing.
    if (!answer.isEmpty() && (answer.front() != 0x02 || answer.back() != 0x03))
        __builtin_trap();
    return 0;
}
