#pragma once

#include "controllerclock.h"
#include "furnacemodel.h"
#include "programstore.h"
#include "sampleprograms.h"
#include "updatesender.h"

#include <QByteArray>
#include <QDateTime>
#include <QElapsedTimer>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

class PtyLine;

// The controller's side of the conversation: it is the master of the line, sends one frame at
// a time and waits for the panel's answer before the next, brings the panel up with the
// start-up sequence, reports time and temperature, and serves what the panel asks for in its
// answers, including the self-test and the commissioning walk the panel starts, firings
// (started at once or at a set time) and the lift door. Everything it has to say for the log
// comes out as message() lines.
class Hx3Controller : public QObject
{
    Q_OBJECT

public:
    // A keyword that fits into one field of a frame.
    static bool isLanguageKeyword(const QByteArray &keyword);

    struct Options
    {
        int intervalMs = 1000;
        QByteArray unit = "c";
        // The language keyword the controller keeps, told to the panel at start-up.
        QByteArray language = "deutsch";
        bool verbose = false;
        // Time between the self-test's results, so that a person watching sees them arrive.
        int stepMs = 700;
        // Self-test row that fails ("door", "heater", "cooling"); empty: every test passes.
        QByteArray selftestFailRow;
        // Start as a new furnace that the operator sets up first.
        bool commissioning = false;
        // What the program store holds at start.
        QList<heatfile::Program> programs = sampleprograms::programs();
        // Furnace seconds per real second: firings, cooling and the controller's clock.
        double speed = 1.0;
        // Real time the lift door takes from one end to the other, whatever the speed: the
        // panel's door buttons are to be watched at their own pace.
        int doorMs = 3000;
        // An argon furnace, which says so at start-up.
        bool argon = false;
        // The service PIN handed to the panel at start-up ("code==").
        QByteArray pin = "1234";
        // The serial number told to the panel: a fleet of simulators needs one each.
        QByteArray serial = "S1-2304-0087";
        // A stick in the USB socket at start-up; how long a firmware or configuration
        // update from it takes.
        bool usbStick = false;
        int usbMs = 1500;
        // Updates ("update FILE"): block size, faults on the line, and the line's speed that
        // paces the blocks (0: as fast as the panel reads).
        int updateBlockBytes = 512;
        UpdateSender::Faults updateFaults;
        int updateBaud = 115200;
    };

    struct Counters
    {
        int frames = 0;
        int answers = 0;
        int nacks = 0;
        int badChecksum = 0;
        int timeouts = 0;
        int requests = 0;
    };

    Hx3Controller(PtyLine *line, const Options &options, QObject *parent = nullptr);

    void start();

    static bool isSelfTestRow(const QByteArray &row);

    // One operator line, e.g. "send temp==1473$$guistate==3" or "quit".
    void handleCommand(const QString &line);

    Counters counters() const { return m_counters; }
    QString summaryLine() const;
    bool isConnected() const { return m_phase == Phase::Connected; }
    int panelPage() const { return m_panelPage; }
    const ProgramStore &programStore() const { return m_store; }

signals:
    void message(const QString &line);
    void quitRequested();

private:
    enum class Phase { WaitingForPanel, Connected };
    enum class Kind { Startup, Heatfile, Status, SelfTest, Operator, Event, Update };
    enum class DoorState { Closed, Opening, Open, Closing };
    enum class Outcome { Done, Stopped, Failed };

    struct Outgoing
    {
        QList<QByteArray> fields;
        Kind kind = Kind::Operator;
    };

    using RequestHandler = void (Hx3Controller::*)(const QByteArray &parameter);
    using CommandHandler = void (Hx3Controller::*)(const QString &arguments);

    static Outgoing single(const QByteArray &field, Kind kind);
    QList<Outgoing> startupFrames() const;
    QList<Outgoing> heatfileFrames() const;
    Outgoing statusFrame() const;

    void enqueue(const QList<Outgoing> &frames);
    void sendNext();
    void transmit(const Outgoing &frame);
    void probePanel();
    void onBytesReceived(const QByteArray &bytes);
    void onIncomingFrame(const QByteArray &content);
    void onAnswerTimeout();
    void onStatusTick();
    void panelLost();

    void handleRequest(const QByteArray &field);
    void requestHeatfileResend(const QByteArray &parameter);
    void requestGuiState(const QByteArray &parameter);
    void requestSelfTest(const QByteArray &parameter);
    void requestLanguage(const QByteArray &parameter);
    void requestUnit(const QByteArray &parameter);
    void requestDate(const QByteArray &parameter);
    void requestTime(const QByteArray &parameter);
    void requestStoreProgram(const QByteArray &parameter);
    void requestChangeProgram(const QByteArray &parameter);
    void requestDeleteProgram(const QByteArray &parameter);
    void requestFavorite(const QByteArray &parameter);
    bool parseProgram(const QByteArray &text, heatfile::Program *program);
    void requestStartFiring(const QByteArray &parameter);
    void requestTimer(const QByteArray &parameter);
    void requestStopFiring(const QByteArray &parameter);
    void requestMoveDoor(const QByteArray &parameter);
    void requestDoorClose(const QByteArray &parameter);
    void requestMaterialChanged(const QByteArray &parameter);
    void requestMaterialNotChanged(const QByteArray &parameter);
    void requestInsulationInserted(const QByteArray &parameter);

    void commandSend(const QString &arguments);
    void commandQuit(const QString &arguments);
    void commandSelfTest(const QString &arguments);
    void commandCommission(const QString &arguments);
    void commandPrograms(const QString &arguments);
    void commandDump(const QString &arguments);
    void commandStatus(const QString &arguments);
    void commandMaterial(const QString &arguments);
    void commandInsulation(const QString &arguments);
    void commandArgon(const QString &arguments);
    void commandArgonCheck(const QString &arguments);
    void commandInteraction(const QString &arguments);
    void commandError(const QString &arguments);
    void commandResetError(const QString &arguments);
    void commandFail(const QString &arguments);
    void commandTemp(const QString &arguments);
    void commandFire(const QString &arguments);
    void commandLanguage(const QString &arguments);
    void commandUnit(const QString &arguments);
    void sendEvent(const QByteArray &field);

    // Service PIN and USB socket (hx3controller_usb.cpp).
    void setUpServiceFunctions();
    QList<Outgoing> serviceFrames() const;
    void requestFirmwareUpdate(const QByteArray &parameter);
    void requestConfigUpdate(const QByteArray &parameter);
    void answerUsbUpdate(const QString &what);
    void commandUsb(const QString &arguments);
    void commandPin(const QString &arguments);
    // Update streaming (hx3controller_update.cpp): after the panel's ack to "update==N" every
    // frame is a block and the panel only answers to ask for blocks again or to end.
    void commandUpdate(const QString &arguments);
    void startStreaming();
    void sendNextBlock();
    void scheduleNextBlock(int minimumMs = 0);
    void onUpdatePace();
    void onUpdateAnswer(const QByteArray &content);
    void onUpdateTail();
    void finishUpdate(const QString &how);

    // Furnace time: the system time at construction moved on by the furnace's own time, so
    // that with --speed the clock, the end estimate and delayed starts keep pace with firings.
    QDateTime furnaceSystemTime() const;
    QDateTime controllerNow() const;
    // Runs the furnace up to now and acts on what happened on the way.
    void catchUp();
    void handleFurnaceEvents();
    void checkDelayedStart();
    void startFiring(const QString &name, int preDryMinutes);
    void endFiring(Outcome outcome);
    // Says no to a start the panel waits for.
    void refuseStart(const QString &reason);
    QList<QByteArray> firingFields() const;
    QString stageText(const FurnaceModel::Position &position) const;

    void moveDoor(DoorState towards);
    void onDoorArrived();
    void applyDoorToFurnace();
    static QString doorText(DoorState state);

    void onSelfTestStep();
    void stopSelfTest();
    void followCommissioning(int page);

    PtyLine *m_line;
    Options m_options;
    Counters m_counters;
    Phase m_phase = Phase::WaitingForPanel;

    QList<Outgoing> m_queue;
    Outgoing m_inFlight;
    bool m_awaitingAnswer = false;
    bool m_inFlightComplete = false;
    int m_consecutiveTimeouts = 0;
    QTimer m_answerTimer;
    QByteArray m_rxBuffer;

    QTimer m_statusTimer;
    QElapsedTimer m_clock;
    QDateTime m_systemAtStart;
    FurnaceModel m_furnace;

    struct Firing
    {
        QString program; // empty: no firing
        // The empty hpinfo that ends a firing goes out with the report after the one that
        // followed hpsuccess or hpfailed.
        enum class EndReport { None, Announced, Due };
        EndReport endReport = EndReport::None;
    } m_firing;

    struct DelayedStart
    {
        bool pending = false;
        QDateTime at;
        QString program;
        int preDryMinutes = 0;
    } m_delayedStart;

    struct Door
    {
        DoorState state = DoorState::Closed;
        QTimer travel;
        QElapsedTimer moving; // since the present movement began
        qint64 fromMs = 0;    // where it began, in travel time from closed
    } m_door;

    bool m_argonOven = false;

    int m_panelPage = -1;
    // What the operator chose on the panel; a panel that comes back is told the same.
    QByteArray m_language;
    QByteArray m_unit;
    ControllerClock m_wallClock;
    ProgramStore m_store;

    // The self-test runs once per "redost"; the panel's page pulses never start one.
    struct SelfTest
    {
        QByteArray failingRow;            // for the next test; empty: it passes
        QList<QByteArray> pendingResults; // still to go out, one per step
        QTimer stepTimer;
    } m_selfTest;

    // A new furnace: ends when the panel, having shown one of the set-up pages, reaches the
    // settings page. The panel's pulse from a page it showed before cannot end it.
    struct Commissioning
    {
        bool active = false;
        bool setupPageSeen = false;
    } m_commissioning;

    // The USB socket as the controller sees it, and how it answers an update from the stick
    // ("done", "failed" or "none": never).
    struct UsbSocket
    {
        bool stickIn = false;
        QByteArray answer = "done";
    } m_usb;
    QByteArray m_pin;
    struct Update
    {
        UpdateSender sender;
        bool streaming = false;
        int inFlight = -1; // block whose end byte is not out yet
        int frameBytes = 0;
        QElapsedTimer frameClock; // since the present block began
        QElapsedTimer clock;      // since the update began
        QTimer pace;              // the line's own speed between blocks
        bool draining = false;    // waiting for the panel to read the end byte
        QTimer tail;              // quiet after the last block without the panel's end
        int tailRetries = 0;
        int lastDecile = 0;
    } m_update;

    QHash<QByteArray, RequestHandler> m_requestHandlers;
    QHash<QString, CommandHandler> m_commandHandlers;
};
