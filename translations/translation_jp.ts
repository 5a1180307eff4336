<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>DateTimePopup</name>
    <message>
        <source>Datum</source>
        <translation>日付</translation>
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
        <translation>時刻</translation>
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
        <translation>赤く表示された項目を確認してください。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Ofen</source>
        <translation>焼結炉</translation>
    </message>
    <message>
        <source>Bitte warten …</source>
        <translation>お待ちください …</translation>
    </message>
    <message>
        <source>Service-PIN:</source>
        <translation>サービスPIN:</translation>
    </message>
    <message>
        <source>Verbindung zum Ofen wird hergestellt …</source>
        <translation>焼結炉に接続しています …</translation>
    </message>
    <message>
        <source>Materialwechsel</source>
        <translation>材料の変更</translation>
    </message>
    <message>
        <source>Bitte Türisolation einsetzen</source>
        <translation>扉の断熱材を取り付けてください</translation>
    </message>
</context>
<context>
    <name>PopupArgonFailure</name>
    <message>
        <source>Überprüfung der Argon Versorgung
fehlgeschlagen.

Bitte die Anschlüsse und Eingangsdruck
überprüfen und den Prozess neu starten.</source>
        <translation>アルゴン供給の確認に
失敗しました。

接続部と供給圧力を確認して、
プロセスを再開してください。</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>アルゴン</translation>
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
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>PopupDeleteFailureList</name>
    <message>
        <source>Fehlerliste wird endgültig gelöscht!</source>
        <translation>エラーリストを完全に削除します！</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>他 %1 件</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>エラー消去</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>PopupDeleteProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>プログラムを完全に削除します！</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>PopupOverrideProg</name>
    <message>
        <source>Programm wird überschrieben!</source>
        <translation>プログラムを上書きします！</translation>
    </message>
    <message>
        <source>Programm überschreiben</source>
        <translation>プログラムを上書き</translation>
    </message>
    <message>
        <source>Überschreiben</source>
        <translation>上書き</translation>
    </message>
</context>
<context>
    <name>PopupQuitProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>プログラムを完全に削除します！</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>PopupSettings</name>
    <message>
        <source>Werkseinstellungen</source>
        <translation>工場出荷時設定</translation>
    </message>
    <message>
        <source>Alle eigenen Programme werden gelöscht und die Werkseinstellungen wiederhergestellt!</source>
        <translation>ユーザープログラムはすべて削除され、工場出荷時設定に戻ります！</translation>
    </message>
    <message>
        <source>Zurücksetzen</source>
        <translation>リセット</translation>
    </message>
</context>
<context>
    <name>PopupStop</name>
    <message>
        <source>Prozess wird abgebrochen!</source>
        <translation>プロセスを中止します！</translation>
    </message>
    <message>
        <source>Prozess stoppen</source>
        <translation>プロセスを停止</translation>
    </message>
    <message>
        <source>Stoppen</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Fortsetzen</source>
        <translation>続行</translation>
    </message>
</context>
<context>
    <name>PopupTimeAdjust</name>
    <message>
        <source>Datum und Uhrzeit</source>
        <translation>日付と時刻</translation>
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
        <translation>マイプログラム</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>サービスプログラム</translation>
    </message>
</context>
<context>
    <name>SelftestProgress</name>
    <message>
        <source>%1 von %2 Prüfungen abgeschlossen</source>
        <translation>%2 件中 %1 件の検査完了</translation>
    </message>
</context>
<context>
    <name>TimerPopup</name>
    <message>
        <source>Startzeit festlegen</source>
        <translation>開始時刻の設定</translation>
    </message>
    <message>
        <source>Übernehmen</source>
        <translation>適用</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::FailureSeverity</name>
    <message>
        <source>Schwerer Fehler</source>
        <translation>重大なエラー</translation>
    </message>
    <message>
        <source>Warnung</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>情報</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NewProgram</name>
    <message>
        <source>Programm sichern</source>
        <translation>プログラムを保存</translation>
    </message>
    <message>
        <source>Name ungültig: bitte einen Namen eingeben</source>
        <translation>名前が無効です：名前を入力してください</translation>
    </message>
    <message>
        <source>Name ungültig: Zeichen ; = , . und $$ sind nicht erlaubt</source>
        <translation>名前が無効です：; = , . と $$ は使用できません</translation>
    </message>
    <message>
        <source>Name ungültig: nur Zeichen westeuropäischer Sprachen sind erlaubt</source>
        <translation>名前が無効です：西欧言語の文字のみ使用できます</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NumPad</name>
    <message>
        <source>Zu viele falsche Eingaben.
Gesperrt: noch %1 s</source>
        <translation>誤入力が多すぎます。
ロック中：残り %1 秒</translation>
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
        <translation>昇温速度</translation>
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
        <translation>保持時間 (分)</translation>
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
        <translation>接続済み</translation>
    </message>
    <message>
        <source>Nicht verbunden</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Der Name des Servers ist unbekannt</source>
        <translation>サーバー名が不明です</translation>
    </message>
    <message>
        <source>Der Server ist nicht erreichbar</source>
        <translation>サーバーに接続できません</translation>
    </message>
    <message>
        <source>Der Server hat die Verbindung abgelehnt</source>
        <translation>サーバーが接続を拒否しました</translation>
    </message>
    <message>
        <source>Benutzername oder Passwort falsch</source>
        <translation>ユーザー名またはパスワードが違います</translation>
    </message>
    <message>
        <source>Die verschlüsselte Verbindung ist fehlgeschlagen</source>
        <translation>暗号化接続に失敗しました</translation>
    </message>
    <message>
        <source>Die Verbindung ist abgebrochen</source>
        <translation>接続が切断されました</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkView</name>
    <message>
        <source>Labor-Verbindung</source>
        <translation>ラボ接続</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Verlauf senden</source>
        <translation>履歴を送信</translation>
    </message>
    <message>
        <source>Server: %1</source>
        <translation>サーバー: %1</translation>
    </message>
    <message>
        <source>Zustand: %1</source>
        <translation>状態: %1</translation>
    </message>
    <message>
        <source>Letzter Fehler: %1</source>
        <translation>最後のエラー: %1</translation>
    </message>
    <message>
        <source>Wartende Protokolle: %1</source>
        <translation>送信待ちの記録: %1</translation>
    </message>
    <message>
        <source>Laboransicht koppeln</source>
        <translation>ラボビューをペアリング</translation>
    </message>
    <message>
        <source>Die Laboransicht antwortet nicht.</source>
        <translation>ラボビューが応答しません。</translation>
    </message>
    <message>
        <source>Die Laboransicht konnte nicht gekoppelt werden.</source>
        <translation>ラボビューをペアリングできませんでした。</translation>
    </message>
</context>
<context>
    <name>ovra::MainWindow::MainWindow</name>
    <message>
        <source>Favoriten</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Programmoptionen</source>
        <translation>プログラムオプション</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>サービス</translation>
    </message>
    <message>
        <source>Filteroptionen</source>
        <translation>フィルターオプション</translation>
    </message>
    <message>
        <source>USB Stick erkannt</source>
        <translation>USBメモリを検出しました</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Sprache</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Temperatureinheit</source>
        <translation>温度単位</translation>
    </message>
    <message>
        <source>Neues Programm</source>
        <translation>新規プログラム</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>サービスプログラム</translation>
    </message>
    <message>
        <source>Meine Programme</source>
        <translation>マイプログラム</translation>
    </message>
    <message>
        <source>Feste Programme</source>
        <translation>既定プログラム</translation>
    </message>
    <message>
        <source>Gerätedaten</source>
        <translation>装置データ</translation>
    </message>
    <message>
        <source>Systemtest</source>
        <translation>システムテスト</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>エラー消去</translation>
    </message>
    <message>
        <source>Werkseinstellungen</source>
        <translation>工場出荷時設定</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Programm ändern</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Systemtest wiederholen</source>
        <translation>システムテスト再実行</translation>
    </message>
    <message>
        <source>Hersteller</source>
        <translation>メーカー</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>Firmware Aktualisierung</source>
        <translation>ファームウェア更新</translation>
    </message>
    <message>
        <source>Konfiguration aktualisieren</source>
        <translation>構成の更新</translation>
    </message>
    <message>
        <source>Meine Programme laden</source>
        <translation>マイプログラム読込</translation>
    </message>
    <message>
        <source>Meine Programme sichern</source>
        <translation>マイプログラム保存</translation>
    </message>
    <message>
        <source>Daten sichern</source>
        <translation>データのバックアップ</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>QRコード作成</translation>
    </message>
    <message>
        <source>Tür öffnen/schließen</source>
        <translation>扉の開閉</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit einstellen</source>
        <translation>日付と時刻の設定</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit</source>
        <translation>日付と時刻</translation>
    </message>
    <message>
        <source>Türmechanik</source>
        <translation>扉機構</translation>
    </message>
    <message>
        <source>Heizsystem</source>
        <translation>加熱システム</translation>
    </message>
    <message>
        <source>Kühlsystem</source>
        <translation>冷却システム</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>アルゴン</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>型式 + シリーズ:</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>シリアル番号:</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>ハードウェアバージョン:</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>ソフトウェアバージョン:</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>稼働時間:</translation>
    </message>
    <message>
        <source>  Firmware Aktualisierung...
  Bitte warten...</source>
        <translation>  ファームウェア更新中...
  お待ちください...</translation>
    </message>
    <message>
        <source>  Meine Programme werden geladen.
  Bitte warten...</source>
        <translation>  マイプログラムを読み込み中。
  お待ちください...</translation>
    </message>
    <message>
        <source>  Meine Programme werden gesichert.
  Bitte warten...</source>
        <translation>  マイプログラムを保存中。
  お待ちください...</translation>
    </message>
    <message>
        <source>  Daten sichern.
  Bitte warten...</source>
        <translation>  データをバックアップ中。
  お待ちください...</translation>
    </message>
    <message>
        <source>  Konfiguration aktualisieren...
  Bitte warten...</source>
        <translation>  構成を更新中...
  お待ちください...</translation>
    </message>
    <message>
        <source>  Erfolgreich.</source>
        <translation>  成功しました。</translation>
    </message>
    <message>
        <source>°C  Celsius</source>
        <translation>°C  摂氏</translation>
    </message>
    <message>
        <source>°F  Fahrenheit</source>
        <translation>°F  華氏</translation>
    </message>
    <message>
        <source>Bereit</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>  Fehlgeschlagen.</source>
        <translation>  失敗しました。</translation>
    </message>
    <message>
        <source>Hauptmenü</source>
        <translation>メインメニュー</translation>
    </message>
    <message>
        <source>Datum &amp; Uhrzeit</source>
        <translation>日付と時刻</translation>
    </message>
    <message>
        <source>Programm beendet</source>
        <translation>プログラム終了</translation>
    </message>
    <message>
        <source>Programm abgebrochen</source>
        <translation>プログラム中止</translation>
    </message>
    <message>
        <source>Trocknen</source>
        <translation>乾燥</translation>
    </message>
    <message>
        <source>Startzeit</source>
        <translation>開始時刻</translation>
    </message>
    <message>
        <source>Tür</source>
        <translation>ドア</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Ende %1</source>
        <translation>終了 %1</translation>
    </message>
    <message>
        <source>Brennprotokolle</source>
        <translation>焼成記録</translation>
    </message>
    <message>
        <source>Stopp</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Labor-Verbindung</source>
        <translation>ラボ接続</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::DateTimePopup</name>
    <message>
        <source>Abbrechen</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::Popup</name>
    <message>
        <source>Argon oder Zirkon?</source>
        <translation>アルゴンまたはジルコニア？</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>アルゴン</translation>
    </message>
    <message>
        <source>Zirkon</source>
        <translation>ジルコニア</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupFailure</name>
    <message>
        <source>Fehler</source>
        <translation>エラー</translation>
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
        <translation>プログラムが保存されていません！
メインメニューに戻りますか？</translation>
    </message>
    <message>
        <source>Programm nicht gespeichert!
Zurück?</source>
        <translation>プログラムが保存されていません！
戻りますか？</translation>
    </message>
    <message>
        <source>Editor verlassen</source>
        <translation>エディタを終了</translation>
    </message>
    <message>
        <source>Verwerfen</source>
        <translation>破棄</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupLicense</name>
    <message>
        <source>Diese Software verwendet das Qt Toolkit (Qt 5, LGPL v3).</source>
        <translation>本ソフトウェアは Qt ツールキット (Qt 5, LGPL v3) を使用しています。</translation>
    </message>
    <message>
        <source>Qt-Version: %1</source>
        <translation>Qt バージョン: %1</translation>
    </message>
    <message>
        <source>Qt ist unter der GNU Lesser General Public License Version 3 (LGPL v3) lizenziert. Die Qt-Bibliotheken sind dynamisch eingebunden und können durch eine eigene, kompatible Version ersetzt werden. Den Lizenztext finden Sie unter https://www.gnu.org/licenses/lgpl-3.0.html, den Quellcode von Qt unter https://download.qt.io/archive/qt/ und als Quellpaket der verwendeten Debian-Distribution (qtbase-opensource-src).</source>
        <translation>Qt は GNU Lesser General Public License バージョン 3 (LGPL v3) の下でライセンスされています。Qt ライブラリは動的にリンクされており、互換性のある独自のバージョンに置き換えることができます。ライセンス全文は https://www.gnu.org/licenses/lgpl-3.0.html、Qt のソースコードは https://download.qt.io/archive/qt/ および使用している Debian ディストリビューションのソースパッケージ (qtbase-opensource-src) から入手できます。</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>ライセンス</translation>
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
        <translation>QRコードは利用できません</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>QRコード作成</translation>
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
        <translation>注意！炉内高温 – 扉を閉めてください！</translation>
    </message>
    <message>
        <source>Tür schließen</source>
        <translation>扉を閉める</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupUSB</name>
    <message>
        <source>USB-Stick</source>
        <translation>USBメモリ</translation>
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
        <translation>予備乾燥</translation>
    </message>
    <message>
        <source>Halten</source>
        <translation>保持</translation>
    </message>
    <message>
        <source>Aufheizen</source>
        <translation>昇温</translation>
    </message>
    <message>
        <source>Segment %1 von %2</source>
        <translation>セグメント %1/%2</translation>
    </message>
    <message>
        <source>Segment %1</source>
        <translation>セグメント %1</translation>
    </message>
    <message>
        <source>noch %1:%2 h</source>
        <translation>残り %1:%2 時間</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummary</name>
    <message>
        <source>Dauer</source>
        <translation>所要時間</translation>
    </message>
    <message>
        <source>Ende</source>
        <translation>終了</translation>
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
        <translation>他 %1 件</translation>
    </message>
    <message>
        <source>Keine Fehler</source>
        <translation>エラーなし</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeBadge</name>
    <message>
        <source>Auftrag %1</source>
        <translation>ジョブ %1</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeField</name>
    <message>
        <source>Auftrag</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>Scannen oder tippen</source>
        <translation>スキャンまたは入力</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeKeyboard</name>
    <message>
        <source>Auftrag</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>Buchstaben, Ziffern, - / . _ und Leerzeichen, höchstens %1 Zeichen</source>
        <translation>英字、数字、- / . _ とスペース、最大 %1 文字</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringDetailView</name>
    <message>
        <source>gemessen</source>
        <translation>実測</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>計画</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Dauer</source>
        <translation>所要時間</translation>
    </message>
    <message>
        <source>Vortrocknen</source>
        <translation>予備乾燥</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Auftrag</source>
        <translation>ジョブ</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringHistoryView</name>
    <message>
        <source>Brennprotokolle</source>
        <translation>焼成記録</translation>
    </message>
    <message>
        <source>Brände: %1</source>
        <translation>焼成数: %1</translation>
    </message>
    <message>
        <source>Noch kein Brand aufgezeichnet</source>
        <translation>焼成の記録はまだありません</translation>
    </message>
    <message>
        <source>Auftrag %1</source>
        <translation>ジョブ %1</translation>
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
        <translation>停止</translation>
    </message>
    <message>
        <source>Unterbrochen</source>
        <translation>中断</translation>
    </message>
    <message>
        <source>Läuft</source>
        <translation>実行中</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringReport</name>
    <message>
        <source>Brennprotokoll</source>
        <translation>焼成記録</translation>
    </message>
    <message>
        <source>Gerät</source>
        <translation>炉</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>型式 + シリーズ:</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>シリアル番号:</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>ハードウェアバージョン:</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>ソフトウェアバージョン:</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>稼働時間:</translation>
    </message>
    <message>
        <source>Brand</source>
        <translation>焼成</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>開始:</translation>
    </message>
    <message>
        <source>Ende:</source>
        <translation>終了:</translation>
    </message>
    <message>
        <source>Dauer:</source>
        <translation>所要時間:</translation>
    </message>
    <message>
        <source>Material:</source>
        <translation>材料:</translation>
    </message>
    <message>
        <source>Vortrocknen:</source>
        <translation>予備乾燥:</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>Verzögerter Start:</source>
        <translation>予約開始:</translation>
    </message>
    <message>
        <source>Ergebnis:</source>
        <translation>結果:</translation>
    </message>
    <message>
        <source>Programm</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>セグメント</translation>
    </message>
    <message>
        <source>Rate %1/min</source>
        <translation>昇温速度 %1/分</translation>
    </message>
    <message>
        <source>Temperatur %1</source>
        <translation>温度 %1</translation>
    </message>
    <message>
        <source>Haltezeit min</source>
        <translation>保持 分</translation>
    </message>
    <message>
        <source>Programmtext nicht lesbar</source>
        <translation>プログラムを読み取れません</translation>
    </message>
    <message>
        <source>Temperaturverlauf</source>
        <translation>温度曲線</translation>
    </message>
    <message>
        <source>gemessen</source>
        <translation>実測</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>計画</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Auftrag:</source>
        <translation>ジョブ:</translation>
    </message>
</context>
</TS>
