<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>DateTimePopup</name>
    <message>
        <source>Datum</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>TT</source>
        <translation>JJ</translation>
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
        <translation>Heure</translation>
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
        <translation>Vérifiez les champs marqués en rouge.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Ofen</source>
        <translation>Four</translation>
    </message>
    <message>
        <source>Bitte warten …</source>
        <translation>Veuillez patienter …</translation>
    </message>
    <message>
        <source>Service-PIN:</source>
        <translation>PIN service&#xa0;:</translation>
    </message>
    <message>
        <source>Verbindung zum Ofen wird hergestellt …</source>
        <translation>Connexion au four …</translation>
    </message>
    <message>
        <source>Materialwechsel</source>
        <translation>Changement de matériau</translation>
    </message>
    <message>
        <source>Bitte Türisolation einsetzen</source>
        <translation>Insérez l&apos;isolation de porte</translation>
    </message>
</context>
<context>
    <name>PopupArgonFailure</name>
    <message>
        <source>Überprüfung der Argon Versorgung
fehlgeschlagen.

Bitte die Anschlüsse und Eingangsdruck
überprüfen und den Prozess neu starten.</source>
        <translation>Échec du contrôle
de l&apos;alimentation en argon.

Vérifiez les raccords et la pression d&apos;entrée,
puis relancez le processus.</translation>
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
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>PopupDeleteFailureList</name>
    <message>
        <source>Fehlerliste wird endgültig gelöscht!</source>
        <translation>La liste des erreurs sera définitivement supprimée&#xa0;!</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>Effacer les erreurs</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>PopupDeleteProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>Le programme sera définitivement supprimé&#xa0;!</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>PopupOverrideProg</name>
    <message>
        <source>Programm wird überschrieben!</source>
        <translation>Le programme sera écrasé&#xa0;!</translation>
    </message>
    <message>
        <source>Programm überschreiben</source>
        <translation>Écraser le programme</translation>
    </message>
    <message>
        <source>Überschreiben</source>
        <translation>Écraser</translation>
    </message>
</context>
<context>
    <name>PopupQuitProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>Le programme sera définitivement supprimé&#xa0;!</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>PopupSettings</name>
    <message>
        <source>Werkseinstellungen</source>
        <translation>Réglages d&apos;usine</translation>
    </message>
    <message>
        <source>Alle eigenen Programme werden gelöscht und die Werkseinstellungen wiederhergestellt!</source>
        <translation>Tous vos programmes seront supprimés et les réglages d&apos;usine rétablis&#xa0;!</translation>
    </message>
    <message>
        <source>Zurücksetzen</source>
        <translation>Réinitialiser</translation>
    </message>
</context>
<context>
    <name>PopupStop</name>
    <message>
        <source>Prozess wird abgebrochen!</source>
        <translation>Le processus sera interrompu&#xa0;!</translation>
    </message>
    <message>
        <source>Prozess stoppen</source>
        <translation>Arrêter le processus</translation>
    </message>
    <message>
        <source>Stoppen</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Fortsetzen</source>
        <translation>Continuer</translation>
    </message>
</context>
<context>
    <name>PopupTimeAdjust</name>
    <message>
        <source>Datum und Uhrzeit</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>ProgramFilter</name>
    <message>
        <source>Meine Programme</source>
        <translation>Mes programmes</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>Programmes service</translation>
    </message>
</context>
<context>
    <name>SelftestProgress</name>
    <message>
        <source>%1 von %2 Prüfungen abgeschlossen</source>
        <translation>%1 sur %2 tests terminés</translation>
    </message>
</context>
<context>
    <name>TimerPopup</name>
    <message>
        <source>Startzeit festlegen</source>
        <translation>Définir l&apos;heure de départ</translation>
    </message>
    <message>
        <source>Übernehmen</source>
        <translation>Appliquer</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::FailureSeverity</name>
    <message>
        <source>Schwerer Fehler</source>
        <translation>Erreur grave</translation>
    </message>
    <message>
        <source>Warnung</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Information</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NewProgram</name>
    <message>
        <source>Programm sichern</source>
        <translation>Enregistrer le programme</translation>
    </message>
    <message>
        <source>Name ungültig: bitte einen Namen eingeben</source>
        <translation>Nom invalide&#xa0;: saisissez un nom</translation>
    </message>
    <message>
        <source>Name ungültig: Zeichen ; = , . und $$ sind nicht erlaubt</source>
        <translation>Nom invalide&#xa0;: ; = , . et $$ interdits</translation>
    </message>
    <message>
        <source>Name ungültig: nur Zeichen westeuropäischer Sprachen sind erlaubt</source>
        <translation>Nom invalide&#xa0;: caractères d&apos;Europe occidentale uniquement</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NumPad</name>
    <message>
        <source>Zu viele falsche Eingaben.
Gesperrt: noch %1 s</source>
        <translation>Trop de saisies erronées.
Bloqué : encore %1 s</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::TableHead</name>
    <message>
        <source>Nr.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Temperatur (°F)</source>
        <translation>Température (°F)</translation>
    </message>
    <message>
        <source>Temperatur (°C)</source>
        <translation>Température (°C)</translation>
    </message>
    <message>
        <source>Haltezeit (min)</source>
        <translation>Palier (min)</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkStatus</name>
    <message>
        <source>Nicht eingerichtet</source>
        <translation>Non configurée</translation>
    </message>
    <message>
        <source>Verbunden</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Nicht verbunden</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>Der Name des Servers ist unbekannt</source>
        <translation>Le nom du serveur est inconnu</translation>
    </message>
    <message>
        <source>Der Server ist nicht erreichbar</source>
        <translation>Le serveur est injoignable</translation>
    </message>
    <message>
        <source>Der Server hat die Verbindung abgelehnt</source>
        <translation>Le serveur a refusé la connexion</translation>
    </message>
    <message>
        <source>Benutzername oder Passwort falsch</source>
        <translation>Nom d&apos;utilisateur ou mot de passe erroné</translation>
    </message>
    <message>
        <source>Die verschlüsselte Verbindung ist fehlgeschlagen</source>
        <translation>La connexion chiffrée a échoué</translation>
    </message>
    <message>
        <source>Die Verbindung ist abgebrochen</source>
        <translation>La connexion a été interrompue</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkView</name>
    <message>
        <source>Labor-Verbindung</source>
        <translation>Liaison labo</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Verlauf senden</source>
        <translation>Envoyer l&apos;historique</translation>
    </message>
    <message>
        <source>Server: %1</source>
        <translation>Serveur : %1</translation>
    </message>
    <message>
        <source>Zustand: %1</source>
        <translation>État : %1</translation>
    </message>
    <message>
        <source>Letzter Fehler: %1</source>
        <translation>Dernière erreur : %1</translation>
    </message>
    <message>
        <source>Wartende Protokolle: %1</source>
        <translation>Journaux en attente : %1</translation>
    </message>
    <message>
        <source>Laboransicht koppeln</source>
        <translation>Associer la vue laboratoire</translation>
    </message>
    <message>
        <source>Die Laboransicht antwortet nicht.</source>
        <translation>La vue laboratoire ne répond pas.</translation>
    </message>
    <message>
        <source>Die Laboransicht konnte nicht gekoppelt werden.</source>
        <translation>La vue laboratoire n&apos;a pas pu être associée.</translation>
    </message>
</context>
<context>
    <name>ovra::MainWindow::MainWindow</name>
    <message>
        <source>Favoriten</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Programmoptionen</source>
        <translation>Options programme</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Filteroptionen</source>
        <translation>Options de filtre</translation>
    </message>
    <message>
        <source>USB Stick erkannt</source>
        <translation>Clé USB détectée</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>Programmes</translation>
    </message>
    <message>
        <source>Sprache</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Temperatureinheit</source>
        <translation>Unité de température</translation>
    </message>
    <message>
        <source>Neues Programm</source>
        <translation>Nouveau programme</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>Programmes service</translation>
    </message>
    <message>
        <source>Meine Programme</source>
        <translation>Mes programmes</translation>
    </message>
    <message>
        <source>Feste Programme</source>
        <translation>Programmes prédéfinis</translation>
    </message>
    <message>
        <source>Gerätedaten</source>
        <translation>Données de l&apos;appareil</translation>
    </message>
    <message>
        <source>Systemtest</source>
        <translation>Autotest</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Erreurs</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>Effacer les erreurs</translation>
    </message>
    <message>
        <source>Werkseinstellungen</source>
        <translation>Réglages d&apos;usine</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Programm ändern</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Systemtest wiederholen</source>
        <translation>Répéter l&apos;autotest</translation>
    </message>
    <message>
        <source>Hersteller</source>
        <translation>Fabricant</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Matériau</translation>
    </message>
    <message>
        <source>Firmware Aktualisierung</source>
        <translation>Mise à jour firmware</translation>
    </message>
    <message>
        <source>Konfiguration aktualisieren</source>
        <translation>Mettre à jour la configuration</translation>
    </message>
    <message>
        <source>Meine Programme laden</source>
        <translation>Charger mes programmes</translation>
    </message>
    <message>
        <source>Meine Programme sichern</source>
        <translation>Sauvegarder mes programmes</translation>
    </message>
    <message>
        <source>Daten sichern</source>
        <translation>Sauvegarder les données</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>Créer un code QR</translation>
    </message>
    <message>
        <source>Tür öffnen/schließen</source>
        <translation>Ouvrir/fermer la porte</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit einstellen</source>
        <translation>Régler date et heure</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Türmechanik</source>
        <translation>Mécanisme de porte</translation>
    </message>
    <message>
        <source>Heizsystem</source>
        <translation>Système de chauffe</translation>
    </message>
    <message>
        <source>Kühlsystem</source>
        <translation>Système de refroidissement</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>Argon</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>Type + série&#xa0;:</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>N° de série&#xa0;:</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>Version matérielle&#xa0;:</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>Version logicielle&#xa0;:</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>Heures de service&#xa0;:</translation>
    </message>
    <message>
        <source>  Firmware Aktualisierung...
  Bitte warten...</source>
        <translation>  Mise à jour du firmware...
  Veuillez patienter...</translation>
    </message>
    <message>
        <source>  Meine Programme werden geladen.
  Bitte warten...</source>
        <translation>  Chargement de mes programmes.
  Veuillez patienter...</translation>
    </message>
    <message>
        <source>  Meine Programme werden gesichert.
  Bitte warten...</source>
        <translation>  Sauvegarde de mes programmes.
  Veuillez patienter...</translation>
    </message>
    <message>
        <source>  Daten sichern.
  Bitte warten...</source>
        <translation>  Sauvegarde des données.
  Veuillez patienter...</translation>
    </message>
    <message>
        <source>  Konfiguration aktualisieren...
  Bitte warten...</source>
        <translation>  Mise à jour de la configuration...
  Veuillez patienter...</translation>
    </message>
    <message>
        <source>  Erfolgreich.</source>
        <translation>  Réussi.</translation>
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
        <translation>Prêt</translation>
    </message>
    <message>
        <source>  Fehlgeschlagen.</source>
        <translation>  Échec.</translation>
    </message>
    <message>
        <source>Hauptmenü</source>
        <translation>Menu principal</translation>
    </message>
    <message>
        <source>Datum &amp; Uhrzeit</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Programm beendet</source>
        <translation>Programme terminé</translation>
    </message>
    <message>
        <source>Programm abgebrochen</source>
        <translation>Programme interrompu</translation>
    </message>
    <message>
        <source>Trocknen</source>
        <translation>Séchage</translation>
    </message>
    <message>
        <source>Startzeit</source>
        <translation>Différé</translation>
    </message>
    <message>
        <source>Tür</source>
        <translation>Porte</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>Ende %1</source>
        <translation>Fin %1</translation>
    </message>
    <message>
        <source>Brennprotokolle</source>
        <translation>Journaux de cuisson</translation>
    </message>
    <message>
        <source>Stopp</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>Labor-Verbindung</source>
        <translation>Liaison labo</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::DateTimePopup</name>
    <message>
        <source>Abbrechen</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::Popup</name>
    <message>
        <source>Argon oder Zirkon?</source>
        <translation>Argon ou zircone&#xa0;?</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>Argon</translation>
    </message>
    <message>
        <source>Zirkon</source>
        <translation>Zircone</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupFailure</name>
    <message>
        <source>Fehler</source>
        <translation>Erreurs</translation>
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
        <translation>Programme non enregistré&#xa0;!
Retour au menu principal&#xa0;?</translation>
    </message>
    <message>
        <source>Programm nicht gespeichert!
Zurück?</source>
        <translation>Programme non enregistré&#xa0;!
Revenir en arrière&#xa0;?</translation>
    </message>
    <message>
        <source>Editor verlassen</source>
        <translation>Quitter l&apos;éditeur</translation>
    </message>
    <message>
        <source>Verwerfen</source>
        <translation>Abandonner</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupLicense</name>
    <message>
        <source>Diese Software verwendet das Qt Toolkit (Qt 5, LGPL v3).</source>
        <translation>Ce logiciel utilise la bibliothèque Qt (Qt 5, LGPL v3).</translation>
    </message>
    <message>
        <source>Qt-Version: %1</source>
        <translation>Version de Qt&#xa0;: %1</translation>
    </message>
    <message>
        <source>Qt ist unter der GNU Lesser General Public License Version 3 (LGPL v3) lizenziert. Die Qt-Bibliotheken sind dynamisch eingebunden und können durch eine eigene, kompatible Version ersetzt werden. Den Lizenztext finden Sie unter https://www.gnu.org/licenses/lgpl-3.0.html, den Quellcode von Qt unter https://download.qt.io/archive/qt/ und als Quellpaket der verwendeten Debian-Distribution (qtbase-opensource-src).</source>
        <translation>Qt est distribué sous la GNU Lesser General Public License version 3 (LGPL v3). Les bibliothèques Qt sont liées dynamiquement et peuvent être remplacées par votre propre version compatible. Le texte de la licence se trouve sur https://www.gnu.org/licenses/lgpl-3.0.html, le code source de Qt sur https://download.qt.io/archive/qt/ et sous forme de paquet source de la distribution Debian utilisée (qtbase-opensource-src).</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>Licence</translation>
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
        <translation>Code QR non disponible</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>Créer un code QR</translation>
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
        <translation>Attention&#xa0;! Four chaud – fermez la porte&#xa0;!</translation>
    </message>
    <message>
        <source>Tür schließen</source>
        <translation>Fermer la porte</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupUSB</name>
    <message>
        <source>USB-Stick</source>
        <translation>Clé USB</translation>
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
        <translation>Pré-séchage</translation>
    </message>
    <message>
        <source>Halten</source>
        <translation>Palier</translation>
    </message>
    <message>
        <source>Aufheizen</source>
        <translation>Chauffe</translation>
    </message>
    <message>
        <source>Segment %1 von %2</source>
        <translation>Segment %1 sur %2</translation>
    </message>
    <message>
        <source>Segment %1</source>
        <translation>Segment %1</translation>
    </message>
    <message>
        <source>noch %1:%2 h</source>
        <translation>reste %1:%2 h</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummary</name>
    <message>
        <source>Dauer</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Ende</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Höchste Temperatur</source>
        <translation>Température maximale</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummaryView</name>
    <message>
        <source>und %1 weitere</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>Keine Fehler</source>
        <translation>Aucune erreur</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeBadge</name>
    <message>
        <source>Auftrag %1</source>
        <translation>Commande %1</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeField</name>
    <message>
        <source>Auftrag</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Scannen oder tippen</source>
        <translation>Scanner ou saisir</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeKeyboard</name>
    <message>
        <source>Auftrag</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Buchstaben, Ziffern, - / . _ und Leerzeichen, höchstens %1 Zeichen</source>
        <translation>Lettres, chiffres, - / . _ et espaces, %1 caractères au plus</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringDetailView</name>
    <message>
        <source>gemessen</source>
        <translation>mesuré</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>prévu</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Dauer</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Vortrocknen</source>
        <translation>Pré-séchage</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Erreurs</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Auftrag</source>
        <translation>Commande</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringHistoryView</name>
    <message>
        <source>Brennprotokolle</source>
        <translation>Journaux de cuisson</translation>
    </message>
    <message>
        <source>Brände: %1</source>
        <translation>Cuissons : %1</translation>
    </message>
    <message>
        <source>Noch kein Brand aufgezeichnet</source>
        <translation>Aucune cuisson enregistrée</translation>
    </message>
    <message>
        <source>Auftrag %1</source>
        <translation>Commande %1</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringPainter</name>
    <message>
        <source>Erfolgreich</source>
        <translation>Réussie</translation>
    </message>
    <message>
        <source>Fehlgeschlagen</source>
        <translation>Échouée</translation>
    </message>
    <message>
        <source>Abgebrochen</source>
        <translation>Arrêtée</translation>
    </message>
    <message>
        <source>Unterbrochen</source>
        <translation>Interrompue</translation>
    </message>
    <message>
        <source>Läuft</source>
        <translation>En cours</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringReport</name>
    <message>
        <source>Brennprotokoll</source>
        <translation>Journal de cuisson</translation>
    </message>
    <message>
        <source>Gerät</source>
        <translation>Four</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>Type + série&#xa0;:</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>N° de série&#xa0;:</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>Version matérielle&#xa0;:</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>Version logicielle&#xa0;:</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>Heures de service&#xa0;:</translation>
    </message>
    <message>
        <source>Brand</source>
        <translation>Cuisson</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>Début :</translation>
    </message>
    <message>
        <source>Ende:</source>
        <translation>Fin :</translation>
    </message>
    <message>
        <source>Dauer:</source>
        <translation>Durée :</translation>
    </message>
    <message>
        <source>Material:</source>
        <translation>Matériau :</translation>
    </message>
    <message>
        <source>Vortrocknen:</source>
        <translation>Pré-séchage :</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Verzögerter Start:</source>
        <translation>Départ différé :</translation>
    </message>
    <message>
        <source>Ergebnis:</source>
        <translation>Résultat :</translation>
    </message>
    <message>
        <source>Programm</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>Segment</translation>
    </message>
    <message>
        <source>Rate %1/min</source>
        <translation>Vitesse %1/min</translation>
    </message>
    <message>
        <source>Temperatur %1</source>
        <translation>Température %1</translation>
    </message>
    <message>
        <source>Haltezeit min</source>
        <translation>Palier min</translation>
    </message>
    <message>
        <source>Programmtext nicht lesbar</source>
        <translation>Texte du programme illisible</translation>
    </message>
    <message>
        <source>Temperaturverlauf</source>
        <translation>Courbe de température</translation>
    </message>
    <message>
        <source>gemessen</source>
        <translation>mesuré</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>prévu</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Erreurs</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Auftrag:</source>
        <translation>Commande :</translation>
    </message>
</context>
</TS>
