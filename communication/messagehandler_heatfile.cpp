// Reading a heat program as the controller sends it: "[metainfo];name=..;...;[1];rate=..;..".
#include "communication/messagehandler.h"

#include <QDebug>
#include <QMetaMethod>

namespace ovra {
namespace Communication {

using GlobalElements::Program;

namespace {
// A section number beyond this cannot come from the controller (it keeps ten segments);
// growing the matrix to it would only let a corrupted line eat the board's memory.
constexpr int maxSection = 100;
} // namespace

void MessageHandler::HandleRecvHeatfile(const QString &payload)
{
    auto *prog =
        new Program(QStringLiteral("default"), QString(), {QList<unsigned int>()}, QStringLiteral("user"), false);

    QStringList parts = payload.split(QLatin1Char(';'), Qt::KeepEmptyParts);
    parts.removeAll(QString());

    m_heatfileSection = -1;
    for (const QString &part : qAsConst(parts)) {
        if (part.contains(QLatin1Char('[')) && part.contains(QLatin1Char(']'))) {
            m_heatfileSection = part.mid(1, part.size() - 2).toInt(); // "[metainfo]" gives 0
            continue;
        }
        HeatfileLineParser(part, m_heatfileSection, prog);
    }

    emit SignalHeatfileReceived(prog);
    emit SignalSetProgToFav(prog->IsFav(), prog);

    // The program store takes the record with the first signal; with nobody listening the
    // record would be lost memory.
    if (!isSignalConnected(QMetaMethod::fromSignal(&MessageHandler::SignalHeatfileReceived))) {
        qDebug() << "heatfile" << prog->GetName() << "received but no program store is connected";
        delete prog;
    }
}

void MessageHandler::HeatfileLineParser(const QString &entry, int section, Program *prog)
{
    const QStringList pieces = entry.split(QLatin1Char('='), Qt::KeepEmptyParts);
    const QString &key = pieces.constFirst();
    const QString value = pieces.value(1);

    const bool segmentKey =
        key == QLatin1String("rate") || key == QLatin1String("hold") || key == QLatin1String("temp");
    if (segmentKey && (section < 1 || section > maxSection)) {
        qDebug() << entry << "outside of a segment section, ignored";
        return;
    }

    QList<QList<unsigned int>> matrix = *prog->GetMatrix();
    // Rows past the last segment section are all zero and trimmed below: a header such as
    // "[9999999]" before a name must not make millions of them first.
    const int capacity = qMax(qMin(section, maxSection), m_segmentCapacity);
    if (capacity > matrix.size()) {
        for (int i = 0; i < capacity; ++i)
            matrix.append({0u, 0u, 0u});
    }
    if (matrix.first().isEmpty())
        matrix.first() = {0u, 0u, 0u};

    if (key == QLatin1String("name")) {
        prog->SetName(value.split(QLatin1Char('.')).constFirst());
    } else if (key == QLatin1String("favorite")) {
        prog->SetFav(value == QLatin1String("true"));
    } else if (key == QLatin1String("material")) {
        prog->SetMaterial(value);
    } else if (key == QLatin1String("manufacturer")) {
        prog->SetManufacturer(value);
    } else if (key == QLatin1String("rate")) {
        matrix[section - 1][0] = value.toUInt();
    } else if (key == QLatin1String("hold")) {
        matrix[section - 1][2] = value.toUInt() / 60u;
    } else if (key == QLatin1String("temp")) {
        // Lopsided on purpose: 273..322 K is raised to 50 °C, below 273 K wraps round.
        const unsigned int celsius = value.toUInt() - 273u;
        matrix[section - 1][1] = celsius <= 49u ? 50u : celsius;
    } else {
        qDebug() << entry << "nicht erkannt oder nicht relevant";
    }

    CleanMatrix(&matrix);
    prog->SetMatrix(matrix);
}

void MessageHandler::CleanMatrix(QList<QList<unsigned int>> *matrix)
{
    if (matrix == nullptr || matrix->size() < 2)
        return;
    // Trailing zero-rate rows are unused capacity; row 0 always stays.
    for (int i = matrix->size() - 1; i >= 1 && matrix->at(i).value(0) == 0u; --i)
        matrix->removeLast();
}

} // namespace Communication
} // namespace ovra
