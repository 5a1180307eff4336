// The serial line's chunks as the port may deliver them: each input is a run of chunks, each
// a length byte and that many bytes. Every frame the assembler completes goes on to the
// handler, as the transport does.
#include "communication/frameassembler.h"
#include "harness.h"

#include <cstddef>
#include <cstdint>

using namespace ovra::Communication;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FrameAssembler assembler;
    size_t at = 0;
    while (at < size) {
        const size_t length = std::min<size_t>(data[at], size - at - 1);
        const QByteArray chunk(reinterpret_cast<const char *>(data + at + 1), int(length));
        at += 1 + length;
        QByteArray frame;
        if (assembler.Feed(chunk, &frame)) {
            // A frame that came whole in one chunk keeps its end byte: the handler strips it.
            if (!frame.startsWith(char(0x02)) && frame.contains(char(0x02)))
                __builtin_trap();
            if (assembler.BufferedBytes() != 0)
                __builtin_trap();
            fuzz::Handle(QString::fromLatin1(frame));
        }
        if (assembler.BufferedBytes() > FrameAssembler::maxBufferBytes)
            __builtin_trap();
    }
    return 0;
}
