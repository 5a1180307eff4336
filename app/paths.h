#pragma once

#include <QString>

namespace ovra {
namespace GlobalElements {

// The panel's working files live under the user's home on the device. The fixed paths are
// kept verbatim in the code; Resolve() maps their home prefix onto the folder chosen with
// --home, so a development machine or a test never touches the real one.
class Paths
{
public:
    static const QString deviceHome; // "/home/pi"

    static void SetHome(const QString &dir);
    static QString Home();
    // "/home/pi/Downloads/x" -> "<home>/Downloads/x"; any other path is returned unchanged.
    static QString Resolve(const QString &fixedPath);
};

} // namespace GlobalElements
} // namespace ovra
