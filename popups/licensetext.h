#pragma once

#include <QString>

namespace ovra {
namespace Popups {

// The licence notice for the toolkit the panel is built on, in the current language, with
// the toolkit version the panel is running against (qtVersion, normally qVersion()).
QString LicenseNoticeText(const QString &qtVersion);

} // namespace Popups
} // namespace ovra
