#include "communication/requests.h"

namespace ovra {
namespace Communication {
namespace Requests {

namespace {
QString WithArgument(const char *keyword, const QString &argument)
{
    return QLatin1String(keyword) + QLatin1String("==") + argument;
}
QString StartArguments(const QString &programName, unsigned int preDryMinutes)
{
    return programName + QLatin1Char(',') + QString::number(preDryMinutes);
}
} // namespace

QString GuiState(int page)
{
    return WithArgument("guistate", QString::number(page));
}

QString Start(const QString &programName, unsigned int preDryMinutes)
{
    return WithArgument("hpstart", StartArguments(programName, preDryMinutes));
}

QString DelayedStart(const QString &timer, const QString &programName, unsigned int preDryMinutes)
{
    return timer + QLatin1Char(',') + StartArguments(programName, preDryMinutes);
}

QString DelayedStartTime(const QString &yyyymmdd, const QString &hhmm)
{
    return WithArgument("timer", yyyymmdd + QLatin1Char(',') + hhmm);
}

QString CancelDelayedStart()
{
    return WithArgument("timer", QString());
}
QString Stop()
{
    return QStringLiteral("hpstop");
}
QString MoveDoor()
{
    return QStringLiteral("movedoor");
}
QString CloseDoor()
{
    return QStringLiteral("doorclose");
}

QString MaterialChange(bool accepted)
{
    return accepted ? QStringLiteral("matchanged") : QStringLiteral("matnotchanged");
}

QString InsulationInserted()
{
    return QStringLiteral("insulationinsert");
}

QString Favourite(const QString &programName, bool on)
{
    return WithArgument("tofavorite", programName + (on ? QLatin1String(",true") : QLatin1String(",false")));
}

QString ResendHeatfiles()
{
    return QStringLiteral("hfresend");
}
QString NewProgram(const QString &heatfileText)
{
    return WithArgument("heatfile", heatfileText);
}
QString ChangeProgram(const QString &heatfileText)
{
    return WithArgument("hpchange", heatfileText);
}
QString DeleteProgram(const QString &programName)
{
    return WithArgument("hpdelete", programName);
}
QString SelfTest()
{
    return QStringLiteral("redost");
}
QString DeleteFailureList()
{
    return QStringLiteral("deletefailurelist");
}
QString Unit(bool fahrenheit)
{
    return WithArgument("unit", fahrenheit ? QStringLiteral("f") : QStringLiteral("c"));
}
QString Language(const QString &keyword)
{
    return WithArgument("lang", keyword);
}
QString Time(const QString &time)
{
    return WithArgument("time", time);
}
QString Date(const QString &date)
{
    return WithArgument("date", date);
}
QString FactoryReset()
{
    return QStringLiteral("defaultsettings");
}
QString FirmwareUpdateFromStick()
{
    return QStringLiteral("fwupdate");
}
QString ConfigUpdateFromStick()
{
    return QStringLiteral("configupdate");
}

} // namespace Requests
} // namespace Communication
} // namespace ovra
