#include "widgets/iconcache.h"

#include <QApplication>
#include <QHash>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>

namespace ovra::GlobalElements {

namespace {

// The material photos are full-screen JPEGs that a popup shows as 120 px icons. A plain
// QIcon decodes them whole when the popup is built at start-up; this engine decodes only
// when the icon is first painted and keeps just the scaled copy.
class DeferredPhotoEngine : public QIconEngine
{
public:
    explicit DeferredPhotoEngine(const QString &path) : m_path(path), m_natural(QImageReader(path).size()) {}

    QSize actualSize(const QSize &size, QIcon::Mode, QIcon::State) override
    {
        if (m_natural.width() > size.width() || m_natural.height() > size.height())
            return m_natural.scaled(size, Qt::KeepAspectRatio);
        return m_natural;
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        const QSize fitted = actualSize(size, mode, state);
        const QString key = QStringLiteral("ovra-photo:%1:%2x%3:%4")
                                .arg(m_path)
                                .arg(fitted.width())
                                .arg(fitted.height())
                                .arg(int(mode));
        QPixmap result;
        if (QPixmapCache::find(key, &result))
            return result;
        result = QPixmap(m_path).scaled(fitted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        if (mode != QIcon::Normal) {
            QStyleOption option;
            option.palette = QApplication::palette();
            result = QApplication::style()->generatedIconPixmap(mode, result, &option);
        }
        QPixmapCache::insert(key, result);
        return result;
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        painter->drawPixmap(rect, pixmap(rect.size(), mode, state));
    }

    QIconEngine *clone() const override { return new DeferredPhotoEngine(*this); }

private:
    QString m_path;
    QSize m_natural;
};

} // namespace

QIcon IconCache::Get(const QString &resourcePath)
{
    if (resourcePath.isEmpty())
        return QIcon();
    // Widgets live on the GUI thread only, so one table without a lock is enough.
    static QHash<QString, QIcon> icons;
    auto it = icons.find(resourcePath);
    if (it == icons.end()) {
        const bool photo = resourcePath.endsWith(QLatin1String(".jpg"), Qt::CaseInsensitive);
        it = icons.insert(resourcePath, photo ? QIcon(new DeferredPhotoEngine(resourcePath)) : QIcon(resourcePath));
    }
    return *it;
}

} // namespace ovra::GlobalElements
