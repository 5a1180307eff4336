#include "records/firingreport.h"

#include "programs/heatfiletext.h"
#include "programs/program.h"
#include "records/firingchart.h"
#include "records/firinghistory.h"
#include "records/firingpainter.h"

#include <QFile>
#include <QPainter>
#include <QPdfWriter>

namespace ovra {
namespace Records {

namespace {
constexpr int dpi = 150;
constexpr int margin = 90;
constexpr int textPixels = 22; // about 10.5 pt at 150 dpi

// Writes lines top-down and starts a new page when the next would not fit.
class Page
{
public:
    Page(QPdfWriter *writer, QPainter *painter) : m_writer(writer), m_painter(painter) {}

    double width() const { return m_writer->width() - 2 * margin; }
    double y = margin;

    void Room(double height)
    {
        if (y + height <= m_writer->height() - margin)
            return;
        m_writer->newPage();
        y = margin;
    }
    void Font(int pixels, bool bold)
    {
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(pixels);
        font.setBold(bold);
        m_painter->setFont(font);
    }
    void Heading(const QString &text)
    {
        y += textPixels;
        Room(textPixels * 3);
        Font(textPixels + 4, true);
        m_painter->drawText(QRectF(margin, y, width(), textPixels * 2), Qt::AlignLeft | Qt::AlignVCenter, text);
        y += textPixels * 2;
        Font(textPixels, false);
    }
    // Cells at the given fractions of the width.
    void Row(const QStringList &cells, const QList<double> &at, bool bold = false)
    {
        const double h = textPixels * 1.6;
        Room(h);
        Font(textPixels, bold);
        for (int i = 0; i < cells.size() && i < at.size(); ++i) {
            const double left = margin + at.at(i) * width();
            const double right = i + 1 < at.size() ? margin + at.at(i + 1) * width() : margin + width();
            m_painter->drawText(QRectF(left, y, right - left - 8, h), Qt::AlignLeft | Qt::AlignVCenter, cells.at(i));
        }
        y += h;
    }

private:
    QPdfWriter *m_writer;
    QPainter *m_painter;
};

QString Or(const QString &text)
{
    return text.simplified().isEmpty() ? QStringLiteral("-") : text.simplified();
}

Settings::DeviceReport::Data FromLines(const QString &lines, const Settings::DeviceReport::Data &fallback)
{
    const QStringList values = lines.split(QLatin1Char('\n'));
    if (lines.isEmpty() || values.size() < 5)
        return fallback;
    Settings::DeviceReport::Data device;
    device.model = values.at(0);
    device.serialNumber = values.at(1);
    device.hardwareVersion = values.at(2);
    device.softwareVersion = values.at(3);
    device.operatingHours = values.at(4);
    return device;
}
} // namespace

QString FiringReport::DeviceLines(const Settings::DeviceReport::Data &device)
{
    return QStringList{device.model.simplified(), device.serialNumber.simplified(), device.hardwareVersion.simplified(),
                       device.softwareVersion.simplified(), device.operatingHours.simplified()}
        .join(QLatin1Char('\n'));
}

bool FiringReport::Write(const FiringRecord &record, const Settings::DeviceReport::Data &fallback, bool fahrenheit,
                         const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        *error = QStringLiteral("cannot write %1").arg(path);
        return false;
    }
    if (Write(record, fallback, fahrenheit, &file, error))
        return true;
    *error = QStringLiteral("cannot write %1").arg(path);
    return false;
}

bool FiringReport::Write(const FiringRecord &record, const Settings::DeviceReport::Data &fallback, bool fahrenheit,
                         QIODevice *out, QString *error)
{
    const Settings::DeviceReport::Data device = FromLines(record.device, fallback);
    QPdfWriter writer(out);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setResolution(dpi);
    writer.setPageMargins(QMarginsF());
    writer.setTitle(tr("Brennprotokoll") + QLatin1Char(' ') + record.summary.program);
    writer.setCreator(QStringLiteral("ovra-panel " OVRA_VERSION_TEXT));
    QPainter painter;
    if (!painter.begin(&writer)) {
        *error = QStringLiteral("cannot write the report");
        return false;
    }
    painter.setPen(QColor(0x22, 0x31, 0x3F));
    Page page(&writer, &painter);
    const FiringSummary &s = record.summary;

    // Title with the result beside it.
    page.Font(textPixels * 2, true);
    painter.drawText(QRectF(margin, page.y, page.width(), textPixels * 3), Qt::AlignLeft | Qt::AlignVCenter,
                     tr("Brennprotokoll"));
    const double symbol = textPixels * 3;
    page.Font(textPixels + 4, true);
    const QString result = FiringPainter::ResultText(s.result);
    const double resultWidth = painter.fontMetrics().horizontalAdvance(result);
    FiringPainter::Symbol(&painter, QRectF(margin + page.width() - resultWidth - symbol - 12, page.y, symbol, symbol),
                          s.result);
    painter.drawText(QRectF(margin + page.width() - resultWidth, page.y, resultWidth, symbol),
                     Qt::AlignRight | Qt::AlignVCenter, result);
    page.y += symbol;
    page.Font(textPixels + 8, true);
    painter.drawText(QRectF(margin, page.y, page.width(), textPixels * 2), Qt::AlignLeft | Qt::AlignVCenter, s.program);
    page.y += textPixels * 2;

    const QList<double> pairs = {0.0, 0.28};
    page.Heading(tr("Gerät"));
    page.Row({tr("Typ + Baureihe:"), Or(device.model)}, pairs);
    page.Row({tr("Seriennummer:"), Or(device.serialNumber)}, pairs);
    page.Row({tr("Hardwareversion:"), Or(device.hardwareVersion)}, pairs);
    page.Row({tr("Softwareversion:"), Or(device.softwareVersion)}, pairs);
    page.Row({tr("Betriebsstunden:"), Or(device.operatingHours)}, pairs);

    page.Heading(tr("Brand"));
    if (!s.job.isEmpty())
        page.Row({tr("Auftrag:"), s.job}, pairs);
    page.Row({tr("Start:"), Or(s.startDate + QLatin1Char(' ') + s.startTime)}, pairs);
    page.Row({tr("Ende:"), Or(s.endDate + QLatin1Char(' ') + s.endTime)}, pairs);
    page.Row({tr("Dauer:"), FiringChart::DurationText(s.seconds)}, pairs);
    page.Row({tr("Material:"), Or(record.material)}, pairs);
    page.Row({tr("Vortrocknen:"), tr("%1 min").arg(record.preDryMinutes)}, pairs);
    if (!record.delayedStart.isEmpty())
        page.Row({tr("Verzögerter Start:"), record.delayedStart}, pairs);
    page.Row({tr("Ergebnis:"), result}, pairs);

    page.Heading(tr("Programm"));
    GlobalElements::Program program(QString(), QString(), {}, QString(), false);
    QString unused;
    const QString unit = fahrenheit ? QStringLiteral("°F") : QStringLiteral("°C");
    const auto shown = [fahrenheit](unsigned int celsius) {
        return QString::number(fahrenheit ? 32.0 + celsius * 1.8 : celsius, 'f', 0);
    };
    if (GlobalElements::HeatfileText::Read(record.heatfileText, &program, &unused)) {
        const QList<double> columns = {0.0, 0.18, 0.46, 0.74};
        page.Row({tr("Segment"), tr("Rate %1/min").arg(unit), tr("Temperatur %1").arg(unit), tr("Haltezeit min")},
                 columns, true);
        int n = 0;
        for (const QList<unsigned int> &row : qAsConst(*program.GetMatrix()))
            page.Row({QString::number(++n), QString::number(fahrenheit ? row.at(0) * 1.8 : row.at(0), 'f', 0),
                      shown(row.at(1)), QString::number(row.at(2))},
                     columns);
    } else {
        page.Row({tr("Programmtext nicht lesbar")}, {0.0});
    }

    page.Heading(tr("Temperaturverlauf"));
    const double chartHeight = 470;
    page.Room(chartHeight);
    FiringPainter::Chart(&painter, QRectF(margin, page.y, page.width(), chartHeight),
                         FiringChart::Build(record, fahrenheit, 2000), fahrenheit, textPixels);
    page.y += chartHeight;
    // The legend: the measured line and the planned dashes, as drawn above.
    const double legendY = page.y + textPixels * 0.8;
    painter.setPen(QPen(QColor(0xE8, 0x70, 0x2A), 4));
    painter.drawLine(QPointF(margin, legendY), QPointF(margin + 60, legendY));
    painter.setPen(QPen(QColor(0x22, 0x31, 0x3F), 2, Qt::DashLine));
    painter.drawLine(QPointF(margin + page.width() / 3, legendY), QPointF(margin + page.width() / 3 + 60, legendY));
    painter.setPen(QColor(0x22, 0x31, 0x3F));
    page.Row({QString(), tr("gemessen"), QString(), tr("geplant")}, {0.0, 0.07, 0.333, 0.403});

    page.Heading(tr("Fehler"));
    if (record.failures.isEmpty())
        page.Row({tr("Keine")}, {0.0});
    for (const auto &failure : record.failures)
        page.Row({failure.first, failure.second}, pairs);

    if (!painter.end()) {
        *error = QStringLiteral("cannot write the report");
        return false;
    }
    return true;
}

ReportWriter FiringReport::Writer(const Settings::DeviceReport::Data &device, bool fahrenheit)
{
    return [device, fahrenheit](const FiringRecord &record, const QString &path, QString *error) {
        return Write(record, device, fahrenheit, path, error);
    };
}

} // namespace Records
} // namespace ovra
