#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

namespace ovra {
namespace GlobalElements {

// One heat program. Rows of the matrix are segments: [heating rate, target °C, hold minutes].
class Program
{
public:
    using Matrix = QList<QList<unsigned int>>;

    Program(const QString &name, const QString &material, Matrix matrix, const QString &manufacturer, bool fav);

    void SetName(const QString &name) { m_name = name; }
    void SetFav(bool fav) { m_fav = fav; }
    void SetManufacturer(const QString &manufacturer) { m_manufacturer = manufacturer; }
    void SetMaterial(const QString &material) { m_material = material; }
    void SetPreDry(bool preDry) { m_preDry = preDry; }
    void SetMatrix(Matrix matrix) { m_matrix = std::move(matrix); }

    QString GetName() const { return m_name; }
    QString GetMaterial() const { return m_material; }
    QString GetManufacturer() const { return m_manufacturer; }
    bool IsFav() const { return m_fav; }
    bool GetPreDryInfo() const { return m_preDry; }
    // The record's own matrix: callers may change it in place.
    Matrix *GetMatrix() { return &m_matrix; }
    const Matrix *GetMatrix() const { return &m_matrix; }

private:
    Matrix m_matrix;
    QString m_name;
    QString m_material;
    bool m_fav;
    QString m_manufacturer;
    bool m_preDry = false;
};

} // namespace GlobalElements
} // namespace ovra

Q_DECLARE_METATYPE(ovra::GlobalElements::Program *)
