<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>DateTimePopup</name>
    <message>
        <source>Datum</source>
        <translation>Fecha</translation>
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
        <translation>AAAA</translation>
    </message>
    <message>
        <source>Uhrzeit</source>
        <translation>Hora</translation>
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
        <translation>Revise los campos marcados en rojo.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Ofen</source>
        <translation>Horno</translation>
    </message>
    <message>
        <source>Bitte warten …</source>
        <translation>Espere, por favor …</translation>
    </message>
    <message>
        <source>Service-PIN:</source>
        <translation>PIN de servicio:</translation>
    </message>
    <message>
        <source>Verbindung zum Ofen wird hergestellt …</source>
        <translation>Conectando con el horno …</translation>
    </message>
    <message>
        <source>Materialwechsel</source>
        <translation>Cambio de material</translation>
    </message>
    <message>
        <source>Bitte Türisolation einsetzen</source>
        <translation>Coloque el aislamiento de la puerta</translation>
    </message>
</context>
<context>
    <name>PopupArgonFailure</name>
    <message>
        <source>Überprüfung der Argon Versorgung
fehlgeschlagen.

Bitte die Anschlüsse und Eingangsdruck
überprüfen und den Prozess neu starten.</source>
        <translation>Fallo en la comprobación
del suministro de argón.

Compruebe las conexiones y la presión de entrada
y reinicie el proceso.</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>Argón</translation>
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
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>PopupDeleteFailureList</name>
    <message>
        <source>Fehlerliste wird endgültig gelöscht!</source>
        <translation>¡La lista de errores se borrará definitivamente!</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>Borrar errores</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>PopupDeleteProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>¡El programa se borrará definitivamente!</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Borrar programa</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>PopupOverrideProg</name>
    <message>
        <source>Programm wird überschrieben!</source>
        <translation>¡El programa se sobrescribirá!</translation>
    </message>
    <message>
        <source>Programm überschreiben</source>
        <translation>Sobrescribir programa</translation>
    </message>
    <message>
        <source>Überschreiben</source>
        <translation>Sobrescribir</translation>
    </message>
</context>
<context>
    <name>PopupQuitProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>¡El programa se borrará definitivamente!</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Borrar programa</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>PopupSettings</name>
    <message>
        <source>Werkseinstellungen</source>
        <translation>Ajustes de fábrica</translation>
    </message>
    <message>
        <source>Alle eigenen Programme werden gelöscht und die Werkseinstellungen wiederhergestellt!</source>
        <translation>¡Se borrarán todos sus programas y se restablecerán los ajustes de fábrica!</translation>
    </message>
    <message>
        <source>Zurücksetzen</source>
        <translation>Restablecer</translation>
    </message>
</context>
<context>
    <name>PopupStop</name>
    <message>
        <source>Prozess wird abgebrochen!</source>
        <translation>¡El proceso se cancelará!</translation>
    </message>
    <message>
        <source>Prozess stoppen</source>
        <translation>Detener proceso</translation>
    </message>
    <message>
        <source>Stoppen</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Fortsetzen</source>
        <translation>Continuar</translation>
    </message>
</context>
<context>
    <name>PopupTimeAdjust</name>
    <message>
        <source>Datum und Uhrzeit</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>ProgramFilter</name>
    <message>
        <source>Meine Programme</source>
        <translation>Mis programas</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>Programas de servicio</translation>
    </message>
</context>
<context>
    <name>SelftestProgress</name>
    <message>
        <source>%1 von %2 Prüfungen abgeschlossen</source>
        <translation>%1 de %2 pruebas hechas</translation>
    </message>
</context>
<context>
    <name>TimerPopup</name>
    <message>
        <source>Startzeit festlegen</source>
        <translation>Fijar hora de inicio</translation>
    </message>
    <message>
        <source>Übernehmen</source>
        <translation>Aplicar</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::FailureSeverity</name>
    <message>
        <source>Schwerer Fehler</source>
        <translation>Error grave</translation>
    </message>
    <message>
        <source>Warnung</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Información</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NewProgram</name>
    <message>
        <source>Programm sichern</source>
        <translation>Guardar programa</translation>
    </message>
    <message>
        <source>Name ungültig: bitte einen Namen eingeben</source>
        <translation>Nombre no válido: introduzca un nombre</translation>
    </message>
    <message>
        <source>Name ungültig: Zeichen ; = , . und $$ sind nicht erlaubt</source>
        <translation>Nombre no válido: no se admiten ; = , . ni $$</translation>
    </message>
    <message>
        <source>Name ungültig: nur Zeichen westeuropäischer Sprachen sind erlaubt</source>
        <translation>Nombre no válido: solo caracteres de Europa occidental</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NumPad</name>
    <message>
        <source>Zu viele falsche Eingaben.
Gesperrt: noch %1 s</source>
        <translation>Demasiadas entradas incorrectas.
Bloqueado: quedan %1 s</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::TableHead</name>
    <message>
        <source>Nr.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Velocidad</translation>
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
        <translation>Permanencia (min)</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkStatus</name>
    <message>
        <source>Nicht eingerichtet</source>
        <translation>No configurada</translation>
    </message>
    <message>
        <source>Verbunden</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Nicht verbunden</source>
        <translation>No conectado</translation>
    </message>
    <message>
        <source>Der Name des Servers ist unbekannt</source>
        <translation>El nombre del servidor es desconocido</translation>
    </message>
    <message>
        <source>Der Server ist nicht erreichbar</source>
        <translation>No se puede acceder al servidor</translation>
    </message>
    <message>
        <source>Der Server hat die Verbindung abgelehnt</source>
        <translation>El servidor rechazó la conexión</translation>
    </message>
    <message>
        <source>Benutzername oder Passwort falsch</source>
        <translation>Usuario o contraseña incorrectos</translation>
    </message>
    <message>
        <source>Die verschlüsselte Verbindung ist fehlgeschlagen</source>
        <translation>Falló la conexión cifrada</translation>
    </message>
    <message>
        <source>Die Verbindung ist abgebrochen</source>
        <translation>Se perdió la conexión</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkView</name>
    <message>
        <source>Labor-Verbindung</source>
        <translation>Conexión al laboratorio</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Verlauf senden</source>
        <translation>Enviar historial</translation>
    </message>
    <message>
        <source>Server: %1</source>
        <translation>Servidor: %1</translation>
    </message>
    <message>
        <source>Zustand: %1</source>
        <translation>Estado: %1</translation>
    </message>
    <message>
        <source>Letzter Fehler: %1</source>
        <translation>Último error: %1</translation>
    </message>
    <message>
        <source>Wartende Protokolle: %1</source>
        <translation>Registros en espera: %1</translation>
    </message>
    <message>
        <source>Laboransicht koppeln</source>
        <translation>Vincular vista de laboratorio</translation>
    </message>
    <message>
        <source>Die Laboransicht antwortet nicht.</source>
        <translation>La vista de laboratorio no responde.</translation>
    </message>
    <message>
        <source>Die Laboransicht konnte nicht gekoppelt werden.</source>
        <translation>No se pudo vincular la vista de laboratorio.</translation>
    </message>
</context>
<context>
    <name>ovra::MainWindow::MainWindow</name>
    <message>
        <source>Favoriten</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Programmoptionen</source>
        <translation>Opciones de programa</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Servicio</translation>
    </message>
    <message>
        <source>Filteroptionen</source>
        <translation>Opciones de filtro</translation>
    </message>
    <message>
        <source>USB Stick erkannt</source>
        <translation>Memoria USB detectada</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>Programas</translation>
    </message>
    <message>
        <source>Sprache</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Temperatureinheit</source>
        <translation>Unidad de temperatura</translation>
    </message>
    <message>
        <source>Neues Programm</source>
        <translation>Nuevo programa</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>Programas de servicio</translation>
    </message>
    <message>
        <source>Meine Programme</source>
        <translation>Mis programas</translation>
    </message>
    <message>
        <source>Feste Programme</source>
        <translation>Programas fijos</translation>
    </message>
    <message>
        <source>Gerätedaten</source>
        <translation>Datos del equipo</translation>
    </message>
    <message>
        <source>Systemtest</source>
        <translation>Autotest</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Errores</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>Borrar errores</translation>
    </message>
    <message>
        <source>Werkseinstellungen</source>
        <translation>Ajustes de fábrica</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Borrar programa</translation>
    </message>
    <message>
        <source>Programm ändern</source>
        <translation>Modificar programa</translation>
    </message>
    <message>
        <source>Systemtest wiederholen</source>
        <translation>Repetir autotest</translation>
    </message>
    <message>
        <source>Hersteller</source>
        <translation>Fabricante</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Firmware Aktualisierung</source>
        <translation>Actualizar firmware</translation>
    </message>
    <message>
        <source>Konfiguration aktualisieren</source>
        <translation>Actualizar configuración</translation>
    </message>
    <message>
        <source>Meine Programme laden</source>
        <translation>Cargar mis programas</translation>
    </message>
    <message>
        <source>Meine Programme sichern</source>
        <translation>Guardar mis programas</translation>
    </message>
    <message>
        <source>Daten sichern</source>
        <translation>Copia de seguridad</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>Crear código QR</translation>
    </message>
    <message>
        <source>Tür öffnen/schließen</source>
        <translation>Abrir/cerrar puerta</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>Licencia</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit einstellen</source>
        <translation>Ajustar fecha y hora</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Türmechanik</source>
        <translation>Mecánica de la puerta</translation>
    </message>
    <message>
        <source>Heizsystem</source>
        <translation>Sistema de calentamiento</translation>
    </message>
    <message>
        <source>Kühlsystem</source>
        <translation>Sistema de refrigeración</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>Argón</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>Tipo + serie:</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>N.º de serie:</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>Versión de hardware:</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>Versión de software:</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>Horas de servicio:</translation>
    </message>
    <message>
        <source>  Firmware Aktualisierung...
  Bitte warten...</source>
        <translation>  Actualizando firmware...
  Espere, por favor...</translation>
    </message>
    <message>
        <source>  Meine Programme werden geladen.
  Bitte warten...</source>
        <translation>  Cargando mis programas.
  Espere, por favor...</translation>
    </message>
    <message>
        <source>  Meine Programme werden gesichert.
  Bitte warten...</source>
        <translation>  Guardando mis programas.
  Espere, por favor...</translation>
    </message>
    <message>
        <source>  Daten sichern.
  Bitte warten...</source>
        <translation>  Creando copia de seguridad.
  Espere, por favor...</translation>
    </message>
    <message>
        <source>  Konfiguration aktualisieren...
  Bitte warten...</source>
        <translation>  Actualizando configuración...
  Espere, por favor...</translation>
    </message>
    <message>
        <source>  Erfolgreich.</source>
        <translation>  Correcto.</translation>
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
        <translation>Listo</translation>
    </message>
    <message>
        <source>  Fehlgeschlagen.</source>
        <translation>  Fallido.</translation>
    </message>
    <message>
        <source>Hauptmenü</source>
        <translation>Menú principal</translation>
    </message>
    <message>
        <source>Datum &amp; Uhrzeit</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Programm beendet</source>
        <translation>Programa terminado</translation>
    </message>
    <message>
        <source>Programm abgebrochen</source>
        <translation>Programa cancelado</translation>
    </message>
    <message>
        <source>Trocknen</source>
        <translation>Secar</translation>
    </message>
    <message>
        <source>Startzeit</source>
        <translation>Diferido</translation>
    </message>
    <message>
        <source>Tür</source>
        <translation>Puerta</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Ende %1</source>
        <translation>Fin %1</translation>
    </message>
    <message>
        <source>Brennprotokolle</source>
        <translation>Registros de cocción</translation>
    </message>
    <message>
        <source>Stopp</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Labor-Verbindung</source>
        <translation>Conexión al laboratorio</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::DateTimePopup</name>
    <message>
        <source>Abbrechen</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::Popup</name>
    <message>
        <source>Argon oder Zirkon?</source>
        <translation>¿Argón o circonio?</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>Argón</translation>
    </message>
    <message>
        <source>Zirkon</source>
        <translation>Circonio</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupFailure</name>
    <message>
        <source>Fehler</source>
        <translation>Errores</translation>
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
        <translation>¡Programa no guardado!
¿Volver al menú principal?</translation>
    </message>
    <message>
        <source>Programm nicht gespeichert!
Zurück?</source>
        <translation>¡Programa no guardado!
¿Volver atrás?</translation>
    </message>
    <message>
        <source>Editor verlassen</source>
        <translation>Salir del editor</translation>
    </message>
    <message>
        <source>Verwerfen</source>
        <translation>Descartar</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupLicense</name>
    <message>
        <source>Diese Software verwendet das Qt Toolkit (Qt 5, LGPL v3).</source>
        <translation>Este software utiliza el toolkit Qt (Qt 5, LGPL v3).</translation>
    </message>
    <message>
        <source>Qt-Version: %1</source>
        <translation>Versión de Qt: %1</translation>
    </message>
    <message>
        <source>Qt ist unter der GNU Lesser General Public License Version 3 (LGPL v3) lizenziert. Die Qt-Bibliotheken sind dynamisch eingebunden und können durch eine eigene, kompatible Version ersetzt werden. Den Lizenztext finden Sie unter https://www.gnu.org/licenses/lgpl-3.0.html, den Quellcode von Qt unter https://download.qt.io/archive/qt/ und als Quellpaket der verwendeten Debian-Distribution (qtbase-opensource-src).</source>
        <translation>Qt se distribuye bajo la GNU Lesser General Public License versión 3 (LGPL v3). Las bibliotecas de Qt están enlazadas dinámicamente y pueden sustituirse por una versión propia compatible. El texto de la licencia está en https://www.gnu.org/licenses/lgpl-3.0.html, el código fuente de Qt en https://download.qt.io/archive/qt/ y como paquete fuente de la distribución Debian utilizada (qtbase-opensource-src).</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>Licencia</translation>
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
        <translation>Código QR no disponible</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>Crear código QR</translation>
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
        <translation>¡Atención! Horno caliente: ¡cierre la puerta!</translation>
    </message>
    <message>
        <source>Tür schließen</source>
        <translation>Cerrar puerta</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupUSB</name>
    <message>
        <source>USB-Stick</source>
        <translation>Memoria USB</translation>
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
        <translation>Presecado</translation>
    </message>
    <message>
        <source>Halten</source>
        <translation>Mantenimiento</translation>
    </message>
    <message>
        <source>Aufheizen</source>
        <translation>Calentamiento</translation>
    </message>
    <message>
        <source>Segment %1 von %2</source>
        <translation>Segmento %1 de %2</translation>
    </message>
    <message>
        <source>Segment %1</source>
        <translation>Segmento %1</translation>
    </message>
    <message>
        <source>noch %1:%2 h</source>
        <translation>quedan %1:%2 h</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummary</name>
    <message>
        <source>Dauer</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Ende</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Höchste Temperatur</source>
        <translation>Temperatura máxima</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummaryView</name>
    <message>
        <source>und %1 weitere</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Keine Fehler</source>
        <translation>Sin errores</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeBadge</name>
    <message>
        <source>Auftrag %1</source>
        <translation>Pedido %1</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeField</name>
    <message>
        <source>Auftrag</source>
        <translation>Pedido</translation>
    </message>
    <message>
        <source>Scannen oder tippen</source>
        <translation>Escanear o escribir</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeKeyboard</name>
    <message>
        <source>Auftrag</source>
        <translation>Pedido</translation>
    </message>
    <message>
        <source>Buchstaben, Ziffern, - / . _ und Leerzeichen, höchstens %1 Zeichen</source>
        <translation>Letras, cifras, - / . _ y espacios, como máximo %1 caracteres</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringDetailView</name>
    <message>
        <source>gemessen</source>
        <translation>medido</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>previsto</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Dauer</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Vortrocknen</source>
        <translation>Presecado</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Errores</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Auftrag</source>
        <translation>Pedido</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringHistoryView</name>
    <message>
        <source>Brennprotokolle</source>
        <translation>Registros de cocción</translation>
    </message>
    <message>
        <source>Brände: %1</source>
        <translation>Cocciones: %1</translation>
    </message>
    <message>
        <source>Noch kein Brand aufgezeichnet</source>
        <translation>Aún no hay cocciones registradas</translation>
    </message>
    <message>
        <source>Auftrag %1</source>
        <translation>Pedido %1</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringPainter</name>
    <message>
        <source>Erfolgreich</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>Fehlgeschlagen</source>
        <translation>Fallido</translation>
    </message>
    <message>
        <source>Abgebrochen</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Unterbrochen</source>
        <translation>Interrumpido</translation>
    </message>
    <message>
        <source>Läuft</source>
        <translation>En curso</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringReport</name>
    <message>
        <source>Brennprotokoll</source>
        <translation>Registro de cocción</translation>
    </message>
    <message>
        <source>Gerät</source>
        <translation>Horno</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>Tipo + serie:</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>N.º de serie:</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>Versión de hardware:</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>Versión de software:</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>Horas de servicio:</translation>
    </message>
    <message>
        <source>Brand</source>
        <translation>Cocción</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>Inicio:</translation>
    </message>
    <message>
        <source>Ende:</source>
        <translation>Fin:</translation>
    </message>
    <message>
        <source>Dauer:</source>
        <translation>Duración:</translation>
    </message>
    <message>
        <source>Material:</source>
        <translation>Material:</translation>
    </message>
    <message>
        <source>Vortrocknen:</source>
        <translation>Presecado:</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Verzögerter Start:</source>
        <translation>Inicio diferido:</translation>
    </message>
    <message>
        <source>Ergebnis:</source>
        <translation>Resultado:</translation>
    </message>
    <message>
        <source>Programm</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>Segmento</translation>
    </message>
    <message>
        <source>Rate %1/min</source>
        <translation>Velocidad %1/min</translation>
    </message>
    <message>
        <source>Temperatur %1</source>
        <translation>Temperatura %1</translation>
    </message>
    <message>
        <source>Haltezeit min</source>
        <translation>Mantenimiento min</translation>
    </message>
    <message>
        <source>Programmtext nicht lesbar</source>
        <translation>Texto del programa ilegible</translation>
    </message>
    <message>
        <source>Temperaturverlauf</source>
        <translation>Curva de temperatura</translation>
    </message>
    <message>
        <source>gemessen</source>
        <translation>medido</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>previsto</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Errores</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Auftrag:</source>
        <translation>Pedido:</translation>
    </message>
</context>
</TS>
