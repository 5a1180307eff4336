#include "communication/messagehandler.h"

#include "communication/frame.h"

#include <QDebug>

namespace ovra {
namespace Communication {

using GlobalElements::Pageinterface;

MessageHandler::MessageHandler(const GlobalElements::Paths &paths, QObject *parent) : QObject(parent), m_paths(paths)
{
    qRegisterMetaType<Pageinterface::en_pages>("ovra::GlobalElements::Pageinterface::en_pages");
    qRegisterMetaType<GlobalElements::Program *>("ovra::GlobalElements::Program*");
    qRegisterMetaType<HeatReport>("ovra::Communication::HeatReport");
    qRegisterMetaType<DoorState>("ovra::Communication::DoorState");
    qRegisterMetaType<FiringResult>("ovra::Communication::FiringResult");

    // The controller's vocabulary, in the order a keyword is looked up. Exact and
    // case-sensitive: "st" must not catch "stdoor", and favorite==1 is not a command.
    m_commands = {
        {QStringLiteral("date"), &MessageHandler::OnDate},
        {QStringLiteral("time"), &MessageHandler::OnTime},
        {QStringLiteral("temp"), &MessageHandler::OnTemp},
        {QStringLiteral("name"), &MessageHandler::OnName},
        {QStringLiteral("serialno"), &MessageHandler::OnSerialNo},
        {QStringLiteral("hwver"), &MessageHandler::OnHwVer},
        {QStringLiteral("swver"), &MessageHandler::OnSwVer},
        {QStringLiteral("ophours"), &MessageHandler::OnOpHours},
        {QStringLiteral("country"), &MessageHandler::OnCountry},
        {QStringLiteral("stdoor"), &MessageHandler::OnStDoor},
        {QStringLiteral("stheater"), &MessageHandler::OnStHeater},
        {QStringLiteral("stcooling"), &MessageHandler::OnStCooling},
        {QStringLiteral("stargon"), &MessageHandler::OnStArgon},
        {QStringLiteral("st"), &MessageHandler::OnSt},
        {QStringLiteral("error"), &MessageHandler::OnError},
        {QStringLiteral("reseterror"), &MessageHandler::OnResetError},
        {QStringLiteral("heatfile"), &MessageHandler::OnHeatfile},
        {QStringLiteral("esttime"), &MessageHandler::OnEstTime},
        {QStringLiteral("stage"), &MessageHandler::OnStage},
        {QStringLiteral("guistate"), &MessageHandler::OnGuiState},
        {QStringLiteral("hpinfo"), &MessageHandler::OnHpInfo},
        {QStringLiteral("argon"), &MessageHandler::OnArgon},
        {QStringLiteral("maxrate"), &MessageHandler::OnMaxRate},
        {QStringLiteral("code"), &MessageHandler::OnCode},
        {QStringLiteral("usb"), &MessageHandler::OnUsb},
        {QStringLiteral("hpsuccess"), &MessageHandler::OnHpSuccess},
        {QStringLiteral("hpfailed"), &MessageHandler::OnHpFailed},
        {QStringLiteral("matchanged"), &MessageHandler::OnMatChanged},
        {QStringLiteral("insulationmissing"), &MessageHandler::OnInsulationMissing},
        {QStringLiteral("doorclose"), &MessageHandler::OnDoorClose},
        {QStringLiteral("doorclosed"), &MessageHandler::OnDoorClosed},
        {QStringLiteral("dooropen"), &MessageHandler::OnDoorOpen},
        {QStringLiteral("update"), &MessageHandler::OnUpdate},
        {QStringLiteral("waitforuserinteraction"), &MessageHandler::OnWaitForUserInteraction},
        {QStringLiteral("lang"), &MessageHandler::OnLang},
        {QStringLiteral("unit"), &MessageHandler::OnUnit},
        {QStringLiteral("initialstart"), &MessageHandler::OnInitialStart},
        {QStringLiteral("hfcount"), &MessageHandler::OnHfCount},
        {QStringLiteral("ack"), &MessageHandler::OnAck},
    };
    m_commandsWithoutParameter = QStringList{
        QStringLiteral("ack"),
        QStringLiteral("dooropen"),
        QStringLiteral("doorclose"),
        QStringLiteral("doorclosed"),
        QStringLiteral("hpsuccess"),
        QStringLiteral("hpfailed"),
        QStringLiteral("insulationmissing"),
        QStringLiteral("waitforuserinteraction"),
        QStringLiteral("initialstart"),
    };
    SetUpUpdateReception();
}

QByteArray MessageHandler::HandleMessage(QString message)
{
    return Respond(message, message);
}

QByteArray MessageHandler::HandleFrame(const QByteArray &frame)
{
    // "\xC3\x84" (UTF-8) and "\xC4" (not UTF-8, so read byte by byte) both read as "Ä": only
    // the bytes tell which sum the controller sent. One character per byte keeps them.
    const int zero = frame.indexOf('\0');
    const QByteArray bytes = zero >= 0 ? frame.left(zero) : frame;
    return Respond(Frame::ReceivedText(bytes), QString::fromLatin1(bytes));
}

QByteArray MessageHandler::Respond(QString message, const QString &checked)
{
    QByteArray body;
    if (m_updateActive) {
        message.remove(QLatin1Char(Frame::startByte));
        message.remove(QLatin1Char(Frame::endByte));
        HandleUpdate(message);
    } else {
        body = "nack";
        if (CheckCRC(checked)) {
            message.remove(QLatin1Char(Frame::startByte));
            message.remove(QLatin1Char(Frame::endByte));
            QStringList fields = message.split(Frame::fieldSeparator, Qt::KeepEmptyParts);
            fields.removeLast(); // the checksum
            body = "ack";
            bool allAccepted = true;
            // Every field is acted on even after one was rejected: there is no partial ack.
            for (const QString &field : qAsConst(fields)) {
                if (!ParseMessage(field))
                    allAccepted = false;
            }
            if (!allAccepted)
                body = "nack";
        }
    }

    if (!m_requests.isEmpty()) {
        body.append(GetActualRequests().toUtf8());
        ResetRequest();
    }
    if (body.isEmpty())
        return QByteArray();
    if (body.startsWith("$$"))
        body.remove(0, 2);
    return Frame::Build(body);
}

bool MessageHandler::CheckCRC(QString message)
{
    return Frame::IsChecksumValid(message);
}

QString MessageHandler::CalcCRC(QByteArray body)
{
    return Frame::fieldSeparator + Frame::ChecksumText(Frame::BodySum(body));
}

bool MessageHandler::ParseMessage(const QString &field)
{
    if (field.isEmpty())
        return false;

    QString probe = field;
    probe.remove(QLatin1Char(' '));
    probe.remove(QStringLiteral("\\r"));
    probe.remove(QLatin1Char('\r'));
    if (probe.isEmpty())
        return false;

    const QStringList parts = field.split(QStringLiteral("=="), Qt::KeepEmptyParts);
    const QString &keyword = parts.constFirst();
    QString parameter;
    if (!m_commandsWithoutParameter.contains(keyword)) {
        if (parts.size() < 2) {
            qDebug() << keyword << "wrong parameter list";
            return false;
        }
        parameter = parts.at(1);
    }

    for (const Command &command : qAsConst(m_commands)) {
        if (command.keyword == keyword)
            return (this->*command.action)(parameter);
    }
    qDebug() << "received command could not be evaluated" << keyword << ": " << parameter;
    return false;
}

void MessageHandler::SetRequest(const QString &request)
{
    m_requests.append(request);
}

QString MessageHandler::GetActualRequests()
{
    QString joined;
    for (const QString &request : qAsConst(m_requests))
        joined += Frame::fieldSeparator + request;
    return joined;
}

void MessageHandler::ResetRequest()
{
    m_requests.clear();
}

bool MessageHandler::OnDate(const QString &p)
{
    if (p.size() != 8)
        return false;
    emit SignalDate(p.mid(6, 2) + QLatin1Char('.') + p.mid(4, 2) + QLatin1Char('.') + p.left(4));
    return true;
}

bool MessageHandler::OnTime(const QString &p)
{
    if (p.size() != 4)
        return false;
    emit SignalTime(p.left(2) + QLatin1Char(':') + p.mid(2, 2));
    return true;
}

bool MessageHandler::OnTemp(const QString &p)
{
    // Unsigned on purpose: below 273 K wraps round, and the controller's tools expect that.
    const unsigned int kelvin = p.toUInt();
    emit SignalTemperature(QString::number(kelvin - 273u));
    return true;
}

bool MessageHandler::OnName(const QString &p)
{
    emit SignalTypeModelSeries(p);
    return true;
}
bool MessageHandler::OnSerialNo(const QString &p)
{
    emit SignalSerialNumber(p);
    return true;
}
bool MessageHandler::OnHwVer(const QString &p)
{
    emit SignalHWVersion(p);
    return true;
}

bool MessageHandler::OnSwVer(const QString &p)
{
    emit SignalSWVersion(p + QStringLiteral(" / ") + Pageinterface::versionInfo);
    return true;
}

bool MessageHandler::OnOpHours(const QString &p)
{
    emit SignalOperatingHours(p);
    // Operating hours close the controller's device data: the panel may leave the splash.
    emit SignalOvenConnected(Pageinterface::DeviceData);
    return true;
}

bool MessageHandler::OnCountry(const QString &p)
{
    emit SignalCountry(p);
    return true;
}
bool MessageHandler::OnStDoor(const QString &p)
{
    emit SignalSelftestDoor(p);
    return true;
}
bool MessageHandler::OnStHeater(const QString &p)
{
    emit SignalSelftestHeater(p);
    return true;
}
bool MessageHandler::OnStCooling(const QString &p)
{
    emit SignalSelftestCooling(p);
    return true;
}
bool MessageHandler::OnStArgon(const QString &p)
{
    emit SignalSelftestArgon(p);
    return true;
}
bool MessageHandler::OnSt(const QString &p)
{
    emit SignalSelftestResult(p);
    return true;
}
bool MessageHandler::OnError(const QString &p)
{
    emit SignalFailure(p);
    return true;
}
bool MessageHandler::OnResetError(const QString &p)
{
    emit SignalResetFailure(p);
    return true;
}

bool MessageHandler::OnHeatfile(const QString &p)
{
    HandleRecvHeatfile(p);
    return true;
}

bool MessageHandler::OnEstTime(const QString &p)
{
    emit SignalRemainingTime(p);
    return true;
}
bool MessageHandler::OnStage(const QString &p)
{
    emit SignalActualStage(p);
    return true;
}
bool MessageHandler::OnGuiState(const QString &p)
{
    emit SignalGuiState(p);
    return true;
}
bool MessageHandler::OnHpInfo(const QString &p)
{
    emit SignalHeatfileInfo(ParseHeatReport(p));
    return true;
}
bool MessageHandler::OnArgon(const QString &p)
{
    emit SignalArgon(p);
    return true;
}
bool MessageHandler::OnMaxRate(const QString &p)
{
    emit SignalMaxRate(p.toUInt());
    return true;
}
bool MessageHandler::OnCode(const QString &p)
{
    emit SignalServicePin(p.toUInt());
    return true;
}
bool MessageHandler::OnUsb(const QString &p)
{
    emit SignalUSB(p);
    return true;
}

bool MessageHandler::OnHpSuccess(const QString &)
{
    emit SignalHeatfileProcess(FiringResult::Success);
    return true;
}

bool MessageHandler::OnHpFailed(const QString &)
{
    emit SignalHeatfileProcess(FiringResult::Failed);
    return true;
}

bool MessageHandler::OnMatChanged(const QString &p)
{
    emit SignalMaterialChanged(p);
    return true;
}
bool MessageHandler::OnInsulationMissing(const QString &)
{
    emit SignalInsulationMissing();
    return true;
}

// "dooropen" reports the movement, "doorclosed" the end state: the controller's own wording.
bool MessageHandler::OnDoorClose(const QString &)
{
    emit SignalDoor(DoorState::Closing);
    return true;
}
bool MessageHandler::OnDoorClosed(const QString &)
{
    emit SignalDoor(DoorState::Closed);
    return true;
}
bool MessageHandler::OnDoorOpen(const QString &)
{
    emit SignalDoor(DoorState::Opening);
    return true;
}

bool MessageHandler::OnUpdate(const QString &p)
{
    InitializeUpdater(p);
    emit SignalUpdateProgress(QStringLiteral("0%"));
    return true;
}

bool MessageHandler::OnWaitForUserInteraction(const QString &)
{
    emit SignalUserInteractionRequest();
    return true;
}

bool MessageHandler::OnLang(const QString &p)
{
    emit SignalSetLanguage(p);
    return true;
}
bool MessageHandler::OnUnit(const QString &p)
{
    emit SignalSetUnit(p);
    return true;
}
bool MessageHandler::OnInitialStart(const QString &)
{
    emit SignalSetInitalStartup();
    return true;
}
bool MessageHandler::OnHfCount(const QString &p)
{
    emit SignalHeatfileCount(p.toInt());
    return true;
}
bool MessageHandler::OnAck(const QString &)
{
    emit SignalAcknowledge();
    return true;
}

} // namespace Communication
} // namespace ovra
