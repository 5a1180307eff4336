#include "sampleprograms.h"

namespace sampleprograms {

namespace {
constexpr int kKelvinOffset = 273;
const QString kArgon = QStringLiteral("Argon");
}  // namespace

QList<Program> programs()
{
    const QString user = QStringLiteral("user");
    const QString service = QStringLiteral("service");
    const QString zirkon = QStringLiteral("Zirkon");
    return {
        {QStringLiteral("Standard Zirkon"), user, zirkon, true, {{25, 900, 0}, {10, 1450, 120}}},
        {QStringLiteral("Schnellsintern"), user, zirkon, false, {{50, 1500, 30}}},
        {QStringLiteral("Glasur 930"), user, QStringLiteral("Glaskeramik"), false, {{40, 600, 5}, {30, 930, 2}}},
        {QStringLiteral("Prime Translucent"), QStringLiteral("DentaCeram"), zirkon, false,
         {{20, 900, 30}, {10, 1200, 0}, {5, 1530, 120}, {50, 800, 0}}},
        {QStringLiteral("Multilayer HT"), QStringLiteral("Zircos"), zirkon, false, {{15, 1100, 15}, {8, 1480, 90}}},
        {QStringLiteral("CoCr Laser"), QStringLiteral("Metallix"), kArgon, false,
         {{30, 800, 10}, {15, 1150, 20}, {10, 1300, 60}}},
        {QStringLiteral("Kalibrierung"), service, QStringLiteral("Leerbrand"), false, {{50, 1000, 30}, {20, 1500, 10}}},
        {QStringLiteral("Ausheizen"), service, QStringLiteral("Leerbrand"), false, {{50, 1100, 60}}},
    };
}

QByteArray heatfileText(const Program &program)
{
    QString text = QStringLiteral("[metainfo];name=%1;manufacturer=%2;material=%3;favorite=%4;")
                       .arg(program.name, program.manufacturer, program.material,
                            program.favorite ? QStringLiteral("true") : QStringLiteral("false"));
    const bool argon = program.material == kArgon;
    for (int i = 0; i < program.segments.size(); ++i) {
        const Segment &segment = program.segments.at(i);
        text += QStringLiteral("[%1];rate=%2;temp=%3;hold=%4;")
                    .arg(i + 1)
                    .arg(segment.rate)
                    .arg(segment.tempCelsius + kKelvinOffset)
                    .arg(segment.holdMinutes * 60);
        if (argon)
            text += QStringLiteral("argon=on;");
    }
    return text.toUtf8();
}

}  // namespace sampleprograms
