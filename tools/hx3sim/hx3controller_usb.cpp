// The controller's side of the service functions: it hands the panel the service PIN, watches
// the USB socket ("usb==in", "usb==out") and runs the firmware and configuration updates the
// panel asks for ("fwupdate", "configupdate"), ending each with "usb==done" or "usb==failed".
#include "hx3controller.h"

namespace {
const QByteArray kUsbDone = "done";
const QByteArray kUsbFailed = "failed";
const QByteArray kUsbSilent = "none";
} // namespace

void Hx3Controller::setUpServiceFunctions()
{
    m_pin = m_options.pin;
    m_usb.stickIn = m_options.usbStick;
    m_requestHandlers.insert("fwupdate", &Hx3Controller::requestFirmwareUpdate);
    m_requestHandlers.insert("configupdate", &Hx3Controller::requestConfigUpdate);
    m_commandHandlers.insert(QStringLiteral("usb"), &Hx3Controller::commandUsb);
    m_commandHandlers.insert(QStringLiteral("pin"), &Hx3Controller::commandPin);
}

QList<Hx3Controller::Outgoing> Hx3Controller::serviceFrames() const
{
    QList<Outgoing> frames{single("code==" + m_pin, Kind::Startup)};
    if (m_usb.stickIn)
        frames.append(single("usb==in", Kind::Startup));
    return frames;
}

void Hx3Controller::requestFirmwareUpdate(const QByteArray &)
{
    answerUsbUpdate(QStringLiteral("firmware"));
}

void Hx3Controller::requestConfigUpdate(const QByteArray &)
{
    answerUsbUpdate(QStringLiteral("configuration"));
}

void Hx3Controller::answerUsbUpdate(const QString &what)
{
    if (!m_usb.stickIn) {
        emit message(QStringLiteral("usb: %1 update refused: no stick").arg(what));
        sendEvent("usb==" + kUsbFailed);
        return;
    }
    if (m_usb.answer == kUsbSilent) {
        emit message(QStringLiteral("usb: %1 update started, no answer will come").arg(what));
        return;
    }
    emit message(QStringLiteral("usb: %1 update started").arg(what));
    const QByteArray answer = m_usb.answer;
    QTimer::singleShot(m_options.usbMs, this, [this, what, answer] {
        // Pulled on the way: the update cannot have ended well.
        const QByteArray result = m_usb.stickIn ? answer : kUsbFailed;
        emit message(QStringLiteral("usb: %1 update %2").arg(what, QString::fromLatin1(result)));
        sendEvent("usb==" + result);
    });
}

void Hx3Controller::commandUsb(const QString &arguments)
{
    const QStringList words = arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const QByteArray first = words.value(0).toLatin1();
    const QByteArray second = words.value(1).toLatin1();
    if (words.size() == 1 && (first == "in" || first == "out")) {
        m_usb.stickIn = first == "in";
        sendEvent("usb==" + first);
    } else if (words.size() == 1 && (first == kUsbDone || first == kUsbFailed)) {
        sendEvent("usb==" + first);
    } else if (words.size() == 2 && first == "answer" &&
               (second == kUsbDone || second == kUsbFailed || second == kUsbSilent)) {
        m_usb.answer = second;
        emit message(QStringLiteral("usb: updates will answer %1").arg(QString::fromLatin1(second)));
    } else {
        emit message(QStringLiteral("usage: usb in|out|done|failed, usb answer done|failed|none"));
    }
}

void Hx3Controller::commandPin(const QString &arguments)
{
    const QString pin = arguments.trimmed();
    bool ok = false;
    pin.toUInt(&ok);
    if (!ok || pin.startsWith(QLatin1Char('+')) || pin.size() > 8) {
        emit message(QStringLiteral("usage: pin <1 to 8 digits>"));
        return;
    }
    m_pin = pin.toLatin1();
    emit message(QStringLiteral("service PIN: ") + pin);
    sendEvent("code==" + m_pin);
}
