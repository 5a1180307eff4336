#include "popups/licensetext.h"

#include <QCoreApplication>

namespace ovra {
namespace Popups {

QString LicenseNoticeText(const QString &qtVersion)
{
    // The context is spelled out in each call so that lupdate finds the texts.
    const QString uses = QCoreApplication::translate("ovra::Popups::PopupLicense",
                                                     "Diese Software verwendet das Qt Toolkit (Qt 5, LGPL v3).");
    const QString version = QCoreApplication::translate("ovra::Popups::PopupLicense", "Qt-Version: %1").arg(qtVersion);
    const QString notice = QCoreApplication::translate(
        "ovra::Popups::PopupLicense",
        "Qt ist unter der GNU Lesser General Public License Version 3 (LGPL v3) lizenziert. "
        "Die Qt-Bibliotheken sind dynamisch eingebunden und können durch eine eigene, "
        "kompatible Version ersetzt werden. Den Lizenztext finden Sie unter "
        "https://www.gnu.org/licenses/lgpl-3.0.html, den Quellcode von Qt unter "
        "https://download.qt.io/archive/qt/ und als Quellpaket der verwendeten "
        "Debian-Distribution (qtbase-opensource-src).");
    return uses + QLatin1Char('\n') + version + QStringLiteral("\n\n") + notice;
}

} // namespace Popups
} // namespace ovra
