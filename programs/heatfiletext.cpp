#include "programs/heatfiletext.h"

#include "programs/program.h"
#include "programs/programtable.h"

#include <QStringList>

#include <algorithm>

namespace ovra {
namespace GlobalElements {
namespace HeatfileText {

namespace {
const QString metainfo = QStringLiteral("[metainfo]");
const QString separator = QStringLiteral(";");
const QString manufacturerKey = QStringLiteral("manufacturer=");
const QString materialKey = QStringLiteral("material=");
const QString nameKey = QStringLiteral("name=");
const QString favoriteKey = QStringLiteral("favorite=");
const QString section = QStringLiteral("[%1]");
const QString rateKey = QStringLiteral("rate=");
const QString tempKey = QStringLiteral("temp=");
const QString holdKey = QStringLiteral("hold=");
const QString argonKey = QStringLiteral("argon=");
} // namespace

QString Write(const Program &program)
{
    QString text = metainfo + separator + nameKey + program.GetName() + separator + manufacturerKey +
                   program.GetManufacturer() + separator + materialKey + program.GetMaterial() + separator +
                   favoriteKey + (program.IsFav() ? QStringLiteral("true") : QStringLiteral("false")) + separator;
    const bool argon = program.GetMaterial() == QLatin1String("Argon");
    const Program::Matrix &matrix = *program.GetMatrix();
    for (int i = 0; i < matrix.size(); ++i) {
        const QList<unsigned int> &row = matrix.at(i);
        text += section.arg(i + 1) + separator + rateKey + QString::number(row.value(0)) + separator + tempKey +
                QString::number(row.value(1) + 273u) + separator + holdKey + QString::number(row.value(2) * 60u) +
                separator;
        if (argon)
            text += argonKey + QStringLiteral("on") + separator;
    }
    return text;
}

namespace {
bool Fail(QString *error, const QString &reason)
{
    if (error != nullptr)
        *error = reason;
    return false;
}

bool Number(const QString &text, unsigned int *value)
{
    bool ok = false;
    *value = text.toUInt(&ok);
    return ok && !text.startsWith(QLatin1Char('+'));
}
} // namespace

bool Read(const QString &text, Program *program, QString *error)
{
    QStringList parts = text.trimmed().split(separator);
    if (parts.value(parts.size() - 1).isEmpty())
        parts.removeLast();
    if (parts.value(0) != metainfo)
        return Fail(error, QStringLiteral("does not begin with [metainfo]"));

    QString name, manufacturer, material, favorite;
    int i = 1;
    for (; i < parts.size() && !parts.at(i).startsWith(QLatin1Char('[')); ++i) {
        const QString &part = parts.at(i);
        QString *field = part.startsWith(nameKey)           ? &name
                         : part.startsWith(manufacturerKey) ? &manufacturer
                         : part.startsWith(materialKey)     ? &material
                         : part.startsWith(favoriteKey)     ? &favorite
                                                            : nullptr;
        if (field == nullptr || !field->isNull())
            return Fail(error, QStringLiteral("unknown or repeated entry '%1'").arg(part));
        *field = part.mid(part.indexOf(QLatin1Char('=')) + 1);
    }
    if (name.trimmed().isEmpty() || manufacturer.isEmpty() || material.isEmpty())
        return Fail(error, QStringLiteral("name, manufacturer and material are needed"));
    // Field separators and control bytes would break the frame the text travels in.
    if (name.contains(QLatin1String("$$")) ||
        std::any_of(name.cbegin(), name.cend(), [](QChar c) { return c.unicode() < 0x20; }))
        return Fail(error, QStringLiteral("the name holds characters the line cannot carry"));
    if (favorite != QLatin1String("true") && favorite != QLatin1String("false"))
        return Fail(error, QStringLiteral("favorite must be true or false"));

    const bool argon = material == QLatin1String("Argon");
    const unsigned int lowest = ProgramTable::lowestTemperature + 273u;
    const unsigned int highest = ProgramTable::maxCelsius + 273u;
    Program::Matrix matrix;
    while (i < parts.size()) {
        const int number = matrix.size() + 1;
        if (parts.at(i) != section.arg(number))
            return Fail(error, QStringLiteral("'%1' where segment [%2] was expected").arg(parts.at(i)).arg(number));
        if (number > ProgramTable::maxRows)
            return Fail(error, QStringLiteral("more than %1 segments").arg(ProgramTable::maxRows));
        const QStringList keys = {rateKey, tempKey, holdKey};
        QList<unsigned int> row;
        for (int k = 0; k < keys.size(); ++k) {
            unsigned int value = 0;
            const QString part = parts.value(i + 1 + k);
            if (!part.startsWith(keys.at(k)) || !Number(part.mid(keys.at(k).size()), &value))
                return Fail(error, QStringLiteral("segment [%1] needs %2<number>").arg(number).arg(keys.at(k)));
            row << value;
        }
        i += 4;
        const bool argonEntry = parts.value(i) == argonKey + QStringLiteral("on");
        if (argonEntry != argon)
            return Fail(error, QStringLiteral("segment [%1]: argon=on belongs to the material Argon only").arg(number));
        if (argonEntry)
            ++i;
        if (row.at(0) < 1u || row.at(0) > 999u)
            return Fail(error, QStringLiteral("segment [%1]: rate %2 out of 1-999").arg(number).arg(row.at(0)));
        if (row.at(1) < lowest || row.at(1) > highest)
            return Fail(error, QStringLiteral("segment [%1]: temp %2 K out of %3-%4")
                                   .arg(number)
                                   .arg(row.at(1))
                                   .arg(lowest)
                                   .arg(highest));
        if (row.at(2) % 60u != 0u)
            return Fail(error,
                        QStringLiteral("segment [%1]: hold %2 s is not whole minutes").arg(number).arg(row.at(2)));
        matrix.append({row.at(0), row.at(1) - 273u, row.at(2) / 60u});
    }
    if (matrix.isEmpty())
        return Fail(error, QStringLiteral("no segment"));

    program->SetName(name);
    program->SetManufacturer(manufacturer);
    program->SetMaterial(material);
    program->SetFav(favorite == QLatin1String("true"));
    program->SetMatrix(matrix);
    return true;
}

} // namespace HeatfileText
} // namespace GlobalElements
} // namespace ovra
