#pragma once

#include "app/pageinterface.h"
#include "app/paths.h"
#include "communication/reports.h"
#include "programs/program.h"

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QProcess>
#include <QSet>
#include <QString>
#include <QStringList>

class QDataStream;
class QFile;
class QTimer;

namespace ovra {
namespace Communication {

// The panel's half of the controller protocol: checks each received frame, dispatches its
// commands as signals, and builds the answer that carries every queued request. Widget-free;
// everything runs on the GUI thread, synchronously inside HandleMessage().
class MessageHandler : public QObject
{
    Q_OBJECT

public:
    // `paths` places the update file and the unpacking script under the panel's home.
    explicit MessageHandler(const GlobalElements::Paths &paths, QObject *parent = nullptr);
    ~MessageHandler() override;

    // One received frame as text (delimiters may still be in it). Returns the answer frame,
    // or an empty array when nothing is to be written.
    QByteArray HandleMessage(QString message);
    // One received frame as the bytes that came off the line (delimiters may still be in it,
    // a NUL ends it). The checksum is tested on these bytes, since the decoded text cannot
    // always give them back; the commands are read from Frame::ReceivedText().
    QByteArray HandleFrame(const QByteArray &frame);
    bool CheckCRC(QString message);
    QString CalcCRC(QByteArray body);
    bool ParseMessage(const QString &field);

    QString GetActualRequests();
    void ResetRequest();
    bool IsUpdateActive() const { return m_updateActive; }

    // Parses one heat program as the controller sends it; ownership of the new record goes
    // with SignalHeatfileReceived.
    void HandleRecvHeatfile(const QString &payload);

    // Update reception. The delay before the unpacking script starts (the furnace: 2000 ms)
    // and the interpreters tried for it are settable so that tests need not wait or rely on
    // the machine's "python".
    static constexpr int defaultUnpackDelayMs = 2000;
    void SetUnpackDelayMs(int ms);
    void SetUnpackInterpreters(const QStringList &programs);
    void GetReceivingFileBlocks() {}
    // A controller that falls silent during an update is asked for the missing blocks
    // `tries` times, `intervalMs` apart; after one more interval of silence the update has
    // failed. Tests shorten the wait.
    static constexpr int defaultUpdateQuietMs = 5000;
    static constexpr int defaultUpdateQuietTries = 3;
    void SetUpdateQuietTiming(int intervalMs, int tries);

public slots:
    void SetRequest(const QString &request);
    void SlotStartUpdate();
    void Slot_UpdateProcess_Output();
    void Slot_UpdateProcess_Error();

signals:
    void SignalOvenConnected(ovra::GlobalElements::Pageinterface::en_pages page);
    void SignalTypeModelSeries(const QString &text);
    void SignalSerialNumber(const QString &text);
    void SignalHWVersion(const QString &text);
    void SignalSWVersion(const QString &text);
    void SignalOperatingHours(const QString &text);
    void SignalGuiState(const QString &text);
    void SignalTime(const QString &text);
    void SignalTemperature(const QString &text);
    void SignalDate(const QString &text);
    void SignalCountry(const QString &text);
    void SignalSelftestDoor(const QString &text);
    void SignalSelftestHeater(const QString &text);
    void SignalSelftestCooling(const QString &text);
    void SignalSelftestArgon(const QString &text);
    void SignalFailure(const QString &text);
    void SignalResetFailure(const QString &text);
    void SignalRemainingTime(const QString &text);
    void SignalActualStage(const QString &text);
    void SignalAcknowledge();
    void SignalHeatfileReceived(ovra::GlobalElements::Program *program);
    void SignalHeatfileInfo(const ovra::Communication::HeatReport &report);
    void SignalArgon(const QString &text);
    void SignalSelftestResult(const QString &text);
    void SignalMaxRate(unsigned int rate);
    void SignalServicePin(unsigned int pin);
    void SignalUSB(const QString &text);
    void SignalSetProgToFav(bool fav, ovra::GlobalElements::Program *program);
    void SignalHeatfileProcess(ovra::Communication::FiringResult result);
    void SignalMaterialChanged(const QString &text);
    void SignalInsulationMissing();
    void SignalDoor(ovra::Communication::DoorState state);
    void SignalUserInteractionRequest();
    void SignalSetLanguage(const QString &text);
    void SignalSetUnit(const QString &text);
    void SignalSetInitalStartup();
    void SignalHeatfileCount(int count);
    void SignalUpdateProgress(const QString &text);
    // A frame the panel sends without one to answer: the requests for missing update blocks
    // when the controller has fallen silent (it reads the panel's update answers whenever
    // they come). The transport writes it as it stands.
    void SignalUnaskedFrame(const QByteArray &frame);

private:
    using Action = bool (MessageHandler::*)(const QString &parameter);
    struct Command
    {
        QString keyword;
        Action action;
    };

    bool OnDate(const QString &p);
    bool OnTime(const QString &p);
    bool OnTemp(const QString &p);
    bool OnName(const QString &p);
    bool OnSerialNo(const QString &p);
    bool OnHwVer(const QString &p);
    bool OnSwVer(const QString &p);
    bool OnOpHours(const QString &p);
    bool OnCountry(const QString &p);
    bool OnStDoor(const QString &p);
    bool OnStHeater(const QString &p);
    bool OnStCooling(const QString &p);
    bool OnStArgon(const QString &p);
    bool OnSt(const QString &p);
    bool OnError(const QString &p);
    bool OnResetError(const QString &p);
    bool OnHeatfile(const QString &p);
    bool OnEstTime(const QString &p);
    bool OnStage(const QString &p);
    bool OnGuiState(const QString &p);
    bool OnHpInfo(const QString &p);
    bool OnArgon(const QString &p);
    bool OnMaxRate(const QString &p);
    bool OnCode(const QString &p);
    bool OnUsb(const QString &p);
    bool OnHpSuccess(const QString &p);
    bool OnHpFailed(const QString &p);
    bool OnMatChanged(const QString &p);
    bool OnInsulationMissing(const QString &p);
    bool OnDoorClose(const QString &p);
    bool OnDoorClosed(const QString &p);
    bool OnDoorOpen(const QString &p);
    bool OnUpdate(const QString &p);
    bool OnWaitForUserInteraction(const QString &p);
    bool OnLang(const QString &p);
    bool OnUnit(const QString &p);
    bool OnInitialStart(const QString &p);
    bool OnHfCount(const QString &p);
    bool OnAck(const QString &p);

    // Dispatches `message`; `checked` is the text its checksum is tested on.
    QByteArray Respond(QString message, const QString &checked);

    void HeatfileLineParser(const QString &entry, int section, GlobalElements::Program *prog);
    static void CleanMatrix(QList<QList<unsigned int>> *matrix);

    // Update reception: frames go to HandleUpdate() while it is active.
    void SetUpUpdateReception();
    void InitializeUpdater(QString blockCount);
    void HandleUpdate(QString &block);
    bool DecodeDataBlocks(const QString &block, QByteArray &data, int &number);
    void AcceptBlock(int number, const QByteArray &data, bool valid);
    void WriteBlock(const QByteArray &data);
    void WriteHeldBlocks();
    int LowestMissingBlock() const;
    void ResendUpdateBlock(int number);
    void OnUpdateQuiet();
    void FailUpdate(const QString &why);
    void CloseUpdater();
    void StartUnpackInterpreter();
    void OnUnpackProcessError(QProcess::ProcessError error);
    void OnUnpackProcessFinished(int exitCode, QProcess::ExitStatus status);

    QList<Command> m_commands; // in matching order
    QStringList m_commandsWithoutParameter;
    QStringList m_requests;
    const GlobalElements::Paths m_paths;

    bool m_updateActive = false;
    int m_blockNumberWidth = 6;
    int m_lengthWidth = 3;
    int m_totalBlocks = 0;
    // The file holds blocks 0 to m_nextBlock - 1 and nothing else; each update starts at 0.
    int m_nextBlock = 0;
    int m_highestBlock = -1;
    QString m_lastProgress;
    QMap<int, QByteArray> m_heldBlocks; // valid blocks that came ahead of a missing one
    QSet<int> m_damagedAhead;           // came damaged ahead of a missing one, not asked for yet
    QSet<int> m_awaitedBlocks;          // asked for again, not yet received intact
    QTimer *m_quietTimer;
    int m_quietTries = defaultUpdateQuietTries;
    int m_quietAsked = 0; // re-asks since the last block
    QDataStream *m_outputStream = nullptr;
    QFile *m_outputFile = nullptr;
    QProcess *m_unpackProcess;
    QTimer *m_unpackTimer;
    QStringList m_unpackInterpreters;
    int m_unpackInterpreter = 0; // index of the one being tried
    QByteArray m_unpackOutput;
    int m_heatfileSection = -1;
    // Rows the segment matrix grows by in one step while a heatfile is read.
    const int m_segmentCapacity = 10;
};

} // namespace Communication
} // namespace ovra
