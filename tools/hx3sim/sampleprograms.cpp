#include "sampleprograms.h"

namespace sampleprograms {

using heatfile::Program;

QList<Program> programs()
{
    const QString user = QStringLiteral("user");
    const QString service = QStringLiteral("service");
    const QString zirkon = QStringLiteral("Zirkon");
    return {
        {QStringLiteral("Standard Zirkon"), user, zirkon, true, {{25, 900, 0}, {10, 1450, 120}}},
        {QStringLiteral("Schnellsintern"), user, zirkon, false, {{50, 1500, 30}}},
        {QStringLiteral("Glasur 930"), user, QStringLiteral("Glaskeramik"), false, {{40, 600, 5}, {30, 930, 2}}},
        {QStringLiteral("Prime Translucent"),
         QStringLiteral("DentaCeram"),
         zirkon,
         false,
         {{20, 900, 30}, {10, 1200, 0}, {5, 1530, 120}, {50, 800, 0}}},
        {QStringLiteral("Multilayer HT"), QStringLiteral("Zircos"), zirkon, false, {{15, 1100, 15}, {8, 1480, 90}}},
        {QStringLiteral("CoCr Laser"),
         QStringLiteral("Metallix"),
         QStringLiteral("Argon"),
         false,
         {{30, 800, 10}, {15, 1150, 20}, {10, 1300, 60}}},
        {QStringLiteral("Kalibrierung"), service, QStringLiteral("Leerbrand"), false, {{50, 1000, 30}, {20, 1500, 10}}},
        {QStringLiteral("Ausheizen"), service, QStringLiteral("Leerbrand"), false, {{50, 1100, 60}}},
    };
}

QList<Program> generated(int count)
{
    static const QString makers[] = {QStringLiteral("DentaCeram"), QStringLiteral("Zircos"),
                                     QStringLiteral("Metallix")};
    const int width = qMax(3, QString::number(count).size());
    QList<Program> list;
    list.reserve(count);
    for (int i = 1; i <= count; ++i) {
        Program program;
        program.name = QStringLiteral("Programm %1").arg(i, width, 10, QLatin1Char('0'));
        switch (i % 3) {
        case 1:
            program.manufacturer = QStringLiteral("user");
            program.material = i % 2 != 0 ? QStringLiteral("Zirkon") : QStringLiteral("Glaskeramik");
            program.favorite = i % 15 == 1;
            break;
        case 2:
            program.manufacturer = makers[(i / 3) % 3];
            program.material = program.manufacturer == makers[2] ? QStringLiteral("Argon") : QStringLiteral("Zirkon");
            break;
        default:
            program.manufacturer = QStringLiteral("service");
            program.material = QStringLiteral("Leerbrand");
            break;
        }
        // Steps of 7 through ten give every length from 1 to 10 in any ten programs in a row.
        const int segments = 1 + (i * 7) % heatfile::kMaxSegments;
        for (int s = 0; s < segments; ++s)
            program.segments.append(
                {5 + (i * 3 + s * 11) % 46, 600 + ((i * 37 + s * 113) % 96) * 10, ((i + s * 7) % 25) * 5});
        list.append(program);
    }
    return list;
}

} // namespace sampleprograms
