#pragma once

#include "app/pageinterface.h"
#include "programs/program.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

namespace ovra {
namespace Communication {

// The panel's half of the controller protocol: checks each received frame, dispatches its
// commands as signals, and builds the answer that carries every queued request. Widget-free;
// everything runs on the GUI thread, synchronously inside HandleMessage().
class MessageHandler : public QObject
{
    Q_OBJECT

public:
    explicit MessageHandler(QObject *parent = nullptr);

    // One received frame as text (delimiters may still be in it). Returns the answer frame,
    // or an empty array when nothing is to be written.
    QByteArray HandleMessage(QString message);
    bool CheckCRC(QString message);
    QString CalcCRC(QByteArray body);
    bool ParseMessage(const QString &field);

    QString GetActualRequests();
    void ResetRequest();
    bool IsUpdateActive() const { return m_updateActive; }

    // Parses one heat program as the controller sends it; ownership of the new record goes
    // with SignalHeatfileReceived.
    void HandleRecvHeatfile(const QString &payload);

public slots:
    void SetRequest(const QString &request);

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
    void SignalHeatfileInfo(const QString &text);
    void SignalArgon(const QString &text);
    void SignalSelftestResult(const QString &text);
    void SignalMaxRate(unsigned int rate);
    void SignalServicePin(unsigned int pin);
    void SignalUSB(const QString &text);
    void SignalSetProgToFav(bool fav, ovra::GlobalElements::Program *program);
    void SignalHeatfileProcess(const QString &text);
    void SignalMaterialChanged(const QString &text);
    void SignalInsulationMissing();
    void SignalDoor(const QString &text);
    void SignalUserInteractionRequest();
    void SignalSetLanguage(const QString &text);
    void SignalSetUnit(const QString &text);
    void SignalSetInitalStartup();
    void SignalHeatfileCount(int count);
    void SignalUpdateProgress(const QString &text);

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

    void HeatfileLineParser(const QString &entry, int section, GlobalElements::Program *prog);
    static void CleanMatrix(QList<QList<unsigned int>> *matrix);

    // Update reception: frames go to HandleUpdate() while it is active.
    void InitializeUpdater(const QString &blockCount);
    void HandleUpdate(QString &block);

    QList<Command> m_commands;           // in matching order
    QStringList m_commandsWithoutParameter;
    QStringList m_requests;
    bool m_updateActive = false;
    int m_heatfileSection = -1;
    // Rows the segment matrix grows by in one step while a heatfile is read.
    const int m_segmentCapacity = 10;
};

} // namespace Communication
} // namespace ovra
