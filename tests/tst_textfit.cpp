// Every text of every page and popup fits, in every language: nothing shortened with "…",
// nothing wider or taller than the room its widget gives it in the font it is drawn in, and
// nothing drawn below the smallest size readable at arm's length. Pages and popups are
// found from the window itself, so a new page, popup or widget is measured without being
// named here.
//
// OVRA_FIT_LANGUAGES=deutsch,japanisch limits the run to the controller's keywords given
// (the sanitizer pass); OVRA_FIT_SHOTS=DIR also saves every screen measured as a PNG.
#include "app/mainwindow.h"
#include "panelharness.h"
#include "settings/languages.h"
#include "widgets/button.h"
#include "widgets/captionfit.h"
#include "widgets/elidedlabel.h"

#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QStackedWidget>
#include <QStyleOptionButton>
#include <QTextDocument>
#include <QTextEdit>
#include <QToolButton>
#include <QtTest>

using ovra::GlobalElements::Button;
using ovra::GlobalElements::CaptionFit;
using ovra::GlobalElements::ElidedLabel;

namespace {

// The style sheet's floor: smaller text cannot be read at arm's length on the 800x480 panel.
constexpr int minimumPixels = 16;

// What a widget shows and the room it has for it, in its own coordinates.
struct Shown
{
    QString text;
    QRect room;
    // Room above and below the contents the text's line boxes may reach into uncut: a font's
    // line box, a CJK one above all, is taller than its letters.
    int slack = 0;
    bool wraps = false;
    bool elided = false; // the widget itself dropped part of the text
};

QString PlainText(const QLabel *label)
{
    const QString text = label->text();
    if (label->textFormat() == Qt::RichText || (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(text))) {
        QTextDocument document;
        document.setHtml(text);
        return document.toPlainText();
    }
    return text;
}

// An empty text: nothing to measure.
Shown LabelText(const QLabel *label)
{
    Shown shown;
    shown.text = PlainText(label);
    const int m = label->margin();
    shown.room = label->contentsRect().adjusted(m, m, -m, -m);
    shown.wraps = label->wordWrap();
    if (auto *elided = qobject_cast<const ElidedLabel *>(label)) {
        shown.text.replace(QLatin1Char('\n'), QLatin1Char(' '));
        shown.elided = elided->IsElided();
    }
    return shown;
}

Shown ButtonText(QAbstractButton *button)
{
    Shown shown;
    shown.text = CaptionFit::DisplayText(button->text());
    auto *tool = qobject_cast<QToolButton *>(button);
    if (tool != nullptr && tool->toolButtonStyle() == Qt::ToolButtonIconOnly)
        return {};
    QStyleOptionButton option;
    option.initFrom(button);
    option.rect = button->rect();
    QStyle::SubElement contents = QStyle::SE_PushButtonContents;
    if (qobject_cast<QCheckBox *>(button) != nullptr)
        contents = QStyle::SE_CheckBoxContents;
    else if (qobject_cast<QRadioButton *>(button) != nullptr)
        contents = QStyle::SE_RadioButtonContents;
    // The style sheet's border and padding are taken off here, also for tool buttons.
    shown.room = button->style()->subElementRect(contents, &option, button);
    shown.slack = button->height() - shown.room.height();
    if (!button->icon().isNull() && contents == QStyle::SE_PushButtonContents) {
        const QSize icon = button->iconSize();
        if (tool != nullptr && tool->toolButtonStyle() == Qt::ToolButtonTextUnderIcon) {
            shown.slack = button->height() - shown.room.bottom() - 1;
            shown.room.setTop(shown.room.top() + icon.height());
        } else if (tool == nullptr || tool->toolButtonStyle() != Qt::ToolButtonTextOnly)
            shown.room.setLeft(shown.room.left() + icon.width() + 4); // the styles' least gap
    }
    // A menu tile wraps or shortens its caption itself: compare with the caption it was given.
    if (auto *tile = qobject_cast<Button *>(button->parentWidget())) {
        const QString caption = CaptionFit::DisplayText(tile->GetText());
        shown.elided = shown.text.count(QChar(0x2026)) > caption.count(QChar(0x2026));
        if (shown.elided)
            shown.text = caption;
    }
    return shown;
}

// The part of the widget its ancestors leave visible, in its own coordinates. Inside a scroll
// area only the sides count: what lies above or below is scrolled to, not cut off.
QRect VisiblePart(QWidget *widget)
{
    QRect seen(widget->mapTo(widget->window(), QPoint()), widget->size());
    bool scrolled = false;
    for (QWidget *a = widget->parentWidget(); a != nullptr; a = a->parentWidget()) {
        QRect r(a->mapTo(a->window(), QPoint()), a->size());
        if (scrolled)
            r = QRect(r.left(), seen.top(), r.width(), seen.height());
        seen &= r;
        if (auto *area = qobject_cast<QAbstractScrollArea *>(a->parentWidget()))
            scrolled = scrolled || area->viewport() == a;
        if (a->isWindow())
            break;
    }
    return seen.translated(-widget->mapTo(widget->window(), QPoint()));
}

QString NameOf(const QWidget *widget)
{
    if (!widget->objectName().isEmpty())
        return widget->objectName();
    const QWidget *named = widget->parentWidget();
    while (named != nullptr && named->objectName().isEmpty())
        named = named->parentWidget();
    return QStringLiteral("%1 in %2")
        .arg(QString::fromLatin1(widget->metaObject()->className()),
             named != nullptr ? named->objectName() : QStringLiteral("?"));
}

// One line per text that does not fit in the shown widgets under root.
QStringList Misfits(QWidget *root, const QString &where)
{
    QStringList found;
    QList<QWidget *> widgets = root->findChildren<QWidget *>();
    widgets.prepend(root);
    for (QWidget *widget : widgets) {
        if (!widget->isVisible())
            continue;
        // Long texts scroll there; values in fields are the user's.
        if (qobject_cast<QTextEdit *>(widget) != nullptr || qobject_cast<QPlainTextEdit *>(widget) != nullptr)
            continue;
        widget->ensurePolished(); // the style sheet's font and padding
        Shown shown;
        if (auto *label = qobject_cast<QLabel *>(widget))
            shown = LabelText(label);
        else if (auto *button = qobject_cast<QAbstractButton *>(widget))
            shown = ButtonText(button);
        if (shown.text.trimmed().isEmpty())
            continue;

        const QFontMetrics metrics(widget->font());
        const QRect room = shown.room & VisiblePart(widget);
        const QSize needed =
            shown.wraps
                ? metrics.boundingRect(QRect(0, 0, qMax(1, room.width()), 1 << 20), Qt::TextWordWrap, shown.text).size()
                : metrics.size(0, shown.text);
        const int pixels = QFontInfo(widget->font()).pixelSize();
        QString fault;
        if (shown.elided)
            fault = QStringLiteral("shortened with \u2026: needs %1 px, has %2 px")
                        .arg(metrics.horizontalAdvance(shown.text))
                        .arg(room.width());
        else if (needed.width() > room.width())
            fault = QStringLiteral("too wide: needs %1 px, has %2 px").arg(needed.width()).arg(room.width());
        else if (needed.height() > room.height() + shown.slack)
            fault = QStringLiteral("too high: needs %1 px, has %2 px")
                        .arg(needed.height())
                        .arg(room.height() + shown.slack);
        else if (pixels < minimumPixels)
            fault = QStringLiteral("font %1 px, below %2 px").arg(pixels).arg(minimumPixels);
        if (!fault.isEmpty()) {
            QString text = shown.text;
            text.replace(QLatin1Char('\n'), QStringLiteral("\\n"));
            found << QStringLiteral("%1 | %2 | \"%3\" | %4").arg(where, NameOf(widget), text, fault);
        }
    }
    return found;
}

void Settle()
{
    // Lists rebuilt for the new page drop their old buttons later.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

QStringList LanguagesToCheck()
{
    const QStringList only =
        QString::fromLocal8Bit(qgetenv("OVRA_FIT_LANGUAGES")).split(QLatin1Char(','), Qt::SkipEmptyParts);
    QStringList keywords;
    for (const ovra::Settings::Language &language : ovra::Settings::Languages()) {
        if (only.isEmpty() || only.contains(language.acceptedKeyword))
            keywords << language.acceptedKeyword;
    }
    return keywords;
}

} // namespace

class TestTextFit : public QObject
{
    Q_OBJECT

private slots:
    void everyTextFitsInEveryLanguage();
};

void TestTextFit::everyTextFitsInEveryLanguage()
{
    // A lab view beside the panel: the lab link popup shows its pairing button too.
    PanelHarness panel(60000, [](ovra::GlobalElements::PanelOptions &options) {
        QFile ini(options.home + QStringLiteral("/lablink.ini"));
        QVERIFY(ini.open(QIODevice::WriteOnly));
        ini.write("[view]\nprogram=/bin/true\ndata=" + options.home.toUtf8() + "\n");
    });
    panel.InstallTranslations();
    ovra::Mainwindow::MainWindow *window = panel.Window();
    auto *pages = panel.Find<QStackedWidget>(QStringLiteral("stackedWidget"));
    auto *screens = panel.Find<QStackedWidget>(QStringLiteral("stackedWidget_main"));
    QVERIFY(pages != nullptr && screens != nullptr);

    // A furnace with the data and programs a user sees; names as short as real ones.
    panel.Send("initialstart");
    panel.Send("name==Ovra S1$$serialno==S1-2304-0087$$hwver==HX3-C$$swver==3.12.0$$ophours==1234");
    panel.Send("time==0935$$date==20261122$$temp==295$$unit==c$$doorclosed");
    panel.Send(PanelHarness::Heatfile("Zirkon Speed", "user", "Zirkon", true));
    panel.Send(PanelHarness::Heatfile("Glanz", "Dentawerk", "Glaskeramik"));
    panel.Send("guistate==1");
    panel.Send("guistate==26");
    // The play and process pages show the program last tapped.
    panel.Send("guistate==10");
    Settle();
    QWidget *program = pages->currentWidget()->findChild<QWidget *>(QStringLiteral("pushButton_title"));
    QVERIFY(program != nullptr);
    PanelHarness::Click(program);

    const QString shots = QString::fromLocal8Bit(qgetenv("OVRA_FIT_SHOTS"));
    if (!shots.isEmpty())
        QDir().mkpath(shots);
    QMap<QString, int> perLanguage;
    QStringList all;
    const QList<QDialog *> popups = window->findChildren<QDialog *>();
    QVERIFY(popups.size() > 5);
    for (const QString &keyword : LanguagesToCheck()) {
        panel.Send("lang==" + keyword.toUtf8());
        QStringList found;
        auto measure = [&](QWidget *root, const QString &where) {
            Settle();
            found << Misfits(root, keyword + QStringLiteral(" | ") + where);
            if (!shots.isEmpty())
                window->grab().save(
                    QStringLiteral("%1/%2_%3.png").arg(shots, keyword, QString(where).replace('/', '-')));
        };
        for (int page = 0; page < pages->count(); ++page) {
            // "Oven ready" puts the temperature into the header, which leaves the title the
            // least room; the process page takes it away again.
            panel.Send("guistate==26");
            panel.Send("guistate==" + QByteArray::number(page));
            // Pages the controller does not open by number are shown as the window would.
            if (pages->currentIndex() != page)
                pages->setCurrentIndex(page);
            const QString name = pages->widget(page)->objectName();
            measure(window, name);
            // A page's own views (the editor's table, chart and save view).
            for (QStackedWidget *inner : pages->widget(page)->findChildren<QStackedWidget *>()) {
                const int shown = inner->currentIndex();
                for (int view = 0; view < inner->count(); ++view) {
                    inner->setCurrentIndex(view);
                    if (view != shown)
                        measure(window, name + QLatin1Char('/') + inner->widget(view)->objectName());
                }
                inner->setCurrentIndex(shown);
            }
        }
        // The process page in each of its states, with the longest words of each language: a
        // firing pre-drying, one under way, and its end with a failure of every severity.
        panel.Send("guistate==" + QByteArray::number(ovra::Mainwindow::Page::ProcessProg));
        const QList<QPair<QByteArray, QString>> firing = {
            {"temp==333$$hpinfo==Zirkon Speed;142;pre;pre", QStringLiteral("predry")},
            {"temp==1480$$hpinfo==Zirkon Speed;42;2;heat", QStringLiteral("heating")},
            {"temp==1500$$hpinfo==Zirkon Speed;8;3;hold", QStringLiteral("holding")},
            {"error==F07,E201,I3050$$hpfailed$$hpinfo==", QStringLiteral("result")}};
        for (const auto &state : firing) {
            panel.Send(state.first);
            measure(window, QStringLiteral("page_processProg/") + state.second);
        }
        panel.Send("reseterror");
        panel.Send("guistate==3");
        for (int screen = 1; screen < screens->count(); ++screen) {
            screens->setCurrentIndex(screen);
            measure(window, screens->widget(screen)->objectName());
        }
        screens->setCurrentIndex(0);
        // Screens laid over the whole window rather than held as pages (the firing history).
        for (QWidget *cover : screens->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
            if (screens->indexOf(cover) >= 0)
                continue;
            cover->setGeometry(screens->rect());
            cover->show();
            cover->raise();
            measure(cover, cover->objectName());
            cover->hide();
        }
        for (QDialog *popup : popups) {
            popup->open();
            const QString name =
                QString::fromLatin1(popup->metaObject()->className()).section(QStringLiteral("::"), -1);
            measure(popup, name);
            popup->close();
        }
        for (const QString &line : qAsConst(found))
            QWARN(qPrintable(line));
        perLanguage[keyword] = found.size();
        all << found;
    }
    QStringList counts;
    for (auto it = perLanguage.cbegin(); it != perLanguage.cend(); ++it)
        counts << QStringLiteral("%1 %2").arg(it.key()).arg(it.value());
    QVERIFY2(all.isEmpty(), qPrintable(QStringLiteral("%1 texts do not fit (%2), listed above")
                                           .arg(all.size())
                                           .arg(counts.join(QStringLiteral(", ")))));
}

QTEST_MAIN(TestTextFit)
#include "tst_textfit.moc"
