#include "widgets/iconcache.h"

#include <QApplication>
#include <QDebug>
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

QIcon IconCache::Get(const QString &resourcePath, int side)
{
    if (resourcePath.isEmpty())
        return QIcon();
    // Widgets live on the GUI thread only, so one table without a lock is enough.
    static QHash<QPair<QString, int>, QIcon> icons;
    const bool photo = resourcePath.endsWith(QLatin1String(".jpg"), Qt::CaseInsensitive);
    const QPair<QString, int> key(resourcePath, photo ? 0 : side);
    auto it = icons.find(key);
    if (it == icons.end())
        it = icons.insert(key, photo ? QIcon(new DeferredPhotoEngine(resourcePath)) : Decode(resourcePath, key.second));
    return *it;
}

QIcon IconCache::Decode(const QString &resourcePath, int side)
{
    if (side <= 0)
        return QIcon(resourcePath);
    // The drawings are made for the largest tiles; a button that always shows its icon at one
    // small size keeps only that size instead of the large original plus a scaled copy.
    QImageReader reader(resourcePath);
    const QSize natural = reader.size();
    if (natural.width() > side || natural.height() > side)
        reader.setScaledSize(natural.scaled(side, side, Qt::KeepAspectRatio));
    const QImage image = reader.read();
    if (image.isNull()) {
        qWarning() << "icon could not be read:" << resourcePath << reader.errorString();
        return QIcon();
    }
    QIcon icon;
    icon.addPixmap(QPixmap::fromImage(image));
    return icon;
}

} // namespace ovra::GlobalElements
