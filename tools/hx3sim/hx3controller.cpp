#include "hx3controller.h"

#include "ptyline.h"
#include "simframe.h"

#include <QDateTime>

namespace {
constexpr int kAnswerTimeoutMs = 1000;
// After this many unanswered frames in a row the panel is taken to be gone.
constexpr int kTimeoutsUntilLost = 3;

const QByteArray kModelName = "Ovra S1";
const QByteArray kHardwareVersion = "HX3-C";
const QByteArray kSoftwareVersion = "3.12.0";
constexpr int kOperatingHours = 1234;
constexpr int kStartPage = 1;
constexpr int kLanguagePage = 12;  // the first page of commissioning
constexpr int kLastSetupPage = 15; // pages 12..15: language, unit, date/time, device data
constexpr int kSettingsPage = 6;   // where commissioning ends
constexpr int kOvenReady = 26;     // "oven ready, main menu"

struct SelfTestRow
{
    const char *name;    // as the operator names it on the command line
    const char *keyword; // as the result goes on the line
};
// In the order the controller tests them.
constexpr SelfTestRow kSelfTestRows[] = {{"door", "stdoor"}, {"heater", "stheater"}, {"cooling", "stcooling"}};

QByteArray command(const QByteArray &keyword, const QByteArray &parameter)
{
    return keyword + "==" + parameter;
}
} // namespace

Hx3Controller::Hx3Controller(PtyLine *line, const Options &options, QObject *parent)
    : QObject(parent), m_line(line), m_options(options), m_systemAtStart(QDateTime::currentDateTime()),
      m_furnace([this] { return m_clock.isValid() ? m_clock.elapsed() : 0; }, options.speed),
      m_language(options.language), m_unit(options.unit), m_store(options.programs)
{
    m_clock.start();

    m_answerTimer.setSingleShot(true);
    m_answerTimer.setInterval(kAnswerTimeoutMs);
    connect(&m_answerTimer, &QTimer::timeout, this, &Hx3Controller::onAnswerTimeout);

    m_statusTimer.setInterval(m_options.intervalMs);
    connect(&m_statusTimer, &QTimer::timeout, this, &Hx3Controller::onStatusTick);

    connect(m_line, &PtyLine::bytesReceived, this, &Hx3Controller::onBytesReceived);
    connect(m_line, &PtyLine::frameWritten, this, [this] {
        m_inFlightComplete = true;
        if (m_update.streaming && m_update.inFlight >= 0) {
            m_update.inFlight = -1;
            m_update.draining = true;
            scheduleNextBlock();
        }
    });
    connect(m_line, &PtyLine::lineError, this,
            [this](const QString &text) { emit message(QStringLiteral("line error: ") + text); });

    // What the panel may ask for in its answers; a new request is one more entry here.
    m_requestHandlers.insert("hfresend", &Hx3Controller::requestHeatfileResend);
    m_requestHandlers.insert("guistate", &Hx3Controller::requestGuiState);
    m_requestHandlers.insert("redost", &Hx3Controller::requestSelfTest);
    m_requestHandlers.insert("lang", &Hx3Controller::requestLanguage);
    m_requestHandlers.insert("unit", &Hx3Controller::requestUnit);
    m_requestHandlers.insert("date", &Hx3Controller::requestDate);
    m_requestHandlers.insert("time", &Hx3Controller::requestTime);
    m_requestHandlers.insert("heatfile", &Hx3Controller::requestStoreProgram);
    m_requestHandlers.insert("hpchange", &Hx3Controller::requestChangeProgram);
    m_requestHandlers.insert("hpdelete", &Hx3Controller::requestDeleteProgram);
    m_requestHandlers.insert("tofavorite", &Hx3Controller::requestFavorite);
    m_requestHandlers.insert("hpstart", &Hx3Controller::requestStartFiring);
    m_requestHandlers.insert("timer", &Hx3Controller::requestTimer);
    m_requestHandlers.insert("hpstop", &Hx3Controller::requestStopFiring);
    m_requestHandlers.insert("movedoor", &Hx3Controller::requestMoveDoor);
    m_requestHandlers.insert("doorclose", &Hx3Controller::requestDoorClose);
    m_requestHandlers.insert("matchanged", &Hx3Controller::requestMaterialChanged);
    m_requestHandlers.insert("matnotchanged", &Hx3Controller::requestMaterialNotChanged);
    m_requestHandlers.insert("insulationinsert", &Hx3Controller::requestInsulationInserted);
    // deletefailurelist is only logged as a request so far.

    // Operator commands on standard input.
    m_commandHandlers.insert(QStringLiteral("send"), &Hx3Controller::commandSend);
    m_commandHandlers.insert(QStringLiteral("quit"), &Hx3Controller::commandQuit);
    m_commandHandlers.insert(QStringLiteral("selftest"), &Hx3Controller::commandSelfTest);
    m_commandHandlers.insert(QStringLiteral("commission"), &Hx3Controller::commandCommission);
    m_commandHandlers.insert(QStringLiteral("programs"), &Hx3Controller::commandPrograms);
    m_commandHandlers.insert(QStringLiteral("dump"), &Hx3Controller::commandDump);
    m_commandHandlers.insert(QStringLiteral("status"), &Hx3Controller::commandStatus);
    m_commandHandlers.insert(QStringLiteral("material"), &Hx3Controller::commandMaterial);
    m_commandHandlers.insert(QStringLiteral("insulation"), &Hx3Controller::commandInsulation);
    m_commandHandlers.insert(QStringLiteral("argon"), &Hx3Controller::commandArgon);
    m_commandHandlers.insert(QStringLiteral("argoncheck"), &Hx3Controller::commandArgonCheck);
    m_commandHandlers.insert(QStringLiteral("interaction"), &Hx3Controller::commandInteraction);
    m_commandHandlers.insert(QStringLiteral("error"), &Hx3Controller::commandError);
    m_commandHandlers.insert(QStringLiteral("reseterror"), &Hx3Controller::commandResetError);
    m_commandHandlers.insert(QStringLiteral("fail"), &Hx3Controller::commandFail);
    m_commandHandlers.insert(QStringLiteral("temp"), &Hx3Controller::commandTemp);
    m_commandHandlers.insert(QStringLiteral("fire"), &Hx3Controller::commandFire);
    m_commandHandlers.insert(QStringLiteral("lang"), &Hx3Controller::commandLanguage);
    m_commandHandlers.insert(QStringLiteral("unit"), &Hx3Controller::commandUnit);
    m_commandHandlers.insert(QStringLiteral("update"), &Hx3Controller::commandUpdate);

    m_update.pace.setSingleShot(true);
    m_update.pace.setTimerType(Qt::PreciseTimer);
    connect(&m_update.pace, &QTimer::timeout, this, &Hx3Controller::onUpdatePace);
    m_update.tail.setSingleShot(true);
    connect(&m_update.tail, &QTimer::timeout, this, &Hx3Controller::onUpdateTail);

    m_selfTest.failingRow = m_options.selftestFailRow;
    m_selfTest.stepTimer.setInterval(m_options.stepMs);
    connect(&m_selfTest.stepTimer, &QTimer::timeout, this, &Hx3Controller::onSelfTestStep);

    m_commissioning.active = m_options.commissioning;
    m_argonOven = m_options.argon;

    m_door.travel.setSingleShot(true);
    connect(&m_door.travel, &QTimer::timeout, this, &Hx3Controller::onDoorArrived);

    setUpServiceFunctions();
}

void Hx3Controller::start()
{
    m_statusTimer.start();
    emit message(QStringLiteral("waiting for panel on %1").arg(m_line->slavePath()));
    probePanel();
}

bool Hx3Controller::isSelfTestRow(const QByteArray &row)
{
    for (const SelfTestRow &known : kSelfTestRows) {
        if (row == known.name)
            return true;
    }
    return false;
}

QString Hx3Controller::summaryLine() const
{
    return QStringLiteral("summary: frames=%1 answers=%2 nacks=%3 bad_checksum=%4 timeouts=%5 requests=%6")
        .arg(m_counters.frames)
        .arg(m_counters.answers)
        .arg(m_counters.nacks)
        .arg(m_counters.badChecksum)
        .arg(m_counters.timeouts)
        .arg(m_counters.requests);
}

Hx3Controller::Outgoing Hx3Controller::single(const QByteArray &field, Kind kind)
{
    return {{field}, kind};
}

QList<Hx3Controller::Outgoing> Hx3Controller::startupFrames() const
{
    QList<Outgoing> frames;
    // The panel must know before the device data that it is not to start its self-test.
    if (m_commissioning.active)
        frames.append(single("initialstart", Kind::Startup));
    frames += QList<Outgoing>{
        {{command("name", kModelName)}, Kind::Startup},
        {{command("serialno", m_options.serial)}, Kind::Startup},
        {{command("hwver", kHardwareVersion)}, Kind::Startup},
        {{command("swver", kSoftwareVersion)}, Kind::Startup},
        {{command("ophours", QByteArray::number(kOperatingHours))}, Kind::Startup},
        {{command("guistate", QByteArray::number(m_commissioning.active ? kLanguagePage : kStartPage))}, Kind::Startup},
        {{command("lang", m_language)}, Kind::Startup},
        {{command("unit", m_unit)}, Kind::Startup},
    };
    // The panel counts the door as closed only once it has been told so; a hot chamber would
    // otherwise raise its warning behind a closed door.
    if (m_door.state == DoorState::Closed)
        frames.append(single("doorclosed", Kind::Startup));
    // Before the programs, so that the panel knows its self-test has an argon row.
    if (m_argonOven)
        frames.append(single(command("argon", "True"), Kind::Startup));
    frames += serviceFrames();
    frames += heatfileFrames();
    return frames;
}

QList<Hx3Controller::Outgoing> Hx3Controller::heatfileFrames() const
{
    QList<Outgoing> frames;
    for (const heatfile::Program &program : m_store.programs())
        frames.append({{command("heatfile", heatfile::text(program))}, Kind::Heatfile});
    frames.append({{command("hfcount", QByteArray::number(m_store.size()))}, Kind::Heatfile});
    return frames;
}

Hx3Controller::Outgoing Hx3Controller::statusFrame() const
{
    const QDateTime now = controllerNow();
    return {QList<QByteArray>{command("time", now.toString(QStringLiteral("HHmm")).toLatin1()),
                              command("date", now.toString(QStringLiteral("yyyyMMdd")).toLatin1()),
                              command("temp", QByteArray::number(m_furnace.chamberKelvin()))} +
                firingFields(),
            Kind::Status};
}

void Hx3Controller::enqueue(const QList<Outgoing> &frames)
{
    m_queue += frames;
    sendNext();
}

void Hx3Controller::sendNext()
{
    if (m_update.streaming || m_awaitingAnswer || m_phase != Phase::Connected || m_queue.isEmpty())
        return;
    transmit(m_queue.takeFirst());
}

void Hx3Controller::transmit(const Outgoing &frame)
{
    m_inFlight = frame;
    m_awaitingAnswer = true;
    if (frame.kind == Kind::Status && m_firing.endReport == Firing::EndReport::Due && frame.fields.contains("hpinfo=="))
        m_firing.endReport = Firing::EndReport::None;
    m_inFlightComplete = false;
    ++m_counters.frames;
    const QByteArray bytes = simframe::buildFrame(frame.fields);
    if (m_options.verbose)
        emit message(QStringLiteral("tx: ") + simframe::printable(bytes));
    // The answer time counts from the first byte, so that a panel that does not read at all is
    // asked again after one second and not after the end byte's own give-up time on top.
    m_answerTimer.start();
    m_line->sendFrame(bytes);
}

void Hx3Controller::probePanel()
{
    // A panel that attaches late must not first chew through every probe sent so far.
    m_line->abortFrame();
    m_line->discardUnreadInput();
    transmit(startupFrames().first());
}

void Hx3Controller::onBytesReceived(const QByteArray &bytes)
{
    m_rxBuffer += bytes;
    const QList<QByteArray> frames = simframe::takeFrames(m_rxBuffer);
    for (const QByteArray &content : frames)
        onIncomingFrame(content);
}

void Hx3Controller::onIncomingFrame(const QByteArray &content)
{
    const QString raw = simframe::printable(simframe::kStx + content + simframe::kEtx);
    if (m_options.verbose)
        emit message(QStringLiteral("rx: ") + raw);
    if (m_update.streaming) {
        onUpdateAnswer(content);
        return;
    }

    // The panel cannot have dispatched a frame whose end byte is not out yet, so anything
    // arriving before that is a late answer to an earlier frame.
    if (!m_awaitingAnswer || !m_inFlightComplete) {
        emit message(QStringLiteral("unexpected answer: ") + raw);
        return;
    }

    const simframe::Answer answer = simframe::parseAnswer(content);
    if (!answer.valid) {
        ++m_counters.badChecksum;
        emit message(QStringLiteral("BAD ANSWER (checksum) ") + raw);
        // While waiting for the panel only a good answer counts; the probe goes out again.
        if (m_phase == Phase::WaitingForPanel)
            return;
        m_consecutiveTimeouts = 0;
        m_answerTimer.stop();
        m_awaitingAnswer = false;
        sendNext();
        return;
    }

    m_answerTimer.stop();
    m_awaitingAnswer = false;
    m_consecutiveTimeouts = 0;
    ++m_counters.answers;
    if (answer.nack) {
        ++m_counters.nacks;
        emit message(QStringLiteral("nack for ") + simframe::summary(m_inFlight.fields));
    }

    if (m_phase == Phase::WaitingForPanel) {
        m_phase = Phase::Connected;
        emit message(QStringLiteral("panel connected"));
        QList<Outgoing> rest = startupFrames().mid(1);
        rest += m_queue;
        m_queue = rest;
    }

    for (const QByteArray &field : answer.requests) {
        ++m_counters.requests;
        emit message(QStringLiteral("request: ") + QString::fromUtf8(field));
        handleRequest(field);
    }
    if (m_inFlight.kind == Kind::Update && !answer.nack) {
        startStreaming();
        return;
    }
    if (m_inFlight.kind == Kind::Update)
        emit message(QStringLiteral("update: refused by the panel"));
    sendNext();
}

void Hx3Controller::onAnswerTimeout()
{
    m_line->abortFrame();
    m_awaitingAnswer = false;
    if (m_phase == Phase::WaitingForPanel) {
        probePanel();
        return;
    }
    ++m_counters.timeouts;
    emit message(QStringLiteral("BAD ANSWER (timeout) for ") + simframe::summary(m_inFlight.fields));
    if (++m_consecutiveTimeouts >= kTimeoutsUntilLost) {
        panelLost();
        return;
    }
    sendNext();
}

void Hx3Controller::onStatusTick()
{
    catchUp();
    if (m_phase != Phase::Connected)
        return;
    // A slow panel gets the newest values, not a backlog of old ones.
    bool replaced = false;
    for (Outgoing &queued : m_queue) {
        if (queued.kind == Kind::Status) {
            queued = statusFrame();
            replaced = true;
            break;
        }
    }
    if (!replaced)
        enqueue({statusFrame()});
    if (m_firing.endReport == Firing::EndReport::Announced)
        m_firing.endReport = Firing::EndReport::Due;
}

void Hx3Controller::panelLost()
{
    emit message(QStringLiteral("panel lost"));
    m_phase = Phase::WaitingForPanel;
    m_queue.clear();
    m_consecutiveTimeouts = 0;
    m_rxBuffer.clear();
    m_panelPage = -1;
    stopSelfTest();
    // Commissioning not finished starts over with the next panel.
    m_commissioning.setupPageSeen = false;
    emit message(QStringLiteral("waiting for panel on %1").arg(m_line->slavePath()));
    probePanel();
}

void Hx3Controller::handleRequest(const QByteArray &field)
{
    const auto [keyword, parameter] = simframe::splitCommand(field);
    const RequestHandler handler = m_requestHandlers.value(keyword, nullptr);
    if (handler)
        (this->*handler)(parameter);
}

void Hx3Controller::requestHeatfileResend(const QByteArray &)
{
    enqueue(heatfileFrames());
}

void Hx3Controller::requestGuiState(const QByteArray &parameter)
{
    bool ok = false;
    const int page = parameter.toInt(&ok);
    // The panel repeats its page every second; only a change is news.
    if (!ok || page != m_panelPage)
        emit message(QStringLiteral("panel page: ") + QString::fromUtf8(parameter));
    if (!ok)
        return;
    m_panelPage = page;
    followCommissioning(page);
}

void Hx3Controller::followCommissioning(int page)
{
    if (!m_commissioning.active)
        return;
    if (page >= kLanguagePage && page <= kLastSetupPage) {
        m_commissioning.setupPageSeen = true;
    } else if (page == kSettingsPage && m_commissioning.setupPageSeen) {
        m_commissioning = {};
        emit message(QStringLiteral("commissioning done"));
        enqueue({single(command("guistate", QByteArray::number(kOvenReady)), Kind::Startup)});
    }
}

void Hx3Controller::requestSelfTest(const QByteArray &)
{
    // The panel asks again when its user repeats the test; a second ask while one runs is
    // the same test.
    if (m_selfTest.stepTimer.isActive()) {
        emit message(QStringLiteral("self-test already running"));
        return;
    }
    const QByteArray failing = m_selfTest.failingRow;
    for (const SelfTestRow &row : kSelfTestRows)
        m_selfTest.pendingResults.append(command(row.keyword, failing == row.name ? "fail" : "pass"));
    m_selfTest.pendingResults.append(command("st", failing.isEmpty() ? "pass" : "fail"));
    if (failing.isEmpty())
        m_selfTest.pendingResults.append(command("guistate", QByteArray::number(kOvenReady)));
    emit message(failing.isEmpty()
                     ? QStringLiteral("self-test started")
                     : QStringLiteral("self-test started, %1 will fail").arg(QString::fromLatin1(failing)));
    m_selfTest.stepTimer.start();
}

void Hx3Controller::onSelfTestStep()
{
    if (m_selfTest.pendingResults.isEmpty()) {
        m_selfTest.stepTimer.stop();
        return;
    }
    const QByteArray field = m_selfTest.pendingResults.takeFirst();
    const auto [keyword, parameter] = simframe::splitCommand(field);
    if (keyword == "st")
        emit message(QStringLiteral("self-test: ") + QString::fromLatin1(parameter));
    if (m_selfTest.pendingResults.isEmpty())
        m_selfTest.stepTimer.stop();
    enqueue({single(field, Kind::SelfTest)});
}

void Hx3Controller::stopSelfTest()
{
    m_selfTest.stepTimer.stop();
    m_selfTest.pendingResults.clear();
}

void Hx3Controller::requestLanguage(const QByteArray &parameter)
{
    if (parameter.isEmpty()) {
        emit message(QStringLiteral("language request without a language"));
        return;
    }
    m_language = parameter;
    emit message(QStringLiteral("language: ") + QString::fromUtf8(parameter));
}

bool Hx3Controller::isLanguageKeyword(const QByteArray &keyword)
{
    if (keyword.isEmpty())
        return false;
    for (const char c : keyword) {
        if (static_cast<unsigned char>(c) < 0x20 || c == '$' || c == '=' || c == 0x7f)
            return false;
    }
    return true;
}

// The controller changes the language on its side; the panel's echo ("language: ...") is what
// the controller then keeps. Any keyword goes out, so that unknown ones can be tried too.
void Hx3Controller::commandLanguage(const QString &arguments)
{
    const QByteArray keyword = arguments.toUtf8();
    if (!isLanguageKeyword(keyword)) {
        emit message(QStringLiteral("usage: lang <keyword>, e.g. lang spanisch"));
        return;
    }
    emit message(QStringLiteral("sent: lang==") + arguments);
    sendEvent(command("lang", keyword));
}

void Hx3Controller::commandUnit(const QString &arguments)
{
    if (arguments != QLatin1String("c") && arguments != QLatin1String("f")) {
        emit message(QStringLiteral("usage: unit c|f"));
        return;
    }
    m_unit = arguments.toLatin1();
    emit message(QStringLiteral("sent: unit==") + arguments);
    sendEvent(command("unit", m_unit));
}

void Hx3Controller::requestUnit(const QByteArray &parameter)
{
    if (parameter != "c" && parameter != "f") {
        emit message(QStringLiteral("unknown unit: ") + QString::fromUtf8(parameter));
        return;
    }
    m_unit = parameter;
    emit message(QStringLiteral("unit: ") + QString::fromLatin1(parameter));
}

void Hx3Controller::requestDate(const QByteArray &parameter)
{
    catchUp();
    if (!m_wallClock.setDate(parameter, furnaceSystemTime())) {
        emit message(QStringLiteral("bad date: ") + QString::fromUtf8(parameter));
        return;
    }
    emit message(QStringLiteral("clock set: ") + controllerNow().toString(QStringLiteral("yyyy-MM-dd HH:mm")));
}

void Hx3Controller::requestTime(const QByteArray &parameter)
{
    catchUp();
    if (!m_wallClock.setTimeOfDay(parameter, furnaceSystemTime())) {
        emit message(QStringLiteral("bad time: ") + QString::fromUtf8(parameter));
        return;
    }
    emit message(QStringLiteral("clock set: ") + controllerNow().toString(QStringLiteral("yyyy-MM-dd HH:mm")));
}

bool Hx3Controller::parseProgram(const QByteArray &text, heatfile::Program *program)
{
    QString reason;
    if (!heatfile::parse(text, program, &reason)) {
        emit message(QStringLiteral("bad heatfile: ") + reason);
        return false;
    }
    if (m_options.verbose)
        emit message(QStringLiteral("heatfile text: ") + QString::fromUtf8(text));
    return true;
}

void Hx3Controller::requestStoreProgram(const QByteArray &parameter)
{
    heatfile::Program program;
    if (!parseProgram(parameter, &program))
        return;
    m_store.put(program);
    emit message(QStringLiteral("stored: ") + program.name);
}

void Hx3Controller::requestChangeProgram(const QByteArray &parameter)
{
    heatfile::Program program;
    if (!parseProgram(parameter, &program))
        return;
    // The panel should only change programs it got from us; one we lack is kept all the same,
    // and the log says so.
    const bool known = m_store.put(program) == ProgramStore::Put::Replaced;
    emit message(QStringLiteral("changed: ") + program.name +
                 (known ? QString() : QStringLiteral(" (was unknown, added)")));
}

void Hx3Controller::requestDeleteProgram(const QByteArray &parameter)
{
    const QString name = QString::fromUtf8(parameter);
    emit message(m_store.remove(name) > 0 ? QStringLiteral("deleted: ") + name
                                          : QStringLiteral("delete of unknown program: ") + name);
}

void Hx3Controller::requestFavorite(const QByteArray &parameter)
{
    // Names cannot hold a comma, so the last one separates name and flag.
    const int comma = parameter.lastIndexOf(',');
    const QByteArray flag = comma < 0 ? QByteArray() : parameter.mid(comma + 1);
    if (flag != "true" && flag != "false") {
        emit message(QStringLiteral("bad favourite request: ") + QString::fromUtf8(parameter));
        return;
    }
    const QString name = QString::fromUtf8(parameter.left(comma));
    if (!m_store.setFavorite(name, flag == "true")) {
        emit message(QStringLiteral("favourite of unknown program: ") + name);
        return;
    }
    emit message(QStringLiteral("favourite: %1 %2").arg(name, QLatin1String(flag == "true" ? "on" : "off")));
}

void Hx3Controller::handleCommand(const QString &line)
{
    const QString trimmed = line.trimmed();
    if (trimmed.isEmpty())
        return;
    const int space = trimmed.indexOf(QLatin1Char(' '));
    const QString word = space < 0 ? trimmed : trimmed.left(space);
    const QString arguments = space < 0 ? QString() : trimmed.mid(space + 1).trimmed();
    const CommandHandler handler = m_commandHandlers.value(word, nullptr);
    if (!handler) {
        emit message(QStringLiteral("unknown command: ") + trimmed);
        return;
    }
    (this->*handler)(arguments);
}

void Hx3Controller::commandSend(const QString &arguments)
{
    if (arguments.isEmpty()) {
        emit message(QStringLiteral("usage: send <field>$$<field>..."));
        return;
    }
    enqueue({{simframe::splitFields(arguments.toUtf8()), Kind::Operator}});
}

void Hx3Controller::commandQuit(const QString &)
{
    emit quitRequested();
}

void Hx3Controller::commandSelfTest(const QString &arguments)
{
    const QStringList words = arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const QString outcome = words.value(0);
    const QByteArray row = words.size() > 1 ? words.at(1).toLatin1() : QByteArray("heater");
    const bool valid = (outcome == QLatin1String("pass") && words.size() == 1) ||
                       (outcome == QLatin1String("fail") && words.size() <= 2 && isSelfTestRow(row));
    if (!valid) {
        emit message(QStringLiteral("usage: selftest pass | selftest fail [door|heater|cooling]"));
        return;
    }
    // A test already running keeps the outcome it started with.
    m_selfTest.failingRow = outcome == QLatin1String("pass") ? QByteArray() : row;
    emit message(m_selfTest.failingRow.isEmpty()
                     ? QStringLiteral("self-test will pass")
                     : QStringLiteral("self-test will fail: ") + QString::fromLatin1(m_selfTest.failingRow));
}

void Hx3Controller::commandCommission(const QString &)
{
    m_commissioning.active = true;
    m_commissioning.setupPageSeen = false;
    stopSelfTest();
    emit message(QStringLiteral("commissioning started"));
    if (m_phase == Phase::Connected) {
        enqueue(startupFrames());
        return;
    }
    // The probe on the line belongs to the old sequence; the panel must see initialstart first.
    probePanel();
}

void Hx3Controller::commandPrograms(const QString &)
{
    emit message(
        QStringLiteral("programs: %1 (name | manufacturer | material | fav | rate/target C/hold min per segment)")
            .arg(m_store.size()));
    for (const heatfile::Program &program : m_store.programs())
        emit message(heatfile::describe(program));
}

void Hx3Controller::commandDump(const QString &)
{
    // Starts with "#", so that the dump is a program file as it stands.
    emit message(QStringLiteral("# programs: %1").arg(m_store.size()));
    for (const heatfile::Program &program : m_store.programs())
        emit message(QString::fromUtf8(heatfile::text(program)));
}
