#pragma once

#include <QtGlobal>

namespace ovra {
namespace Mainwindow {

// The window's own captions, as German source texts in the translation context of the
// window; they are translated at the moment they are shown.
namespace Captions {
constexpr const char *context = "ovra::MainWindow::MainWindow";

constexpr const char *Favoriten = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Favoriten");
constexpr const char *Einstellungen = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Einstellungen");
constexpr const char *Programmoptionen = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Programmoptionen");
constexpr const char *Service = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Service");
constexpr const char *Filteroptionen = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Filteroptionen");
constexpr const char *UsbStickErkannt = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "USB Stick erkannt");
constexpr const char *Programme = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Programme");
constexpr const char *Sprache = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Sprache");
constexpr const char *Temperatureinheit = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Temperatureinheit");
constexpr const char *NeuesProgramm = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Neues Programm");
constexpr const char *ServiceProgramme = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Service Programme");
constexpr const char *MeineProgramme = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Meine Programme");
constexpr const char *FesteProgramme = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Feste Programme");
constexpr const char *Geraetedaten = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Gerätedaten");
constexpr const char *Systemtest = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Systemtest");
constexpr const char *LaborVerbindung = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Labor-Verbindung");
constexpr const char *Fehler = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Fehler");
constexpr const char *FehlerLoeschen = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Fehler löschen");
constexpr const char *Werkseinstellungen = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Werkseinstellungen");
constexpr const char *ProgrammLoeschen = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Programm löschen");
constexpr const char *ProgrammAendern = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Programm ändern");
constexpr const char *SystemtestWiederholen =
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Systemtest wiederholen");
constexpr const char *Hersteller = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Hersteller");
constexpr const char *Material = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Material");
constexpr const char *FirmwareAktualisierung =
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Firmware Aktualisierung");
constexpr const char *KonfigurationAktualisieren =
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Konfiguration aktualisieren");
constexpr const char *MeineProgrammeLaden = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Meine Programme laden");
constexpr const char *MeineProgrammeSichern =
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Meine Programme sichern");
constexpr const char *DatenSichern = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Daten sichern");
constexpr const char *QrCodeErzeugen = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "QR Code erzeugen");
constexpr const char *TuerOeffnenSchliessen = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Tür öffnen/schließen");
constexpr const char *Lizenz = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Lizenz");
constexpr const char *Brennprotokolle = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Brennprotokolle");
// A button shows "&&" as one ampersand; the page title has a single one.
constexpr const char *DatumUhrzeitEinstellen =
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Datum && Uhrzeit einstellen");
constexpr const char *DatumUhrzeitButton = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Datum && Uhrzeit");
constexpr const char *Tuermechanik = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Türmechanik");
constexpr const char *Heizsystem = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Heizsystem");
constexpr const char *Kuehlsystem = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Kühlsystem");
constexpr const char *Argon = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Argon");
constexpr const char *TypBaureihe = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Typ + Baureihe:");
constexpr const char *Seriennummer = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Seriennummer:");
constexpr const char *Hardwareversion = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Hardwareversion:");
constexpr const char *Softwareversion = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Softwareversion:");
constexpr const char *Betriebsstunden = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Betriebsstunden:");
constexpr const char *ProgressFirmware =
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "  Firmware Aktualisierung...\n  Bitte warten...");
constexpr const char *ProgressLoad =
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "  Meine Programme werden geladen.\n  Bitte warten...");
constexpr const char *ProgressSave =
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "  Meine Programme werden gesichert.\n  Bitte warten...");
constexpr const char *ProgressBackup =
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "  Daten sichern.\n  Bitte warten...");
constexpr const char *ProgressConfig =
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "  Konfiguration aktualisieren...\n  Bitte warten...");
constexpr const char *ProgressSuccess = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "  Erfolgreich.");
constexpr const char *Celsius = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "°C  Celsius");
constexpr const char *Fahrenheit = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "°F  Fahrenheit");
constexpr const char *Bereit = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Bereit");
constexpr const char *ProgressFailed = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "  Fehlgeschlagen.");
// Beside the result symbol of the process page.
constexpr const char *ProgrammBeendet = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Programm beendet");
constexpr const char *ProgrammAbgebrochen = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Programm abgebrochen");
// The program page's bottom row says what each button does; the time is the firing's end.
constexpr const char *Trocknen = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Trocknen");
constexpr const char *Startzeit = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Startzeit");
constexpr const char *Tuer = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Tür");
constexpr const char *Start = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Start");
constexpr const char *EndeUm = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Ende %1");
// The process page's stop button says what it does, from across the room.
constexpr const char *Stopp = QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Stopp");
} // namespace Captions

} // namespace Mainwindow
} // namespace ovra
