#include "programs/program.h"

namespace ovra {
namespace GlobalElements {

Program::Program(const QString &name, const QString &material, Matrix matrix, const QString &manufacturer, bool fav)
    : m_matrix(std::move(matrix)), m_name(name), m_material(material), m_fav(fav), m_manufacturer(manufacturer)
{
}

} // namespace GlobalElements
} // namespace ovra
