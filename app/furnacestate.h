#pragma once

#include "app/pageinterface.h"
#include "communication/reports.h"
#include "process/temperaturetext.h"
#include "settings/usbsession.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>

namespace ovra {
namespace Communication {
class MessageHandler;
}

namespace GlobalElements {

// The furnace as the controller last described it.
struct DeviceInfo
{
    QString type;
    QString serial;
    QString hardware;
    QString software; // the controller's version followed by the panel's, as shown
    QString hours;
};

// A failure code with the controller's clock at the moment it arrived.
struct FailureEntry
{
    QString date; // "dd.MM.yyyy"
    QString time; // "hh:mm"
    QString code;
};

// The current or last firing. Begins with the first progress report, so a firing the controller
// started on its own is one too; ends with a result, and is over with the empty report.
struct Firing
{
    using Phase = Communication::HeatReport::Phase;
    using Result = Communication::FiringResult;
    bool running = false;
    QString program;
    unsigned int stage = 0;
    QString stageText;
    Phase phase = Phase::Heat;
    qint64 minutesLeft = 0;
    bool minutesKnown = false; // the last report's minutes were a number
    QString end;               // "hh:mm", the controller's "esttime" or reckoned from the minutes left
    QString startDate;         // the controller's clock at the first report
    QString startTime;
    int preDryMinutes = 0; // as the panel asked for it; 0 for a firing it did not start
    QString delayedStart;  // "YYYYMMDD,HHMM" of the panel's delayed start, else empty
    QString job;           // the job code the panel's start named (Process::JobCode), else empty
    Result result = Result::None;
};

// What the panel knows of the furnace, as typed values, fed from the controller's reports and
// the user's few settings. No widget: the window draws from it, the firing records and the lab
// link observe it. One signal per kind of change; each is emitted after the value has changed.
class FurnaceState : public QObject
{
    Q_OBJECT

public:
    using Page = Pageinterface::en_pages;
    using DoorState = Communication::DoorState;
    enum class SelftestRow { Door, Heater, Cooling, Argon, Overall };

    explicit FurnaceState(QObject *parent = nullptr);

    // Takes every report of the handler that describes the furnace.
    void Follow(const Communication::MessageHandler *handler);

    const DeviceInfo &Device() const { return m_device; }
    QString Date() const { return m_date; } // "dd.MM.yyyy" as reported, empty before the first
    QString Time() const { return m_time; } // "hh:mm"
    QDateTime ClockDateTime() const;        // invalid while date or time are unknown

    // The temperature in whole °C as the controller reported it (below 0 °C it wraps round,
    // like the controller's own tools), and as the panel shows it: the shown text keeps the
    // unit that was set when the report came.
    QString CelsiusText() const { return m_celsiusText; }
    double Celsius() const;
    const Process::TemperatureText &Shown() const { return m_shown; }
    bool IsFahrenheit() const { return m_fahrenheit; }
    unsigned int DoorTempLimit() const; // in the unit shown

    DoorState Door() const { return m_door; }
    QString Material() const { return m_material; } // the controller's last "matchanged" word
    bool IsArgonOven() const { return m_argonOven; }
    QString Language() const { return m_language; } // the keyword of the texts shown, empty: German
    bool IsCommissioning() const { return m_commissioning; }
    // The controller waits for the user to move the door ("waitforuserinteraction").
    bool IsAwaitingUser() const { return m_awaitingUser; }
    Page CurrentPage() const { return m_page; }

    const Firing &CurrentFiring() const { return m_firing; }
    const Firing &RequestedFiring() const { return m_requested; } // program empty: none asked for
    bool IsFiring() const { return m_firing.running; }

    // The failures standing now, and every failure reported since the service last cleared
    // the list, withdrawn ones included; newest first.
    const QList<FailureEntry> &Failures() const { return m_failures; }
    // The stick in the furnace's socket and what is being done with it.
    Settings::UsbSession &Usb() { return m_usb; }
    const Settings::UsbSession &Usb() const { return m_usb; }
    const QList<FailureEntry> &FailureLog() const { return m_failureLog; }
    QString SelftestResult(SelftestRow row) const;

public slots:
    void SetDevice(const DeviceInfo &device);
    void SetDate(const QString &date);
    void SetTime(const QString &time);
    void SetTemperature(const QString &celsius);
    void SetFahrenheit(bool fahrenheit);
    void SetDoor(ovra::Communication::DoorState state);
    void SetMaterial(const QString &material);
    void SetArgonOven(bool argon);
    void SetLanguage(const QString &keyword);
    void SetCommissioning(bool on);
    void SetAwaitingUser(bool waiting);
    void SetPage(ovra::GlobalElements::Pageinterface::en_pages page);
    void SetSelftestResult(SelftestRow row, const QString &result);

    // The panel's start: kept until the controller's first report of that program.
    void RequestFiring(const QString &program, int preDryMinutes, const QString &delayedStart,
                       const QString &job = QString());
    void TakeHeatReport(const ovra::Communication::HeatReport &report);
    void SetFiringEnd(const QString &clock); // "esttime"
    // Only a running firing can end; the result of one that ended already is kept.
    void EndFiring(ovra::Communication::FiringResult result);

    void AddFailures(const QString &codes); // comma-separated, as the controller sends them
    void WithdrawFailures(const QString &codes);
    void ClearFailures();

signals:
    void DeviceChanged();
    void ClockChanged();
    void TemperatureChanged();
    void UnitChanged(bool fahrenheit);
    void DoorChanged(ovra::Communication::DoorState state);
    void MaterialChanged(const QString &material);
    void ArgonOvenChanged(bool argon);
    void LanguageChanged(const QString &keyword);
    void PageChanged(ovra::GlobalElements::Pageinterface::en_pages page);
    void SelftestChanged(ovra::GlobalElements::FurnaceState::SelftestRow row, const QString &result);
    void FiringRequested(const QString &program);
    void FiringStarted();
    void FiringProgress(); // every report of a running firing, the first included
    void FiringEndChanged(const QString &end);
    void FiringEnded(ovra::Communication::FiringResult result);
    void FiringOver();
    void FailureAdded(const ovra::GlobalElements::FailureEntry &failure);
    void FailureWithdrawn(const QString &code);
    void FailuresCleared();

private:
    DeviceInfo m_device;
    QString m_date;
    QString m_time;
    QString m_celsiusText;
    Process::TemperatureText m_shown{QString(), 0};
    bool m_fahrenheit = false;
    DoorState m_door = DoorState::Unknown;
    QString m_material;
    bool m_argonOven = false;
    QString m_language;
    bool m_commissioning = false;
    bool m_awaitingUser = false;
    Page m_page = Pageinterface::StartUp;
    Firing m_firing;
    Firing m_requested; // program, pre-dry, delayed start and job of the panel's last start
    QList<FailureEntry> m_failures;
    QList<FailureEntry> m_failureLog;
    QString m_selftest[5];
    Settings::UsbSession m_usb{nullptr};
};

} // namespace GlobalElements
} // namespace ovra

Q_DECLARE_METATYPE(ovra::GlobalElements::FailureEntry)
