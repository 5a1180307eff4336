<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>DateTimePopup</name>
    <message>
        <source>Datum</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>TT</source>
        <translation>ДД</translation>
    </message>
    <message>
        <source>MM</source>
        <translation>ММ</translation>
    </message>
    <message>
        <source>JJJJ</source>
        <translation>ГГГГ</translation>
    </message>
    <message>
        <source>Uhrzeit</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>hh</source>
        <translation>чч</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>мм</translation>
    </message>
    <message>
        <source>Bitte die rot markierten Felder prüfen.</source>
        <translation>Проверьте поля, отмеченные красным.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Ofen</source>
        <translation>Печь</translation>
    </message>
    <message>
        <source>Bitte warten …</source>
        <translation>Пожалуйста, подождите …</translation>
    </message>
    <message>
        <source>Service-PIN:</source>
        <translation>Сервисный PIN:</translation>
    </message>
    <message>
        <source>Verbindung zum Ofen wird hergestellt …</source>
        <translation>Подключение к печи …</translation>
    </message>
    <message>
        <source>Materialwechsel</source>
        <translation>Смена материала</translation>
    </message>
    <message>
        <source>Bitte Türisolation einsetzen</source>
        <translation>Установите изоляцию дверцы</translation>
    </message>
</context>
<context>
    <name>PopupArgonFailure</name>
    <message>
        <source>Überprüfung der Argon Versorgung
fehlgeschlagen.

Bitte die Anschlüsse und Eingangsdruck
überprüfen und den Prozess neu starten.</source>
        <translation>Проверка подачи аргона
не пройдена.

Проверьте подключения и входное давление
и перезапустите процесс.</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>Аргон</translation>
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
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>PopupDeleteFailureList</name>
    <message>
        <source>Fehlerliste wird endgültig gelöscht!</source>
        <translation>Список ошибок будет удалён безвозвратно!</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>и ещё %1</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>Удалить ошибки</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Удалить</translation>
    </message>
</context>
<context>
    <name>PopupDeleteProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>Программа будет удалена безвозвратно!</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Удалить программу</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Удалить</translation>
    </message>
</context>
<context>
    <name>PopupOverrideProg</name>
    <message>
        <source>Programm wird überschrieben!</source>
        <translation>Программа будет перезаписана!</translation>
    </message>
    <message>
        <source>Programm überschreiben</source>
        <translation>Перезаписать программу</translation>
    </message>
    <message>
        <source>Überschreiben</source>
        <translation>Перезаписать</translation>
    </message>
</context>
<context>
    <name>PopupQuitProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>Программа будет удалена безвозвратно!</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Удалить программу</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Удалить</translation>
    </message>
</context>
<context>
    <name>PopupSettings</name>
    <message>
        <source>Werkseinstellungen</source>
        <translation>Заводские настройки</translation>
    </message>
    <message>
        <source>Alle eigenen Programme werden gelöscht und die Werkseinstellungen wiederhergestellt!</source>
        <translation>Все собственные программы будут удалены, заводские настройки восстановлены!</translation>
    </message>
    <message>
        <source>Zurücksetzen</source>
        <translation>Сбросить</translation>
    </message>
</context>
<context>
    <name>PopupStop</name>
    <message>
        <source>Prozess wird abgebrochen!</source>
        <translation>Процесс будет прерван!</translation>
    </message>
    <message>
        <source>Prozess stoppen</source>
        <translation>Остановить процесс</translation>
    </message>
    <message>
        <source>Stoppen</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Fortsetzen</source>
        <translation>Продолжить</translation>
    </message>
</context>
<context>
    <name>PopupTimeAdjust</name>
    <message>
        <source>Datum und Uhrzeit</source>
        <translation>Дата и время</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Сохранить</translation>
    </message>
</context>
<context>
    <name>ProgramFilter</name>
    <message>
        <source>Meine Programme</source>
        <translation>Мои программы</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>Сервисные программы</translation>
    </message>
</context>
<context>
    <name>SelftestProgress</name>
    <message>
        <source>%1 von %2 Prüfungen abgeschlossen</source>
        <translation>Выполнено проверок: %1 из %2</translation>
    </message>
</context>
<context>
    <name>TimerPopup</name>
    <message>
        <source>Startzeit festlegen</source>
        <translation>Задать время старта</translation>
    </message>
    <message>
        <source>Übernehmen</source>
        <translation>Применить</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::FailureSeverity</name>
    <message>
        <source>Schwerer Fehler</source>
        <translation>Серьёзная ошибка</translation>
    </message>
    <message>
        <source>Warnung</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Примечание</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NewProgram</name>
    <message>
        <source>Programm sichern</source>
        <translation>Сохранить программу</translation>
    </message>
    <message>
        <source>Name ungültig: bitte einen Namen eingeben</source>
        <translation>Недопустимое имя: введите имя</translation>
    </message>
    <message>
        <source>Name ungültig: Zeichen ; = , . und $$ sind nicht erlaubt</source>
        <translation>Недопустимое имя: символы ; = , . и $$ запрещены</translation>
    </message>
    <message>
        <source>Name ungültig: nur Zeichen westeuropäischer Sprachen sind erlaubt</source>
        <translation>Недопустимое имя: только западноевропейские символы</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NumPad</name>
    <message>
        <source>Zu viele falsche Eingaben.
Gesperrt: noch %1 s</source>
        <translation>Слишком много неверных вводов.
Заблокировано: осталось %1 с</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::TableHead</name>
    <message>
        <source>Nr.</source>
        <translation>№</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Temperatur (°F)</source>
        <translation>Температура (°F)</translation>
    </message>
    <message>
        <source>Temperatur (°C)</source>
        <translation>Температура (°C)</translation>
    </message>
    <message>
        <source>Haltezeit (min)</source>
        <translation>Выдержка (мин)</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkStatus</name>
    <message>
        <source>Nicht eingerichtet</source>
        <translation>Не настроено</translation>
    </message>
    <message>
        <source>Verbunden</source>
        <translation>Подключено</translation>
    </message>
    <message>
        <source>Nicht verbunden</source>
        <translation>Не подключено</translation>
    </message>
    <message>
        <source>Der Name des Servers ist unbekannt</source>
        <translation>Имя сервера неизвестно</translation>
    </message>
    <message>
        <source>Der Server ist nicht erreichbar</source>
        <translation>Сервер недоступен</translation>
    </message>
    <message>
        <source>Der Server hat die Verbindung abgelehnt</source>
        <translation>Сервер отклонил подключение</translation>
    </message>
    <message>
        <source>Benutzername oder Passwort falsch</source>
        <translation>Неверное имя пользователя или пароль</translation>
    </message>
    <message>
        <source>Die verschlüsselte Verbindung ist fehlgeschlagen</source>
        <translation>Ошибка зашифрованного подключения</translation>
    </message>
    <message>
        <source>Die Verbindung ist abgebrochen</source>
        <translation>Соединение прервано</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkView</name>
    <message>
        <source>Labor-Verbindung</source>
        <translation>Связь с лабораторией</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Verlauf senden</source>
        <translation>Отправить историю</translation>
    </message>
    <message>
        <source>Server: %1</source>
        <translation>Сервер: %1</translation>
    </message>
    <message>
        <source>Zustand: %1</source>
        <translation>Состояние: %1</translation>
    </message>
    <message>
        <source>Letzter Fehler: %1</source>
        <translation>Последняя ошибка: %1</translation>
    </message>
    <message>
        <source>Wartende Protokolle: %1</source>
        <translation>Протоколов в очереди: %1</translation>
    </message>
    <message>
        <source>Laboransicht koppeln</source>
        <translation>Связать лабораторный вид</translation>
    </message>
    <message>
        <source>Die Laboransicht antwortet nicht.</source>
        <translation>Лабораторный вид не отвечает.</translation>
    </message>
    <message>
        <source>Die Laboransicht konnte nicht gekoppelt werden.</source>
        <translation>Не удалось связать лабораторный вид.</translation>
    </message>
</context>
<context>
    <name>ovra::MainWindow::MainWindow</name>
    <message>
        <source>Favoriten</source>
        <translation>Избранное</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Programmoptionen</source>
        <translation>Параметры программ</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Сервис</translation>
    </message>
    <message>
        <source>Filteroptionen</source>
        <translation>Параметры фильтра</translation>
    </message>
    <message>
        <source>USB Stick erkannt</source>
        <translation>Обнаружен USB-диск</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>Программы</translation>
    </message>
    <message>
        <source>Sprache</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Temperatureinheit</source>
        <translation>Единица температуры</translation>
    </message>
    <message>
        <source>Neues Programm</source>
        <translation>Новая программа</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>Сервисные программы</translation>
    </message>
    <message>
        <source>Meine Programme</source>
        <translation>Мои программы</translation>
    </message>
    <message>
        <source>Feste Programme</source>
        <translation>Готовые программы</translation>
    </message>
    <message>
        <source>Gerätedaten</source>
        <translation>Данные устройства</translation>
    </message>
    <message>
        <source>Systemtest</source>
        <translation>Системный тест</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Ошибки</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>Удалить ошибки</translation>
    </message>
    <message>
        <source>Werkseinstellungen</source>
        <translation>Заводские настройки</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>Удалить программу</translation>
    </message>
    <message>
        <source>Programm ändern</source>
        <translation>Изменить программу</translation>
    </message>
    <message>
        <source>Systemtest wiederholen</source>
        <translation>Повторить системный тест</translation>
    </message>
    <message>
        <source>Hersteller</source>
        <translation>Производитель</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Материал</translation>
    </message>
    <message>
        <source>Firmware Aktualisierung</source>
        <translation>Обновление прошивки</translation>
    </message>
    <message>
        <source>Konfiguration aktualisieren</source>
        <translation>Обновить конфигурацию</translation>
    </message>
    <message>
        <source>Meine Programme laden</source>
        <translation>Загрузить мои программы</translation>
    </message>
    <message>
        <source>Meine Programme sichern</source>
        <translation>Сохранить мои программы</translation>
    </message>
    <message>
        <source>Daten sichern</source>
        <translation>Резервная копия данных</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>Создать QR-код</translation>
    </message>
    <message>
        <source>Tür öffnen/schließen</source>
        <translation>Открыть/закрыть дверцу</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>Лицензия</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit einstellen</source>
        <translation>Установить дату и время</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit</source>
        <translation>Дата и время</translation>
    </message>
    <message>
        <source>Türmechanik</source>
        <translation>Механизм дверцы</translation>
    </message>
    <message>
        <source>Heizsystem</source>
        <translation>Система нагрева</translation>
    </message>
    <message>
        <source>Kühlsystem</source>
        <translation>Система охлаждения</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>Аргон</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>Тип + серия:</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>Серийный номер:</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>Версия оборудования:</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>Версия ПО:</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>Часы работы:</translation>
    </message>
    <message>
        <source>  Firmware Aktualisierung...
  Bitte warten...</source>
        <translation>  Обновление прошивки...
  Пожалуйста, подождите...</translation>
    </message>
    <message>
        <source>  Meine Programme werden geladen.
  Bitte warten...</source>
        <translation>  Загрузка моих программ.
  Пожалуйста, подождите...</translation>
    </message>
    <message>
        <source>  Meine Programme werden gesichert.
  Bitte warten...</source>
        <translation>  Сохранение моих программ.
  Пожалуйста, подождите...</translation>
    </message>
    <message>
        <source>  Daten sichern.
  Bitte warten...</source>
        <translation>  Резервное копирование данных.
  Пожалуйста, подождите...</translation>
    </message>
    <message>
        <source>  Konfiguration aktualisieren...
  Bitte warten...</source>
        <translation>  Обновление конфигурации...
  Пожалуйста, подождите...</translation>
    </message>
    <message>
        <source>  Erfolgreich.</source>
        <translation>  Успешно.</translation>
    </message>
    <message>
        <source>°C  Celsius</source>
        <translation>°C  Цельсий</translation>
    </message>
    <message>
        <source>°F  Fahrenheit</source>
        <translation>°F  Фаренгейт</translation>
    </message>
    <message>
        <source>Bereit</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>  Fehlgeschlagen.</source>
        <translation>  Ошибка.</translation>
    </message>
    <message>
        <source>Hauptmenü</source>
        <translation>Главное меню</translation>
    </message>
    <message>
        <source>Datum &amp; Uhrzeit</source>
        <translation>Дата и время</translation>
    </message>
    <message>
        <source>Programm beendet</source>
        <translation>Программа завершена</translation>
    </message>
    <message>
        <source>Programm abgebrochen</source>
        <translation>Программа прервана</translation>
    </message>
    <message>
        <source>Trocknen</source>
        <translation>Сушка</translation>
    </message>
    <message>
        <source>Startzeit</source>
        <translation>Таймер</translation>
    </message>
    <message>
        <source>Tür</source>
        <translation>Дверь</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Старт</translation>
    </message>
    <message>
        <source>Ende %1</source>
        <translation>Конец %1</translation>
    </message>
    <message>
        <source>Brennprotokolle</source>
        <translation>Журнал обжигов</translation>
    </message>
    <message>
        <source>Stopp</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Labor-Verbindung</source>
        <translation>Связь с лабораторией</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::DateTimePopup</name>
    <message>
        <source>Abbrechen</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::Popup</name>
    <message>
        <source>Argon oder Zirkon?</source>
        <translation>Аргон или цирконий?</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>Аргон</translation>
    </message>
    <message>
        <source>Zirkon</source>
        <translation>Цирконий</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupFailure</name>
    <message>
        <source>Fehler</source>
        <translation>Ошибки</translation>
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
        <translation>Программа не сохранена!
В главное меню?</translation>
    </message>
    <message>
        <source>Programm nicht gespeichert!
Zurück?</source>
        <translation>Программа не сохранена!
Назад?</translation>
    </message>
    <message>
        <source>Editor verlassen</source>
        <translation>Выйти из редактора</translation>
    </message>
    <message>
        <source>Verwerfen</source>
        <translation>Отбросить</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupLicense</name>
    <message>
        <source>Diese Software verwendet das Qt Toolkit (Qt 5, LGPL v3).</source>
        <translation>Это программное обеспечение использует библиотеку Qt (Qt 5, LGPL v3).</translation>
    </message>
    <message>
        <source>Qt-Version: %1</source>
        <translation>Версия Qt: %1</translation>
    </message>
    <message>
        <source>Qt ist unter der GNU Lesser General Public License Version 3 (LGPL v3) lizenziert. Die Qt-Bibliotheken sind dynamisch eingebunden und können durch eine eigene, kompatible Version ersetzt werden. Den Lizenztext finden Sie unter https://www.gnu.org/licenses/lgpl-3.0.html, den Quellcode von Qt unter https://download.qt.io/archive/qt/ und als Quellpaket der verwendeten Debian-Distribution (qtbase-opensource-src).</source>
        <translation>Qt распространяется по лицензии GNU Lesser General Public License версии 3 (LGPL v3). Библиотеки Qt подключены динамически и могут быть заменены собственной совместимой версией. Текст лицензии: https://www.gnu.org/licenses/lgpl-3.0.html, исходный код Qt: https://download.qt.io/archive/qt/, а также пакет исходного кода используемого дистрибутива Debian (qtbase-opensource-src).</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>Лицензия</translation>
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
        <translation>QR-код недоступен</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>Создать QR-код</translation>
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
        <translation>Внимание! Печь горячая – закройте дверцу!</translation>
    </message>
    <message>
        <source>Tür schließen</source>
        <translation>Закрыть дверцу</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupUSB</name>
    <message>
        <source>USB-Stick</source>
        <translation>USB-накопитель</translation>
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
        <translation>Предсушка</translation>
    </message>
    <message>
        <source>Halten</source>
        <translation>Выдержка</translation>
    </message>
    <message>
        <source>Aufheizen</source>
        <translation>Нагрев</translation>
    </message>
    <message>
        <source>Segment %1 von %2</source>
        <translation>Сегмент %1 из %2</translation>
    </message>
    <message>
        <source>Segment %1</source>
        <translation>Сегмент %1</translation>
    </message>
    <message>
        <source>noch %1:%2 h</source>
        <translation>осталось %1:%2 ч</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummary</name>
    <message>
        <source>Dauer</source>
        <translation>Длительность</translation>
    </message>
    <message>
        <source>Ende</source>
        <translation>Окончание</translation>
    </message>
    <message>
        <source>Höchste Temperatur</source>
        <translation>Макс. температура</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummaryView</name>
    <message>
        <source>und %1 weitere</source>
        <translation>и ещё %1</translation>
    </message>
    <message>
        <source>Keine Fehler</source>
        <translation>Ошибок нет</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeBadge</name>
    <message>
        <source>Auftrag %1</source>
        <translation>Заказ %1</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeField</name>
    <message>
        <source>Auftrag</source>
        <translation>Заказ</translation>
    </message>
    <message>
        <source>Scannen oder tippen</source>
        <translation>Сканируйте или введите</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeKeyboard</name>
    <message>
        <source>Auftrag</source>
        <translation>Заказ</translation>
    </message>
    <message>
        <source>Buchstaben, Ziffern, - / . _ und Leerzeichen, höchstens %1 Zeichen</source>
        <translation>Латинские буквы, цифры, - / . _ и пробелы, не более %1 символов</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringDetailView</name>
    <message>
        <source>gemessen</source>
        <translation>измерено</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>план</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Начало</translation>
    </message>
    <message>
        <source>Dauer</source>
        <translation>Длительность</translation>
    </message>
    <message>
        <source>Vortrocknen</source>
        <translation>Предсушка</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 мин</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Ошибки</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Auftrag</source>
        <translation>Заказ</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringHistoryView</name>
    <message>
        <source>Brennprotokolle</source>
        <translation>Журнал обжигов</translation>
    </message>
    <message>
        <source>Brände: %1</source>
        <translation>Обжигов: %1</translation>
    </message>
    <message>
        <source>Noch kein Brand aufgezeichnet</source>
        <translation>Обжиги ещё не записаны</translation>
    </message>
    <message>
        <source>Auftrag %1</source>
        <translation>Заказ %1</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringPainter</name>
    <message>
        <source>Erfolgreich</source>
        <translation>Успешно</translation>
    </message>
    <message>
        <source>Fehlgeschlagen</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Abgebrochen</source>
        <translation>Остановлен</translation>
    </message>
    <message>
        <source>Unterbrochen</source>
        <translation>Прерван</translation>
    </message>
    <message>
        <source>Läuft</source>
        <translation>Выполняется</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringReport</name>
    <message>
        <source>Brennprotokoll</source>
        <translation>Протокол обжига</translation>
    </message>
    <message>
        <source>Gerät</source>
        <translation>Печь</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>Тип + серия:</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>Серийный номер:</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>Версия оборудования:</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>Версия ПО:</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>Часы работы:</translation>
    </message>
    <message>
        <source>Brand</source>
        <translation>Обжиг</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>Начало:</translation>
    </message>
    <message>
        <source>Ende:</source>
        <translation>Конец:</translation>
    </message>
    <message>
        <source>Dauer:</source>
        <translation>Длительность:</translation>
    </message>
    <message>
        <source>Material:</source>
        <translation>Материал:</translation>
    </message>
    <message>
        <source>Vortrocknen:</source>
        <translation>Предсушка:</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 мин</translation>
    </message>
    <message>
        <source>Verzögerter Start:</source>
        <translation>Отложенный старт:</translation>
    </message>
    <message>
        <source>Ergebnis:</source>
        <translation>Результат:</translation>
    </message>
    <message>
        <source>Programm</source>
        <translation>Программа</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>Сегмент</translation>
    </message>
    <message>
        <source>Rate %1/min</source>
        <translation>Скорость %1/мин</translation>
    </message>
    <message>
        <source>Temperatur %1</source>
        <translation>Температура %1</translation>
    </message>
    <message>
        <source>Haltezeit min</source>
        <translation>Выдержка мин</translation>
    </message>
    <message>
        <source>Programmtext nicht lesbar</source>
        <translation>Текст программы не читается</translation>
    </message>
    <message>
        <source>Temperaturverlauf</source>
        <translation>Температурная кривая</translation>
    </message>
    <message>
        <source>gemessen</source>
        <translation>измерено</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>план</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Ошибки</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Auftrag:</source>
        <translation>Заказ:</translation>
    </message>
</context>
</TS>
