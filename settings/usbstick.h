#pragma once

#include <QString>

namespace ovra {
namespace Settings {

// Where the USB stick in the furnace's socket is: the system mounts it on the panel computer.
namespace UsbStick {

// A mounted volume is a stick when it is a USB disk (/dev/sdXN) mounted below /media,
// /run/media or /mnt. The board's own disks never are: its SD card, nor a USB disk it boots
// from (mounted at / or /boot).
bool IsStickVolume(const QString &device, const QString &rootPath);

// givenFolder (the --usb-dir option) when it is not empty, else the root of the first ready
// stick volume; empty when there is none.
QString Find(const QString &givenFolder);

} // namespace UsbStick
} // namespace Settings
} // namespace ovra
