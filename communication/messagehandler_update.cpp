// Reception of an update file sent block by block by the controller, and the unpacking
// script that installs it.
#include "communication/messagehandler.h"

#include "communication/updateblock.h"
#include "communication/updatescript.h"

#include <QDataStream>
#include <QDebug>
#include <QFile>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace ovra {
namespace Communication {

namespace {
const QString outputFilePath = QStringLiteral("/home/pi/Downloads/outfile.txt");
const QString unpackScriptPath = QStringLiteral("/home/pi/Downloads/decode_and_unzip_lin.py");
} // namespace

void MessageHandler::SetUpUpdateReception()
{
    m_unpackProcess = new QProcess();
    m_unpackTimer = new QTimer();
    m_unpackTimer->setInterval(defaultUnpackDelayMs);
    m_unpackInterpreters = UpdateScript::DefaultInterpreters();

    connect(m_unpackTimer, &QTimer::timeout, this, &MessageHandler::SlotStartUpdate);
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

void MessageHandler::InitializeUpdater(QString blockCount)
{
    if (!m_outputFile)
        m_outputFile = new QFile(m_paths.Resolve(outputFilePath));
    // Unbuffered: each block is on disk once applied, one write per block.
    if (m_outputFile->open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Unbuffered)) {
        if (m_outputFile->pos() != 0)
            m_outputFile->resize(0);
        delete m_outputStream;
        m_outputStream = new QDataStream(m_outputFile);
    } else {
        // The blocks are still counted and answered; the script then finds no file.
        qDebug() << "update file could not be opened:" << m_outputFile->fileName() << m_outputFile->errorString();
    }

    const int total = blockCount.toInt();
    if (total > 0)
        m_totalBlocks = total;
    qDebug() << "update started:" << m_totalBlocks << "blocks";
    m_updateActive = true;
}

void MessageHandler::HandleUpdate(QString &block)
{
    // Same test as "^\d+", without a regular expression per block.
    if (block.isEmpty() || block.at(0) < QLatin1Char('0') || block.at(0) > QLatin1Char('9')) {
        qDebug() << "update: frame without block number ignored:" << block.left(32);
        return;
    }

    QByteArray data;
    int number = 0;
    const bool valid = DecodeDataBlocks(block, data, number);
    // A number past the announced total is line noise in the header; asking for every block
    // up to it could queue a million requests.
    if (m_totalBlocks >= 1 && number >= m_totalBlocks) {
        qDebug() << "update: block number" << number << "beyond the total of" << m_totalBlocks << "ignored";
        return;
    }
    const int size = data.size();

    if (!m_resendMode) {
        ApplyFileData(block, data, number, size, valid);
    } else if (!IsBlockExpected(number)) {
        m_storedBlocks.append(block);
    } else if (std::any_of(m_expectedBlocks.cbegin(), m_expectedBlocks.cend(),
                           [number](int missing) { return missing < number; })) {
        // An earlier block asked for is still missing (it came damaged again): this one
        // waits, or it would be written before it.
        m_storedBlocks.append(block);
    } else if (ApplyFileData(block, data, number, size, valid) && m_expectedBlocks.isEmpty()) {
        BulkApplyStoredBlocks();
    }

    if (number > m_highestBlock)
        m_highestBlock = number;
}

bool MessageHandler::DecodeDataBlocks(const QString &block, QByteArray &data, int &number)
{
    return UpdateBlock::Decode(block, data, number, m_blockNumberWidth, m_lengthWidth);
}

bool MessageHandler::IsBlockExpected(int number)
{
    return m_expectedBlocks.remove(number);
}

bool MessageHandler::ApplyFileData(const QString &block, QByteArray &data, int number, int size, bool valid)
{
    const int expected = m_highestBlock + 1;
    if (number > expected) {
        for (int missing = expected; missing < number; ++missing)
            ResendUpdateBlock(missing);
        m_storedBlocks.append(block);
        return false;
    }
    if (!valid) {
        ResendUpdateBlock(number);
        return false;
    }

    ++m_appliedBlocks;
    if (m_outputStream)
        m_outputStream->writeRawData(data.constData(), size);
    const QString progress = UpdateBlock::ProgressText(m_appliedBlocks, m_totalBlocks);
    if (!progress.isEmpty() && progress != m_lastProgress) {
        m_lastProgress = progress;
        qDebug() << "Sending update progress:" << progress;
        emit SignalUpdateProgress(progress);
    }
    if (m_appliedBlocks == m_totalBlocks)
        CloseUpdater();
    return true;
}

void MessageHandler::ResendUpdateBlock(int number)
{
    m_resendMode = true;
    m_expectedBlocks.insert(number);
    qDebug() << "update: block" << number << "asked for again";
    SetRequest(QStringLiteral("resend==") + QString::number(number));
}

void MessageHandler::BulkApplyStoredBlocks()
{
    // One pass over what is stored now, in block order (blocks asked for more than once may
    // have arrived in another); a block that has to wait again is stored anew and stays for
    // the next closed gap instead of spinning here.
    QStringList stored = std::exchange(m_storedBlocks, QStringList());
    std::stable_sort(stored.begin(), stored.end(), [this](const QString &a, const QString &b) {
        return a.leftRef(m_blockNumberWidth).toInt() < b.leftRef(m_blockNumberWidth).toInt();
    });
    for (const QString &block : qAsConst(stored)) {
        if (!m_updateActive)
            break;
        QByteArray data;
        int number = 0;
        const bool valid = DecodeDataBlocks(block, data, number);
        ApplyFileData(block, data, number, data.size(), valid);
    }
    // A stored block found damaged has just been asked for again: until it arrives, later
    // blocks must wait, or it would be written after them.
    if (m_expectedBlocks.isEmpty())
        m_resendMode = false;
}

void MessageHandler::CloseUpdater()
{
    if (m_outputFile && m_outputFile->isOpen()) {
        m_outputFile->flush();
        m_outputFile->waitForBytesWritten(200);
        m_outputFile->close();
    }
    qDebug() << "update received:" << m_appliedBlocks << "blocks";
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
