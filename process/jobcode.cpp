#include "process/jobcode.h"

#include "app/furnacestate.h"

#include <QDebug>

namespace ovra {
namespace Process {

bool JobCode::IsAllowed(QChar c)
{
    if (c.isLetter())
        return c.script() == QChar::Script_Latin;
    return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || QStringLiteral("-/._ ").contains(c);
}

QString JobCode::Accepted(const QString &text)
{
    QString kept;
    QString dropped;
    for (const QChar c : text)
        (IsAllowed(c) ? kept : dropped) += c;
    if (!dropped.isEmpty())
        qDebug() << "job code: characters left out:" << dropped;
    if (kept.size() > maxLength) {
        qDebug() << "job code: longer than" << maxLength << "characters, cut:" << kept;
        kept.truncate(maxLength);
    }
    return kept;
}

JobCode::JobCode(const GlobalElements::FurnaceState &furnace, QObject *parent) : QObject(parent)
{
    connect(&furnace, &GlobalElements::FurnaceState::PageChanged, this, &JobCode::PageShown);
    PageShown(furnace.CurrentPage());
}

void JobCode::PageShown(GlobalElements::Pageinterface::en_pages page)
{
    const bool onPage = page == GlobalElements::Pageinterface::PlayProg;
    if (m_onPage && !onPage && !m_text.isEmpty()) {
        qDebug() << "job code: program page left without a start, dropped:" << m_text;
        Clear();
    }
    m_onPage = onPage;
    m_ended = true;
}

void JobCode::Set(const QString &text)
{
    m_ended = false;
    Store(Accepted(text));
}

void JobCode::Type(const QString &keys)
{
    if (keys.isEmpty())
        return;
    const QString base = m_ended ? QString() : m_text;
    m_ended = false;
    // Only what the keys add is judged: the code so far passed already.
    const QString added = Accepted(keys);
    // Told once, as the code fills up: a long scan runs on for many keys.
    if (base.size() < maxLength && base.size() + added.size() > maxLength)
        qDebug() << "job code: longer than" << maxLength << "characters, cut";
    Store((base + added).left(maxLength));
}

void JobCode::Backspace()
{
    m_ended = false;
    Store(m_text.left(m_text.size() - 1));
}

void JobCode::EndEntry()
{
    m_ended = true;
    Store(m_text.trimmed());
    if (!m_text.isEmpty())
        qDebug() << "job code:" << m_text;
}

void JobCode::Clear()
{
    m_ended = true;
    Store(QString());
}

QString JobCode::Take()
{
    const QString code = m_text.trimmed();
    Clear();
    return code;
}

void JobCode::Store(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    emit Changed(m_text);
}

} // namespace Process
} // namespace ovra
