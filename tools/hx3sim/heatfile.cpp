#include "heatfile.h"

#include <QStringList>

namespace heatfile {

namespace {
constexpr int kKelvinOffset = 273;
constexpr int kSecondsPerMinute = 60;
// Enough for any value a furnace has; more digits would only be a way to overflow.
constexpr int kMaxDigits = 6;
constexpr int kQuoteLength = 40;
const QString kArgon = QStringLiteral("Argon");
const QString kArgonOn = QStringLiteral("argon=on");

QString quoted(const QString &element)
{
    return element.size() > kQuoteLength ? element.left(kQuoteLength) + QLatin1String("...") : element;
}

// Walks the elements in the one order the text may have; the first deviation is the error.
class Reader
{
public:
    explicit Reader(const QStringList &elements) : m_elements(elements) {}

    bool atEnd() const { return m_next >= m_elements.size(); }
    const QString &peek() const { return m_elements.at(m_next); }
    QString error() const { return m_error; }

    bool literal(const QString &expected)
    {
        if (!have(expected))
            return false;
        if (peek() != expected)
            return fail(QStringLiteral("expected %1, found %2").arg(expected, quoted(peek())));
        ++m_next;
        return true;
    }

    bool value(const QString &key, QString *out)
    {
        if (!have(key + QLatin1String("=...")))
            return false;
        const QString &element = peek();
        const QString prefix = key + QLatin1Char('=');
        if (!element.startsWith(prefix))
            return fail(QStringLiteral("expected %1=..., found %2").arg(key, quoted(element)));
        const QString rest = element.mid(prefix.size());
        if (rest.contains(QLatin1Char('=')))
            return fail(QStringLiteral("%1 holds a second \"=\"").arg(quoted(element)));
        *out = rest;
        ++m_next;
        return true;
    }

    bool number(const QString &key, int *out)
    {
        QString digits;
        if (!value(key, &digits))
            return false;
        bool plain = !digits.isEmpty() && digits.size() <= kMaxDigits &&
                     (digits == QLatin1String("0") || !digits.startsWith(QLatin1Char('0')));
        for (const QChar c : digits)
            plain = plain && c >= QLatin1Char('0') && c <= QLatin1Char('9');
        if (!plain)
            return failLast(QStringLiteral("%1=%2 is not a plain number").arg(key, quoted(digits)));
        *out = digits.toInt();
        return true;
    }

    // Reports against the element last read.
    bool failLast(const QString &reason)
    {
        --m_next;
        return fail(reason);
    }

    bool failWhole(const QString &reason)
    {
        m_error = reason;
        return false;
    }

    bool fail(const QString &reason)
    {
        m_error = QStringLiteral("element %1: %2").arg(m_next + 1).arg(reason);
        return false;
    }

private:
    bool have(const QString &expected)
    {
        if (!atEnd())
            return true;
        m_error = QStringLiteral("ends where %1 should follow").arg(expected);
        return false;
    }

    const QStringList &m_elements;
    int m_next = 0;
    QString m_error;
};

bool readSegment(Reader &reader, int number, bool argon, Segment *segment)
{
    int kelvin = 0;
    int holdSeconds = 0;
    if (!reader.literal(QStringLiteral("[%1]").arg(number)) || !reader.number(QStringLiteral("rate"), &segment->rate))
        return false;
    if (segment->rate < 1)
        return reader.failLast(QStringLiteral("a rate of 0 never reaches its target"));
    if (!reader.number(QStringLiteral("temp"), &kelvin))
        return false;
    if (kelvin < kKelvinOffset)
        return reader.failLast(QStringLiteral("temp=%1 is below 273 (Kelvin expected)").arg(kelvin));
    if (!reader.number(QStringLiteral("hold"), &holdSeconds))
        return false;
    if (holdSeconds % kSecondsPerMinute != 0)
        return reader.failLast(QStringLiteral("hold=%1 is not whole minutes (seconds expected)").arg(holdSeconds));
    if (argon && !reader.literal(kArgonOn))
        return false;
    segment->tempCelsius = kelvin - kKelvinOffset;
    segment->holdMinutes = holdSeconds / kSecondsPerMinute;
    return true;
}

bool readProgram(Reader &reader, Program *read)
{
    QString favorite;
    if (!reader.literal(QStringLiteral("[metainfo]")) || !reader.value(QStringLiteral("name"), &read->name))
        return false;
    const QString badName = nameProblem(read->name);
    if (!badName.isEmpty())
        return reader.failLast(badName);
    if (!reader.value(QStringLiteral("manufacturer"), &read->manufacturer))
        return false;
    if (read->manufacturer.isEmpty())
        return reader.failLast(QStringLiteral("no manufacturer"));
    if (!reader.value(QStringLiteral("material"), &read->material) ||
        !reader.value(QStringLiteral("favorite"), &favorite))
        return false;
    if (favorite != QLatin1String("true") && favorite != QLatin1String("false"))
        return reader.failLast(QStringLiteral("favorite must be true or false, not \"%1\"").arg(quoted(favorite)));
    read->favorite = favorite == QLatin1String("true");

    const bool argon = read->material == kArgon;
    while (!reader.atEnd()) {
        // The gas goes with the material; a segment cannot switch it on by itself.
        if (!argon && reader.peek() == kArgonOn)
            return reader.fail(QStringLiteral("argon=on in a program of material \"%1\"").arg(read->material));
        if (read->segments.size() == kMaxSegments)
            return reader.fail(QStringLiteral("more than %1 segments").arg(kMaxSegments));
        Segment segment;
        if (!readSegment(reader, read->segments.size() + 1, argon, &segment))
            return false;
        read->segments.append(segment);
    }
    if (read->segments.isEmpty())
        return reader.failWhole(QStringLiteral("no segment"));
    return true;
}
} // namespace

QByteArray text(const Program &program)
{
    QString out = QStringLiteral("[metainfo];name=%1;manufacturer=%2;material=%3;favorite=%4;")
                      .arg(program.name, program.manufacturer, program.material,
                           program.favorite ? QStringLiteral("true") : QStringLiteral("false"));
    const bool argon = program.material == kArgon;
    for (int i = 0; i < program.segments.size(); ++i) {
        const Segment &segment = program.segments.at(i);
        out += QStringLiteral("[%1];rate=%2;temp=%3;hold=%4;")
                   .arg(i + 1)
                   .arg(segment.rate)
                   .arg(segment.tempCelsius + kKelvinOffset)
                   .arg(segment.holdMinutes * kSecondsPerMinute);
        if (argon)
            out += kArgonOn + QLatin1Char(';');
    }
    return out.toUtf8();
}

QString nameProblem(const QString &name)
{
    if (name.isEmpty())
        return QStringLiteral("the name is empty");
    if (name.trimmed() != name)
        return QStringLiteral("the name \"%1\" starts or ends with a space").arg(name);
    // "." would be cut off as a file suffix, "," splits the favourite request, "$$" the frame.
    for (const QString &bad :
         {QStringLiteral("."), QStringLiteral(";"), QStringLiteral("="), QStringLiteral(","), QStringLiteral("$$")}) {
        if (name.contains(bad))
            return QStringLiteral("the name \"%1\" contains \"%2\"").arg(name, bad);
    }
    return QString();
}

bool parse(const QByteArray &bytes, Program *program, QString *error)
{
    const auto refuse = [error](const QString &reason) {
        *error = reason;
        return false;
    };
    if (bytes.isEmpty())
        return refuse(QStringLiteral("empty text"));
    const QString whole = QString::fromUtf8(bytes);
    if (whole.toUtf8() != bytes)
        return refuse(QStringLiteral("not UTF-8"));
    for (const QChar c : whole) {
        if (c.unicode() < 0x20 || c.unicode() == 0x7f)
            return refuse(
                QStringLiteral("control character 0x%1 in the text").arg(c.unicode(), 2, 16, QLatin1Char('0')));
    }
    if (!whole.endsWith(QLatin1Char(';')))
        return refuse(QStringLiteral("the last element is not closed by \";\""));

    QStringList elements = whole.split(QLatin1Char(';'));
    elements.removeLast();
    const int empty = elements.indexOf(QString());
    if (empty >= 0)
        return refuse(QStringLiteral("element %1 is empty").arg(empty + 1));

    Reader reader(elements);
    Program read;
    if (!readProgram(reader, &read))
        return refuse(reader.error());
    *program = read;
    return true;
}

QString describe(const Program &program)
{
    QStringList segments;
    for (const Segment &segment : program.segments)
        segments.append(QStringLiteral("%1/%2/%3").arg(segment.rate).arg(segment.tempCelsius).arg(segment.holdMinutes));
    return QStringList{program.name, program.manufacturer, program.material,
                       program.favorite ? QStringLiteral("fav") : QStringLiteral("-"), segments.join(QLatin1Char(' '))}
        .join(QLatin1String(" | "));
}

} // namespace heatfile
