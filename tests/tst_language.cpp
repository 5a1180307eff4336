// Language and temperature unit: chosen by the controller and by the user, the texts of every
// page and popup switched at once, the controller's unit in the editor. Translations come from
// the build, copied into the panel's home.
#include "app/mainwindow.h"
#include "faults/popupfailure.h"
#include "panelharness.h"
#include "programs/newprogram.h"
#include "programs/tablerow.h"
#include "touch.h"
#include "widgets/button.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QXmlStreamReader>
#include <QtTest>

using ovra::Mainwindow::MainWindow;
using ovra::Mainwindow::Page;

namespace {
// The German source texts that US English words differently.
QSet<QString> GermanOnlyTexts()
{
    QFile file(QStringLiteral(OVRA_SOURCE_DIR "/translations/translation_en_US.ts"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QSet<QString> texts;
    QXmlStreamReader xml(&file);
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("source"))
            source = xml.readElementText();
        else if (xml.name() == QLatin1String("translation") && xml.readElementText() != source)
            texts.insert(source);
    }
    return texts;
}

// Every text a user can read on the window, its pages and its popups.
QStringList ShownTexts(QWidget *window)
{
    QStringList texts{window->windowTitle()};
    for (QWidget *w : window->findChildren<QWidget *>()) {
        if (auto *label = qobject_cast<QLabel *>(w))
            texts << label->text();
        else if (auto *button = qobject_cast<QAbstractButton *>(w))
            texts << button->text();
        else if (auto *kit = qobject_cast<ovra::GlobalElements::Button *>(w))
            texts << kit->GetText();
        else if (auto *field = qobject_cast<QLineEdit *>(w))
            texts << field->placeholderText();
    }
    return texts;
}
} // namespace

class TestLanguage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void controllerChoosesTheLanguage();
    void chineseTappedThenSentBackByTheController();
    void everyTextOfEveryPageAndPopupFollows();
    void controllerUnitSetsTheEditorLimits();

private:
    QStringList send(const QByteArray &fields) { return m_panel->Send(fields); }
    QString title() const { return m_panel->Text("label_Name"); }

    QScopedPointer<PanelHarness> m_panel;
};

void TestLanguage::init()
{
    m_panel.reset(new PanelHarness(30));
}

void TestLanguage::cleanup()
{
    m_panel.reset();
    // The window takes its translator with it.
    QCOMPARE(QCoreApplication::translate("ovra::MainWindow::MainWindow", "Hauptmenü"), QStringLiteral("Hauptmenü"));
}

void TestLanguage::controllerChoosesTheLanguage()
{
    // Without the file German shows, nothing is reported, and the same keyword is tried again.
    send("guistate==3");
    QCOMPARE(send("lang==deutsch"), QStringList());
    m_panel->InstallTranslations();
    QCOMPARE(send("lang==deutsch"), QStringList{QStringLiteral("lang==deutsch")});
    QCOMPARE(send("lang==deutsch"), QStringList());
    // A known keyword from the controller: the simulated firings' language case.
    // A keyword the panel does not know shows US English and is echoed as it came.
    QCOMPARE(send("lang==klingonisch"), QStringList{QStringLiteral("lang==klingonisch")});
    QCOMPARE(title(), QStringLiteral("MAIN MENU"));
    // A file gone missing takes the translation away.
    QFile::remove(m_panel->Home() + QStringLiteral("/Downloads/translations/translation_it.qm"));
    QCOMPARE(send("lang==italienisch"), QStringList());
    QCOMPARE(title(), QStringLiteral("HAUPTMENÜ"));
}

void TestLanguage::chineseTappedThenSentBackByTheController()
{
    m_panel->InstallTranslations();
    send("guistate==12");
    QVERIFY(m_panel->Checked("widget_Lang1")); // German shows before anything is loaded
    QVERIFY(!m_panel->Shown("widget_Lang11"));

    m_panel->Widget("widget_Lang11")->setVisible(true); // a panel that offers all twelve languages
    m_panel->Tap("widget_Lang11");
    QCOMPARE(send("temp==300"), QStringList{QStringLiteral("lang==chinesisch")});
    QCOMPARE(title(), QStringLiteral("语言"));
    QVERIFY(m_panel->Checked("widget_Lang11") && !m_panel->Checked("widget_Lang1"));

    // The panel's own keyword is not one the controller sends: US English, echoed as sent.
    QCOMPARE(send("lang==chinesisch"), QStringList{QStringLiteral("lang==chinesisch")});
    QCOMPARE(title(), QStringLiteral("LANGUAGE"));
    QVERIFY(m_panel->Checked("widget_Lang2"));

    // A language the page does not offer, chosen by the controller, is on the page and marked.
    send("lang==japanisch$$guistate==3$$guistate==12");
    QVERIFY(m_panel->Shown("widget_Lang7") && m_panel->Checked("widget_Lang7"));
    QVERIFY(!m_panel->Shown("widget_Lang11"));
}

void TestLanguage::everyTextOfEveryPageAndPopupFollows()
{
    m_panel->InstallTranslations();
    const QSet<QString> german = GermanOnlyTexts();
    QVERIFY(german.size() > 80);
    send("guistate==1");
    for (int page = int(Page::Selftest); page <= int(Page::USB); ++page) {
        if (page != int(Page::PlayProg) && page != int(Page::ProcessProg))
            send("guistate==" + QByteArray::number(page));
    }
    send("guistate==5");
    QVERIFY(ShownTexts(m_panel->Window()).contains(QStringLiteral("Neues Programm")));
    send("error==F07"); // its severity in words, written before the language changes

    send("lang==englischUS");
    QStringList left;
    for (const QString &text : ShownTexts(m_panel->Window())) {
        if (german.contains(text))
            left << text;
    }
    QVERIFY2(left.isEmpty(), qPrintable(left.join(QStringLiteral(" | "))));
    QCOMPARE(title(), QStringLiteral("PROGRAM OPTIONS"));
    QCOMPARE(m_panel->Window()->findChild<ovra::Popups::PopupFailure *>()->GetFailurePopupText(),
             QStringLiteral("F07  Severe error\n"));
    QCOMPARE(m_panel->Find<ovra::GlobalElements::NewProgram>("widget_newProg")->GetSaveTitle(),
             QStringLiteral("Save program"));
}

void TestLanguage::controllerUnitSetsTheEditorLimits()
{
    // The limits per unit are the editor's own test; here the controller's word reaches it.
    auto *editor = m_panel->Find<ovra::GlobalElements::NewProgram>("widget_newProg");
    QLineEdit *temp = editor->GetRows().first()->GetTempField();
    send("guistate==16");
    send("unit==f");
    temp->clear();
    TypeDigits(editor, temp, QStringLiteral("3003"));
    QCOMPARE(temp->text(), QStringLiteral("3002")); // 1650 °C
    // Anything but a lower-case f is Celsius.
    send("unit==F");
    temp->clear();
    TypeDigits(editor, temp, QStringLiteral("1700"));
    QCOMPARE(temp->text(), QStringLiteral("1650"));
}

QTEST_MAIN(TestLanguage)
#include "tst_language.moc"
