#include "lablink/lablinkstatus.h"

namespace ovra {
namespace LabLink {

QString LabLinkStatus::StateText() const
{
    if (!IsConfigured())
        return tr("Nicht eingerichtet");
    return m_connected ? tr("Verbunden") : tr("Nicht verbunden");
}

QString LabLinkStatus::ProblemText() const
{
    using P = MqttClient::Problem;
    switch (m_problem) {
    case P::None: break;
    case P::NameUnknown: return tr("Der Name des Servers ist unbekannt");
    case P::Unreachable: return tr("Der Server ist nicht erreichbar");
    case P::Refused: return tr("Der Server hat die Verbindung abgelehnt");
    case P::NotAuthorised: return tr("Benutzername oder Passwort falsch");
    case P::Tls: return tr("Die verschlüsselte Verbindung ist fehlgeschlagen");
    case P::Lost: return tr("Die Verbindung ist abgebrochen");
    }
    return QString();
}

void LabLinkStatus::SetBroker(const QString &broker)
{
    m_broker = broker;
    emit Changed();
}

void LabLinkStatus::SetConnected(bool connected)
{
    if (connected == m_connected)
        return;
    m_connected = connected;
    emit Changed();
}

void LabLinkStatus::SetProblem(MqttClient::Problem problem)
{
    m_problem = problem;
    emit Changed();
}

void LabLinkStatus::SetWaiting(int records)
{
    if (records == m_waiting)
        return;
    m_waiting = records;
    emit Changed();
}

} // namespace LabLink
} // namespace ovra
