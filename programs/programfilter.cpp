#include "programs/programfilter.h"

#include "programs/program.h"

#include <QCoreApplication>

#include <algorithm>

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

QString ShownValue(const QString &value)
{
    if (value == QLatin1String("user"))
        return QCoreApplication::translate("ProgramFilter", "Meine Programme");
    if (value == QLatin1String("service"))
        return QCoreApplication::translate("ProgramFilter", "Service Programme");
    return value;
}

bool ButtonMatches(const QString &buttonText, const QString &value)
{
    QString text = buttonText;
    return text.remove(QLatin1Char(' ')) == value;
}

QStringList NewButtonValues(const QList<Program *> &programs, bool byManufacturer, const QStringList &buttonTexts)
{
    QStringList texts = buttonTexts;
    QStringList values;
    for (const Program *program : programs) {
        const QString value = byManufacturer ? program->GetManufacturer() : program->GetMaterial();
        const bool known = std::any_of(texts.cbegin(), texts.cend(),
                                       [&value](const QString &text) { return ButtonMatches(text, value); });
        if (known)
            continue;
        values << value;
        texts << value;
    }
    return values;
}

} // namespace ProgramFilter
} // namespace GlobalElements
} // namespace ovra
