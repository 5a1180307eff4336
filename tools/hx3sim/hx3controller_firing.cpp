// The furnace side of the controller: firings the panel starts, stops or sets for later, the
// lift door, and the events an operator scripts on the console to see how the panel copes.

#include "hx3controller.h"

#include <QRegularExpression>

#include <cmath>

namespace {
const char kClockFormat[] = "yyyy-MM-dd HH:mm";
// What a forced chamber temperature may be: below room for a cold workshop, up to past the
// hottest program.
constexpr double kLowestForcedCelsius = -40.0;
constexpr double kHighestForcedCelsius = 1800.0;
// Pre-dry minutes on the panel go up to an hour; anything longer than a day is a bad request.
constexpr int kLongestPreDryMinutes = 24 * 60;

QByteArray command(const QByteArray &keyword, const QByteArray &parameter)
{
    return keyword + "==" + parameter;
}

bool allDigits(const QByteArray &text)
{
    if (text.isEmpty())
        return false;
    for (const char c : text) {
        if (c < '0' || c > '9')
            return false;
    }
    return true;
}

// Pre-dry minutes as the panel writes them: a plain number.
bool readPreDry(const QByteArray &text, int *minutes)
{
    if (!allDigits(text) || text.size() > 4)
        return false;
    *minutes = text.toInt();
    return *minutes <= kLongestPreDryMinutes;
}

QString preDryNote(int minutes)
{
    return minutes > 0 ? QStringLiteral(" (pre-dry %1 min)").arg(minutes) : QString();
}
} // namespace

QDateTime Hx3Controller::furnaceSystemTime() const
{
    return m_systemAtStart.addMSecs(static_cast<qint64>(std::llround(m_furnace.furnaceMs())));
}

QDateTime Hx3Controller::controllerNow() const
{
    return m_wallClock.at(furnaceSystemTime());
}

void Hx3Controller::catchUp()
{
    m_furnace.update();
    handleFurnaceEvents();
    checkDelayedStart();
}

void Hx3Controller::handleFurnaceEvents()
{
    const QList<FurnaceModel::Event> events = m_furnace.takeEvents();
    for (const FurnaceModel::Event &event : events) {
        if (event.kind == FurnaceModel::Event::Kind::Finished)
            endFiring(Outcome::Done);
        else
            emit message(QStringLiteral("stage ") + stageText(event.position));
    }
}

void Hx3Controller::checkDelayedStart()
{
    if (!m_delayedStart.pending || controllerNow() < m_delayedStart.at)
        return;
    const DelayedStart due = m_delayedStart;
    m_delayedStart = {};
    emit message(QStringLiteral("delayed start due: ") + due.program);
    startFiring(due.program, due.preDryMinutes);
}

void Hx3Controller::startFiring(const QString &name, int preDryMinutes)
{
    if (!m_firing.program.isEmpty()) {
        // A hpfailed now would read as the end of the firing that runs.
        emit message(QStringLiteral("start of %1 refused: %2 is firing").arg(name, m_firing.program));
        return;
    }
    const int at = m_store.indexOf(name);
    if (at < 0) {
        refuseStart(QStringLiteral("unknown program: ") + name);
        return;
    }
    // The lift brings the work into the chamber before the heating starts.
    moveDoor(DoorState::Closed);
    m_firing.program = name;
    m_firing.endReport = Firing::EndReport::None;
    emit message(QStringLiteral("firing started: ") + name + preDryNote(preDryMinutes));
    m_furnace.start(m_store.programs().at(at).segments, preDryMinutes);
    handleFurnaceEvents();
}

// A firing started at the furnace itself rather than from the panel, as a fleet of unattended
// simulators needs: the panel joins it from its reports.
void Hx3Controller::commandFire(const QString &arguments)
{
    if (arguments.isEmpty()) {
        emit message(QStringLiteral("usage: fire <program>"));
        return;
    }
    startFiring(arguments, 0);
}

void Hx3Controller::endFiring(Outcome outcome)
{
    m_furnace.stop();
    m_firing.program.clear();
    m_firing.endReport = Firing::EndReport::Announced;
    switch (outcome) {
    case Outcome::Done: emit message(QStringLiteral("firing done")); break;
    case Outcome::Stopped: emit message(QStringLiteral("firing stopped")); break;
    case Outcome::Failed: emit message(QStringLiteral("firing failed")); break;
    }
    sendEvent(outcome == Outcome::Done ? "hpsuccess" : "hpfailed");
}

void Hx3Controller::refuseStart(const QString &reason)
{
    emit message(reason);
    sendEvent("hpfailed");
}

QList<QByteArray> Hx3Controller::firingFields() const
{
    if (!m_firing.program.isEmpty() && m_furnace.isFiring()) {
        const FurnaceModel::Position position = m_furnace.position();
        const bool preDry = position.stage == 0;
        const QByteArray stage = preDry ? QByteArray("pre") : QByteArray::number(position.stage);
        const QByteArray text = preDry                                        ? QByteArray("pre")
                                : position.phase == FurnaceModel::Phase::Hold ? QByteArray("hold")
                                                                              : QByteArray("heat");
        const QDateTime end =
            controllerNow().addMSecs(static_cast<qint64>(std::llround(m_furnace.remainingSeconds() * 1000.0)));
        return {command("hpinfo", m_firing.program.toUtf8() + ';' + QByteArray::number(m_furnace.remainingMinutes()) +
                                      ';' + stage + ';' + text),
                command("esttime", end.toString(QStringLiteral("HH:mm")).toLatin1())};
    }
    if (m_firing.endReport == Firing::EndReport::Due)
        return {command("hpinfo", QByteArray())};
    return {};
}

QString Hx3Controller::stageText(const FurnaceModel::Position &position) const
{
    const QString phase = position.phase == FurnaceModel::Phase::Hold ? QStringLiteral("hold") : QStringLiteral("heat");
    return (position.stage == 0 ? QStringLiteral("pre-dry") : QString::number(position.stage)) + QLatin1Char(' ') +
           phase;
}

void Hx3Controller::sendEvent(const QByteArray &field)
{
    enqueue({single(field, Kind::Event)});
}

// "<name>,<pre-dry minutes>"; names hold no comma, so the last one separates.
void Hx3Controller::requestStartFiring(const QByteArray &parameter)
{
    catchUp();
    const int comma = parameter.lastIndexOf(',');
    int preDry = 0;
    if (comma < 0 || !readPreDry(parameter.mid(comma + 1), &preDry)) {
        refuseStart(QStringLiteral("bad start request: ") + QString::fromUtf8(parameter));
        return;
    }
    startFiring(QString::fromUtf8(parameter.left(comma)), preDry);
}

// "<YYYYMMDD>,<HHMM>,<name>,<pre-dry minutes>", or nothing to call a delayed start off.
void Hx3Controller::requestTimer(const QByteArray &parameter)
{
    catchUp();
    if (parameter.isEmpty()) {
        if (!m_delayedStart.pending) {
            emit message(QStringLiteral("no delayed start to cancel"));
            return;
        }
        emit message(QStringLiteral("delayed start cancelled: ") + m_delayedStart.program);
        m_delayedStart = {};
        return;
    }
    const QList<QByteArray> parts = parameter.split(',');
    int preDry = 0;
    QDate date;
    QTime time;
    if (parts.size() == 4 && parts.at(0).size() == 8 && allDigits(parts.at(0)) && parts.at(1).size() == 4 &&
        allDigits(parts.at(1))) {
        date = QDate(parts.at(0).left(4).toInt(), parts.at(0).mid(4, 2).toInt(), parts.at(0).mid(6).toInt());
        time = QTime(parts.at(1).left(2).toInt(), parts.at(1).mid(2).toInt());
    }
    if (!date.isValid() || !time.isValid() || !readPreDry(parts.value(3), &preDry)) {
        refuseStart(QStringLiteral("bad timer request: ") + QString::fromUtf8(parameter));
        return;
    }
    const QString name = QString::fromUtf8(parts.at(2));
    if (m_store.indexOf(name) < 0) {
        refuseStart(QStringLiteral("unknown program: ") + name);
        return;
    }
    if (m_delayedStart.pending)
        emit message(QStringLiteral("delayed start replaced: ") + m_delayedStart.program);
    m_delayedStart = {true, QDateTime(date, time), name, preDry};
    emit message(
        QStringLiteral("delayed start: %1 at %2").arg(name, m_delayedStart.at.toString(QLatin1String(kClockFormat))) +
        preDryNote(preDry));
    // A time already past starts at once.
    checkDelayedStart();
}

void Hx3Controller::requestStopFiring(const QByteArray &)
{
    catchUp();
    const bool pending = m_delayedStart.pending;
    if (pending) {
        emit message(QStringLiteral("delayed start cancelled: ") + m_delayedStart.program);
        m_delayedStart = {};
    }
    if (!m_firing.program.isEmpty()) {
        endFiring(Outcome::Stopped);
    } else if (pending) {
        m_firing.endReport = Firing::EndReport::Announced;
        sendEvent("hpfailed");
    } else {
        emit message(QStringLiteral("stop: no firing"));
    }
}

void Hx3Controller::requestMoveDoor(const QByteArray &)
{
    const bool closing = m_door.state == DoorState::Closed || m_door.state == DoorState::Closing;
    moveDoor(closing ? DoorState::Open : DoorState::Closed);
}

void Hx3Controller::requestDoorClose(const QByteArray &)
{
    if (m_door.state == DoorState::Closed || m_door.state == DoorState::Closing) {
        emit message(QStringLiteral("door already ") + doorText(m_door.state));
        return;
    }
    moveDoor(DoorState::Closed);
}

void Hx3Controller::requestMaterialChanged(const QByteArray &)
{
    emit message(QStringLiteral("material change accepted"));
}

void Hx3Controller::requestMaterialNotChanged(const QByteArray &)
{
    // The panel calls its start off by itself with hpstop.
    emit message(QStringLiteral("material change refused"));
}

void Hx3Controller::requestInsulationInserted(const QByteArray &)
{
    emit message(QStringLiteral("insulation inserted"));
}

void Hx3Controller::moveDoor(DoorState towards)
{
    const bool opening = towards == DoorState::Open;
    const DoorState movement = opening ? DoorState::Opening : DoorState::Closing;
    if (m_door.state == towards || m_door.state == movement)
        return;
    // Where the door stands, in milliseconds of travel from closed; turned round, it goes
    // back only the way it came.
    const qint64 full = m_options.doorMs;
    const qint64 moved = m_door.moving.isValid() ? qMin(m_door.moving.elapsed(), full) : full;
    qint64 position = 0;
    switch (m_door.state) {
    case DoorState::Closed: position = 0; break;
    case DoorState::Open: position = full; break;
    case DoorState::Opening: position = m_door.fromMs + moved; break;
    case DoorState::Closing: position = m_door.fromMs - moved; break;
    }
    position = qBound<qint64>(0, position, full);

    m_door.state = movement;
    m_door.fromMs = position;
    m_door.moving.start();
    m_door.travel.start(static_cast<int>(opening ? full - position : position));
    applyDoorToFurnace();
    emit message(opening ? QStringLiteral("door opening") : QStringLiteral("door closing"));
    // The panel reads "dooropen" as the door on its way up.
    sendEvent(opening ? "dooropen" : "doorclose");
}

void Hx3Controller::onDoorArrived()
{
    const bool opened = m_door.state == DoorState::Opening;
    m_door.state = opened ? DoorState::Open : DoorState::Closed;
    m_door.moving.invalidate();
    applyDoorToFurnace();
    emit message(opened ? QStringLiteral("door open") : QStringLiteral("door closed"));
    // The top end has no word on the line; the panel keeps showing the door as moving up.
    if (!opened)
        sendEvent("doorclosed");
}

void Hx3Controller::applyDoorToFurnace()
{
    // The time up to now cools at the old rate. Only the model runs on: what happened on the
    // way is acted on at the next report, and a start due meanwhile cannot move the door from
    // under us.
    m_furnace.update();
    m_furnace.setDoorOpen(m_door.state != DoorState::Closed);
}

QString Hx3Controller::doorText(DoorState state)
{
    switch (state) {
    case DoorState::Closed: return QStringLiteral("closed");
    case DoorState::Opening: return QStringLiteral("opening");
    case DoorState::Open: return QStringLiteral("open");
    case DoorState::Closing: return QStringLiteral("closing");
    }
    return QString();
}

void Hx3Controller::commandStatus(const QString &)
{
    catchUp();
    const bool firing = !m_firing.program.isEmpty();
    QString state = QStringLiteral("idle");
    QString program = QStringLiteral("-");
    if (firing) {
        state = QStringLiteral("firing");
        program = m_firing.program;
    } else if (m_delayedStart.pending) {
        state = QStringLiteral("delayed start ") + m_delayedStart.at.toString(QLatin1String(kClockFormat));
        program = m_delayedStart.program;
    }
    const QString stage = firing ? QStringLiteral("stage ") + stageText(m_furnace.position()) : QStringLiteral("-");
    const QString remaining = firing ? QStringLiteral("%1 min").arg(m_furnace.remainingMinutes()) : QStringLiteral("-");
    emit message(QStringLiteral("status: %1 | %2 C | door %3 | %4 | %5 | %6")
                     .arg(state)
                     .arg(std::lround(m_furnace.chamberCelsius()))
                     .arg(doorText(m_door.state), program, stage, remaining));
}

void Hx3Controller::commandMaterial(const QString &arguments)
{
    if (arguments != QLatin1String("argon") && arguments != QLatin1String("zirkon")) {
        emit message(QStringLiteral("usage: material argon|zirkon"));
        return;
    }
    const QByteArray field = command("matchanged", arguments.toLatin1());
    emit message(QStringLiteral("event: ") + QString::fromLatin1(field));
    sendEvent(field);
}

void Hx3Controller::commandInsulation(const QString &)
{
    emit message(QStringLiteral("event: insulationmissing"));
    sendEvent("insulationmissing");
}

void Hx3Controller::commandArgon(const QString &arguments)
{
    if (arguments != QLatin1String("on") && arguments != QLatin1String("off")) {
        emit message(QStringLiteral("usage: argon on|off"));
        return;
    }
    // Kept, so that a panel that comes back hears it with the device data.
    m_argonOven = arguments == QLatin1String("on");
    const QByteArray field = command("argon", m_argonOven ? "True" : "False");
    emit message(QStringLiteral("event: ") + QString::fromLatin1(field));
    sendEvent(field);
}

void Hx3Controller::commandArgonCheck(const QString &arguments)
{
    if (arguments != QLatin1String("pass") && arguments != QLatin1String("fail")) {
        emit message(QStringLiteral("usage: argoncheck pass|fail"));
        return;
    }
    const QByteArray field = command("stargon", arguments.toLatin1());
    emit message(QStringLiteral("event: ") + QString::fromLatin1(field));
    sendEvent(field);
}

void Hx3Controller::commandInteraction(const QString &)
{
    emit message(QStringLiteral("event: waitforuserinteraction"));
    sendEvent("waitforuserinteraction");
}

namespace {
// "E101, E102" as typed -> "E101,E102"; empty when it is not a list of codes.
QByteArray errorCodes(const QString &arguments)
{
    static const QRegularExpression codes(QStringLiteral("^[A-Za-z0-9_-]+(,[A-Za-z0-9_-]+)*$"));
    QString joined = arguments;
    joined.remove(QLatin1Char(' '));
    return codes.match(joined).hasMatch() ? joined.toLatin1() : QByteArray();
}
} // namespace

void Hx3Controller::commandError(const QString &arguments)
{
    const QByteArray codes = errorCodes(arguments);
    if (codes.isEmpty()) {
        emit message(QStringLiteral("usage: error <code>[,<code>...]"));
        return;
    }
    const QByteArray field = command("error", codes);
    emit message(QStringLiteral("event: ") + QString::fromLatin1(field));
    sendEvent(field);
}

void Hx3Controller::commandResetError(const QString &arguments)
{
    const QByteArray codes = errorCodes(arguments);
    if (codes.isEmpty()) {
        emit message(QStringLiteral("usage: reseterror <code>[,<code>...]"));
        return;
    }
    const QByteArray field = command("reseterror", codes);
    emit message(QStringLiteral("event: ") + QString::fromLatin1(field));
    sendEvent(field);
}

void Hx3Controller::commandFail(const QString &)
{
    catchUp();
    if (m_firing.program.isEmpty()) {
        emit message(QStringLiteral("no firing to fail"));
        return;
    }
    endFiring(Outcome::Failed);
}

void Hx3Controller::commandTemp(const QString &arguments)
{
    bool ok = false;
    const double celsius = arguments.toDouble(&ok);
    if (!ok || celsius < kLowestForcedCelsius || celsius > kHighestForcedCelsius) {
        emit message(
            QStringLiteral("usage: temp <celsius> (%1 to %2)").arg(kLowestForcedCelsius).arg(kHighestForcedCelsius));
        return;
    }
    catchUp();
    m_furnace.setChamberCelsius(celsius);
    emit message(QStringLiteral("chamber temperature: %1 C").arg(std::lround(celsius)));
    // A ramp whose target it now stands at is over, and so perhaps the firing.
    handleFurnaceEvents();
}
