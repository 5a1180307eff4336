// A heatfile text as a stick or a person may have written it, and the same text as the
// controller's "heatfile==" command in a frame with a valid checksum.
#include "communication/frame.h"
#include "harness.h"
#include "programs/heatfiletext.h"
#include "programs/program.h"

#include <cstddef>
#include <cstdint>

using namespace ovra;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    GlobalElements::Program program({}, {}, {}, {}, false);
    QString error;
    const QString text = QString::fromUtf8(bytes);
    if (GlobalElements::HeatfileText::Read(text, &program, &error)) {
        // What was read must write back to a text that reads as the same program.
        GlobalElements::Program again({}, {}, {}, {}, false);
        if (!GlobalElements::HeatfileText::Read(GlobalElements::HeatfileText::Write(program), &again, &error) ||
            *again.GetMatrix() != *program.GetMatrix() || again.GetName() != program.GetName())
            __builtin_trap();
    }
    fuzz::Handle(QString::fromLatin1(Communication::Frame::Build("heatfile==" + bytes)));
    return 0;
}
