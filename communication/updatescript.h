#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace ovra {
namespace Communication {

// What the panel makes of the unpacking script's run. The script prints one value, 0 for
// success; the panel tells the user "done" or "failed".
namespace UpdateScript {

// Interpreters tried in turn: "python" is the device's, the second one covers systems
// that only have a versioned name. The script runs on either.
QStringList DefaultInterpreters();

// `ranToEnd`: the interpreter started and exited normally. Text that is not a number reads
// as 0 and counts as success, as the script's contract has it; no value at all means the
// script never reached its end (it could not be read, or it died), which is a failure.
QString Report(const QByteArray &standardOutput, bool ranToEnd);

} // namespace UpdateScript
} // namespace Communication
} // namespace ovra
