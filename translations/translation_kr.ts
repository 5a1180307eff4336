<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name>DateTimePopup</name>
    <message>
        <source>Datum</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>TT</source>
        <translation>일</translation>
    </message>
    <message>
        <source>MM</source>
        <translation>월</translation>
    </message>
    <message>
        <source>JJJJ</source>
        <translation>년</translation>
    </message>
    <message>
        <source>Uhrzeit</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>hh</source>
        <translation>시</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>분</translation>
    </message>
    <message>
        <source>Bitte die rot markierten Felder prüfen.</source>
        <translation>빨간색으로 표시된 항목을 확인하십시오.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Ofen</source>
        <translation>소결로</translation>
    </message>
    <message>
        <source>Bitte warten …</source>
        <translation>잠시 기다려 주십시오 …</translation>
    </message>
    <message>
        <source>Service-PIN:</source>
        <translation>서비스 PIN:</translation>
    </message>
    <message>
        <source>Verbindung zum Ofen wird hergestellt …</source>
        <translation>소결로에 연결하는 중 …</translation>
    </message>
    <message>
        <source>Materialwechsel</source>
        <translation>재료 교체</translation>
    </message>
    <message>
        <source>Bitte Türisolation einsetzen</source>
        <translation>도어 단열재를 넣으십시오</translation>
    </message>
</context>
<context>
    <name>PopupArgonFailure</name>
    <message>
        <source>Überprüfung der Argon Versorgung
fehlgeschlagen.

Bitte die Anschlüsse und Eingangsdruck
überprüfen und den Prozess neu starten.</source>
        <translation>아르곤 공급 점검에
실패했습니다.

연결부와 공급 압력을 확인하고
공정을 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>아르곤</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>PopupConfirm</name>
    <message>
        <source>Abbrechen</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>PopupDeleteFailureList</name>
    <message>
        <source>Fehlerliste wird endgültig gelöscht!</source>
        <translation>오류 목록이 영구 삭제됩니다!</translation>
    </message>
    <message>
        <source>und %1 weitere</source>
        <translation>외 %1건</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>오류 삭제</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>삭제</translation>
    </message>
</context>
<context>
    <name>PopupDeleteProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>프로그램이 영구 삭제됩니다!</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>프로그램 삭제</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>삭제</translation>
    </message>
</context>
<context>
    <name>PopupOverrideProg</name>
    <message>
        <source>Programm wird überschrieben!</source>
        <translation>프로그램을 덮어씁니다!</translation>
    </message>
    <message>
        <source>Programm überschreiben</source>
        <translation>프로그램 덮어쓰기</translation>
    </message>
    <message>
        <source>Überschreiben</source>
        <translation>덮어쓰기</translation>
    </message>
</context>
<context>
    <name>PopupQuitProgram</name>
    <message>
        <source>Programm wird endgültig gelöscht!</source>
        <translation>프로그램이 영구 삭제됩니다!</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>프로그램 삭제</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>삭제</translation>
    </message>
</context>
<context>
    <name>PopupSettings</name>
    <message>
        <source>Werkseinstellungen</source>
        <translation>공장 초기화</translation>
    </message>
    <message>
        <source>Alle eigenen Programme werden gelöscht und die Werkseinstellungen wiederhergestellt!</source>
        <translation>모든 사용자 프로그램이 삭제되고 공장 설정으로 복원됩니다!</translation>
    </message>
    <message>
        <source>Zurücksetzen</source>
        <translation>초기화</translation>
    </message>
</context>
<context>
    <name>PopupStop</name>
    <message>
        <source>Prozess wird abgebrochen!</source>
        <translation>공정이 중단됩니다!</translation>
    </message>
    <message>
        <source>Prozess stoppen</source>
        <translation>공정 정지</translation>
    </message>
    <message>
        <source>Stoppen</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>Fortsetzen</source>
        <translation>계속</translation>
    </message>
</context>
<context>
    <name>PopupTimeAdjust</name>
    <message>
        <source>Datum und Uhrzeit</source>
        <translation>날짜 및 시간</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>저장</translation>
    </message>
</context>
<context>
    <name>ProgramFilter</name>
    <message>
        <source>Meine Programme</source>
        <translation>내 프로그램</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>서비스 프로그램</translation>
    </message>
</context>
<context>
    <name>SelftestProgress</name>
    <message>
        <source>%1 von %2 Prüfungen abgeschlossen</source>
        <translation>%2개 중 %1개 검사 완료</translation>
    </message>
</context>
<context>
    <name>TimerPopup</name>
    <message>
        <source>Startzeit festlegen</source>
        <translation>시작 시간 설정</translation>
    </message>
    <message>
        <source>Übernehmen</source>
        <translation>적용</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::FailureSeverity</name>
    <message>
        <source>Schwerer Fehler</source>
        <translation>심각한 오류</translation>
    </message>
    <message>
        <source>Warnung</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>안내</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NewProgram</name>
    <message>
        <source>Programm sichern</source>
        <translation>프로그램 저장</translation>
    </message>
    <message>
        <source>Name ungültig: bitte einen Namen eingeben</source>
        <translation>잘못된 이름: 이름을 입력하십시오</translation>
    </message>
    <message>
        <source>Name ungültig: Zeichen ; = , . und $$ sind nicht erlaubt</source>
        <translation>잘못된 이름: ; = , . 및 $$ 는 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>Name ungültig: nur Zeichen westeuropäischer Sprachen sind erlaubt</source>
        <translation>잘못된 이름: 서유럽 문자만 사용할 수 있습니다</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::NumPad</name>
    <message>
        <source>Zu viele falsche Eingaben.
Gesperrt: noch %1 s</source>
        <translation>잘못된 입력이 너무 많습니다.
잠김: %1초 남음</translation>
    </message>
</context>
<context>
    <name>ovra::GlobalElements::TableHead</name>
    <message>
        <source>Nr.</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>승온 속도</translation>
    </message>
    <message>
        <source>Temperatur (°F)</source>
        <translation>온도 (°F)</translation>
    </message>
    <message>
        <source>Temperatur (°C)</source>
        <translation>온도 (°C)</translation>
    </message>
    <message>
        <source>Haltezeit (min)</source>
        <translation>유지 시간 (분)</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkStatus</name>
    <message>
        <source>Nicht eingerichtet</source>
        <translation>설정되지 않음</translation>
    </message>
    <message>
        <source>Verbunden</source>
        <translation>연결됨</translation>
    </message>
    <message>
        <source>Nicht verbunden</source>
        <translation>연결되지 않음</translation>
    </message>
    <message>
        <source>Der Name des Servers ist unbekannt</source>
        <translation>서버 이름을 알 수 없습니다</translation>
    </message>
    <message>
        <source>Der Server ist nicht erreichbar</source>
        <translation>서버에 연결할 수 없습니다</translation>
    </message>
    <message>
        <source>Der Server hat die Verbindung abgelehnt</source>
        <translation>서버가 연결을 거부했습니다</translation>
    </message>
    <message>
        <source>Benutzername oder Passwort falsch</source>
        <translation>사용자 이름 또는 비밀번호가 틀립니다</translation>
    </message>
    <message>
        <source>Die verschlüsselte Verbindung ist fehlgeschlagen</source>
        <translation>암호화된 연결에 실패했습니다</translation>
    </message>
    <message>
        <source>Die Verbindung ist abgebrochen</source>
        <translation>연결이 끊어졌습니다</translation>
    </message>
</context>
<context>
    <name>ovra::LabLink::LabLinkView</name>
    <message>
        <source>Labor-Verbindung</source>
        <translation>실험실 연결</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Verlauf senden</source>
        <translation>기록 보내기</translation>
    </message>
    <message>
        <source>Server: %1</source>
        <translation>서버: %1</translation>
    </message>
    <message>
        <source>Zustand: %1</source>
        <translation>상태: %1</translation>
    </message>
    <message>
        <source>Letzter Fehler: %1</source>
        <translation>마지막 오류: %1</translation>
    </message>
    <message>
        <source>Wartende Protokolle: %1</source>
        <translation>대기 중인 기록: %1</translation>
    </message>
    <message>
        <source>Laboransicht koppeln</source>
        <translation>실험실 보기 페어링</translation>
    </message>
    <message>
        <source>Die Laboransicht antwortet nicht.</source>
        <translation>실험실 보기가 응답하지 않습니다.</translation>
    </message>
    <message>
        <source>Die Laboransicht konnte nicht gekoppelt werden.</source>
        <translation>실험실 보기를 페어링할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>ovra::MainWindow::MainWindow</name>
    <message>
        <source>Favoriten</source>
        <translation>즐겨찾기</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Programmoptionen</source>
        <translation>프로그램 옵션</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>서비스</translation>
    </message>
    <message>
        <source>Filteroptionen</source>
        <translation>필터 옵션</translation>
    </message>
    <message>
        <source>USB Stick erkannt</source>
        <translation>USB 메모리 감지됨</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>프로그램</translation>
    </message>
    <message>
        <source>Sprache</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Temperatureinheit</source>
        <translation>온도 단위</translation>
    </message>
    <message>
        <source>Neues Programm</source>
        <translation>새 프로그램</translation>
    </message>
    <message>
        <source>Service Programme</source>
        <translation>서비스 프로그램</translation>
    </message>
    <message>
        <source>Meine Programme</source>
        <translation>내 프로그램</translation>
    </message>
    <message>
        <source>Feste Programme</source>
        <translation>기본 프로그램</translation>
    </message>
    <message>
        <source>Gerätedaten</source>
        <translation>장치 정보</translation>
    </message>
    <message>
        <source>Systemtest</source>
        <translation>시스템 테스트</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Fehler löschen</source>
        <translation>오류 삭제</translation>
    </message>
    <message>
        <source>Werkseinstellungen</source>
        <translation>공장 초기화</translation>
    </message>
    <message>
        <source>Programm löschen</source>
        <translation>프로그램 삭제</translation>
    </message>
    <message>
        <source>Programm ändern</source>
        <translation>프로그램 변경</translation>
    </message>
    <message>
        <source>Systemtest wiederholen</source>
        <translation>시스템 테스트 반복</translation>
    </message>
    <message>
        <source>Hersteller</source>
        <translation>제조사</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>재료</translation>
    </message>
    <message>
        <source>Firmware Aktualisierung</source>
        <translation>펌웨어 업데이트</translation>
    </message>
    <message>
        <source>Konfiguration aktualisieren</source>
        <translation>구성 업데이트</translation>
    </message>
    <message>
        <source>Meine Programme laden</source>
        <translation>내 프로그램 불러오기</translation>
    </message>
    <message>
        <source>Meine Programme sichern</source>
        <translation>내 프로그램 저장</translation>
    </message>
    <message>
        <source>Daten sichern</source>
        <translation>데이터 백업</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>QR 코드 생성</translation>
    </message>
    <message>
        <source>Tür öffnen/schließen</source>
        <translation>도어 열기/닫기</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>라이선스</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit einstellen</source>
        <translation>날짜 및 시간 설정</translation>
    </message>
    <message>
        <source>Datum &amp;&amp; Uhrzeit</source>
        <translation>날짜 및 시간</translation>
    </message>
    <message>
        <source>Türmechanik</source>
        <translation>도어 기구</translation>
    </message>
    <message>
        <source>Heizsystem</source>
        <translation>가열 시스템</translation>
    </message>
    <message>
        <source>Kühlsystem</source>
        <translation>냉각 시스템</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>아르곤</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>모델 + 시리즈:</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>일련번호:</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>하드웨어 버전:</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>소프트웨어 버전:</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>가동 시간:</translation>
    </message>
    <message>
        <source>  Firmware Aktualisierung...
  Bitte warten...</source>
        <translation>  펌웨어 업데이트 중...
  잠시 기다려 주십시오...</translation>
    </message>
    <message>
        <source>  Meine Programme werden geladen.
  Bitte warten...</source>
        <translation>  내 프로그램을 불러오는 중.
  잠시 기다려 주십시오...</translation>
    </message>
    <message>
        <source>  Meine Programme werden gesichert.
  Bitte warten...</source>
        <translation>  내 프로그램을 저장하는 중.
  잠시 기다려 주십시오...</translation>
    </message>
    <message>
        <source>  Daten sichern.
  Bitte warten...</source>
        <translation>  데이터 백업 중.
  잠시 기다려 주십시오...</translation>
    </message>
    <message>
        <source>  Konfiguration aktualisieren...
  Bitte warten...</source>
        <translation>  구성 업데이트 중...
  잠시 기다려 주십시오...</translation>
    </message>
    <message>
        <source>  Erfolgreich.</source>
        <translation>  성공.</translation>
    </message>
    <message>
        <source>°C  Celsius</source>
        <translation>°C  섭씨</translation>
    </message>
    <message>
        <source>°F  Fahrenheit</source>
        <translation>°F  화씨</translation>
    </message>
    <message>
        <source>Bereit</source>
        <translation>준비 완료</translation>
    </message>
    <message>
        <source>  Fehlgeschlagen.</source>
        <translation>  실패.</translation>
    </message>
    <message>
        <source>Hauptmenü</source>
        <translation>메인 메뉴</translation>
    </message>
    <message>
        <source>Datum &amp; Uhrzeit</source>
        <translation>날짜 및 시간</translation>
    </message>
    <message>
        <source>Programm beendet</source>
        <translation>프로그램 완료</translation>
    </message>
    <message>
        <source>Programm abgebrochen</source>
        <translation>프로그램 중단</translation>
    </message>
    <message>
        <source>Trocknen</source>
        <translation>건조</translation>
    </message>
    <message>
        <source>Startzeit</source>
        <translation>시작 시간</translation>
    </message>
    <message>
        <source>Tür</source>
        <translation>도어</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Ende %1</source>
        <translation>종료 %1</translation>
    </message>
    <message>
        <source>Brennprotokolle</source>
        <translation>소성 기록</translation>
    </message>
    <message>
        <source>Stopp</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>Labor-Verbindung</source>
        <translation>실험실 연결</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::DateTimePopup</name>
    <message>
        <source>Abbrechen</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::Popup</name>
    <message>
        <source>Argon oder Zirkon?</source>
        <translation>아르곤 또는 지르코니아?</translation>
    </message>
    <message>
        <source>Argon</source>
        <translation>아르곤</translation>
    </message>
    <message>
        <source>Zirkon</source>
        <translation>지르코니아</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupFailure</name>
    <message>
        <source>Fehler</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupLeaveNewProg</name>
    <message>
        <source>Programm nicht gespeichert!
Zum Hauptmenü?</source>
        <translation>프로그램이 저장되지 않았습니다!
메인 메뉴로 이동하시겠습니까?</translation>
    </message>
    <message>
        <source>Programm nicht gespeichert!
Zurück?</source>
        <translation>프로그램이 저장되지 않았습니다!
돌아가시겠습니까?</translation>
    </message>
    <message>
        <source>Editor verlassen</source>
        <translation>편집기 종료</translation>
    </message>
    <message>
        <source>Verwerfen</source>
        <translation>버리기</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupLicense</name>
    <message>
        <source>Diese Software verwendet das Qt Toolkit (Qt 5, LGPL v3).</source>
        <translation>이 소프트웨어는 Qt 툴킷(Qt 5, LGPL v3)을 사용합니다.</translation>
    </message>
    <message>
        <source>Qt-Version: %1</source>
        <translation>Qt 버전: %1</translation>
    </message>
    <message>
        <source>Qt ist unter der GNU Lesser General Public License Version 3 (LGPL v3) lizenziert. Die Qt-Bibliotheken sind dynamisch eingebunden und können durch eine eigene, kompatible Version ersetzt werden. Den Lizenztext finden Sie unter https://www.gnu.org/licenses/lgpl-3.0.html, den Quellcode von Qt unter https://download.qt.io/archive/qt/ und als Quellpaket der verwendeten Debian-Distribution (qtbase-opensource-src).</source>
        <translation>Qt는 GNU Lesser General Public License 버전 3(LGPL v3)에 따라 사용이 허가됩니다. Qt 라이브러리는 동적으로 링크되어 있으며 호환되는 자체 버전으로 교체할 수 있습니다. 라이선스 전문은 https://www.gnu.org/licenses/lgpl-3.0.html 에서, Qt 소스 코드는 https://download.qt.io/archive/qt/ 및 사용 중인 Debian 배포판의 소스 패키지(qtbase-opensource-src)에서 확인할 수 있습니다.</translation>
    </message>
    <message>
        <source>Lizenz</source>
        <translation>라이선스</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupQRCode</name>
    <message>
        <source>QR Code nicht verfügbar</source>
        <translation>QR 코드를 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>QR Code erzeugen</source>
        <translation>QR 코드 생성</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupTempWarning</name>
    <message>
        <source>Achtung! Ofen ist heiß – Tür schließen!</source>
        <translation>주의! 소결로 고온 – 도어를 닫으십시오!</translation>
    </message>
    <message>
        <source>Tür schließen</source>
        <translation>도어 닫기</translation>
    </message>
</context>
<context>
    <name>ovra::Popups::PopupUSB</name>
    <message>
        <source>USB-Stick</source>
        <translation>USB 메모리</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringGlance</name>
    <message>
        <source>Vortrocknen</source>
        <translation>예비 건조</translation>
    </message>
    <message>
        <source>Halten</source>
        <translation>유지</translation>
    </message>
    <message>
        <source>Aufheizen</source>
        <translation>승온</translation>
    </message>
    <message>
        <source>Segment %1 von %2</source>
        <translation>세그먼트 %1/%2</translation>
    </message>
    <message>
        <source>Segment %1</source>
        <translation>세그먼트 %1</translation>
    </message>
    <message>
        <source>noch %1:%2 h</source>
        <translation>남은 시간 %1:%2</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummary</name>
    <message>
        <source>Dauer</source>
        <translation>소요 시간</translation>
    </message>
    <message>
        <source>Ende</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Höchste Temperatur</source>
        <translation>최고 온도</translation>
    </message>
</context>
<context>
    <name>ovra::Process::FiringSummaryView</name>
    <message>
        <source>und %1 weitere</source>
        <translation>외 %1건</translation>
    </message>
    <message>
        <source>Keine Fehler</source>
        <translation>오류 없음</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeBadge</name>
    <message>
        <source>Auftrag %1</source>
        <translation>작업 %1</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeField</name>
    <message>
        <source>Auftrag</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Scannen oder tippen</source>
        <translation>스캔 또는 입력</translation>
    </message>
</context>
<context>
    <name>ovra::Process::JobCodeKeyboard</name>
    <message>
        <source>Auftrag</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Buchstaben, Ziffern, - / . _ und Leerzeichen, höchstens %1 Zeichen</source>
        <translation>영문자, 숫자, - / . _ 및 공백, 최대 %1자</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringDetailView</name>
    <message>
        <source>gemessen</source>
        <translation>측정</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>계획</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Dauer</source>
        <translation>소요 시간</translation>
    </message>
    <message>
        <source>Vortrocknen</source>
        <translation>예비 건조</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1분</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Auftrag</source>
        <translation>작업</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringHistoryView</name>
    <message>
        <source>Brennprotokolle</source>
        <translation>소성 기록</translation>
    </message>
    <message>
        <source>Brände: %1</source>
        <translation>소성: %1</translation>
    </message>
    <message>
        <source>Noch kein Brand aufgezeichnet</source>
        <translation>기록된 소성이 없습니다</translation>
    </message>
    <message>
        <source>Auftrag %1</source>
        <translation>작업 %1</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringPainter</name>
    <message>
        <source>Erfolgreich</source>
        <translation>성공</translation>
    </message>
    <message>
        <source>Fehlgeschlagen</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>Abgebrochen</source>
        <translation>중지됨</translation>
    </message>
    <message>
        <source>Unterbrochen</source>
        <translation>중단됨</translation>
    </message>
    <message>
        <source>Läuft</source>
        <translation>진행 중</translation>
    </message>
</context>
<context>
    <name>ovra::Records::FiringReport</name>
    <message>
        <source>Brennprotokoll</source>
        <translation>소성 기록</translation>
    </message>
    <message>
        <source>Gerät</source>
        <translation>로</translation>
    </message>
    <message>
        <source>Typ + Baureihe:</source>
        <translation>모델 + 시리즈:</translation>
    </message>
    <message>
        <source>Seriennummer:</source>
        <translation>일련번호:</translation>
    </message>
    <message>
        <source>Hardwareversion:</source>
        <translation>하드웨어 버전:</translation>
    </message>
    <message>
        <source>Softwareversion:</source>
        <translation>소프트웨어 버전:</translation>
    </message>
    <message>
        <source>Betriebsstunden:</source>
        <translation>가동 시간:</translation>
    </message>
    <message>
        <source>Brand</source>
        <translation>소성</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>시작:</translation>
    </message>
    <message>
        <source>Ende:</source>
        <translation>종료:</translation>
    </message>
    <message>
        <source>Dauer:</source>
        <translation>소요 시간:</translation>
    </message>
    <message>
        <source>Material:</source>
        <translation>재료:</translation>
    </message>
    <message>
        <source>Vortrocknen:</source>
        <translation>예비 건조:</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1분</translation>
    </message>
    <message>
        <source>Verzögerter Start:</source>
        <translation>예약 시작:</translation>
    </message>
    <message>
        <source>Ergebnis:</source>
        <translation>결과:</translation>
    </message>
    <message>
        <source>Programm</source>
        <translation>프로그램</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>구간</translation>
    </message>
    <message>
        <source>Rate %1/min</source>
        <translation>승온 속도 %1/분</translation>
    </message>
    <message>
        <source>Temperatur %1</source>
        <translation>온도 %1</translation>
    </message>
    <message>
        <source>Haltezeit min</source>
        <translation>유지 분</translation>
    </message>
    <message>
        <source>Programmtext nicht lesbar</source>
        <translation>프로그램 텍스트를 읽을 수 없음</translation>
    </message>
    <message>
        <source>Temperaturverlauf</source>
        <translation>온도 곡선</translation>
    </message>
    <message>
        <source>gemessen</source>
        <translation>측정</translation>
    </message>
    <message>
        <source>geplant</source>
        <translation>계획</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Auftrag:</source>
        <translation>작업:</translation>
    </message>
</context>
</TS>
