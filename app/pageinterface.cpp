#include "app/pageinterface.h"

namespace ovra {
namespace GlobalElements {

const QString Pageinterface::versionInfo = QStringLiteral(OVRA_VERSION_TEXT);

} // namespace GlobalElements
} // namespace ovra
