#include "faults/selftestprogress.h"

#include <QCoreApplication>

namespace ovra {
namespace GlobalElements {

int SelftestProgress::Count(Row row)
{
    bool &counted = m_counted[static_cast<int>(row)];
    if (counted)
        return 0;
    counted = true;
    return step;
}

int SelftestProgress::Done() const
{
    return int(m_counted[0]) + int(m_counted[1]) + int(m_counted[2]);
}

QString SelftestProgress::Text() const
{
    return QCoreApplication::translate("SelftestProgress", "%1 von %2 Prüfungen abgeschlossen").arg(Done()).arg(rows);
}

} // namespace GlobalElements
} // namespace ovra
