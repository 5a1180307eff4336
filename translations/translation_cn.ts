<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
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
        <translation>时间</translation>
    </message>
    <message>
        <source>hh</source>
        <translation>时</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>分</translation>
    </message>
    <message>
        <source>Bitte die rot markierten Felder prüfen.</source>
        <translation>请检查标红的字段。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Ofen</source>
        <translation>烧结炉</translation>
    </message>
    <message>
        <source>Bitte warten …</source>
        <translation>请稍候 …</translation>
    </message>
    <message>
        <source>Service-PIN:</source>
        <translation>服务 PIN：</translation>
    </message>
    <message>
        <source>Verbindung zum Ofen wird hergestellt …</source>
        <translation>正在连接烧结炉 …</translation>
    </message>
    <message>
        <source>Materialwechsel</source>
        <translation>更换材料</translation>
    </message>
    <message>
        <source>Bitte Türisolation einsetzen</source>
        <translation>请装入炉门隔热件</translation>
    </message>
</context>
<context>
    <name>PopupArgonFailure</name>
    <message>
        <source>Überprüfung der Argon Versorgung
fehlgeschlagen.

Bitte die Anschlüsse und Eingangsdruck
überprüfen und den Prozess neu starten.</source>
        <translation>氩气供应检查
失败。

请检查接口和进气压力，
然后重新启动工艺。</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>氩气</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
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
        <translation>错误列表将被永久删除！</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>另有 %1 条</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>清除错误</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>PopupDeleteProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>程序将被永久删除！</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>删除程序</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>PopupOverrideProg</name>
    <message>
        <source>Programm wird überschrieben!</source>
        <translation>程序将被覆盖！</translation>
    </message>
    <message>
        <source>Programm überschreiben</source>
        <translation>覆盖程序</translation>
    </message>
    <message>
        <source>Überschreiben</source>
        <translation>覆盖</translation>
    </message>
</context>
<context>
    <name>PopupQuitProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>程序将被永久删除！</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>删除程序</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>PopupSettings</name>
    <message>
        <source>Werkseinstellungen</source>
        <translation>出厂设置</translation>
    </message>
    <message>
        <source>Alle eigenen Programme werden gelöscht und die Werkseinstellungen wiederhergestellt!</source>
        <translation>所有自定义程序将被删除，并恢复出厂设置！</translation>
    </message>
    <message>
        <source>Zurücksetzen</source>
        <translation>重置</translation>
    </message>
</context>
<context>
    <name>PopupStop</name>
    <message>
        <source>Prozess wird abgebrochen!</source>
        <translation>工艺将被中止！</translation>
    </message>
    <message>
        <source>Prozess stoppen</source>
        <translation>停止过程</translation>
    </message>
    <message>
        <source>Stoppen</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Fortsetzen</source>
        <translation>继续</translation>
    </message>
</context>
<context>
    <name>PopupTimeAdjust</name>
    <message>
        <source>Datum und Uhrzeit</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>ProgramFilter</name>
    <message>
        <source>Meine Programme</source>
        <translation>我的程序</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>服务程序</translation>
    </message>
</context>
<context>
    <name>SelftestProgress</name>
    <message>
        <source>%1 von %2 Prüfungen abgeschlossen</source>
        <translation>已完成 %1/%2 项检测</translation>
    </message>
</context>
<context>
    <name>TimerPopup</name>
    <message>
        <source>Startzeit festlegen</source>
        <translation>设置启动时间</translation>
    </message>
    <message>
        <source>Übernehmen</source>
        <translation>应用</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::FailureSeverity</name>
    <message>
        <source>Schwerer Fehler</source>
        <translation>严重错误</translation>
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
        <translation>保存程序</translation>
    </message>
    <message>
        <source>Name ungültig: bitte einen Namen eingeben</source>
        <translation>名称无效：请输入名称</translation>
    </message>
    <message>
        <source>Name ungültig: Zeichen ; = , . und $$ sind nicht erlaubt</source>
        <translation>名称无效：不允许使用 ; = , . 和 $$</translation>
    </message>
    <message>
        <source>Name ungültig: nur Zeichen westeuropäischer Sprachen sind erlaubt</source>
        <translation>名称无效：只允许使用西欧语言字符</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NumPad</name>
    <message>
        <source>Zu viele falsche Eingaben.
Gesperrt: noch %1 s</source>
        <translation>错误输入次数过多。
已锁定：剩余 %1 秒</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::TableHead</name>
    <message>
        <source>Nr.</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>升温速率</translation>
    </message>
    <message>
        <source>Temperatur (°F)</source>
        <translation>温度 (°F)</translation>
    </message>
    <message>
        <source>Temperatur (°C)</source>
        <translation>温度 (°C)</translation>
    </message>
    <message>
        <source>Haltezeit (min)</source>
        <translation>保温时间 (分钟)</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkStatus</name>
    <message>
        <source>Nicht eingerichtet</source>
        <translation>未设置</translation>
    </message>
    <message>
        <source>Verbunden</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Nicht verbunden</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Der Name des Servers ist unbekannt</source>
        <translation>服务器名称未知</translation>
    </message>
    <message>
        <source>Der Server ist nicht erreichbar</source>
        <translation>无法访问服务器</translation>
    </message>
    <message>
        <source>Der Server hat die Verbindung abgelehnt</source>
        <translation>服务器拒绝了连接</translation>
    </message>
    <message>
        <source>Benutzername oder Passwort falsch</source>
        <translation>用户名或密码错误</translation>
    </message>
    <message>
        <source>Die verschlüsselte Verbindung ist fehlgeschlagen</source>
        <translation>加密连接失败</translation>
    </message>
    <message>
        <source>Die Verbindung ist abgebrochen</source>
        <translation>连接已中断</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkView</name>
    <message>
        <source>Labor-Verbindung</source>
        <translation>实验室连接</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Verlauf senden</source>
        <translation>发送历史记录</translation>
    </message>
    <message>
        <source>Server: %1</source>
        <translation>服务器：%1</translation>
    </message>
    <message>
        <source>Zustand: %1</source>
        <translation>状态：%1</translation>
    </message>
    <message>
        <source>Letzter Fehler: %1</source>
        <translation>最近错误：%1</translation>
    </message>
    <message>
        <source>Wartende Protokolle: %1</source>
        <translation>等待发送的记录：%1</translation>
    </message>
    <message>
        <source>Laboransicht koppeln</source>
        <translation>配对实验室视图</translation>
    </message>
    <message>
        <source>Die Laboransicht antwortet nicht.</source>
        <translation>实验室视图无响应。</translation>
    </message>
    <message>
        <source>Die Laboransicht konnte nicht gekoppelt werden.</source>
        <translation>无法配对实验室视图。</translation>
    </message>
</context>
<context>
    <name>ovra::MainWindow::MainWindow</name>
    <message>
        <source>Favoriten</source>
        <translation>收藏</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Programmoptionen</source>
        <translation>程序选项</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>服务</translation>
    </message>
    <message>
        <source>Filteroptionen</source>
        <translation>筛选选项</translation>
    </message>
    <message>
        <source>USB Stick erkannt</source>
        <translation>检测到 U 盘</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Sprache</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Temperatureinheit</source>
        <translation>温度单位</translation>
    </message>
    <message>
        <source>Neues Programm</source>
        <translation>新建程序</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>服务程序</translation>
    </message>
    <message>
        <source>Meine Programme</source>
        <translation>我的程序</translation>
    </message>
    <message>
        <source>Feste Programme</source>
        <translation>预设程序</translation>
    </message>
    <message>
        <source>Gerätedaten</source>
        <translation>设备数据</translation>
    </message>
    <message>
        <source>Systemtest</source>
        <translation>系统测试</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>清除错误</translation>
    </message>
    <message>
        <source>Werkseinstellungen</source>
        <translation>出厂设置</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>删除程序</translation>
    </message>
    <message>
        <source>Programm ändern</source>
        <translation>修改程序</translation>
    </message>
    <message>
        <source>Systemtest wiederholen</source>
        <translation>重新系统测试</translation>
    </message>
    <message>
        <source>Hersteller</source>
        <translation>制造商</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>Firmware Aktualisierung</source>
        <translation>固件更新</translation>
    </message>
    <message>
        <source>Konfiguration aktualisieren</source>
        <translation>更新配置</translation>
    </message>
    <message>
        <source>Meine Programme laden</source>
        <translation>加载我的程序</translation>
    </message>
    <message>
        <source>Meine Programme sichern</source>
        <translation>保存我的程序</translation>
    </message>
    <message>
        <source>Daten sichern</source>
        <translation>备份数据</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>生成二维码</translation>
    </message>
    <message>
        <source>Tür öffnen/schließen</source>
        <translation>打开/关闭炉门</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit einstellen</source>
        <translation>设置日期和时间</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>Türmechanik</source>
        <translation>炉门机构</translation>
    </message>
    <message>
        <source>Heizsystem</source>
        <translation>加热系统</translation>
    </message>
    <message>
        <source>Kühlsystem</source>
        <translation>冷却系统</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>氩气</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>型号 + 系列：</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>序列号：</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>硬件版本：</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>软件版本：</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>运行小时数：</translation>
    </message>
    <message>
        <source>  Firmware Aktualisierung...
  Bitte warten...</source>
        <translation>  正在更新固件...
  请稍候...</translation>
    </message>
    <message>
        <source>  Meine Programme werden geladen.
  Bitte warten...</source>
        <translation>  正在加载我的程序。
  请稍候...</translation>
    </message>
    <message>
        <source>  Meine Programme werden gesichert.
  Bitte warten...</source>
        <translation>  正在保存我的程序。
  请稍候...</translation>
    </message>
    <message>
        <source>  Daten sichern.
  Bitte warten...</source>
        <translation>  正在备份数据。
  请稍候...</translation>
    </message>
    <message>
        <source>  Konfiguration aktualisieren...
  Bitte warten...</source>
        <translation>  正在更新配置...
  请稍候...</translation>
    </message>
    <message>
        <source>  Erfolgreich.</source>
        <translation>  成功。</translation>
    </message>
    <message>
        <source>°C  Celsius</source>
        <translation>°C  摄氏度</translation>
    </message>
    <message>
        <source>°F  Fahrenheit</source>
        <translation>°F  华氏度</translation>
    </message>
    <message>
        <source>Bereit</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>  Fehlgeschlagen.</source>
        <translation>  失败。</translation>
    </message>
    <message>
        <source>Hauptmenü</source>
        <translation>主菜单</translation>
    </message>
    <message>
        <source>Datum &amp; Uhrzeit</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>Programm beendet</source>
        <translation>程序已完成</translation>
    </message>
    <message>
        <source>Programm abgebrochen</source>
        <translation>程序已中止</translation>
    </message>
    <message>
        <source>Trocknen</source>
        <translation>干燥</translation>
    </message>
    <message>
        <source>Startzeit</source>
        <translation>开始时间</translation>
    </message>
    <message>
        <source>Tür</source>
        <translation>炉门</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Ende %1</source>
        <translation>结束 %1</translation>
    </message>
    <message>
        <source>Brennprotokolle</source>
        <translation>烧结记录</translation>
    </message>
    <message>
        <source>Stopp</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Labor-Verbindung</source>
        <translation>实验室连接</translation>
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
        <translation>氩气还是氧化锆？</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>氩气</translation>
    </message>
    <message>
        <source>Zirkon</source>
        <translation>氧化锆</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupFailure</name>
    <message>
        <source>Fehler</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupLeaveNewProg</name>
    <message>
        <source>Programm nicht gespeichert!
Zum Hauptmenü?</source>
        <translation>程序未保存！
返回主菜单？</translation>
    </message>
    <message>
        <source>Programm nicht gespeichert!
Zurück?</source>
        <translation>程序未保存！
返回？</translation>
    </message>
    <message>
        <source>Editor verlassen</source>
        <translation>退出编辑器</translation>
    </message>
    <message>
        <source>Verwerfen</source>
        <translation>放弃</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupLicense</name>
    <message>
        <source>Diese Software verwendet das Qt Toolkit (Qt 5, LGPL v3).</source>
        <translation>本软件使用 Qt 工具包（Qt 5，LGPL v3）。</translation>
    </message>
    <message>
        <source>Qt-Version: %1</source>
        <translation>Qt 版本：%1</translation>
    </message>
    <message>
        <source>Qt ist unter der GNU Lesser General Public License Version 3 (LGPL v3) lizenziert. Die Qt-Bibliotheken sind dynamisch eingebunden und können durch eine eigene, kompatible Version ersetzt werden. Den Lizenztext finden Sie unter https://www.gnu.org/licenses/lgpl-3.0.html, den Quellcode von Qt unter https://download.qt.io/archive/qt/ und als Quellpaket der verwendeten Debian-Distribution (qtbase-opensource-src).</source>
        <translation>Qt 依据 GNU 宽通用公共许可证第 3 版（LGPL v3）授权。Qt 库为动态链接，可替换为您自己的兼容版本。许可证全文见 https://www.gnu.org/licenses/lgpl-3.0.html，Qt 源代码见 https://download.qt.io/archive/qt/ 以及所用 Debian 发行版的源代码包（qtbase-opensource-src）。</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupQRCode</name>
    <message>
        <source>QR Code nicht verfügbar</source>
        <translation>二维码不可用</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>生成二维码</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupTempWarning</name>
    <message>
        <source>Achtung! Ofen ist heiß – Tür schließen!</source>
        <translation>注意！炉体高温 – 请关闭炉门！</translation>
    </message>
    <message>
        <source>Tür schließen</source>
        <translation>关闭炉门</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupUSB</name>
    <message>
        <source>USB-Stick</source>
        <translation>U盘</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringGlance</name>
    <message>
        <source>Vortrocknen</source>
        <translation>预干燥</translation>
    </message>
    <message>
        <source>Halten</source>
        <translation>保温</translation>
    </message>
    <message>
        <source>Aufheizen</source>
        <translation>升温</translation>
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
        <translation>剩余 %1:%2 小时</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummary</name>
    <message>
        <source>Dauer</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Ende</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>Höchste Temperatur</source>
        <translation>最高温度</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummaryView</name>
    <message>
        <source>und %1 weitere</source>
        <translation>另有 %1 条</translation>
    </message>
    <message>
        <source>Keine Fehler</source>
        <translation>无错误</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeBadge</name>
    <message>
        <source>Auftrag %1</source>
        <translation>工单 %1</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeField</name>
    <message>
        <source>Auftrag</source>
        <translation>工单</translation>
    </message>
    <message>
        <source>Scannen oder tippen</source>
        <translation>扫描或输入</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeKeyboard</name>
    <message>
        <source>Auftrag</source>
        <translation>工单</translation>
    </message>
    <message>
        <source>Buchstaben, Ziffern, - / . _ und Leerzeichen, höchstens %1 Zeichen</source>
        <translation>字母、数字、- / . _ 和空格，最多 %1 个字符</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringDetailView</name>
    <message>
        <source>gemessen</source>
        <translation>实测</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>计划</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Dauer</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Vortrocknen</source>
        <translation>预干燥</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Auftrag</source>
        <translation>工单</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringHistoryView</name>
    <message>
        <source>Brennprotokolle</source>
        <translation>烧结记录</translation>
    </message>
    <message>
        <source>Brände: %1</source>
        <translation>烧结次数：%1</translation>
    </message>
    <message>
        <source>Noch kein Brand aufgezeichnet</source>
        <translation>尚无烧结记录</translation>
    </message>
    <message>
        <source>Auftrag %1</source>
        <translation>工单 %1</translation>
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
        <translation>失败</translation>
    </message>
    <message>
        <source>Abgebrochen</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Unterbrochen</source>
        <translation>已中断</translation>
    </message>
    <message>
        <source>Läuft</source>
        <translation>进行中</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringReport</name>
    <message>
        <source>Brennprotokoll</source>
        <translation>烧结记录</translation>
    </message>
    <message>
        <source>Gerät</source>
        <translation>炉子</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>型号 + 系列：</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>序列号：</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>硬件版本：</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>软件版本：</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>运行小时数：</translation>
    </message>
    <message>
        <source>Brand</source>
        <translation>烧结</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>开始：</translation>
    </message>
    <message>
        <source>Ende:</source>
        <translation>结束：</translation>
    </message>
    <message>
        <source>Dauer:</source>
        <translation>时长：</translation>
    </message>
    <message>
        <source>Material:</source>
        <translation>材料：</translation>
    </message>
    <message>
        <source>Vortrocknen:</source>
        <translation>预干燥：</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>Verzögerter Start:</source>
        <translation>延时启动：</translation>
    </message>
    <message>
        <source>Ergebnis:</source>
        <translation>结果：</translation>
    </message>
    <message>
        <source>Programm</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>段</translation>
    </message>
    <message>
        <source>Rate %1/min</source>
        <translation>升温速率 %1/分钟</translation>
    </message>
    <message>
        <source>Temperatur %1</source>
        <translation>温度 %1</translation>
    </message>
    <message>
        <source>Haltezeit min</source>
        <translation>保温 分钟</translation>
    </message>
    <message>
        <source>Programmtext nicht lesbar</source>
        <translation>程序文本无法读取</translation>
    </message>
    <message>
        <source>Temperaturverlauf</source>
        <translation>温度曲线</translation>
    </message>
    <message>
        <source>gemessen</source>
        <translation>实测</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>计划</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Auftrag:</source>
        <translation>工单：</translation>
    </message>
</context>
</TS>
