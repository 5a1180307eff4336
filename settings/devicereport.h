#pragma once

#include <QString>
#include <QStringList>

namespace ovra {
namespace GlobalElements {
struct DeviceInfo;
}
namespace Settings {

// The furnace's identity and state for the service technician, in one short plain text
// (for the QR code and the backup). The keys are fixed ASCII words whatever the panel's
// language, so that a technician's tools can read them.
namespace DeviceReport {

struct Data
{
    QString model;
    QString serialNumber;
    QString hardwareVersion;
    QString softwareVersion; // the controller's, then the panel's: "V 3.04 / R02E.1"
    QString operatingHours;
    QStringList failures; // current failure codes, newest first
};

// The furnace model's device data; no failures.
Data From(const GlobalElements::DeviceInfo &device);

// "Model: ...\nSerial: ...\nHW: ...\nSW: ...\nHours: ...\nFailures: A,B" ("-" for none).
QString Text(const Data &data);

} // namespace DeviceReport
} // namespace Settings
} // namespace ovra
