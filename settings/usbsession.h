#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QTimer;

namespace ovra {
namespace Settings {

// One session of the USB stick menu with the controller (docs/usb.md): whether a stick is in
// by the controller's last word, the one action under way, the wait for the controller's
// answer and the result of the last action. It draws nothing and touches no file: the window
// draws from its signals and does the panel's own file work when told to.
class UsbSession : public QObject
{
    Q_OBJECT

public:
    enum class Action { None, Firmware, Config, LoadPrograms, SavePrograms, Backup };
    Q_ENUM(Action)

    struct Result
    {
        bool success = false;
        QString reason; // why it failed; empty on success
    };

    // Two minutes after the request or the last progress of a line update.
    static constexpr int defaultAnswerTimeoutMs = 120000;

    // canShowMenu is asked on every "in": the menu opens only when it says yes (no function:
    // always).
    explicit UsbSession(std::function<bool()> canShowMenu, QObject *parent = nullptr);

    void SetMenuGuard(std::function<bool()> canShowMenu) { m_canShowMenu = std::move(canShowMenu); }
    // Tests wait milliseconds, not two minutes.
    void SetAnswerTimeoutMs(int ms);

    bool IsStickIn() const { return m_stickIn; }
    Action CurrentAction() const { return m_action; }
    bool IsAwaitingAnswer() const;
    // Of the last action that finished; a failure with an empty reason before any.
    Result LastResult() const { return m_lastResult; }

public slots:
    // The controller's "usb" word: "in", "out", "done", "failed"; anything else is logged.
    void SlotControllerSays(const QString &word);
    // The user's choice; ignored while another action is under way.
    void Begin(ovra::Settings::UsbSession::Action action);
    // The panel's own file work is done; ignored unless such work is under way.
    void FileActionDone(bool success, const QString &reason);
    // A line update that makes progress is not waiting: the answer timer starts again.
    void SlotUpdateProgress();

signals:
    void SignalShowMenu();
    // The stick was pulled: the menu goes if it is shown.
    void SignalCloseMenu();
    // An action began: the progress popup opens busy; its result follows with SignalFinished.
    void SignalBegan(ovra::Settings::UsbSession::Action action);
    // A result the controller reports without a request: the popup opens to show it.
    void SignalUnaskedResult();
    // "fwupdate" or "configupdate", for the controller's request queue.
    void SignalRequest(const QString &request);
    // From the event loop, after SignalBegan: the popup paints before the stick is touched.
    // Answer with FileActionDone.
    void SignalRunFileAction(ovra::Settings::UsbSession::Action action);
    void SignalFinished(bool success, const QString &reason);

private:
    void Finish(bool success, const QString &reason);

    std::function<bool()> m_canShowMenu;
    QTimer *m_answerTimer;
    bool m_stickIn = false;
    Action m_action = Action::None;
    Result m_lastResult;
};

} // namespace Settings
} // namespace ovra
