#include "communication/updatescript.h"

namespace ovra {
namespace Communication {
namespace UpdateScript {

QStringList DefaultInterpreters()
{
    return {QStringLiteral("python"), QStringLiteral("python3")};
}

QString Report(const QByteArray &standardOutput, bool ranToEnd)
{
    QByteArray value = standardOutput;
    value.replace('\r', QByteArray()).replace('\n', QByteArray());
    if (!ranToEnd || standardOutput.isEmpty())
        return QStringLiteral("failed");
    return value.toInt() == 0 ? QStringLiteral("done") : QStringLiteral("failed");
}

} // namespace UpdateScript
} // namespace Communication
} // namespace ovra
