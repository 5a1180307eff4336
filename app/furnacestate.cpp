#include "app/furnacestate.h"

#include "communication/messagehandler.h"
#include "process/processtime.h"
#include "settings/temperatureunit.h"

namespace ovra {
namespace GlobalElements {

using Communication::FiringResult;
using Communication::HeatReport;
using Communication::MessageHandler;

FurnaceState::FurnaceState(QObject *parent) : QObject(parent)
{
    qRegisterMetaType<FailureEntry>("ovra::GlobalElements::FailureEntry");
    qRegisterMetaType<SelftestRow>("ovra::GlobalElements::FurnaceState::SelftestRow");
}

void FurnaceState::Follow(const MessageHandler *h)
{
    const QList<QPair<void (MessageHandler::*)(const QString &), QString DeviceInfo::*>> device = {
        {&MessageHandler::SignalTypeModelSeries, &DeviceInfo::type},
        {&MessageHandler::SignalSerialNumber, &DeviceInfo::serial},
        {&MessageHandler::SignalHWVersion, &DeviceInfo::hardware},
        {&MessageHandler::SignalSWVersion, &DeviceInfo::software},
        {&MessageHandler::SignalOperatingHours, &DeviceInfo::hours},
    };
    for (const auto &field : device) {
        connect(h, field.first, this, [this, member = field.second](const QString &text) {
            DeviceInfo changed = m_device;
            changed.*member = text;
            SetDevice(changed);
        });
    }
    connect(h, &MessageHandler::SignalDate, this, &FurnaceState::SetDate);
    connect(h, &MessageHandler::SignalTime, this, &FurnaceState::SetTime);
    connect(h, &MessageHandler::SignalTemperature, this, &FurnaceState::SetTemperature);
    connect(h, &MessageHandler::SignalSetUnit, this,
            [this](const QString &unit) { SetFahrenheit(Settings::TemperatureUnit::IsFahrenheit(unit)); });
    connect(h, &MessageHandler::SignalDoor, this, &FurnaceState::SetDoor);
    connect(h, &MessageHandler::SignalMaterialChanged, this, &FurnaceState::SetMaterial);
    // Only "True" makes an argon furnace; nothing the controller says makes it one no more.
    connect(h, &MessageHandler::SignalArgon, this, [this](const QString &text) {
        if (text == QLatin1String("True"))
            SetArgonOven(true);
    });
    connect(h, &MessageHandler::SignalUserInteractionRequest, this, [this] { SetAwaitingUser(true); });
    connect(h, &MessageHandler::SignalHeatfileInfo, this, &FurnaceState::TakeHeatReport);
    connect(h, &MessageHandler::SignalRemainingTime, this, &FurnaceState::SetFiringEnd);
    connect(h, &MessageHandler::SignalHeatfileProcess, this, &FurnaceState::EndFiring);
    connect(h, &MessageHandler::SignalFailure, this, &FurnaceState::AddFailures);
    connect(h, &MessageHandler::SignalResetFailure, this, &FurnaceState::WithdrawFailures);
    connect(h, &MessageHandler::SignalUSB, &m_usb, &Settings::UsbSession::SlotControllerSays);
    connect(h, &MessageHandler::SignalUpdateProgress, &m_usb, &Settings::UsbSession::SlotUpdateProgress);
    const QList<QPair<void (MessageHandler::*)(const QString &), SelftestRow>> rows = {
        {&MessageHandler::SignalSelftestDoor, SelftestRow::Door},
        {&MessageHandler::SignalSelftestHeater, SelftestRow::Heater},
        {&MessageHandler::SignalSelftestCooling, SelftestRow::Cooling},
        {&MessageHandler::SignalSelftestArgon, SelftestRow::Argon},
        {&MessageHandler::SignalSelftestResult, SelftestRow::Overall},
    };
    for (const auto &row : rows)
        connect(h, row.first, this, [this, which = row.second](const QString &r) { SetSelftestResult(which, r); });
}

QDateTime FurnaceState::ClockDateTime() const
{
    return QDateTime(QDate::fromString(m_date, QStringLiteral("dd.MM.yyyy")),
                     QTime::fromString(m_time, QStringLiteral("hh:mm")));
}

double FurnaceState::Celsius() const
{
    return Process::TemperatureText::FromCelsiusText(m_celsiusText, false).value;
}

unsigned int FurnaceState::DoorTempLimit() const
{
    return Settings::TemperatureUnit::DoorTempLimit(m_fahrenheit);
}

QString FurnaceState::SelftestResult(SelftestRow row) const
{
    return m_selftest[static_cast<int>(row)];
}

void FurnaceState::SetDevice(const DeviceInfo &device)
{
    m_device = device;
    emit DeviceChanged();
}

void FurnaceState::SetDate(const QString &date)
{
    m_date = date;
    emit ClockChanged();
}

void FurnaceState::SetTime(const QString &time)
{
    m_time = time;
    emit ClockChanged();
}

void FurnaceState::SetTemperature(const QString &celsius)
{
    m_celsiusText = celsius;
    m_shown = Process::TemperatureText::FromCelsiusText(celsius, m_fahrenheit);
    emit TemperatureChanged();
}

void FurnaceState::SetFahrenheit(bool fahrenheit)
{
    // The shown temperature keeps its unit until the next report, as the display does.
    m_fahrenheit = fahrenheit;
    emit UnitChanged(fahrenheit);
}

void FurnaceState::SetDoor(Communication::DoorState state)
{
    m_door = state;
    emit DoorChanged(state);
}

void FurnaceState::SetMaterial(const QString &material)
{
    m_material = material;
    emit MaterialChanged(material);
}

void FurnaceState::SetArgonOven(bool argon)
{
    m_argonOven = argon;
    emit ArgonOvenChanged(argon);
}

void FurnaceState::SetLanguage(const QString &keyword)
{
    if (keyword == m_language)
        return;
    m_language = keyword;
    emit LanguageChanged(keyword);
}

void FurnaceState::SetCommissioning(bool on)
{
    m_commissioning = on;
}

void FurnaceState::SetAwaitingUser(bool waiting)
{
    m_awaitingUser = waiting;
}

void FurnaceState::SetPage(Pageinterface::en_pages page)
{
    if (page == m_page)
        return;
    m_page = page;
    emit PageChanged(page);
}

void FurnaceState::SetSelftestResult(SelftestRow row, const QString &result)
{
    m_selftest[static_cast<int>(row)] = result;
    emit SelftestChanged(row, result);
}

void FurnaceState::RequestFiring(const QString &program, int preDryMinutes, const QString &delayedStart,
                                 const QString &job)
{
    m_requested = Firing();
    m_requested.program = program;
    m_requested.preDryMinutes = preDryMinutes;
    m_requested.delayedStart = delayedStart;
    m_requested.job = job;
    emit FiringRequested(program);
}

void FurnaceState::TakeHeatReport(const HeatReport &report)
{
    if (report.kind == HeatReport::Kind::Unreadable)
        return;
    if (report.kind == HeatReport::Kind::Over) {
        m_firing.running = false;
        emit FiringOver();
        return;
    }
    const bool begins = !m_firing.running;
    if (begins) {
        m_firing = report.program == m_requested.program ? m_requested : Firing();
        m_requested = Firing();
        m_firing.running = true;
        m_firing.program = report.program;
        m_firing.startDate = m_date;
        m_firing.startTime = m_time;
    }
    m_firing.stage = report.stage;
    m_firing.stageText = report.stageText;
    m_firing.phase = report.phase;
    m_firing.minutesLeft = report.minutesLeft;
    m_firing.minutesKnown = report.minutesKnown;
    m_firing.end = Process::ProcessTime::EndOfDay(m_time, report.minutesLeft);
    if (begins)
        emit FiringStarted();
    emit FiringProgress();
}

void FurnaceState::SetFiringEnd(const QString &clock)
{
    m_firing.end = clock;
    emit FiringEndChanged(clock);
}

void FurnaceState::EndFiring(FiringResult result)
{
    // A result comes even without a firing the panel knows of: it is shown all the same.
    m_firing.running = false;
    m_firing.result = result;
    emit FiringEnded(result);
}

void FurnaceState::AddFailures(const QString &codes)
{
    for (const QString &code : codes.split(QLatin1Char(','), Qt::KeepEmptyParts)) {
        m_failures.prepend({m_date, m_time, code});
        m_failureLog.prepend(m_failures.constFirst());
        emit FailureAdded(m_failures.constFirst());
    }
}

void FurnaceState::WithdrawFailures(const QString &codes)
{
    for (const QString &code : codes.split(QLatin1Char(','), Qt::KeepEmptyParts)) {
        for (int i = m_failures.size() - 1; i >= 0; --i) {
            if (m_failures.at(i).code == code)
                m_failures.removeAt(i);
        }
        emit FailureWithdrawn(code);
    }
}

void FurnaceState::ClearFailures()
{
    m_failures.clear();
    m_failureLog.clear();
    emit FailuresCleared();
}

} // namespace GlobalElements
} // namespace ovra
