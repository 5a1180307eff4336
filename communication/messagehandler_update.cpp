// Reception of an update file sent block by block by the controller.
#include "communication/messagehandler.h"

#include <QDebug>

namespace ovra {
namespace Communication {

void MessageHandler::InitializeUpdater(const QString &blockCount)
{
    // Block reception is not part of this build. Staying in command mode keeps the line
    // answered: the controller sees "nack" for each block instead of a silent panel.
    qDebug() << "update of" << blockCount << "blocks requested; update reception is not available";
    m_updateActive = false;
}

void MessageHandler::HandleUpdate(QString &block)
{
    qDebug() << "update block ignored:" << block.left(16);
}

} // namespace Communication
} // namespace ovra
