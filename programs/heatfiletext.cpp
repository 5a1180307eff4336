#include "programs/heatfiletext.h"

#include "programs/program.h"

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
    QString text = metainfo + separator + nameKey + program.GetName() + separator + manufacturerKey
                   + program.GetManufacturer() + separator + materialKey + program.GetMaterial()
                   + separator + favoriteKey
                   + (program.IsFav() ? QStringLiteral("true") : QStringLiteral("false")) + separator;
    const bool argon = program.GetMaterial() == QLatin1String("Argon");
    const Program::Matrix &matrix = *program.GetMatrix();
    for (int i = 0; i < matrix.size(); ++i) {
        const QList<unsigned int> &row = matrix.at(i);
        text += section.arg(i + 1) + separator + rateKey + QString::number(row.value(0)) + separator
                + tempKey + QString::number(row.value(1) + 273u) + separator + holdKey
                + QString::number(row.value(2) * 60u) + separator;
        if (argon)
            text += argonKey + QStringLiteral("on") + separator;
    }
    return text;
}

} // namespace HeatfileText
} // namespace GlobalElements
} // namespace ovra
