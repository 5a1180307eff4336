#include "settings/usbsession.h"

#include "communication/requests.h"

#include <QDebug>
#include <QTimer>

namespace ovra {
namespace Settings {

namespace {
// The controller's own updates, run from the stick; the rest is the panel's file work.
bool ByController(UsbSession::Action action)
{
    return action == UsbSession::Action::Firmware || action == UsbSession::Action::Config;
}
} // namespace

UsbSession::UsbSession(std::function<bool()> canShowMenu, QObject *parent)
    : QObject(parent), m_canShowMenu(std::move(canShowMenu)), m_answerTimer(new QTimer(this))
{
    m_answerTimer->setSingleShot(true);
    m_answerTimer->setInterval(defaultAnswerTimeoutMs);
    connect(m_answerTimer, &QTimer::timeout, this,
            [this] { Finish(false, QStringLiteral("no answer from the controller")); });
}

void UsbSession::SetAnswerTimeoutMs(int ms)
{
    m_answerTimer->setInterval(ms);
}

bool UsbSession::IsAwaitingAnswer() const
{
    return m_answerTimer->isActive();
}

void UsbSession::SlotControllerSays(const QString &word)
{
    if (word == QLatin1String("in")) {
        m_stickIn = true;
        if (!m_canShowMenu || m_canShowMenu())
            emit SignalShowMenu();
    } else if (word == QLatin1String("out")) {
        m_stickIn = false;
        if (ByController(m_action))
            Finish(false, QStringLiteral("the stick was pulled"));
        emit SignalCloseMenu();
    } else if (word == QLatin1String("done") || word == QLatin1String("failed")) {
        if (m_action != Action::None && !ByController(m_action)) {
            qDebug() << "usb: controller's" << word << "while the panel works on the stick, ignored";
            return;
        }
        if (m_action == Action::None) {
            // An update the controller began on its own: its result is shown all the same.
            m_action = Action::Firmware;
            emit SignalUnaskedResult();
        }
        Finish(word == QLatin1String("done"), QStringLiteral("the controller reports ") + word);
    } else {
        qDebug() << "usb: unknown state" << word;
    }
}

void UsbSession::Begin(Action action)
{
    if (m_action != Action::None || action == Action::None)
        return;
    m_action = action;
    emit SignalBegan(action);
    if (!ByController(action)) {
        QTimer::singleShot(0, this, [this] {
            if (m_action != Action::None && !ByController(m_action))
                emit SignalRunFileAction(m_action);
        });
        return;
    }
    // The controller does these from the stick; without its word that one is in, it cannot.
    if (!m_stickIn) {
        Finish(false, QStringLiteral("the controller reports no stick"));
        return;
    }
    emit SignalRequest(action == Action::Firmware ? Communication::Requests::FirmwareUpdateFromStick()
                                                  : Communication::Requests::ConfigUpdateFromStick());
    m_answerTimer->start();
}

void UsbSession::FileActionDone(bool success, const QString &reason)
{
    if (m_action != Action::None && !ByController(m_action))
        Finish(success, reason);
}

void UsbSession::SlotUpdateProgress()
{
    if (m_answerTimer->isActive())
        m_answerTimer->start();
}

void UsbSession::Finish(bool success, const QString &reason)
{
    if (m_action == Action::None)
        return;
    if (!success)
        qDebug() << "usb: failed:" << reason;
    m_answerTimer->stop();
    m_action = Action::None;
    m_lastResult = {success, success ? QString() : reason};
    emit SignalFinished(success, reason);
}

} // namespace Settings
} // namespace ovra
