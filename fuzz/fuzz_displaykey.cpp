// Whatever a client of the display-key server may send in one read.
#include "communication/internalcommunicator.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray message(reinterpret_cast<const char *>(data), int(size));
    const auto key = ovra::Communication::InterpretKeyMessage(message);
    // Only "aus" turns the touch off; every message gets a three-letter answer.
    if (key.enable == (message == "aus") || key.answer.size() != 3)
        __builtin_trap();
    return 0;
}
