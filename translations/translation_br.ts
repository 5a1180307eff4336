<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>DateTimePopup</name>
    <message>
        <source>Datum</source>
        <translation>Data</translation>
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
        <translation>Verifique os campos marcados em vermelho.</translation>
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
        <translation>Aguarde …</translation>
    </message>
    <message>
        <source>Service-PIN:</source>
        <translation>PIN de serviço:</translation>
    </message>
    <message>
        <source>Verbindung zum Ofen wird hergestellt …</source>
        <translation>Conectando ao forno …</translation>
    </message>
    <message>
        <source>Materialwechsel</source>
        <translation>Troca de material</translation>
    </message>
    <message>
        <source>Bitte Türisolation einsetzen</source>
        <translation>Coloque o isolamento da porta</translation>
    </message>
</context>
<context>
    <name>PopupArgonFailure</name>
    <message>
        <source>Überprüfung der Argon Versorgung
fehlgeschlagen.

Bitte die Anschlüsse und Eingangsdruck
überprüfen und den Prozess neu starten.</source>
        <translation>Falha na verificação
do fornecimento de argônio.

Verifique as conexões e a pressão de entrada
e reinicie o processo.</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>Argônio</translation>
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
        <translation>A lista de erros será excluída definitivamente!</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>e mais %1</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>Apagar erros</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Excluir</translation>
    </message>
</context>
<context>
    <name>PopupDeleteProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>O programa será excluído definitivamente!</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Excluir programa</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Excluir</translation>
    </message>
</context>
<context>
    <name>PopupOverrideProg</name>
    <message>
        <source>Programm wird überschrieben!</source>
        <translation>O programa será sobrescrito!</translation>
    </message>
    <message>
        <source>Programm überschreiben</source>
        <translation>Sobrescrever programa</translation>
    </message>
    <message>
        <source>Überschreiben</source>
        <translation>Sobrescrever</translation>
    </message>
</context>
<context>
    <name>PopupQuitProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>O programa será excluído definitivamente!</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Excluir programa</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Excluir</translation>
    </message>
</context>
<context>
    <name>PopupSettings</name>
    <message>
        <source>Werkseinstellungen</source>
        <translation>Configurações de fábrica</translation>
    </message>
    <message>
        <source>Alle eigenen Programme werden gelöscht und die Werkseinstellungen wiederhergestellt!</source>
        <translation>Todos os seus programas serão excluídos e as configurações de fábrica restauradas!</translation>
    </message>
    <message>
        <source>Zurücksetzen</source>
        <translation>Redefinir</translation>
    </message>
</context>
<context>
    <name>PopupStop</name>
    <message>
        <source>Prozess wird abgebrochen!</source>
        <translation>O processo será interrompido!</translation>
    </message>
    <message>
        <source>Prozess stoppen</source>
        <translation>Parar processo</translation>
    </message>
    <message>
        <source>Stoppen</source>
        <translation>Parar</translation>
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
        <translation>Data e hora</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Salvar</translation>
    </message>
</context>
<context>
    <name>ProgramFilter</name>
    <message>
        <source>Meine Programme</source>
        <translation>Meus programas</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>Programas de serviço</translation>
    </message>
</context>
<context>
    <name>SelftestProgress</name>
    <message>
        <source>%1 von %2 Prüfungen abgeschlossen</source>
        <translation>%1 de %2 testes concluídos</translation>
    </message>
</context>
<context>
    <name>TimerPopup</name>
    <message>
        <source>Startzeit festlegen</source>
        <translation>Definir horário de início</translation>
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
        <translation>Erro grave</translation>
    </message>
    <message>
        <source>Warnung</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Informação</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NewProgram</name>
    <message>
        <source>Programm sichern</source>
        <translation>Salvar programa</translation>
    </message>
    <message>
        <source>Name ungültig: bitte einen Namen eingeben</source>
        <translation>Nome inválido: digite um nome</translation>
    </message>
    <message>
        <source>Name ungültig: Zeichen ; = , . und $$ sind nicht erlaubt</source>
        <translation>Nome inválido: ; = , . e $$ não são permitidos</translation>
    </message>
    <message>
        <source>Name ungültig: nur Zeichen westeuropäischer Sprachen sind erlaubt</source>
        <translation>Nome inválido: só caracteres da Europa Ocidental</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NumPad</name>
    <message>
        <source>Zu viele falsche Eingaben.
Gesperrt: noch %1 s</source>
        <translation>Muitas entradas incorretas.
Bloqueado: restam %1 s</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::TableHead</name>
    <message>
        <source>Nr.</source>
        <translation>Nº</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Taxa</translation>
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
        <translation>Patamar (min)</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkStatus</name>
    <message>
        <source>Nicht eingerichtet</source>
        <translation>Não configurada</translation>
    </message>
    <message>
        <source>Verbunden</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Nicht verbunden</source>
        <translation>Não conectado</translation>
    </message>
    <message>
        <source>Der Name des Servers ist unbekannt</source>
        <translation>O nome do servidor é desconhecido</translation>
    </message>
    <message>
        <source>Der Server ist nicht erreichbar</source>
        <translation>O servidor não está acessível</translation>
    </message>
    <message>
        <source>Der Server hat die Verbindung abgelehnt</source>
        <translation>O servidor recusou a conexão</translation>
    </message>
    <message>
        <source>Benutzername oder Passwort falsch</source>
        <translation>Usuário ou senha incorretos</translation>
    </message>
    <message>
        <source>Die verschlüsselte Verbindung ist fehlgeschlagen</source>
        <translation>A conexão criptografada falhou</translation>
    </message>
    <message>
        <source>Die Verbindung ist abgebrochen</source>
        <translation>A conexão foi perdida</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkView</name>
    <message>
        <source>Labor-Verbindung</source>
        <translation>Conexão com o laboratório</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Verlauf senden</source>
        <translation>Enviar histórico</translation>
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
        <translation>Último erro: %1</translation>
    </message>
    <message>
        <source>Wartende Protokolle: %1</source>
        <translation>Registros aguardando: %1</translation>
    </message>
    <message>
        <source>Laboransicht koppeln</source>
        <translation>Parear visão do laboratório</translation>
    </message>
    <message>
        <source>Die Laboransicht antwortet nicht.</source>
        <translation>A visão do laboratório não responde.</translation>
    </message>
    <message>
        <source>Die Laboransicht konnte nicht gekoppelt werden.</source>
        <translation>Não foi possível parear a visão do laboratório.</translation>
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
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Programmoptionen</source>
        <translation>Opções de programa</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Serviço</translation>
    </message>
    <message>
        <source>Filteroptionen</source>
        <translation>Opções de filtro</translation>
    </message>
    <message>
        <source>USB Stick erkannt</source>
        <translation>Pen drive detectado</translation>
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
        <translation>Unidade de temperatura</translation>
    </message>
    <message>
        <source>Neues Programm</source>
        <translation>Novo programa</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>Programas de serviço</translation>
    </message>
    <message>
        <source>Meine Programme</source>
        <translation>Meus programas</translation>
    </message>
    <message>
        <source>Feste Programme</source>
        <translation>Programas fixos</translation>
    </message>
    <message>
        <source>Gerätedaten</source>
        <translation>Dados do equipamento</translation>
    </message>
    <message>
        <source>Systemtest</source>
        <translation>Autoteste</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Erros</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>Apagar erros</translation>
    </message>
    <message>
        <source>Werkseinstellungen</source>
        <translation>Configurações de fábrica</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Excluir programa</translation>
    </message>
    <message>
        <source>Programm ändern</source>
        <translation>Alterar programa</translation>
    </message>
    <message>
        <source>Systemtest wiederholen</source>
        <translation>Repetir autoteste</translation>
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
        <translation>Atualizar firmware</translation>
    </message>
    <message>
        <source>Konfiguration aktualisieren</source>
        <translation>Atualizar configuração</translation>
    </message>
    <message>
        <source>Meine Programme laden</source>
        <translation>Carregar meus programas</translation>
    </message>
    <message>
        <source>Meine Programme sichern</source>
        <translation>Salvar meus programas</translation>
    </message>
    <message>
        <source>Daten sichern</source>
        <translation>Backup de dados</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>Gerar código QR</translation>
    </message>
    <message>
        <source>Tür öffnen/schließen</source>
        <translation>Abrir/fechar porta</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>Licença</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit einstellen</source>
        <translation>Ajustar data e hora</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit</source>
        <translation>Data e hora</translation>
    </message>
    <message>
        <source>Türmechanik</source>
        <translation>Mecanismo da porta</translation>
    </message>
    <message>
        <source>Heizsystem</source>
        <translation>Sistema de aquecimento</translation>
    </message>
    <message>
        <source>Kühlsystem</source>
        <translation>Sistema de resfriamento</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>Argônio</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>Tipo + série:</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>Número de série:</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>Versão de hardware:</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>Versão de software:</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>Horas de operação:</translation>
    </message>
    <message>
        <source>  Firmware Aktualisierung...
  Bitte warten...</source>
        <translation>  Atualizando firmware...
  Aguarde...</translation>
    </message>
    <message>
        <source>  Meine Programme werden geladen.
  Bitte warten...</source>
        <translation>  Carregando meus programas.
  Aguarde...</translation>
    </message>
    <message>
        <source>  Meine Programme werden gesichert.
  Bitte warten...</source>
        <translation>  Salvando meus programas.
  Aguarde...</translation>
    </message>
    <message>
        <source>  Daten sichern.
  Bitte warten...</source>
        <translation>  Fazendo backup dos dados.
  Aguarde...</translation>
    </message>
    <message>
        <source>  Konfiguration aktualisieren...
  Bitte warten...</source>
        <translation>  Atualizando configuração...
  Aguarde...</translation>
    </message>
    <message>
        <source>  Erfolgreich.</source>
        <translation>  Concluído.</translation>
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
        <translation>  Falhou.</translation>
    </message>
    <message>
        <source>Hauptmenü</source>
        <translation>Menu principal</translation>
    </message>
    <message>
        <source>Datum &amp; Uhrzeit</source>
        <translation>Data e hora</translation>
    </message>
    <message>
        <source>Programm beendet</source>
        <translation>Programa concluído</translation>
    </message>
    <message>
        <source>Programm abgebrochen</source>
        <translation>Programa interrompido</translation>
    </message>
    <message>
        <source>Trocknen</source>
        <translation>Secagem</translation>
    </message>
    <message>
        <source>Startzeit</source>
        <translation>Agendar</translation>
    </message>
    <message>
        <source>Tür</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Ende %1</source>
        <translation>Fim %1</translation>
    </message>
    <message>
        <source>Brennprotokolle</source>
        <translation>Registros de queima</translation>
    </message>
    <message>
        <source>Stopp</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Labor-Verbindung</source>
        <translation>Conexão com o laboratório</translation>
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
        <translation>Argônio ou zircônia?</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>Argônio</translation>
    </message>
    <message>
        <source>Zirkon</source>
        <translation>Zircônia</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupFailure</name>
    <message>
        <source>Fehler</source>
        <translation>Erros</translation>
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
        <translation>Programa não salvo!
Voltar ao menu principal?</translation>
    </message>
    <message>
        <source>Programm nicht gespeichert!
Zurück?</source>
        <translation>Programa não salvo!
Voltar?</translation>
    </message>
    <message>
        <source>Editor verlassen</source>
        <translation>Sair do editor</translation>
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
        <translation>Este software utiliza o toolkit Qt (Qt 5, LGPL v3).</translation>
    </message>
    <message>
        <source>Qt-Version: %1</source>
        <translation>Versão do Qt: %1</translation>
    </message>
    <message>
        <source>Qt ist unter der GNU Lesser General Public License Version 3 (LGPL v3) lizenziert. Die Qt-Bibliotheken sind dynamisch eingebunden und können durch eine eigene, kompatible Version ersetzt werden. Den Lizenztext finden Sie unter https://www.gnu.org/licenses/lgpl-3.0.html, den Quellcode von Qt unter https://download.qt.io/archive/qt/ und als Quellpaket der verwendeten Debian-Distribution (qtbase-opensource-src).</source>
        <translation>O Qt é licenciado sob a GNU Lesser General Public License versão 3 (LGPL v3). As bibliotecas do Qt são vinculadas dinamicamente e podem ser substituídas por uma versão própria compatível. O texto da licença está em https://www.gnu.org/licenses/lgpl-3.0.html, o código-fonte do Qt em https://download.qt.io/archive/qt/ e como pacote-fonte da distribuição Debian utilizada (qtbase-opensource-src).</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>Licença</translation>
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
        <translation>Código QR indisponível</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>Gerar código QR</translation>
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
        <translation>Atenção! Forno quente – feche a porta!</translation>
    </message>
    <message>
        <source>Tür schließen</source>
        <translation>Fechar porta</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupUSB</name>
    <message>
        <source>USB-Stick</source>
        <translation>Pen drive</translation>
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
        <translation>Pré-secagem</translation>
    </message>
    <message>
        <source>Halten</source>
        <translation>Patamar</translation>
    </message>
    <message>
        <source>Aufheizen</source>
        <translation>Aquecimento</translation>
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
        <translation>faltam %1:%2 h</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummary</name>
    <message>
        <source>Dauer</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Ende</source>
        <translation>Fim</translation>
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
        <translation>e mais %1</translation>
    </message>
    <message>
        <source>Keine Fehler</source>
        <translation>Sem erros</translation>
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
        <translation>Escanear ou digitar</translation>
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
        <translation>Letras, dígitos, - / . _ e espaços, no máximo %1 caracteres</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringDetailView</name>
    <message>
        <source>gemessen</source>
        <translation>medida</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>planejada</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Dauer</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Vortrocknen</source>
        <translation>Pré-secagem</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Erros</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>Nenhuma</translation>
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
        <translation>Registros de queima</translation>
    </message>
    <message>
        <source>Brände: %1</source>
        <translation>Queimas: %1</translation>
    </message>
    <message>
        <source>Noch kein Brand aufgezeichnet</source>
        <translation>Nenhuma queima registrada</translation>
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
        <translation>Concluída</translation>
    </message>
    <message>
        <source>Fehlgeschlagen</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>Abgebrochen</source>
        <translation>Parada</translation>
    </message>
    <message>
        <source>Unterbrochen</source>
        <translation>Interrompida</translation>
    </message>
    <message>
        <source>Läuft</source>
        <translation>Em andamento</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringReport</name>
    <message>
        <source>Brennprotokoll</source>
        <translation>Registro de queima</translation>
    </message>
    <message>
        <source>Gerät</source>
        <translation>Forno</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>Tipo + série:</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>Número de série:</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>Versão de hardware:</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>Versão de software:</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>Horas de operação:</translation>
    </message>
    <message>
        <source>Brand</source>
        <translation>Queima</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>Início:</translation>
    </message>
    <message>
        <source>Ende:</source>
        <translation>Fim:</translation>
    </message>
    <message>
        <source>Dauer:</source>
        <translation>Duração:</translation>
    </message>
    <message>
        <source>Material:</source>
        <translation>Material:</translation>
    </message>
    <message>
        <source>Vortrocknen:</source>
        <translation>Pré-secagem:</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>Verzögerter Start:</source>
        <translation>Início programado:</translation>
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
        <translation>Taxa %1/min</translation>
    </message>
    <message>
        <source>Temperatur %1</source>
        <translation>Temperatura %1</translation>
    </message>
    <message>
        <source>Haltezeit min</source>
        <translation>Patamar min</translation>
    </message>
    <message>
        <source>Programmtext nicht lesbar</source>
        <translation>Texto do programa ilegível</translation>
    </message>
    <message>
        <source>Temperaturverlauf</source>
        <translation>Curva de temperatura</translation>
    </message>
    <message>
        <source>gemessen</source>
        <translation>medida</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>planejada</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Erros</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>Auftrag:</source>
        <translation>Pedido:</translation>
    </message>
</context>
</TS>
