<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>DateTimePopup</name>
    <message>
        <source>Datum</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>TT</source>
        <translation>日</translation>
    </message>
    <message>
        <source>MM</source>
        <translation>月</translation>
    </message>
    <message>
        <source>JJJJ</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Uhrzeit</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>hh</source>
        <translation>時</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>分</translation>
    </message>
    <message>
        <source>Bitte die rot markierten Felder prüfen.</source>
        <translation>請檢查標示為紅色的欄位。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Ofen</source>
        <translation>燒結爐</translation>
    </message>
    <message>
        <source>Bitte warten …</source>
        <translation>請稍候 …</translation>
    </message>
    <message>
        <source>Service-PIN:</source>
        <translation>服務 PIN：</translation>
    </message>
    <message>
        <source>Verbindung zum Ofen wird hergestellt …</source>
        <translation>正在連線至燒結爐 …</translation>
    </message>
    <message>
        <source>Materialwechsel</source>
        <translation>更換材料</translation>
    </message>
    <message>
        <source>Bitte Türisolation einsetzen</source>
        <translation>請裝入爐門隔熱件</translation>
    </message>
</context>
<context>
    <name>PopupArgonFailure</name>
    <message>
        <source>Überprüfung der Argon Versorgung
fehlgeschlagen.

Bitte die Anschlüsse und Eingangsdruck
überprüfen und den Prozess neu starten.</source>
        <translation>氬氣供應檢查
失敗。

請檢查接頭與進氣壓力，
然後重新啟動製程。</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>氬氣</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
</context>
<context>
    <name>PopupConfirm</name>
    <message>
        <source>Abbrechen</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>PopupDeleteFailureList</name>
    <message>
        <source>Fehlerliste wird endgültig gelöscht!</source>
        <translation>錯誤清單將被永久刪除！</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>另有 %1 條</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>清除錯誤</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>刪除</translation>
    </message>
</context>
<context>
    <name>PopupDeleteProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>程式將被永久刪除！</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>刪除程式</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>刪除</translation>
    </message>
</context>
<context>
    <name>PopupOverrideProg</name>
    <message>
        <source>Programm wird überschrieben!</source>
        <translation>程式將被覆寫！</translation>
    </message>
    <message>
        <source>Programm überschreiben</source>
        <translation>覆寫程式</translation>
    </message>
    <message>
        <source>Überschreiben</source>
        <translation>覆寫</translation>
    </message>
</context>
<context>
    <name>PopupQuitProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>程式將被永久刪除！</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>刪除程式</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>刪除</translation>
    </message>
</context>
<context>
    <name>PopupSettings</name>
    <message>
        <source>Werkseinstellungen</source>
        <translation>原廠設定</translation>
    </message>
    <message>
        <source>Alle eigenen Programme werden gelöscht und die Werkseinstellungen wiederhergestellt!</source>
        <translation>所有自訂程式將被刪除，並恢復原廠設定！</translation>
    </message>
    <message>
        <source>Zurücksetzen</source>
        <translation>重設</translation>
    </message>
</context>
<context>
    <name>PopupStop</name>
    <message>
        <source>Prozess wird abgebrochen!</source>
        <translation>製程將被中止！</translation>
    </message>
    <message>
        <source>Prozess stoppen</source>
        <translation>停止過程</translation>
    </message>
    <message>
        <source>Stoppen</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Fortsetzen</source>
        <translation>繼續</translation>
    </message>
</context>
<context>
    <name>PopupTimeAdjust</name>
    <message>
        <source>Datum und Uhrzeit</source>
        <translation>日期與時間</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>儲存</translation>
    </message>
</context>
<context>
    <name>ProgramFilter</name>
    <message>
        <source>Meine Programme</source>
        <translation>我的程式</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>服務程式</translation>
    </message>
</context>
<context>
    <name>SelftestProgress</name>
    <message>
        <source>%1 von %2 Prüfungen abgeschlossen</source>
        <translation>已完成 %1/%2 項檢測</translation>
    </message>
</context>
<context>
    <name>TimerPopup</name>
    <message>
        <source>Startzeit festlegen</source>
        <translation>設定啟動時間</translation>
    </message>
    <message>
        <source>Übernehmen</source>
        <translation>套用</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::FailureSeverity</name>
    <message>
        <source>Schwerer Fehler</source>
        <translation>嚴重錯誤</translation>
    </message>
    <message>
        <source>Warnung</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>提示</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NewProgram</name>
    <message>
        <source>Programm sichern</source>
        <translation>儲存程式</translation>
    </message>
    <message>
        <source>Name ungültig: bitte einen Namen eingeben</source>
        <translation>名稱無效：請輸入名稱</translation>
    </message>
    <message>
        <source>Name ungültig: Zeichen ; = , . und $$ sind nicht erlaubt</source>
        <translation>名稱無效：不允許使用 ; = , . 和 $$</translation>
    </message>
    <message>
        <source>Name ungültig: nur Zeichen westeuropäischer Sprachen sind erlaubt</source>
        <translation>名稱無效：僅允許使用西歐語言字元</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NumPad</name>
    <message>
        <source>Zu viele falsche Eingaben.
Gesperrt: noch %1 s</source>
        <translation>錯誤輸入次數過多。
已鎖定：剩餘 %1 秒</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::TableHead</name>
    <message>
        <source>Nr.</source>
        <translation>序號</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>升溫速率</translation>
    </message>
    <message>
        <source>Temperatur (°F)</source>
        <translation>溫度 (°F)</translation>
    </message>
    <message>
        <source>Temperatur (°C)</source>
        <translation>溫度 (°C)</translation>
    </message>
    <message>
        <source>Haltezeit (min)</source>
        <translation>持溫時間 (分鐘)</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkStatus</name>
    <message>
        <source>Nicht eingerichtet</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>Verbunden</source>
        <translation>已連線</translation>
    </message>
    <message>
        <source>Nicht verbunden</source>
        <translation>未連線</translation>
    </message>
    <message>
        <source>Der Name des Servers ist unbekannt</source>
        <translation>伺服器名稱未知</translation>
    </message>
    <message>
        <source>Der Server ist nicht erreichbar</source>
        <translation>無法連線到伺服器</translation>
    </message>
    <message>
        <source>Der Server hat die Verbindung abgelehnt</source>
        <translation>伺服器拒絕了連線</translation>
    </message>
    <message>
        <source>Benutzername oder Passwort falsch</source>
        <translation>使用者名稱或密碼錯誤</translation>
    </message>
    <message>
        <source>Die verschlüsselte Verbindung ist fehlgeschlagen</source>
        <translation>加密連線失敗</translation>
    </message>
    <message>
        <source>Die Verbindung ist abgebrochen</source>
        <translation>連線已中斷</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkView</name>
    <message>
        <source>Labor-Verbindung</source>
        <translation>實驗室連線</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Verlauf senden</source>
        <translation>傳送歷史記錄</translation>
    </message>
    <message>
        <source>Server: %1</source>
        <translation>伺服器：%1</translation>
    </message>
    <message>
        <source>Zustand: %1</source>
        <translation>狀態：%1</translation>
    </message>
    <message>
        <source>Letzter Fehler: %1</source>
        <translation>最近錯誤：%1</translation>
    </message>
    <message>
        <source>Wartende Protokolle: %1</source>
        <translation>等待傳送的記錄：%1</translation>
    </message>
    <message>
        <source>Laboransicht koppeln</source>
        <translation>配對實驗室檢視</translation>
    </message>
    <message>
        <source>Die Laboransicht antwortet nicht.</source>
        <translation>實驗室檢視沒有回應。</translation>
    </message>
    <message>
        <source>Die Laboransicht konnte nicht gekoppelt werden.</source>
        <translation>無法配對實驗室檢視。</translation>
    </message>
</context>
<context>
    <name>ovra::MainWindow::MainWindow</name>
    <message>
        <source>Favoriten</source>
        <translation>我的最愛</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Programmoptionen</source>
        <translation>程式選項</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>服務</translation>
    </message>
    <message>
        <source>Filteroptionen</source>
        <translation>篩選選項</translation>
    </message>
    <message>
        <source>USB Stick erkannt</source>
        <translation>偵測到 USB 隨身碟</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>程式</translation>
    </message>
    <message>
        <source>Sprache</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Temperatureinheit</source>
        <translation>溫度單位</translation>
    </message>
    <message>
        <source>Neues Programm</source>
        <translation>新增程式</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>服務程式</translation>
    </message>
    <message>
        <source>Meine Programme</source>
        <translation>我的程式</translation>
    </message>
    <message>
        <source>Feste Programme</source>
        <translation>預設程式</translation>
    </message>
    <message>
        <source>Gerätedaten</source>
        <translation>裝置資料</translation>
    </message>
    <message>
        <source>Systemtest</source>
        <translation>系統測試</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>清除錯誤</translation>
    </message>
    <message>
        <source>Werkseinstellungen</source>
        <translation>原廠設定</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>刪除程式</translation>
    </message>
    <message>
        <source>Programm ändern</source>
        <translation>修改程式</translation>
    </message>
    <message>
        <source>Systemtest wiederholen</source>
        <translation>重新系統測試</translation>
    </message>
    <message>
        <source>Hersteller</source>
        <translation>製造商</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>Firmware Aktualisierung</source>
        <translation>韌體更新</translation>
    </message>
    <message>
        <source>Konfiguration aktualisieren</source>
        <translation>更新組態</translation>
    </message>
    <message>
        <source>Meine Programme laden</source>
        <translation>載入我的程式</translation>
    </message>
    <message>
        <source>Meine Programme sichern</source>
        <translation>儲存我的程式</translation>
    </message>
    <message>
        <source>Daten sichern</source>
        <translation>備份資料</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>產生 QR 碼</translation>
    </message>
    <message>
        <source>Tür öffnen/schließen</source>
        <translation>開啟/關閉爐門</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>授權</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit einstellen</source>
        <translation>設定日期與時間</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit</source>
        <translation>日期與時間</translation>
    </message>
    <message>
        <source>Türmechanik</source>
        <translation>爐門機構</translation>
    </message>
    <message>
        <source>Heizsystem</source>
        <translation>加熱系統</translation>
    </message>
    <message>
        <source>Kühlsystem</source>
        <translation>冷卻系統</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>氬氣</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>型號 + 系列：</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>序號：</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>硬體版本：</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>軟體版本：</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>運轉時數：</translation>
    </message>
    <message>
        <source>  Firmware Aktualisierung...
  Bitte warten...</source>
        <translation>  正在更新韌體...
  請稍候...</translation>
    </message>
    <message>
        <source>  Meine Programme werden geladen.
  Bitte warten...</source>
        <translation>  正在載入我的程式。
  請稍候...</translation>
    </message>
    <message>
        <source>  Meine Programme werden gesichert.
  Bitte warten...</source>
        <translation>  正在儲存我的程式。
  請稍候...</translation>
    </message>
    <message>
        <source>  Daten sichern.
  Bitte warten...</source>
        <translation>  正在備份資料。
  請稍候...</translation>
    </message>
    <message>
        <source>  Konfiguration aktualisieren...
  Bitte warten...</source>
        <translation>  正在更新組態...
  請稍候...</translation>
    </message>
    <message>
        <source>  Erfolgreich.</source>
        <translation>  成功。</translation>
    </message>
    <message>
        <source>°C  Celsius</source>
        <translation>°C  攝氏</translation>
    </message>
    <message>
        <source>°F  Fahrenheit</source>
        <translation>°F  華氏</translation>
    </message>
    <message>
        <source>Bereit</source>
        <translation>就緒</translation>
    </message>
    <message>
        <source>  Fehlgeschlagen.</source>
        <translation>  失敗。</translation>
    </message>
    <message>
        <source>Hauptmenü</source>
        <translation>主選單</translation>
    </message>
    <message>
        <source>Datum &amp; Uhrzeit</source>
        <translation>日期與時間</translation>
    </message>
    <message>
        <source>Programm beendet</source>
        <translation>程式已完成</translation>
    </message>
    <message>
        <source>Programm abgebrochen</source>
        <translation>程式已中止</translation>
    </message>
    <message>
        <source>Trocknen</source>
        <translation>乾燥</translation>
    </message>
    <message>
        <source>Startzeit</source>
        <translation>開始時間</translation>
    </message>
    <message>
        <source>Tür</source>
        <translation>爐門</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Ende %1</source>
        <translation>結束 %1</translation>
    </message>
    <message>
        <source>Brennprotokolle</source>
        <translation>燒結記錄</translation>
    </message>
    <message>
        <source>Stopp</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Labor-Verbindung</source>
        <translation>實驗室連線</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::DateTimePopup</name>
    <message>
        <source>Abbrechen</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::Popup</name>
    <message>
        <source>Argon oder Zirkon?</source>
        <translation>氬氣或氧化鋯？</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>氬氣</translation>
    </message>
    <message>
        <source>Zirkon</source>
        <translation>氧化鋯</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupFailure</name>
    <message>
        <source>Fehler</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupLeaveNewProg</name>
    <message>
        <source>Programm nicht gespeichert!
Zum Hauptmenü?</source>
        <translation>程式未儲存！
返回主選單？</translation>
    </message>
    <message>
        <source>Programm nicht gespeichert!
Zurück?</source>
        <translation>程式未儲存！
返回？</translation>
    </message>
    <message>
        <source>Editor verlassen</source>
        <translation>離開編輯器</translation>
    </message>
    <message>
        <source>Verwerfen</source>
        <translation>捨棄</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupLicense</name>
    <message>
        <source>Diese Software verwendet das Qt Toolkit (Qt 5, LGPL v3).</source>
        <translation>本軟體使用 Qt 工具套件（Qt 5，LGPL v3）。</translation>
    </message>
    <message>
        <source>Qt-Version: %1</source>
        <translation>Qt 版本：%1</translation>
    </message>
    <message>
        <source>Qt ist unter der GNU Lesser General Public License Version 3 (LGPL v3) lizenziert. Die Qt-Bibliotheken sind dynamisch eingebunden und können durch eine eigene, kompatible Version ersetzt werden. Den Lizenztext finden Sie unter https://www.gnu.org/licenses/lgpl-3.0.html, den Quellcode von Qt unter https://download.qt.io/archive/qt/ und als Quellpaket der verwendeten Debian-Distribution (qtbase-opensource-src).</source>
        <translation>Qt 依據 GNU 較寬鬆通用公共授權條款第 3 版（LGPL v3）授權。Qt 程式庫為動態連結，可替換為您自己的相容版本。授權條款全文請見 https://www.gnu.org/licenses/lgpl-3.0.html，Qt 原始碼請見 https://download.qt.io/archive/qt/ 以及所用 Debian 發行版的原始碼套件（qtbase-opensource-src）。</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>授權</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupQRCode</name>
    <message>
        <source>QR Code nicht verfügbar</source>
        <translation>QR 碼無法使用</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>產生 QR 碼</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupTempWarning</name>
    <message>
        <source>Achtung! Ofen ist heiß – Tür schließen!</source>
        <translation>注意！爐體高溫 – 請關閉爐門！</translation>
    </message>
    <message>
        <source>Tür schließen</source>
        <translation>關閉爐門</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupUSB</name>
    <message>
        <source>USB-Stick</source>
        <translation>USB 隨身碟</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringGlance</name>
    <message>
        <source>Vortrocknen</source>
        <translation>預乾燥</translation>
    </message>
    <message>
        <source>Halten</source>
        <translation>保溫</translation>
    </message>
    <message>
        <source>Aufheizen</source>
        <translation>升溫</translation>
    </message>
    <message>
        <source>Segment %1 von %2</source>
        <translation>第 %1 段，共 %2 段</translation>
    </message>
    <message>
        <source>Segment %1</source>
        <translation>第 %1 段</translation>
    </message>
    <message>
        <source>noch %1:%2 h</source>
        <translation>剩餘 %1:%2 小時</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummary</name>
    <message>
        <source>Dauer</source>
        <translation>時長</translation>
    </message>
    <message>
        <source>Ende</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Höchste Temperatur</source>
        <translation>最高溫度</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummaryView</name>
    <message>
        <source>und %1 weitere</source>
        <translation>另有 %1 條</translation>
    </message>
    <message>
        <source>Keine Fehler</source>
        <translation>無錯誤</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeBadge</name>
    <message>
        <source>Auftrag %1</source>
        <translation>工單 %1</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeField</name>
    <message>
        <source>Auftrag</source>
        <translation>工單</translation>
    </message>
    <message>
        <source>Scannen oder tippen</source>
        <translation>掃描或輸入</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeKeyboard</name>
    <message>
        <source>Auftrag</source>
        <translation>工單</translation>
    </message>
    <message>
        <source>Buchstaben, Ziffern, - / . _ und Leerzeichen, höchstens %1 Zeichen</source>
        <translation>字母、數字、- / . _ 和空格，最多 %1 個字元</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringDetailView</name>
    <message>
        <source>gemessen</source>
        <translation>實測</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>計畫</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Dauer</source>
        <translation>時長</translation>
    </message>
    <message>
        <source>Vortrocknen</source>
        <translation>預乾燥</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分鐘</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Auftrag</source>
        <translation>工單</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringHistoryView</name>
    <message>
        <source>Brennprotokolle</source>
        <translation>燒結記錄</translation>
    </message>
    <message>
        <source>Brände: %1</source>
        <translation>燒結次數：%1</translation>
    </message>
    <message>
        <source>Noch kein Brand aufgezeichnet</source>
        <translation>尚無燒結記錄</translation>
    </message>
    <message>
        <source>Auftrag %1</source>
        <translation>工單 %1</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringPainter</name>
    <message>
        <source>Erfolgreich</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Fehlgeschlagen</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Abgebrochen</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Unterbrochen</source>
        <translation>已中斷</translation>
    </message>
    <message>
        <source>Läuft</source>
        <translation>進行中</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringReport</name>
    <message>
        <source>Brennprotokoll</source>
        <translation>燒結記錄</translation>
    </message>
    <message>
        <source>Gerät</source>
        <translation>爐子</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>型號 + 系列：</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>序號：</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>硬體版本：</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>軟體版本：</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>運轉時數：</translation>
    </message>
    <message>
        <source>Brand</source>
        <translation>燒結</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>開始：</translation>
    </message>
    <message>
        <source>Ende:</source>
        <translation>結束：</translation>
    </message>
    <message>
        <source>Dauer:</source>
        <translation>時長：</translation>
    </message>
    <message>
        <source>Material:</source>
        <translation>材料：</translation>
    </message>
    <message>
        <source>Vortrocknen:</source>
        <translation>預乾燥：</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分鐘</translation>
    </message>
    <message>
        <source>Verzögerter Start:</source>
        <translation>延時啟動：</translation>
    </message>
    <message>
        <source>Ergebnis:</source>
        <translation>結果：</translation>
    </message>
    <message>
        <source>Programm</source>
        <translation>程式</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>段</translation>
    </message>
    <message>
        <source>Rate %1/min</source>
        <translation>升溫速率 %1/分鐘</translation>
    </message>
    <message>
        <source>Temperatur %1</source>
        <translation>溫度 %1</translation>
    </message>
    <message>
        <source>Haltezeit min</source>
        <translation>保溫 分鐘</translation>
    </message>
    <message>
        <source>Programmtext nicht lesbar</source>
        <translation>程式文字無法讀取</translation>
    </message>
    <message>
        <source>Temperaturverlauf</source>
        <translation>溫度曲線</translation>
    </message>
    <message>
        <source>gemessen</source>
        <translation>實測</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>計畫</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Auftrag:</source>
        <translation>工單：</translation>
    </message>
</context>
</TS>
