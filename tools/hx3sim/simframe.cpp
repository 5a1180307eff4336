#include "simframe.h"

namespace simframe {

namespace {
const QByteArray kSeparator("$$");
const QByteArray kCommandSeparator("==");
constexpr int kSummaryLength = 60;
} // namespace

int byteSum(const QList<QByteArray> &fields)
{
    unsigned int sum = 0;
    for (const QByteArray &field : fields) {
        for (const char c : field)
            sum += static_cast<unsigned char>(c);
    }
    return static_cast<int>(sum % 256u);
}

QByteArray checksumField(const QList<QByteArray> &bodyFields)
{
    return QByteArray::number(-byteSum(bodyFields));
}

QByteArray buildContent(const QList<QByteArray> &bodyFields)
{
    QByteArray content;
    for (const QByteArray &field : bodyFields) {
        content += field;
        content += kSeparator;
    }
    content += checksumField(bodyFields);
    return content;
}

QByteArray buildFrame(const QList<QByteArray> &bodyFields)
{
    QByteArray frame;
    frame += kStx;
    frame += buildContent(bodyFields);
    frame += kEtx;
    return frame;
}

QList<QByteArray> splitFields(const QByteArray &content)
{
    QList<QByteArray> fields;
    int start = 0;
    for (;;) {
        const int at = content.indexOf(kSeparator, start);
        if (at < 0) {
            fields.append(content.mid(start));
            return fields;
        }
        fields.append(content.mid(start, at - start));
        start = at + kSeparator.size();
    }
}

bool checksumMatches(const QList<QByteArray> &allFields)
{
    if (allFields.isEmpty())
        return false;
    bool isNumber = false;
    qlonglong c = allFields.last().toLongLong(&isNumber, 10);
    if (!isNumber)
        c = 0;
    const qlonglong s = byteSum(allFields.mid(0, allFields.size() - 1));
    return c + s == 0;
}

Answer parseAnswer(const QByteArray &content)
{
    Answer answer;
    const QList<QByteArray> fields = splitFields(content);
    if (fields.size() < 2) {
        answer.error = QStringLiteral("no checksum field");
        return answer;
    }
    if (!checksumMatches(fields)) {
        answer.error = QStringLiteral("checksum mismatch");
        return answer;
    }
    const QByteArray &head = fields.first();
    if (head != "ack" && head != "nack") {
        answer.error = QStringLiteral("neither ack nor nack");
        return answer;
    }
    answer.valid = true;
    answer.nack = head == "nack";
    answer.requests = fields.mid(1, fields.size() - 2);
    return answer;
}

QList<QByteArray> takeFrames(QByteArray &buffer)
{
    QList<QByteArray> frames;
    for (;;) {
        const int start = buffer.indexOf(kStx);
        if (start < 0) {
            buffer.clear();
            return frames;
        }
        buffer.remove(0, start);
        const int end = buffer.indexOf(kEtx, 1);
        const int restart = buffer.indexOf(kStx, 1);
        if (restart >= 0 && (end < 0 || restart < end)) {
            buffer.remove(0, restart);
            continue;
        }
        if (end < 0)
            return frames;
        frames.append(buffer.mid(1, end - 1));
        buffer.remove(0, end + 1);
    }
}

std::pair<QByteArray, QByteArray> splitCommand(const QByteArray &field)
{
    const int at = field.indexOf(kCommandSeparator);
    if (at < 0)
        return {field, QByteArray()};
    return {field.left(at), field.mid(at + kCommandSeparator.size())};
}

QString printable(const QByteArray &raw)
{
    QString text;
    text.reserve(raw.size() + 10);
    for (const char c : raw) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == kStx)
            text += QLatin1String("<STX>");
        else if (c == kEtx)
            text += QLatin1String("<ETX>");
        else if (byte < 0x20 || byte == 0x7f)
            text += QStringLiteral("<%1>").arg(byte, 2, 16, QLatin1Char('0')).toUpper();
        else
            text += QLatin1Char(static_cast<char>(byte));
    }
    return text;
}

QString summary(const QList<QByteArray> &bodyFields)
{
    QByteArray joined;
    for (int i = 0; i < bodyFields.size(); ++i) {
        if (i > 0)
            joined += kSeparator;
        joined += bodyFields.at(i);
    }
    QString text = printable(joined);
    if (text.size() > kSummaryLength)
        text = text.left(kSummaryLength) + QLatin1String("...");
    return text;
}

} // namespace simframe
