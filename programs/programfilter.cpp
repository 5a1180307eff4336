#include "programs/programfilter.h"

#include "programs/program.h"

namespace ovra {
namespace GlobalElements {
namespace ProgramFilter {

void Apply(QList<Program *> &programs, const QStringList &manufacturers, const QStringList &materials)
{
    if (manufacturers.isEmpty() && materials.isEmpty())
        return;
    for (int i = programs.size() - 1; i >= 0; --i) {
        const Program *p = programs.at(i);
        const bool makerOk = manufacturers.isEmpty() || manufacturers.contains(p->GetManufacturer());
        const bool materialOk = materials.isEmpty() || materials.contains(p->GetMaterial());
        if (!makerOk || !materialOk)
            programs.removeAt(i);
    }
}

bool ButtonMatches(const QString &buttonText, const QString &value)
{
    QString text = buttonText;
    return text.remove(QLatin1Char(' ')) == value;
}

} // namespace ProgramFilter
} // namespace GlobalElements
} // namespace ovra
