#pragma once

#include <QString>

namespace ovra {
namespace Communication {

// Every request the panel queues for the controller, written once. Callers hand the result to
// MessageHandler::SetRequest; the controller's spelling is kept to the letter.
namespace Requests {

QString GuiState(int page);                                            // "guistate==N": the page the user now sees
QString Start(const QString &programName, unsigned int preDryMinutes); // "hpstart==NAME,PRE"
// A delayed start: the popup's "timer==YYYYMMDD,HHMM" with the program and pre-dry behind it.
QString DelayedStart(const QString &timer, const QString &programName, unsigned int preDryMinutes);
// The time the timer popup asks for, "timer==YYYYMMDD,HHMM"; the start adds the program.
QString DelayedStartTime(const QString &yyyymmdd, const QString &hhmm);
QString CancelDelayedStart();                           // "timer==" with nothing behind it
QString Stop();                                         // "hpstop"
QString MoveDoor();                                     // "movedoor"
QString CloseDoor();                                    // "doorclose"
QString MaterialChange(bool accepted);                  // "matchanged" / "matnotchanged"
QString InsulationInserted();                           // "insulationinsert"
QString Favourite(const QString &programName, bool on); // "tofavorite==NAME,true|false"
QString ResendHeatfiles();                              // "hfresend"
QString NewProgram(const QString &heatfileText);        // "heatfile==TEXT"
QString ChangeProgram(const QString &heatfileText);     // "hpchange==TEXT": the running program
QString DeleteProgram(const QString &programName);      // "hpdelete==NAME"
QString SelfTest();                                     // "redost"
QString DeleteFailureList();                            // "deletefailurelist"
QString Unit(bool fahrenheit);                          // "unit==f" / "unit==c"
QString Language(const QString &keyword);               // "lang==KEYWORD"
QString Time(const QString &time);                      // "time==HHMM"
QString Date(const QString &date);                      // "date==YYYYMMDD"
QString FactoryReset();                                 // "defaultsettings"
QString FirmwareUpdateFromStick();                      // "fwupdate": the controller updates from the stick
QString ConfigUpdateFromStick();                        // "configupdate"

} // namespace Requests
} // namespace Communication
} // namespace ovra
