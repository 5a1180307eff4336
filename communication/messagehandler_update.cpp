// Reception of an update file sent block by block by the controller, and the unpacking
// script that installs it.
#include "communication/messagehandler.h"

#include "communication/frame.h"
#include "communication/updateblock.h"
#include "communication/updatescript.h"

#include <QDataStream>
#include <QDebug>
#include <QFile>
#include <QTimer>

#include <algorithm>

namespace ovra {
namespace Communication {

namespace {
const QString outputFilePath = QStringLiteral("/home/pi/Downloads/outfile.txt");
const QString unpackScriptPath = QStringLiteral("/home/pi/Downloads/decode_and_unzip_lin.py");
// Requests in one re-ask after silence: a controller that stopped early must not be sent
// thousands of them in one frame.
constexpr int maxQuietRequests = 32;
} // namespace

void MessageHandler::SetUpUpdateReception()
{
    m_unpackProcess = new QProcess();
    m_unpackTimer = new QTimer();
    m_unpackTimer->setInterval(defaultUnpackDelayMs);
    m_unpackInterpreters = UpdateScript::DefaultInterpreters();
    m_quietTimer = new QTimer();
    m_quietTimer->setSingleShot(true);
    m_quietTimer->setInterval(defaultUpdateQuietMs);

    connect(m_unpackTimer, &QTimer::timeout, this, &MessageHandler::SlotStartUpdate);
    connect(m_quietTimer, &QTimer::timeout, this, &MessageHandler::OnUpdateQuiet);
    connect(m_unpackProcess, &QProcess::readyReadStandardOutput, this, &MessageHandler::Slot_UpdateProcess_Output);
    connect(m_unpackProcess, &QProcess::readyReadStandardError, this, &MessageHandler::Slot_UpdateProcess_Error);
    connect(m_unpackProcess, &QProcess::errorOccurred, this, &MessageHandler::OnUnpackProcessError);
    connect(m_unpackProcess, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            &MessageHandler::OnUnpackProcessFinished);
}

MessageHandler::~MessageHandler()
{
    // A script still running is killed with the panel; its end is nobody's news any more.
    m_unpackProcess->disconnect(this);
    delete m_unpackProcess;
    delete m_unpackTimer;
    delete m_quietTimer;
    delete m_outputStream;
    delete m_outputFile;
}

void MessageHandler::SetUnpackDelayMs(int ms)
{
    m_unpackTimer->setInterval(ms);
}

void MessageHandler::SetUnpackInterpreters(const QStringList &programs)
{
    m_unpackInterpreters = programs;
}

void MessageHandler::SetUpdateQuietTiming(int intervalMs, int tries)
{
    m_quietTimer->setInterval(intervalMs);
    m_quietTries = tries;
}

void MessageHandler::InitializeUpdater(QString blockCount)
{
    if (!m_outputFile)
        m_outputFile = new QFile(m_paths.Resolve(outputFilePath));
    delete m_outputStream;
    m_outputStream = nullptr;
    // Unbuffered: each block is on disk once applied, one write per block.
    if (m_outputFile->open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Unbuffered)) {
        if (m_outputFile->pos() != 0)
            m_outputFile->resize(0);
        m_outputStream = new QDataStream(m_outputFile);
    } else {
        // The blocks are still counted and answered; the script then finds no file.
        qDebug() << "update file could not be opened:" << m_outputFile->fileName() << m_outputFile->errorString();
    }

    const int total = blockCount.toInt();
    if (total > 0)
        m_totalBlocks = total;
    // A new file: what an earlier update wrote or held has no place in it.
    m_nextBlock = 0;
    m_highestBlock = -1;
    m_lastProgress.clear();
    m_heldBlocks.clear();
    m_damagedAhead.clear();
    m_awaitedBlocks.clear();
    m_quietAsked = 0;
    qDebug() << "update started:" << m_totalBlocks << "blocks";
    m_updateActive = true;
    m_quietTimer->start();
}

void MessageHandler::HandleUpdate(QString &block)
{
    // Same test as "^\d+", without a regular expression per block.
    if (block.isEmpty() || block.at(0) < QLatin1Char('0') || block.at(0) > QLatin1Char('9')) {
        qDebug() << "update: frame without block number ignored:" << block.left(32);
        return;
    }
    m_quietTimer->start();
    m_quietAsked = 0;

    QByteArray data;
    int number = 0;
    const bool valid = DecodeDataBlocks(block, data, number);
    if (number >= m_totalBlocks) {
        // Line noise in the header: the block it was is unknown, so the first one still
        // missing is asked for; asking for every number up to it could queue a million.
        const int missing = LowestMissingBlock();
        const QString log = QStringLiteral("update: block number %1 beyond the total of %2, %3")
                                .arg(number)
                                .arg(m_totalBlocks)
                                .arg(missing >= 0 ? QStringLiteral("block %1 asked for instead").arg(missing)
                                                  : QStringLiteral("nothing to ask for"));
        qDebug().noquote() << log;
        if (missing >= 0)
            ResendUpdateBlock(missing);
        return;
    }

    for (int missing = m_highestBlock + 1; missing < number; ++missing)
        ResendUpdateBlock(missing);
    if (number > m_highestBlock)
        m_highestBlock = number;
    AcceptBlock(number, data, valid);
}

bool MessageHandler::DecodeDataBlocks(const QString &block, QByteArray &data, int &number)
{
    return UpdateBlock::Decode(block, data, number, m_blockNumberWidth, m_lengthWidth);
}

void MessageHandler::AcceptBlock(int number, const QByteArray &data, bool valid)
{
    if (number < m_nextBlock) {
        qDebug().noquote() << QStringLiteral("update: block %1 is already in the file, ignored%2")
                                  .arg(number)
                                  .arg(valid ? QString() : QStringLiteral(" (damaged)"));
        return;
    }
    if (valid) {
        m_awaitedBlocks.remove(number);
        m_damagedAhead.remove(number);
        if (number == m_nextBlock) {
            WriteBlock(data);
            WriteHeldBlocks();
        } else if (!m_heldBlocks.contains(number)) {
            m_heldBlocks.insert(number, data);
        } else {
            qDebug() << "update: block" << number << "is already held, repeat ignored";
        }
        return;
    }
    if (m_heldBlocks.contains(number)) {
        qDebug() << "update: damaged copy of block" << number << "ignored, an intact one is held";
    } else if (number == m_nextBlock || m_awaitedBlocks.contains(number)) {
        ResendUpdateBlock(number);
    } else {
        // Asked for when the blocks before it are in, like a block that came ahead of a gap.
        m_damagedAhead.insert(number);
    }
}

void MessageHandler::WriteBlock(const QByteArray &data)
{
    if (m_outputStream)
        m_outputStream->writeRawData(data.constData(), data.size());
    ++m_nextBlock;
    const QString progress = UpdateBlock::ProgressText(m_nextBlock, m_totalBlocks);
    if (!progress.isEmpty() && progress != m_lastProgress) {
        m_lastProgress = progress;
        qDebug() << "Sending update progress:" << progress;
        emit SignalUpdateProgress(progress);
    }
    if (m_nextBlock == m_totalBlocks)
        CloseUpdater();
}

void MessageHandler::WriteHeldBlocks()
{
    while (m_updateActive) {
        const auto held = m_heldBlocks.find(m_nextBlock);
        if (held == m_heldBlocks.end()) {
            if (m_damagedAhead.remove(m_nextBlock))
                ResendUpdateBlock(m_nextBlock);
            return;
        }
        const QByteArray data = held.value();
        m_heldBlocks.erase(held);
        WriteBlock(data);
    }
}

int MessageHandler::LowestMissingBlock() const
{
    int number = m_nextBlock;
    while (m_heldBlocks.contains(number))
        ++number;
    return number < m_totalBlocks ? number : -1;
}

void MessageHandler::ResendUpdateBlock(int number)
{
    m_awaitedBlocks.insert(number);
    qDebug() << "update: block" << number << "asked for again";
    SetRequest(QStringLiteral("resend==") + QString::number(number));
}

void MessageHandler::OnUpdateQuiet()
{
    if (!m_updateActive)
        return;
    if (m_quietAsked >= m_quietTries) {
        FailUpdate(QStringLiteral("no block from the controller after %1 requests; %2 of %3 blocks received")
                       .arg(m_quietAsked)
                       .arg(m_nextBlock)
                       .arg(m_totalBlocks));
        return;
    }
    ++m_quietAsked;
    // The gaps known so far and the block after the last one seen: the controller may have
    // sent it, and it was lost.
    QList<int> missing;
    const int last = std::min(m_highestBlock + 1, m_totalBlocks - 1);
    for (int number = m_nextBlock; number <= last && missing.size() < maxQuietRequests; ++number) {
        if (!m_heldBlocks.contains(number))
            missing << number;
    }
    qDebug() << "update: no block for" << m_quietTimer->interval() << "ms, asking again (" << m_quietAsked << "of"
             << m_quietTries << "):" << missing;
    for (int number : qAsConst(missing)) {
        m_damagedAhead.remove(number);
        ResendUpdateBlock(number);
    }
    if (!m_requests.isEmpty()) {
        const QByteArray body = GetActualRequests().toUtf8().mid(Frame::fieldSeparator.size());
        ResetRequest();
        emit SignalUnaskedFrame(Frame::Build(body));
    }
    m_quietTimer->start();
}

void MessageHandler::FailUpdate(const QString &why)
{
    m_quietTimer->stop();
    qDebug().noquote() << "update failed:" << why;
    delete m_outputStream;
    m_outputStream = nullptr;
    // Nobody may unpack a file with holes in it.
    if (m_outputFile) {
        m_outputFile->close();
        m_outputFile->remove();
    }
    m_updateActive = false;
    m_heldBlocks.clear();
    m_damagedAhead.clear();
    m_awaitedBlocks.clear();
    emit SignalUSB(QStringLiteral("failed"));
}

void MessageHandler::CloseUpdater()
{
    m_quietTimer->stop();
    if (m_outputFile && m_outputFile->isOpen()) {
        m_outputFile->flush();
        m_outputFile->waitForBytesWritten(200);
        m_outputFile->close();
    }
    qDebug() << "update received:" << m_nextBlock << "blocks";
    SetRequest(QStringLiteral("endupdate"));
    SetRequest(QStringLiteral("hx3update"));
    m_updateActive = false;
    m_unpackTimer->start();
}

void MessageHandler::SlotStartUpdate()
{
    if (m_unpackProcess->state() != QProcess::NotRunning)
        return;
    // Runs once; the script's end reports the result. The event loop keeps serving the line
    // meanwhile.
    m_unpackTimer->stop();
    m_unpackOutput.clear();
    m_unpackInterpreter = 0;
    StartUnpackInterpreter();
}

void MessageHandler::StartUnpackInterpreter()
{
    if (m_unpackInterpreter >= m_unpackInterpreters.size()) {
        qDebug() << "update script could not be started with" << m_unpackInterpreters;
        emit SignalUSB(QStringLiteral("failed"));
        return;
    }
    const QString program = m_unpackInterpreters.at(m_unpackInterpreter);
    const QString script = m_paths.Resolve(unpackScriptPath);
    qDebug() << "starting update script:" << program << script;
    m_unpackProcess->start(program, {script}, QIODevice::ReadWrite);
}

void MessageHandler::OnUnpackProcessError(QProcess::ProcessError error)
{
    if (error != QProcess::FailedToStart)
        return;
    qDebug() << "update script interpreter" << m_unpackInterpreters.value(m_unpackInterpreter)
             << "did not start:" << m_unpackProcess->errorString();
    ++m_unpackInterpreter;
    // Not from inside the process's own error emission.
    QMetaObject::invokeMethod(
        this, [this] { StartUnpackInterpreter(); }, Qt::QueuedConnection);
}

void MessageHandler::Slot_UpdateProcess_Output()
{
    m_unpackOutput += m_unpackProcess->readAllStandardOutput();
}

void MessageHandler::Slot_UpdateProcess_Error()
{
    const QByteArray text = m_unpackProcess->readAllStandardError();
    if (!text.trimmed().isEmpty())
        qDebug() << "update script says:" << text.trimmed();
}

void MessageHandler::OnUnpackProcessFinished(int exitCode, QProcess::ExitStatus status)
{
    m_unpackOutput += m_unpackProcess->readAllStandardOutput();
    const QString result = UpdateScript::Report(m_unpackOutput, status == QProcess::NormalExit);
    qDebug() << "update script ended with" << exitCode << "printing" << m_unpackOutput.trimmed() << ":" << result;
    emit SignalUSB(result);
    m_unpackTimer->stop();
}

} // namespace Communication
} // namespace ovra
