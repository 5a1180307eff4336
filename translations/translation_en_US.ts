<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>DateTimePopup</name>
    <message>
        <source>Datum</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>TT</source>
        <translation>DD</translation>
    </message>
    <message>
        <source>MM</source>
        <translation>MM</translation>
    </message>
    <message>
        <source>JJJJ</source>
        <translation>YYYY</translation>
    </message>
    <message>
        <source>Uhrzeit</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>hh</source>
        <translation>hh</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Bitte die rot markierten Felder prüfen.</source>
        <translation>Please check the fields marked in red.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Ofen</source>
        <translation>Furnace</translation>
    </message>
    <message>
        <source>Bitte warten …</source>
        <translation>Please wait …</translation>
    </message>
    <message>
        <source>Service-PIN:</source>
        <translation>Service PIN:</translation>
    </message>
    <message>
        <source>Verbindung zum Ofen wird hergestellt …</source>
        <translation>Connecting to the furnace …</translation>
    </message>
    <message>
        <source>Materialwechsel</source>
        <translation>Material change</translation>
    </message>
    <message>
        <source>Bitte Türisolation einsetzen</source>
        <translation>Insert the door insulation</translation>
    </message>
</context>
<context>
    <name>PopupArgonFailure</name>
    <message>
        <source>Überprüfung der Argon Versorgung
fehlgeschlagen.

Bitte die Anschlüsse und Eingangsdruck
überprüfen und den Prozess neu starten.</source>
        <translation>Argon supply check
failed.

Check the connections and the inlet pressure
and restart the process.</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>Argon</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>PopupConfirm</name>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>PopupDeleteFailureList</name>
    <message>
        <source>Fehlerliste wird endgültig gelöscht!</source>
        <translation>The error list will be deleted permanently!</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>and %1 more</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>Clear errors</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Delete</translation>
    </message>
</context>
<context>
    <name>PopupDeleteProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>The program will be deleted permanently!</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Delete program</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Delete</translation>
    </message>
</context>
<context>
    <name>PopupOverrideProg</name>
    <message>
        <source>Programm wird überschrieben!</source>
        <translation>The program will be overwritten!</translation>
    </message>
    <message>
        <source>Programm überschreiben</source>
        <translation>Overwrite program</translation>
    </message>
    <message>
        <source>Überschreiben</source>
        <translation>Overwrite</translation>
    </message>
</context>
<context>
    <name>PopupQuitProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>The program will be deleted permanently!</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Delete program</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Delete</translation>
    </message>
</context>
<context>
    <name>PopupSettings</name>
    <message>
        <source>Werkseinstellungen</source>
        <translation>Factory reset</translation>
    </message>
    <message>
        <source>Alle eigenen Programme werden gelöscht und die Werkseinstellungen wiederhergestellt!</source>
        <translation>All your own programs will be deleted and the factory settings restored!</translation>
    </message>
    <message>
        <source>Zurücksetzen</source>
        <translation>Reset</translation>
    </message>
</context>
<context>
    <name>PopupStop</name>
    <message>
        <source>Prozess wird abgebrochen!</source>
        <translation>The firing will be aborted!</translation>
    </message>
    <message>
        <source>Prozess stoppen</source>
        <translation>Stop process</translation>
    </message>
    <message>
        <source>Stoppen</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Fortsetzen</source>
        <translation>Continue</translation>
    </message>
</context>
<context>
    <name>PopupTimeAdjust</name>
    <message>
        <source>Datum und Uhrzeit</source>
        <translation>Date and time</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Save</translation>
    </message>
</context>
<context>
    <name>ProgramFilter</name>
    <message>
        <source>Meine Programme</source>
        <translation>My programs</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>Service programs</translation>
    </message>
</context>
<context>
    <name>SelftestProgress</name>
    <message>
        <source>%1 von %2 Prüfungen abgeschlossen</source>
        <translation>%1 of %2 checks done</translation>
    </message>
</context>
<context>
    <name>TimerPopup</name>
    <message>
        <source>Startzeit festlegen</source>
        <translation>Set start time</translation>
    </message>
    <message>
        <source>Übernehmen</source>
        <translation>Apply</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::FailureSeverity</name>
    <message>
        <source>Schwerer Fehler</source>
        <translation>Severe error</translation>
    </message>
    <message>
        <source>Warnung</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Notice</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NewProgram</name>
    <message>
        <source>Programm sichern</source>
        <translation>Save program</translation>
    </message>
    <message>
        <source>Name ungültig: bitte einen Namen eingeben</source>
        <translation>Invalid name: please enter a name</translation>
    </message>
    <message>
        <source>Name ungültig: Zeichen ; = , . und $$ sind nicht erlaubt</source>
        <translation>Invalid name: ; = , . and $$ are not allowed</translation>
    </message>
    <message>
        <source>Name ungültig: nur Zeichen westeuropäischer Sprachen sind erlaubt</source>
        <translation>Invalid name: only Western European characters are allowed</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NumPad</name>
    <message>
        <source>Zu viele falsche Eingaben.
Gesperrt: noch %1 s</source>
        <translation>Too many wrong entries.
Locked: %1 s left</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::TableHead</name>
    <message>
        <source>Nr.</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Rate</translation>
    </message>
    <message>
        <source>Temperatur (°F)</source>
        <translation>Temperature (°F)</translation>
    </message>
    <message>
        <source>Temperatur (°C)</source>
        <translation>Temperature (°C)</translation>
    </message>
    <message>
        <source>Haltezeit (min)</source>
        <translation>Hold time (min)</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkStatus</name>
    <message>
        <source>Nicht eingerichtet</source>
        <translation>Not set up</translation>
    </message>
    <message>
        <source>Verbunden</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>Nicht verbunden</source>
        <translation>Not connected</translation>
    </message>
    <message>
        <source>Der Name des Servers ist unbekannt</source>
        <translation>The server&apos;s name is unknown</translation>
    </message>
    <message>
        <source>Der Server ist nicht erreichbar</source>
        <translation>The server cannot be reached</translation>
    </message>
    <message>
        <source>Der Server hat die Verbindung abgelehnt</source>
        <translation>The server refused the connection</translation>
    </message>
    <message>
        <source>Benutzername oder Passwort falsch</source>
        <translation>Wrong user name or password</translation>
    </message>
    <message>
        <source>Die verschlüsselte Verbindung ist fehlgeschlagen</source>
        <translation>The encrypted connection failed</translation>
    </message>
    <message>
        <source>Die Verbindung ist abgebrochen</source>
        <translation>The connection was lost</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkView</name>
    <message>
        <source>Labor-Verbindung</source>
        <translation>Lab link</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Verlauf senden</source>
        <translation>Send history</translation>
    </message>
    <message>
        <source>Server: %1</source>
        <translation>Server: %1</translation>
    </message>
    <message>
        <source>Zustand: %1</source>
        <translation>State: %1</translation>
    </message>
    <message>
        <source>Letzter Fehler: %1</source>
        <translation>Last error: %1</translation>
    </message>
    <message>
        <source>Wartende Protokolle: %1</source>
        <translation>Records waiting: %1</translation>
    </message>
    <message>
        <source>Laboransicht koppeln</source>
        <translation>Pair lab view</translation>
    </message>
    <message>
        <source>Die Laboransicht antwortet nicht.</source>
        <translation>The lab view does not answer.</translation>
    </message>
    <message>
        <source>Die Laboransicht konnte nicht gekoppelt werden.</source>
        <translation>The lab view could not be paired.</translation>
    </message>
</context>
<context>
    <name>ovra::MainWindow::MainWindow</name>
    <message>
        <source>Favoriten</source>
        <translation>Favorites</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Programmoptionen</source>
        <translation>Program options</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Filteroptionen</source>
        <translation>Filter options</translation>
    </message>
    <message>
        <source>USB Stick erkannt</source>
        <translation>USB stick detected</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>Programs</translation>
    </message>
    <message>
        <source>Sprache</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Temperatureinheit</source>
        <translation>Temperature unit</translation>
    </message>
    <message>
        <source>Neues Programm</source>
        <translation>New program</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>Service programs</translation>
    </message>
    <message>
        <source>Meine Programme</source>
        <translation>My programs</translation>
    </message>
    <message>
        <source>Feste Programme</source>
        <translation>Preset programs</translation>
    </message>
    <message>
        <source>Gerätedaten</source>
        <translation>Device data</translation>
    </message>
    <message>
        <source>Systemtest</source>
        <translation>Self-test</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Errors</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>Clear errors</translation>
    </message>
    <message>
        <source>Werkseinstellungen</source>
        <translation>Factory reset</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Delete program</translation>
    </message>
    <message>
        <source>Programm ändern</source>
        <translation>Edit program</translation>
    </message>
    <message>
        <source>Systemtest wiederholen</source>
        <translation>Repeat self-test</translation>
    </message>
    <message>
        <source>Hersteller</source>
        <translation>Manufacturer</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Firmware Aktualisierung</source>
        <translation>Firmware update</translation>
    </message>
    <message>
        <source>Konfiguration aktualisieren</source>
        <translation>Update configuration</translation>
    </message>
    <message>
        <source>Meine Programme laden</source>
        <translation>Load my programs</translation>
    </message>
    <message>
        <source>Meine Programme sichern</source>
        <translation>Save my programs</translation>
    </message>
    <message>
        <source>Daten sichern</source>
        <translation>Back up data</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>Create QR code</translation>
    </message>
    <message>
        <source>Tür öffnen/schließen</source>
        <translation>Open/close door</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>License</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit einstellen</source>
        <translation>Set date &amp;&amp; time</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit</source>
        <translation>Date &amp;&amp; time</translation>
    </message>
    <message>
        <source>Türmechanik</source>
        <translation>Door mechanism</translation>
    </message>
    <message>
        <source>Heizsystem</source>
        <translation>Heating system</translation>
    </message>
    <message>
        <source>Kühlsystem</source>
        <translation>Cooling system</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>Argon</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>Model + series:</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>Serial number:</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>Hardware version:</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>Software version:</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>Operating hours:</translation>
    </message>
    <message>
        <source>  Firmware Aktualisierung...
  Bitte warten...</source>
        <translation>  Updating firmware...
  Please wait...</translation>
    </message>
    <message>
        <source>  Meine Programme werden geladen.
  Bitte warten...</source>
        <translation>  Loading my programs.
  Please wait...</translation>
    </message>
    <message>
        <source>  Meine Programme werden gesichert.
  Bitte warten...</source>
        <translation>  Saving my programs.
  Please wait...</translation>
    </message>
    <message>
        <source>  Daten sichern.
  Bitte warten...</source>
        <translation>  Backing up data.
  Please wait...</translation>
    </message>
    <message>
        <source>  Konfiguration aktualisieren...
  Bitte warten...</source>
        <translation>  Updating configuration...
  Please wait...</translation>
    </message>
    <message>
        <source>  Erfolgreich.</source>
        <translation>  Successful.</translation>
    </message>
    <message>
        <source>°C  Celsius</source>
        <translation>°C  Celsius</translation>
    </message>
    <message>
        <source>°F  Fahrenheit</source>
        <translation>°F  Fahrenheit</translation>
    </message>
    <message>
        <source>Bereit</source>
        <translation>Ready</translation>
    </message>
    <message>
        <source>  Fehlgeschlagen.</source>
        <translation>  Failed.</translation>
    </message>
    <message>
        <source>Hauptmenü</source>
        <translation>Main menu</translation>
    </message>
    <message>
        <source>Datum &amp; Uhrzeit</source>
        <translation>Date &amp; time</translation>
    </message>
    <message>
        <source>Programm beendet</source>
        <translation>Program finished</translation>
    </message>
    <message>
        <source>Programm abgebrochen</source>
        <translation>Program aborted</translation>
    </message>
    <message>
        <source>Trocknen</source>
        <translation>Dry</translation>
    </message>
    <message>
        <source>Startzeit</source>
        <translation>Start time</translation>
    </message>
    <message>
        <source>Tür</source>
        <translation>Door</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Ende %1</source>
        <translation>End %1</translation>
    </message>
    <message>
        <source>Brennprotokolle</source>
        <translation>Firing records</translation>
    </message>
    <message>
        <source>Stopp</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Labor-Verbindung</source>
        <translation>Lab link</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::DateTimePopup</name>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::Popup</name>
    <message>
        <source>Argon oder Zirkon?</source>
        <translation>Argon or zirconia?</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>Argon</translation>
    </message>
    <message>
        <source>Zirkon</source>
        <translation>Zirconia</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupFailure</name>
    <message>
        <source>Fehler</source>
        <translation>Errors</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupLeaveNewProg</name>
    <message>
        <source>Programm nicht gespeichert!
Zum Hauptmenü?</source>
        <translation>Program not saved!
Back to main menu?</translation>
    </message>
    <message>
        <source>Programm nicht gespeichert!
Zurück?</source>
        <translation>Program not saved!
Go back?</translation>
    </message>
    <message>
        <source>Editor verlassen</source>
        <translation>Leave editor</translation>
    </message>
    <message>
        <source>Verwerfen</source>
        <translation>Discard</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupLicense</name>
    <message>
        <source>Diese Software verwendet das Qt Toolkit (Qt 5, LGPL v3).</source>
        <translation>This software uses the Qt toolkit (Qt 5, LGPL v3).</translation>
    </message>
    <message>
        <source>Qt-Version: %1</source>
        <translation>Qt version: %1</translation>
    </message>
    <message>
        <source>Qt ist unter der GNU Lesser General Public License Version 3 (LGPL v3) lizenziert. Die Qt-Bibliotheken sind dynamisch eingebunden und können durch eine eigene, kompatible Version ersetzt werden. Den Lizenztext finden Sie unter https://www.gnu.org/licenses/lgpl-3.0.html, den Quellcode von Qt unter https://download.qt.io/archive/qt/ und als Quellpaket der verwendeten Debian-Distribution (qtbase-opensource-src).</source>
        <translation>Qt is licensed under the GNU Lesser General Public License version 3 (LGPL v3). The Qt libraries are linked dynamically and can be replaced with your own compatible version. The license text is at https://www.gnu.org/licenses/lgpl-3.0.html, the Qt source code at https://download.qt.io/archive/qt/ and as a source package of the Debian distribution used (qtbase-opensource-src).</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>License</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupQRCode</name>
    <message>
        <source>QR Code nicht verfügbar</source>
        <translation>QR code not available</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>Create QR code</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupTempWarning</name>
    <message>
        <source>Achtung! Ofen ist heiß – Tür schließen!</source>
        <translation>Caution! Furnace is hot – close the door!</translation>
    </message>
    <message>
        <source>Tür schließen</source>
        <translation>Close door</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupUSB</name>
    <message>
        <source>USB-Stick</source>
        <translation>USB stick</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringGlance</name>
    <message>
        <source>Vortrocknen</source>
        <translation>Pre-drying</translation>
    </message>
    <message>
        <source>Halten</source>
        <translation>Holding</translation>
    </message>
    <message>
        <source>Aufheizen</source>
        <translation>Heating</translation>
    </message>
    <message>
        <source>Segment %1 von %2</source>
        <translation>Segment %1 of %2</translation>
    </message>
    <message>
        <source>Segment %1</source>
        <translation>Segment %1</translation>
    </message>
    <message>
        <source>noch %1:%2 h</source>
        <translation>%1:%2 h left</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummary</name>
    <message>
        <source>Dauer</source>
        <translation>Duration</translation>
    </message>
    <message>
        <source>Ende</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Höchste Temperatur</source>
        <translation>Highest temperature</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummaryView</name>
    <message>
        <source>und %1 weitere</source>
        <translation>and %1 more</translation>
    </message>
    <message>
        <source>Keine Fehler</source>
        <translation>No errors</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeBadge</name>
    <message>
        <source>Auftrag %1</source>
        <translation>Job %1</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeField</name>
    <message>
        <source>Auftrag</source>
        <translation>Job</translation>
    </message>
    <message>
        <source>Scannen oder tippen</source>
        <translation>Scan or type</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeKeyboard</name>
    <message>
        <source>Auftrag</source>
        <translation>Job</translation>
    </message>
    <message>
        <source>Buchstaben, Ziffern, - / . _ und Leerzeichen, höchstens %1 Zeichen</source>
        <translation>Letters, digits, - / . _ and spaces, at most %1 characters</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringDetailView</name>
    <message>
        <source>gemessen</source>
        <translation>measured</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>planned</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Dauer</source>
        <translation>Duration</translation>
    </message>
    <message>
        <source>Vortrocknen</source>
        <translation>Pre-drying</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Errors</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Auftrag</source>
        <translation>Job</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringHistoryView</name>
    <message>
        <source>Brennprotokolle</source>
        <translation>Firing records</translation>
    </message>
    <message>
        <source>Brände: %1</source>
        <translation>Firings: %1</translation>
    </message>
    <message>
        <source>Noch kein Brand aufgezeichnet</source>
        <translation>No firing recorded yet</translation>
    </message>
    <message>
        <source>Auftrag %1</source>
        <translation>Job %1</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringPainter</name>
    <message>
        <source>Erfolgreich</source>
        <translation>Successful</translation>
    </message>
    <message>
        <source>Fehlgeschlagen</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>Abgebrochen</source>
        <translation>Stopped</translation>
    </message>
    <message>
        <source>Unterbrochen</source>
        <translation>Interrupted</translation>
    </message>
    <message>
        <source>Läuft</source>
        <translation>Running</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringReport</name>
    <message>
        <source>Brennprotokoll</source>
        <translation>Firing record</translation>
    </message>
    <message>
        <source>Gerät</source>
        <translation>Furnace</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>Model + series:</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>Serial number:</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>Hardware version:</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>Software version:</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>Operating hours:</translation>
    </message>
    <message>
        <source>Brand</source>
        <translation>Firing</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>Start:</translation>
    </message>
    <message>
        <source>Ende:</source>
        <translation>End:</translation>
    </message>
    <message>
        <source>Dauer:</source>
        <translation>Duration:</translation>
    </message>
    <message>
        <source>Material:</source>
        <translation>Material:</translation>
    </message>
    <message>
        <source>Vortrocknen:</source>
        <translation>Pre-drying:</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Verzögerter Start:</source>
        <translation>Delayed start:</translation>
    </message>
    <message>
        <source>Ergebnis:</source>
        <translation>Result:</translation>
    </message>
    <message>
        <source>Programm</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>Segment</translation>
    </message>
    <message>
        <source>Rate %1/min</source>
        <translation>Rate %1/min</translation>
    </message>
    <message>
        <source>Temperatur %1</source>
        <translation>Temperature %1</translation>
    </message>
    <message>
        <source>Haltezeit min</source>
        <translation>Hold min</translation>
    </message>
    <message>
        <source>Programmtext nicht lesbar</source>
        <translation>Program text unreadable</translation>
    </message>
    <message>
        <source>Temperaturverlauf</source>
        <translation>Temperature curve</translation>
    </message>
    <message>
        <source>gemessen</source>
        <translation>measured</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>planned</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Errors</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Auftrag:</source>
        <translation>Job:</translation>
    </message>
</context>
</TS>
