#include "hx3controller.h"

#include "ptyline.h"
#include "sampleprograms.h"
#include "simframe.h"

#include <QDateTime>

namespace {
constexpr int kAnswerTimeoutMs = 1000;
// After this many unanswered frames in a row the panel is taken to be gone.
constexpr int kTimeoutsUntilLost = 3;

const QByteArray kModelName = "Ovra S1";
const QByteArray kSerialNumber = "S1-2304-0087";
const QByteArray kHardwareVersion = "HX3-C";
const QByteArray kSoftwareVersion = "3.12.0";
constexpr int kOperatingHours = 1234;
const QByteArray kLanguage = "deutsch";
constexpr int kStartPage = 1;

QByteArray command(const QByteArray &keyword, const QByteArray &parameter)
{
    return keyword + "==" + parameter;
}
}  // namespace

Hx3Controller::Hx3Controller(PtyLine *line, const Options &options, QObject *parent)
    : QObject(parent)
    , m_line(line)
    , m_options(options)
{
    m_answerTimer.setSingleShot(true);
    m_answerTimer.setInterval(kAnswerTimeoutMs);
    connect(&m_answerTimer, &QTimer::timeout, this, &Hx3Controller::onAnswerTimeout);

    m_statusTimer.setInterval(m_options.intervalMs);
    connect(&m_statusTimer, &QTimer::timeout, this, &Hx3Controller::onStatusTick);

    connect(m_line, &PtyLine::bytesReceived, this, &Hx3Controller::onBytesReceived);
    connect(m_line, &PtyLine::frameWritten, this, [this] { m_inFlightComplete = true; });
    connect(m_line, &PtyLine::lineError, this, [this](const QString &text) { emit message(QStringLiteral("line error: ") + text); });

    // What the panel may ask for in its answers; a new request is one more entry here.
    m_requestHandlers.insert("hfresend", &Hx3Controller::requestHeatfileResend);
    m_requestHandlers.insert("guistate", &Hx3Controller::requestGuiState);

    // Operator commands on standard input.
    m_commandHandlers.insert(QStringLiteral("send"), &Hx3Controller::commandSend);
    m_commandHandlers.insert(QStringLiteral("quit"), &Hx3Controller::commandQuit);
}

void Hx3Controller::start()
{
    m_clock.start();
    m_statusTimer.start();
    emit message(QStringLiteral("waiting for panel on %1").arg(m_line->slavePath()));
    probePanel();
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

QList<Hx3Controller::Outgoing> Hx3Controller::startupFrames() const
{
    QList<Outgoing> frames = {
        {{command("name", kModelName)}, Kind::Startup},
        {{command("serialno", kSerialNumber)}, Kind::Startup},
        {{command("hwver", kHardwareVersion)}, Kind::Startup},
        {{command("swver", kSoftwareVersion)}, Kind::Startup},
        {{command("ophours", QByteArray::number(kOperatingHours))}, Kind::Startup},
        {{command("guistate", QByteArray::number(kStartPage))}, Kind::Startup},
        {{command("lang", kLanguage)}, Kind::Startup},
        {{command("unit", m_options.unit)}, Kind::Startup},
    };
    frames += heatfileFrames();
    return frames;
}

QList<Hx3Controller::Outgoing> Hx3Controller::heatfileFrames() const
{
    QList<Outgoing> frames;
    const QList<sampleprograms::Program> programs = sampleprograms::programs();
    for (const sampleprograms::Program &program : programs)
        frames.append({{command("heatfile", sampleprograms::heatfileText(program))}, Kind::Heatfile});
    frames.append({{command("hfcount", QByteArray::number(programs.size()))}, Kind::Heatfile});
    return frames;
}

Hx3Controller::Outgoing Hx3Controller::statusFrame() const
{
    const QDateTime now = QDateTime::currentDateTime();
    return {{command("time", now.toString(QStringLiteral("HHmm")).toLatin1()),
             command("date", now.toString(QStringLiteral("yyyyMMdd")).toLatin1()),
             command("temp", QByteArray::number(m_furnace.chamberKelvin()))},
            Kind::Status};
}

void Hx3Controller::enqueue(const QList<Outgoing> &frames)
{
    m_queue += frames;
    sendNext();
}

void Hx3Controller::sendNext()
{
    if (m_awaitingAnswer || m_phase != Phase::Connected || m_queue.isEmpty())
        return;
    transmit(m_queue.takeFirst());
}

void Hx3Controller::transmit(const Outgoing &frame)
{
    m_inFlight = frame;
    m_awaitingAnswer = true;
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
    const qint64 now = m_clock.elapsed();
    m_furnace.advance(static_cast<double>(now - m_lastAdvanceMs) / 1000.0);
    m_lastAdvanceMs = now;

    if (m_phase != Phase::Connected)
        return;
    // A slow panel gets the newest values, not a backlog of old ones.
    for (Outgoing &queued : m_queue) {
        if (queued.kind == Kind::Status) {
            queued = statusFrame();
            return;
        }
    }
    enqueue({statusFrame()});
}

void Hx3Controller::panelLost()
{
    emit message(QStringLiteral("panel lost"));
    m_phase = Phase::WaitingForPanel;
    m_queue.clear();
    m_consecutiveTimeouts = 0;
    m_rxBuffer.clear();
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
    if (ok)
        m_panelPage = page;
    emit message(QStringLiteral("panel page: ") + QString::fromUtf8(parameter));
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
