#include "faults/failureseverity.h"

namespace ovra {
namespace GlobalElements {
namespace FailureSeverity {

namespace {
constexpr int severe = 3;
constexpr int medium = 4;
constexpr int information = 5;
} // namespace

bool UserMayDelete(const QString &code)
{
    return code.size() > severe;
}

QString WorstIcon(const QStringList &codes)
{
    int worst = 10;
    QString icon;
    for (const QString &code : codes) {
        const int length = code.size();
        if (length == information && worst > information) {
            icon = QStringLiteral(":/Failure/info.png");
            worst = information;
        } else if (length == medium && worst > medium) {
            icon = QStringLiteral(":/Failure/mittel.png");
            worst = medium;
        } else if (length == severe && worst > severe) {
            icon = QStringLiteral(":/Failure/schwer.png");
            worst = severe;
        }
    }
    return icon;
}

} // namespace FailureSeverity
} // namespace GlobalElements
} // namespace ovra
