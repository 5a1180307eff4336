#include "faults/errorhandler.h"

#include "faults/failureseverity.h"

namespace ovra {
namespace GlobalElements {

namespace {
QString joined(const QStringList &codes)
{
    QString text;
    for (const QString &code : codes)
        text += code + QLatin1Char('\n');
    return text;
}
} // namespace

ErrorHandler::ErrorHandler(QObject *parent) : QObject(parent) {}

void ErrorHandler::AddError(const QString &code)
{
    m_errorList.prepend(code);
    m_processErrorList.prepend(code);
    emit SignalErrorListChanged();
}

void ErrorHandler::ResetError(const QString &code)
{
    m_errorList.removeOne(code);
    m_processErrorList.removeOne(code);
    emit SignalErrorListChanged();
}

void ErrorHandler::DeleteErrorList()
{
    for (int i = m_errorList.size() - 1; i >= 0; --i) {
        if (FailureSeverity::UserMayDelete(m_errorList.at(i)))
            m_errorList.removeAt(i);
    }
    emit SignalErrorListChanged();
}

void ErrorHandler::DeleteErrorListByService()
{
    m_errorList.clear();
    emit SignalErrorListChanged();
}

void ErrorHandler::DeleteProcessErrorList()
{
    m_processErrorList.clear();
    emit SignalErrorListChanged();
}

QString ErrorHandler::GetErrorList() const
{
    return joined(m_errorList);
}

QString ErrorHandler::GetProcessErrorList() const
{
    return joined(m_processErrorList);
}

} // namespace GlobalElements
} // namespace ovra
