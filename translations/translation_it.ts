<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>DateTimePopup</name>
    <message>
        <source>Datum</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>TT</source>
        <translation>GG</translation>
    </message>
    <message>
        <source>MM</source>
        <translation>MM</translation>
    </message>
    <message>
        <source>JJJJ</source>
        <translation>AAAA</translation>
    </message>
    <message>
        <source>Uhrzeit</source>
        <translation>Ora</translation>
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
        <translation>Controllare i campi evidenziati in rosso.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Ofen</source>
        <translation>Forno</translation>
    </message>
    <message>
        <source>Bitte warten …</source>
        <translation>Attendere …</translation>
    </message>
    <message>
        <source>Service-PIN:</source>
        <translation>PIN assistenza:</translation>
    </message>
    <message>
        <source>Verbindung zum Ofen wird hergestellt …</source>
        <translation>Connessione al forno …</translation>
    </message>
    <message>
        <source>Materialwechsel</source>
        <translation>Cambio materiale</translation>
    </message>
    <message>
        <source>Bitte Türisolation einsetzen</source>
        <translation>Inserire l&apos;isolamento della porta</translation>
    </message>
</context>
<context>
    <name>PopupArgonFailure</name>
    <message>
        <source>Überprüfung der Argon Versorgung
fehlgeschlagen.

Bitte die Anschlüsse und Eingangsdruck
überprüfen und den Prozess neu starten.</source>
        <translation>Verifica dell&apos;alimentazione di argon
non riuscita.

Controllare i collegamenti e la pressione in ingresso
e riavviare il processo.</translation>
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
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>PopupDeleteFailureList</name>
    <message>
        <source>Fehlerliste wird endgültig gelöscht!</source>
        <translation>L&apos;elenco errori verrà eliminato definitivamente!</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>e altri %1</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>Cancella errori</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Elimina</translation>
    </message>
</context>
<context>
    <name>PopupDeleteProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>Il programma verrà eliminato definitivamente!</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Elimina programma</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Elimina</translation>
    </message>
</context>
<context>
    <name>PopupOverrideProg</name>
    <message>
        <source>Programm wird überschrieben!</source>
        <translation>Il programma verrà sovrascritto!</translation>
    </message>
    <message>
        <source>Programm überschreiben</source>
        <translation>Sovrascrivi programma</translation>
    </message>
    <message>
        <source>Überschreiben</source>
        <translation>Sovrascrivi</translation>
    </message>
</context>
<context>
    <name>PopupQuitProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>Il programma verrà eliminato definitivamente!</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Elimina programma</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Elimina</translation>
    </message>
</context>
<context>
    <name>PopupSettings</name>
    <message>
        <source>Werkseinstellungen</source>
        <translation>Impostazioni di fabbrica</translation>
    </message>
    <message>
        <source>Alle eigenen Programme werden gelöscht und die Werkseinstellungen wiederhergestellt!</source>
        <translation>Tutti i programmi personali verranno eliminati e le impostazioni di fabbrica ripristinate!</translation>
    </message>
    <message>
        <source>Zurücksetzen</source>
        <translation>Ripristina</translation>
    </message>
</context>
<context>
    <name>PopupStop</name>
    <message>
        <source>Prozess wird abgebrochen!</source>
        <translation>Il processo verrà interrotto!</translation>
    </message>
    <message>
        <source>Prozess stoppen</source>
        <translation>Ferma processo</translation>
    </message>
    <message>
        <source>Stoppen</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Fortsetzen</source>
        <translation>Continua</translation>
    </message>
</context>
<context>
    <name>PopupTimeAdjust</name>
    <message>
        <source>Datum und Uhrzeit</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Salva</translation>
    </message>
</context>
<context>
    <name>ProgramFilter</name>
    <message>
        <source>Meine Programme</source>
        <translation>I miei programmi</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>Programmi assistenza</translation>
    </message>
</context>
<context>
    <name>SelftestProgress</name>
    <message>
        <source>%1 von %2 Prüfungen abgeschlossen</source>
        <translation>%1 di %2 controlli eseguiti</translation>
    </message>
</context>
<context>
    <name>TimerPopup</name>
    <message>
        <source>Startzeit festlegen</source>
        <translation>Imposta ora di avvio</translation>
    </message>
    <message>
        <source>Übernehmen</source>
        <translation>Applica</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::FailureSeverity</name>
    <message>
        <source>Schwerer Fehler</source>
        <translation>Errore grave</translation>
    </message>
    <message>
        <source>Warnung</source>
        <translation>Avvertenza</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Informazione</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NewProgram</name>
    <message>
        <source>Programm sichern</source>
        <translation>Salva programma</translation>
    </message>
    <message>
        <source>Name ungültig: bitte einen Namen eingeben</source>
        <translation>Nome non valido: inserire un nome</translation>
    </message>
    <message>
        <source>Name ungültig: Zeichen ; = , . und $$ sind nicht erlaubt</source>
        <translation>Nome non valido: ; = , . e $$ non ammessi</translation>
    </message>
    <message>
        <source>Name ungültig: nur Zeichen westeuropäischer Sprachen sind erlaubt</source>
        <translation>Nome non valido: solo caratteri dell&apos;Europa occidentale</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NumPad</name>
    <message>
        <source>Zu viele falsche Eingaben.
Gesperrt: noch %1 s</source>
        <translation>Troppi inserimenti errati.
Bloccato: ancora %1 s</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::TableHead</name>
    <message>
        <source>Nr.</source>
        <translation>N.</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Temperatur (°F)</source>
        <translation>Temperatura (°F)</translation>
    </message>
    <message>
        <source>Temperatur (°C)</source>
        <translation>Temperatura (°C)</translation>
    </message>
    <message>
        <source>Haltezeit (min)</source>
        <translation>Mantenimento (min)</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkStatus</name>
    <message>
        <source>Nicht eingerichtet</source>
        <translation>Non configurato</translation>
    </message>
    <message>
        <source>Verbunden</source>
        <translation>Connesso</translation>
    </message>
    <message>
        <source>Nicht verbunden</source>
        <translation>Non connesso</translation>
    </message>
    <message>
        <source>Der Name des Servers ist unbekannt</source>
        <translation>Il nome del server è sconosciuto</translation>
    </message>
    <message>
        <source>Der Server ist nicht erreichbar</source>
        <translation>Il server non è raggiungibile</translation>
    </message>
    <message>
        <source>Der Server hat die Verbindung abgelehnt</source>
        <translation>Il server ha rifiutato la connessione</translation>
    </message>
    <message>
        <source>Benutzername oder Passwort falsch</source>
        <translation>Nome utente o password errati</translation>
    </message>
    <message>
        <source>Die verschlüsselte Verbindung ist fehlgeschlagen</source>
        <translation>La connessione cifrata non è riuscita</translation>
    </message>
    <message>
        <source>Die Verbindung ist abgebrochen</source>
        <translation>La connessione si è interrotta</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkView</name>
    <message>
        <source>Labor-Verbindung</source>
        <translation>Collegamento laboratorio</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Verlauf senden</source>
        <translation>Invia cronologia</translation>
    </message>
    <message>
        <source>Server: %1</source>
        <translation>Server: %1</translation>
    </message>
    <message>
        <source>Zustand: %1</source>
        <translation>Stato: %1</translation>
    </message>
    <message>
        <source>Letzter Fehler: %1</source>
        <translation>Ultimo errore: %1</translation>
    </message>
    <message>
        <source>Wartende Protokolle: %1</source>
        <translation>Protocolli in attesa: %1</translation>
    </message>
    <message>
        <source>Laboransicht koppeln</source>
        <translation>Associa vista laboratorio</translation>
    </message>
    <message>
        <source>Die Laboransicht antwortet nicht.</source>
        <translation>La vista laboratorio non risponde.</translation>
    </message>
    <message>
        <source>Die Laboransicht konnte nicht gekoppelt werden.</source>
        <translation>Impossibile associare la vista laboratorio.</translation>
    </message>
</context>
<context>
    <name>ovra::MainWindow::MainWindow</name>
    <message>
        <source>Favoriten</source>
        <translation>Preferiti</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Programmoptionen</source>
        <translation>Opzioni programma</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Assistenza</translation>
    </message>
    <message>
        <source>Filteroptionen</source>
        <translation>Opzioni filtro</translation>
    </message>
    <message>
        <source>USB Stick erkannt</source>
        <translation>Chiavetta USB rilevata</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>Programmi</translation>
    </message>
    <message>
        <source>Sprache</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Temperatureinheit</source>
        <translation>Unità di temperatura</translation>
    </message>
    <message>
        <source>Neues Programm</source>
        <translation>Nuovo programma</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>Programmi assistenza</translation>
    </message>
    <message>
        <source>Meine Programme</source>
        <translation>I miei programmi</translation>
    </message>
    <message>
        <source>Feste Programme</source>
        <translation>Programmi predefiniti</translation>
    </message>
    <message>
        <source>Gerätedaten</source>
        <translation>Dati apparecchio</translation>
    </message>
    <message>
        <source>Systemtest</source>
        <translation>Autotest</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Errori</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>Cancella errori</translation>
    </message>
    <message>
        <source>Werkseinstellungen</source>
        <translation>Impostazioni di fabbrica</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Elimina programma</translation>
    </message>
    <message>
        <source>Programm ändern</source>
        <translation>Modifica programma</translation>
    </message>
    <message>
        <source>Systemtest wiederholen</source>
        <translation>Ripeti autotest</translation>
    </message>
    <message>
        <source>Hersteller</source>
        <translation>Produttore</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Materiale</translation>
    </message>
    <message>
        <source>Firmware Aktualisierung</source>
        <translation>Aggiornamento firmware</translation>
    </message>
    <message>
        <source>Konfiguration aktualisieren</source>
        <translation>Aggiorna configurazione</translation>
    </message>
    <message>
        <source>Meine Programme laden</source>
        <translation>Carica i miei programmi</translation>
    </message>
    <message>
        <source>Meine Programme sichern</source>
        <translation>Salva i miei programmi</translation>
    </message>
    <message>
        <source>Daten sichern</source>
        <translation>Backup dati</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>Crea codice QR</translation>
    </message>
    <message>
        <source>Tür öffnen/schließen</source>
        <translation>Apri/chiudi porta</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>Licenza</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit einstellen</source>
        <translation>Imposta data e ora</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>Türmechanik</source>
        <translation>Meccanica porta</translation>
    </message>
    <message>
        <source>Heizsystem</source>
        <translation>Sistema di riscaldamento</translation>
    </message>
    <message>
        <source>Kühlsystem</source>
        <translation>Sistema di raffreddamento</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>Argon</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>Tipo + serie:</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>Numero di serie:</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>Versione hardware:</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>Versione software:</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>Ore di esercizio:</translation>
    </message>
    <message>
        <source>  Firmware Aktualisierung...
  Bitte warten...</source>
        <translation>  Aggiornamento firmware...
  Attendere...</translation>
    </message>
    <message>
        <source>  Meine Programme werden geladen.
  Bitte warten...</source>
        <translation>  Caricamento dei miei programmi.
  Attendere...</translation>
    </message>
    <message>
        <source>  Meine Programme werden gesichert.
  Bitte warten...</source>
        <translation>  Salvataggio dei miei programmi.
  Attendere...</translation>
    </message>
    <message>
        <source>  Daten sichern.
  Bitte warten...</source>
        <translation>  Backup dei dati.
  Attendere...</translation>
    </message>
    <message>
        <source>  Konfiguration aktualisieren...
  Bitte warten...</source>
        <translation>  Aggiornamento configurazione...
  Attendere...</translation>
    </message>
    <message>
        <source>  Erfolgreich.</source>
        <translation>  Riuscito.</translation>
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
        <translation>Pronto</translation>
    </message>
    <message>
        <source>  Fehlgeschlagen.</source>
        <translation>  Non riuscito.</translation>
    </message>
    <message>
        <source>Hauptmenü</source>
        <translation>Menu principale</translation>
    </message>
    <message>
        <source>Datum &amp; Uhrzeit</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>Programm beendet</source>
        <translation>Programma terminato</translation>
    </message>
    <message>
        <source>Programm abgebrochen</source>
        <translation>Programma interrotto</translation>
    </message>
    <message>
        <source>Trocknen</source>
        <translation>Essiccare</translation>
    </message>
    <message>
        <source>Startzeit</source>
        <translation>Ora avvio</translation>
    </message>
    <message>
        <source>Tür</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvio</translation>
    </message>
    <message>
        <source>Ende %1</source>
        <translation>Fine %1</translation>
    </message>
    <message>
        <source>Brennprotokolle</source>
        <translation>Registri di cottura</translation>
    </message>
    <message>
        <source>Stopp</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Labor-Verbindung</source>
        <translation>Collegamento laboratorio</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::DateTimePopup</name>
    <message>
        <source>Abbrechen</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::Popup</name>
    <message>
        <source>Argon oder Zirkon?</source>
        <translation>Argon o zirconia?</translation>
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
        <translation>Errori</translation>
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
        <translation>Programma non salvato!
Tornare al menu principale?</translation>
    </message>
    <message>
        <source>Programm nicht gespeichert!
Zurück?</source>
        <translation>Programma non salvato!
Tornare indietro?</translation>
    </message>
    <message>
        <source>Editor verlassen</source>
        <translation>Esci dall&apos;editor</translation>
    </message>
    <message>
        <source>Verwerfen</source>
        <translation>Scarta</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupLicense</name>
    <message>
        <source>Diese Software verwendet das Qt Toolkit (Qt 5, LGPL v3).</source>
        <translation>Questo software utilizza il toolkit Qt (Qt 5, LGPL v3).</translation>
    </message>
    <message>
        <source>Qt-Version: %1</source>
        <translation>Versione Qt: %1</translation>
    </message>
    <message>
        <source>Qt ist unter der GNU Lesser General Public License Version 3 (LGPL v3) lizenziert. Die Qt-Bibliotheken sind dynamisch eingebunden und können durch eine eigene, kompatible Version ersetzt werden. Den Lizenztext finden Sie unter https://www.gnu.org/licenses/lgpl-3.0.html, den Quellcode von Qt unter https://download.qt.io/archive/qt/ und als Quellpaket der verwendeten Debian-Distribution (qtbase-opensource-src).</source>
        <translation>Qt è distribuito con licenza GNU Lesser General Public License versione 3 (LGPL v3). Le librerie Qt sono collegate dinamicamente e possono essere sostituite da una propria versione compatibile. Il testo della licenza si trova su https://www.gnu.org/licenses/lgpl-3.0.html, il codice sorgente di Qt su https://download.qt.io/archive/qt/ e come pacchetto sorgente della distribuzione Debian utilizzata (qtbase-opensource-src).</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>Licenza</translation>
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
        <translation>Codice QR non disponibile</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>Crea codice QR</translation>
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
        <translation>Attenzione! Forno caldo – chiudere la porta!</translation>
    </message>
    <message>
        <source>Tür schließen</source>
        <translation>Chiudi porta</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupUSB</name>
    <message>
        <source>USB-Stick</source>
        <translation>Chiavetta USB</translation>
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
        <translation>Preessiccazione</translation>
    </message>
    <message>
        <source>Halten</source>
        <translation>Mantenimento</translation>
    </message>
    <message>
        <source>Aufheizen</source>
        <translation>Riscaldamento</translation>
    </message>
    <message>
        <source>Segment %1 von %2</source>
        <translation>Segmento %1 di %2</translation>
    </message>
    <message>
        <source>Segment %1</source>
        <translation>Segmento %1</translation>
    </message>
    <message>
        <source>noch %1:%2 h</source>
        <translation>ancora %1:%2 h</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummary</name>
    <message>
        <source>Dauer</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Ende</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Höchste Temperatur</source>
        <translation>Temperatura massima</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummaryView</name>
    <message>
        <source>und %1 weitere</source>
        <translation>e altri %1</translation>
    </message>
    <message>
        <source>Keine Fehler</source>
        <translation>Nessun errore</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeBadge</name>
    <message>
        <source>Auftrag %1</source>
        <translation>Commessa %1</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeField</name>
    <message>
        <source>Auftrag</source>
        <translation>Commessa</translation>
    </message>
    <message>
        <source>Scannen oder tippen</source>
        <translation>Scansiona o digita</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeKeyboard</name>
    <message>
        <source>Auftrag</source>
        <translation>Commessa</translation>
    </message>
    <message>
        <source>Buchstaben, Ziffern, - / . _ und Leerzeichen, höchstens %1 Zeichen</source>
        <translation>Lettere, cifre, - / . _ e spazi, al massimo %1 caratteri</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringDetailView</name>
    <message>
        <source>gemessen</source>
        <translation>misurata</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>prevista</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Dauer</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Vortrocknen</source>
        <translation>Preessiccazione</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Errori</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Auftrag</source>
        <translation>Commessa</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringHistoryView</name>
    <message>
        <source>Brennprotokolle</source>
        <translation>Registri di cottura</translation>
    </message>
    <message>
        <source>Brände: %1</source>
        <translation>Cotture: %1</translation>
    </message>
    <message>
        <source>Noch kein Brand aufgezeichnet</source>
        <translation>Nessuna cottura registrata</translation>
    </message>
    <message>
        <source>Auftrag %1</source>
        <translation>Commessa %1</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringPainter</name>
    <message>
        <source>Erfolgreich</source>
        <translation>Riuscita</translation>
    </message>
    <message>
        <source>Fehlgeschlagen</source>
        <translation>Fallita</translation>
    </message>
    <message>
        <source>Abgebrochen</source>
        <translation>Interrotta dall&apos;utente</translation>
    </message>
    <message>
        <source>Unterbrochen</source>
        <translation>Interrotta</translation>
    </message>
    <message>
        <source>Läuft</source>
        <translation>In corso</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringReport</name>
    <message>
        <source>Brennprotokoll</source>
        <translation>Registro di cottura</translation>
    </message>
    <message>
        <source>Gerät</source>
        <translation>Forno</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>Tipo + serie:</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>Numero di serie:</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>Versione hardware:</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>Versione software:</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>Ore di esercizio:</translation>
    </message>
    <message>
        <source>Brand</source>
        <translation>Cottura</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>Inizio:</translation>
    </message>
    <message>
        <source>Ende:</source>
        <translation>Fine:</translation>
    </message>
    <message>
        <source>Dauer:</source>
        <translation>Durata:</translation>
    </message>
    <message>
        <source>Material:</source>
        <translation>Materiale:</translation>
    </message>
    <message>
        <source>Vortrocknen:</source>
        <translation>Preessiccazione:</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Verzögerter Start:</source>
        <translation>Avvio ritardato:</translation>
    </message>
    <message>
        <source>Ergebnis:</source>
        <translation>Risultato:</translation>
    </message>
    <message>
        <source>Programm</source>
        <translation>Programma</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>Segmento</translation>
    </message>
    <message>
        <source>Rate %1/min</source>
        <translation>Velocità %1/min</translation>
    </message>
    <message>
        <source>Temperatur %1</source>
        <translation>Temperatura %1</translation>
    </message>
    <message>
        <source>Haltezeit min</source>
        <translation>Mantenimento min</translation>
    </message>
    <message>
        <source>Programmtext nicht lesbar</source>
        <translation>Testo del programma illeggibile</translation>
    </message>
    <message>
        <source>Temperaturverlauf</source>
        <translation>Curva di temperatura</translation>
    </message>
    <message>
        <source>gemessen</source>
        <translation>misurata</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>prevista</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Errori</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Auftrag:</source>
        <translation>Commessa:</translation>
    </message>
</context>
</TS>
