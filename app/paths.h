#pragma once

#include <QString>

namespace ovra {
namespace GlobalElements {

// The panel's working files live under the user's home on the device. The fixed paths are
// kept verbatim in the code; a Paths value maps their home prefix onto the folder the panel
// was started with (--home), so a development machine or a test never touches the real one.
// It is handed to whatever writes there; there is deliberately no process-wide home.
class Paths
{
public:
    static const QString deviceHome; // "/home/pi"

    // An empty folder stands for the device's own home.
    explicit Paths(const QString &home);

    QString Home() const { return m_home; }
    // "/home/pi/Downloads/x" -> "<home>/Downloads/x"; any other path is returned unchanged.
    QString Resolve(const QString &fixedPath) const;

private:
    QString m_home;
};

} // namespace GlobalElements
} // namespace ovra
