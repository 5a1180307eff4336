#include "widgets/iconcache.h"

#include <QHash>

namespace ovra::GlobalElements {

QIcon IconCache::Get(const QString &resourcePath)
{
    if (resourcePath.isEmpty())
        return QIcon();
    // Widgets live on the GUI thread only, so one table without a lock is enough.
    static QHash<QString, QIcon> icons;
    auto it = icons.find(resourcePath);
    if (it == icons.end())
        it = icons.insert(resourcePath, QIcon(resourcePath));
    return *it;
}

} // namespace ovra::GlobalElements
