<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>DateTimePopup</name>
    <message>
        <source>Datum</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>TT</source>
        <translation>TT</translation>
    </message>
    <message>
        <source>MM</source>
        <translation>MM</translation>
    </message>
    <message>
        <source>JJJJ</source>
        <translation>JJJJ</translation>
    </message>
    <message>
        <source>Uhrzeit</source>
        <translation>Uhrzeit</translation>
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
        <translation>Bitte die rot markierten Felder prüfen.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Ofen</source>
        <translation>Ofen</translation>
    </message>
    <message>
        <source>Bitte warten …</source>
        <translation>Bitte warten …</translation>
    </message>
    <message>
        <source>Service-PIN:</source>
        <translation>Service-PIN:</translation>
    </message>
    <message>
        <source>Verbindung zum Ofen wird hergestellt …</source>
        <translation>Verbindung zum Ofen wird hergestellt …</translation>
    </message>
    <message>
        <source>Materialwechsel</source>
        <translation>Materialwechsel</translation>
    </message>
    <message>
        <source>Bitte Türisolation einsetzen</source>
        <translation>Bitte Türisolation einsetzen</translation>
    </message>
</context>
<context>
    <name>PopupArgonFailure</name>
    <message>
        <source>Überprüfung der Argon Versorgung
fehlgeschlagen.

Bitte die Anschlüsse und Eingangsdruck
überprüfen und den Prozess neu starten.</source>
        <translation>Überprüfung der Argon Versorgung
fehlgeschlagen.

Bitte die Anschlüsse und Eingangsdruck
überprüfen und den Prozess neu starten.</translation>
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
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>PopupDeleteFailureList</name>
    <message>
        <source>Fehlerliste wird endgültig gelöscht!</source>
        <translation>Fehlerliste wird endgültig gelöscht!</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>Fehler löschen</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>PopupDeleteProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>Programm wird endgültig gelöscht!</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Programm löschen</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>PopupOverrideProg</name>
    <message>
        <source>Programm wird überschrieben!</source>
        <translation>Programm wird überschrieben!</translation>
    </message>
    <message>
        <source>Programm überschreiben</source>
        <translation>Programm überschreiben</translation>
    </message>
    <message>
        <source>Überschreiben</source>
        <translation>Überschreiben</translation>
    </message>
</context>
<context>
    <name>PopupQuitProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>Programm wird endgültig gelöscht!</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Programm löschen</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>PopupSettings</name>
    <message>
        <source>Werkseinstellungen</source>
        <translation>Werkseinstellungen</translation>
    </message>
    <message>
        <source>Alle eigenen Programme werden gelöscht und die Werkseinstellungen wiederhergestellt!</source>
        <translation>Alle eigenen Programme werden gelöscht und die Werkseinstellungen wiederhergestellt!</translation>
    </message>
    <message>
        <source>Zurücksetzen</source>
        <translation>Zurücksetzen</translation>
    </message>
</context>
<context>
    <name>PopupStop</name>
    <message>
        <source>Prozess wird abgebrochen!</source>
        <translation>Prozess wird abgebrochen!</translation>
    </message>
    <message>
        <source>Prozess stoppen</source>
        <translation>Prozess stoppen</translation>
    </message>
    <message>
        <source>Stoppen</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Fortsetzen</source>
        <translation>Fortsetzen</translation>
    </message>
</context>
<context>
    <name>PopupTimeAdjust</name>
    <message>
        <source>Datum und Uhrzeit</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>ProgramFilter</name>
    <message>
        <source>Meine Programme</source>
        <translation>Meine Programme</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>Service Programme</translation>
    </message>
</context>
<context>
    <name>SelftestProgress</name>
    <message>
        <source>%1 von %2 Prüfungen abgeschlossen</source>
        <translation>%1 von %2 Prüfungen abgeschlossen</translation>
    </message>
</context>
<context>
    <name>TimerPopup</name>
    <message>
        <source>Startzeit festlegen</source>
        <translation>Startzeit festlegen</translation>
    </message>
    <message>
        <source>Übernehmen</source>
        <translation>Übernehmen</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::FailureSeverity</name>
    <message>
        <source>Schwerer Fehler</source>
        <translation>Schwerer Fehler</translation>
    </message>
    <message>
        <source>Warnung</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NewProgram</name>
    <message>
        <source>Programm sichern</source>
        <translation>Programm sichern</translation>
    </message>
    <message>
        <source>Name ungültig: bitte einen Namen eingeben</source>
        <translation>Name ungültig: bitte einen Namen eingeben</translation>
    </message>
    <message>
        <source>Name ungültig: Zeichen ; = , . und $$ sind nicht erlaubt</source>
        <translation>Name ungültig: Zeichen ; = , . und $$ sind nicht erlaubt</translation>
    </message>
    <message>
        <source>Name ungültig: nur Zeichen westeuropäischer Sprachen sind erlaubt</source>
        <translation>Name ungültig: nur Zeichen westeuropäischer Sprachen sind erlaubt</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NumPad</name>
    <message>
        <source>Zu viele falsche Eingaben.
Gesperrt: noch %1 s</source>
        <translation>Zu viele falsche Eingaben.
Gesperrt: noch %1 s</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::TableHead</name>
    <message>
        <source>Nr.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Rate</translation>
    </message>
    <message>
        <source>Temperatur (°F)</source>
        <translation>Temperatur (°F)</translation>
    </message>
    <message>
        <source>Temperatur (°C)</source>
        <translation>Temperatur (°C)</translation>
    </message>
    <message>
        <source>Haltezeit (min)</source>
        <translation>Haltezeit (min)</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkStatus</name>
    <message>
        <source>Nicht eingerichtet</source>
        <translation>Nicht eingerichtet</translation>
    </message>
    <message>
        <source>Verbunden</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Nicht verbunden</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Der Name des Servers ist unbekannt</source>
        <translation>Der Name des Servers ist unbekannt</translation>
    </message>
    <message>
        <source>Der Server ist nicht erreichbar</source>
        <translation>Der Server ist nicht erreichbar</translation>
    </message>
    <message>
        <source>Der Server hat die Verbindung abgelehnt</source>
        <translation>Der Server hat die Verbindung abgelehnt</translation>
    </message>
    <message>
        <source>Benutzername oder Passwort falsch</source>
        <translation>Benutzername oder Passwort falsch</translation>
    </message>
    <message>
        <source>Die verschlüsselte Verbindung ist fehlgeschlagen</source>
        <translation>Die verschlüsselte Verbindung ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>Die Verbindung ist abgebrochen</source>
        <translation>Die Verbindung ist abgebrochen</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkView</name>
    <message>
        <source>Labor-Verbindung</source>
        <translation>Labor-Verbindung</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Verlauf senden</source>
        <translation>Verlauf senden</translation>
    </message>
    <message>
        <source>Server: %1</source>
        <translation>Server: %1</translation>
    </message>
    <message>
        <source>Zustand: %1</source>
        <translation>Zustand: %1</translation>
    </message>
    <message>
        <source>Letzter Fehler: %1</source>
        <translation>Letzter Fehler: %1</translation>
    </message>
    <message>
        <source>Wartende Protokolle: %1</source>
        <translation>Wartende Protokolle: %1</translation>
    </message>
    <message>
        <source>Laboransicht koppeln</source>
        <translation>Laboransicht koppeln</translation>
    </message>
    <message>
        <source>Die Laboransicht antwortet nicht.</source>
        <translation>Die Laboransicht antwortet nicht.</translation>
    </message>
    <message>
        <source>Die Laboransicht konnte nicht gekoppelt werden.</source>
        <translation>Die Laboransicht konnte nicht gekoppelt werden.</translation>
    </message>
</context>
<context>
    <name>ovra::MainWindow::MainWindow</name>
    <message>
        <source>Favoriten</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Programmoptionen</source>
        <translation>Programmoptionen</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Filteroptionen</source>
        <translation>Filteroptionen</translation>
    </message>
    <message>
        <source>USB Stick erkannt</source>
        <translation>USB Stick erkannt</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Sprache</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Temperatureinheit</source>
        <translation>Temperatureinheit</translation>
    </message>
    <message>
        <source>Neues Programm</source>
        <translation>Neues Programm</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>Service Programme</translation>
    </message>
    <message>
        <source>Meine Programme</source>
        <translation>Meine Programme</translation>
    </message>
    <message>
        <source>Feste Programme</source>
        <translation>Feste Programme</translation>
    </message>
    <message>
        <source>Gerätedaten</source>
        <translation>Gerätedaten</translation>
    </message>
    <message>
        <source>Systemtest</source>
        <translation>Systemtest</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>Fehler löschen</translation>
    </message>
    <message>
        <source>Werkseinstellungen</source>
        <translation>Werkseinstellungen</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Programm löschen</translation>
    </message>
    <message>
        <source>Programm ändern</source>
        <translation>Programm ändern</translation>
    </message>
    <message>
        <source>Systemtest wiederholen</source>
        <translation>Systemtest wiederholen</translation>
    </message>
    <message>
        <source>Hersteller</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Firmware Aktualisierung</source>
        <translation>Firmware Aktualisierung</translation>
    </message>
    <message>
        <source>Konfiguration aktualisieren</source>
        <translation>Konfiguration aktualisieren</translation>
    </message>
    <message>
        <source>Meine Programme laden</source>
        <translation>Meine Programme laden</translation>
    </message>
    <message>
        <source>Meine Programme sichern</source>
        <translation>Meine Programme sichern</translation>
    </message>
    <message>
        <source>Daten sichern</source>
        <translation>Daten sichern</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>QR Code erzeugen</translation>
    </message>
    <message>
        <source>Tür öffnen/schließen</source>
        <translation>Tür öffnen/schließen</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit einstellen</source>
        <translation>Datum &amp;&amp; Uhrzeit einstellen</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit</source>
        <translation>Datum &amp;&amp; Uhrzeit</translation>
    </message>
    <message>
        <source>Türmechanik</source>
        <translation>Türmechanik</translation>
    </message>
    <message>
        <source>Heizsystem</source>
        <translation>Heizsystem</translation>
    </message>
    <message>
        <source>Kühlsystem</source>
        <translation>Kühlsystem</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>Argon</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>Typ + Baureihe:</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>Seriennummer:</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>Hardwareversion:</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>Softwareversion:</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>Betriebsstunden:</translation>
    </message>
    <message>
        <source>  Firmware Aktualisierung...
  Bitte warten...</source>
        <translation>  Firmware Aktualisierung...
  Bitte warten...</translation>
    </message>
    <message>
        <source>  Meine Programme werden geladen.
  Bitte warten...</source>
        <translation>  Meine Programme werden geladen.
  Bitte warten...</translation>
    </message>
    <message>
        <source>  Meine Programme werden gesichert.
  Bitte warten...</source>
        <translation>  Meine Programme werden gesichert.
  Bitte warten...</translation>
    </message>
    <message>
        <source>  Daten sichern.
  Bitte warten...</source>
        <translation>  Daten sichern.
  Bitte warten...</translation>
    </message>
    <message>
        <source>  Konfiguration aktualisieren...
  Bitte warten...</source>
        <translation>  Konfiguration aktualisieren...
  Bitte warten...</translation>
    </message>
    <message>
        <source>  Erfolgreich.</source>
        <translation>  Erfolgreich.</translation>
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
        <translation>Bereit</translation>
    </message>
    <message>
        <source>  Fehlgeschlagen.</source>
        <translation>  Fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Hauptmenü</source>
        <translation>Hauptmenü</translation>
    </message>
    <message>
        <source>Datum &amp; Uhrzeit</source>
        <translation>Datum &amp; Uhrzeit</translation>
    </message>
    <message>
        <source>Programm beendet</source>
        <translation>Programm beendet</translation>
    </message>
    <message>
        <source>Programm abgebrochen</source>
        <translation>Programm abgebrochen</translation>
    </message>
    <message>
        <source>Trocknen</source>
        <translation>Trocknen</translation>
    </message>
    <message>
        <source>Startzeit</source>
        <translation>Startzeit</translation>
    </message>
    <message>
        <source>Tür</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Ende %1</source>
        <translation>Ende %1</translation>
    </message>
    <message>
        <source>Brennprotokolle</source>
        <translation>Brennprotokolle</translation>
    </message>
    <message>
        <source>Stopp</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Labor-Verbindung</source>
        <translation>Labor-Verbindung</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::DateTimePopup</name>
    <message>
        <source>Abbrechen</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::Popup</name>
    <message>
        <source>Argon oder Zirkon?</source>
        <translation>Argon oder Zirkon?</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>Argon</translation>
    </message>
    <message>
        <source>Zirkon</source>
        <translation>Zirkon</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupFailure</name>
    <message>
        <source>Fehler</source>
        <translation>Fehler</translation>
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
        <translation>Programm nicht gespeichert!
Zum Hauptmenü?</translation>
    </message>
    <message>
        <source>Programm nicht gespeichert!
Zurück?</source>
        <translation>Programm nicht gespeichert!
Zurück?</translation>
    </message>
    <message>
        <source>Editor verlassen</source>
        <translation>Editor verlassen</translation>
    </message>
    <message>
        <source>Verwerfen</source>
        <translation>Verwerfen</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupLicense</name>
    <message>
        <source>Diese Software verwendet das Qt Toolkit (Qt 5, LGPL v3).</source>
        <translation>Diese Software verwendet das Qt Toolkit (Qt 5, LGPL v3).</translation>
    </message>
    <message>
        <source>Qt-Version: %1</source>
        <translation>Qt-Version: %1</translation>
    </message>
    <message>
        <source>Qt ist unter der GNU Lesser General Public License Version 3 (LGPL v3) lizenziert. Die Qt-Bibliotheken sind dynamisch eingebunden und können durch eine eigene, kompatible Version ersetzt werden. Den Lizenztext finden Sie unter https://www.gnu.org/licenses/lgpl-3.0.html, den Quellcode von Qt unter https://download.qt.io/archive/qt/ und als Quellpaket der verwendeten Debian-Distribution (qtbase-opensource-src).</source>
        <translation>Qt ist unter der GNU Lesser General Public License Version 3 (LGPL v3) lizenziert. Die Qt-Bibliotheken sind dynamisch eingebunden und können durch eine eigene, kompatible Version ersetzt werden. Den Lizenztext finden Sie unter https://www.gnu.org/licenses/lgpl-3.0.html, den Quellcode von Qt unter https://download.qt.io/archive/qt/ und als Quellpaket der verwendeten Debian-Distribution (qtbase-opensource-src).</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>Lizenz</translation>
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
        <translation>QR Code nicht verfügbar</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>QR Code erzeugen</translation>
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
        <translation>Achtung! Ofen ist heiß – Tür schließen!</translation>
    </message>
    <message>
        <source>Tür schließen</source>
        <translation>Tür schließen</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupUSB</name>
    <message>
        <source>USB-Stick</source>
        <translation>USB-Stick</translation>
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
        <translation>Vortrocknen</translation>
    </message>
    <message>
        <source>Halten</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>Aufheizen</source>
        <translation>Aufheizen</translation>
    </message>
    <message>
        <source>Segment %1 von %2</source>
        <translation>Segment %1 von %2</translation>
    </message>
    <message>
        <source>Segment %1</source>
        <translation>Segment %1</translation>
    </message>
    <message>
        <source>noch %1:%2 h</source>
        <translation>noch %1:%2 h</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummary</name>
    <message>
        <source>Dauer</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Ende</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Höchste Temperatur</source>
        <translation>Höchste Temperatur</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummaryView</name>
    <message>
        <source>und %1 weitere</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Keine Fehler</source>
        <translation>Keine Fehler</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeBadge</name>
    <message>
        <source>Auftrag %1</source>
        <translation>Auftrag %1</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeField</name>
    <message>
        <source>Auftrag</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Scannen oder tippen</source>
        <translation>Scannen oder tippen</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeKeyboard</name>
    <message>
        <source>Auftrag</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Buchstaben, Ziffern, - / . _ und Leerzeichen, höchstens %1 Zeichen</source>
        <translation>Buchstaben, Ziffern, - / . _ und Leerzeichen, höchstens %1 Zeichen</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringDetailView</name>
    <message>
        <source>gemessen</source>
        <translation>gemessen</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>geplant</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Dauer</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Vortrocknen</source>
        <translation>Vortrocknen</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Auftrag</source>
        <translation>Auftrag</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringHistoryView</name>
    <message>
        <source>Brennprotokolle</source>
        <translation>Brennprotokolle</translation>
    </message>
    <message>
        <source>Brände: %1</source>
        <translation>Brände: %1</translation>
    </message>
    <message>
        <source>Noch kein Brand aufgezeichnet</source>
        <translation>Noch kein Brand aufgezeichnet</translation>
    </message>
    <message>
        <source>Auftrag %1</source>
        <translation>Auftrag %1</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringPainter</name>
    <message>
        <source>Erfolgreich</source>
        <translation>Erfolgreich</translation>
    </message>
    <message>
        <source>Fehlgeschlagen</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Abgebrochen</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Unterbrochen</source>
        <translation>Unterbrochen</translation>
    </message>
    <message>
        <source>Läuft</source>
        <translation>Läuft</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringReport</name>
    <message>
        <source>Brennprotokoll</source>
        <translation>Brennprotokoll</translation>
    </message>
    <message>
        <source>Gerät</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>Typ + Baureihe:</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>Seriennummer:</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>Hardwareversion:</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>Softwareversion:</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>Betriebsstunden:</translation>
    </message>
    <message>
        <source>Brand</source>
        <translation>Brand</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>Start:</translation>
    </message>
    <message>
        <source>Ende:</source>
        <translation>Ende:</translation>
    </message>
    <message>
        <source>Dauer:</source>
        <translation>Dauer:</translation>
    </message>
    <message>
        <source>Material:</source>
        <translation>Material:</translation>
    </message>
    <message>
        <source>Vortrocknen:</source>
        <translation>Vortrocknen:</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Verzögerter Start:</source>
        <translation>Verzögerter Start:</translation>
    </message>
    <message>
        <source>Ergebnis:</source>
        <translation>Ergebnis:</translation>
    </message>
    <message>
        <source>Programm</source>
        <translation>Programm</translation>
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
        <translation>Temperatur %1</translation>
    </message>
    <message>
        <source>Haltezeit min</source>
        <translation>Haltezeit min</translation>
    </message>
    <message>
        <source>Programmtext nicht lesbar</source>
        <translation>Programmtext nicht lesbar</translation>
    </message>
    <message>
        <source>Temperaturverlauf</source>
        <translation>Temperaturverlauf</translation>
    </message>
    <message>
        <source>gemessen</source>
        <translation>gemessen</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>geplant</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Auftrag:</source>
        <translation>Auftrag:</translation>
    </message>
</context>
</TS>
