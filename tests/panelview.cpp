#include "panelview.h"

#include "app/mainwindow.h"
#include "widgets/button.h"
#include "widgets/displayelement.h"
#include "widgets/displayelementicon.h"
#include "widgets/iconbutton.h"
#include "widgets/programbutton.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QStackedWidget>
#include <QtTest>

using namespace ovra::GlobalElements;

QWidget *PanelView::Widget(const QString &objectName) const
{
    return m_view->findChild<QWidget *>(objectName);
}

void PanelView::Click(QWidget *widget)
{
    QVERIFY2(widget != nullptr, "no such widget");
    auto *button = qobject_cast<QAbstractButton *>(widget);
    if (button == nullptr)
        button = widget->findChild<QAbstractButton *>();
    QVERIFY(button != nullptr);
    QTest::mouseClick(button, Qt::LeftButton);
}

void PanelView::Tap(const QString &objectName) const
{
    QWidget *widget = Widget(objectName);
    QVERIFY2(widget != nullptr, qPrintable(QStringLiteral("no widget ") + objectName));
    Click(widget);
}

void PanelView::Scan(const QString &keys) const
{
    QWidget *target = QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : m_view;
    for (const QChar c : keys)
        QTest::sendKeyEvent(QTest::KeyAction::Click, target, Qt::Key_unknown, QString(c), Qt::NoModifier);
    QTest::keyClick(target, Qt::Key_Return);
}

QString PanelView::Text(const QString &objectName) const
{
    QWidget *widget = Widget(objectName);
    if (auto *w = qobject_cast<Button *>(widget))
        return w->GetText();
    if (auto *w = qobject_cast<Iconbutton *>(widget))
        return w->GetText();
    if (auto *w = qobject_cast<DisplayElement *>(widget))
        return w->GetText();
    if (auto *w = qobject_cast<DisplayElementIcon *>(widget))
        return w->GetText();
    if (auto *w = qobject_cast<ProgramButton *>(widget))
        return w->GetText();
    if (auto *w = qobject_cast<QLabel *>(widget))
        return w->text();
    if (auto *w = qobject_cast<QAbstractButton *>(widget))
        return w->text();
    return widget == nullptr ? QStringLiteral("<no widget %1>").arg(objectName) : QString();
}

QString PanelView::Icon(const QString &objectName) const
{
    QWidget *widget = Widget(objectName);
    if (auto *w = qobject_cast<Iconbutton *>(widget))
        return w->GetIcon();
    if (auto *w = qobject_cast<DisplayElementIcon *>(widget))
        return w->GetIcon();
    return QString();
}

QString PanelView::Style(const QString &objectName) const
{
    QWidget *widget = Widget(objectName);
    return widget == nullptr ? QString() : widget->styleSheet();
}

bool PanelView::Shown(const QString &objectName) const
{
    QWidget *widget = Widget(objectName);
    if (widget == nullptr)
        return false;
    // The page is the ancestor that a stacked widget holds.
    QWidget *page = widget;
    while (page->parentWidget() != nullptr && qobject_cast<QStackedWidget *>(page->parentWidget()) == nullptr)
        page = page->parentWidget();
    return page == widget ? widget->isVisible() : widget->isVisibleTo(page);
}

bool PanelView::Enabled(const QString &objectName) const
{
    QWidget *widget = Widget(objectName);
    return widget != nullptr && widget->isEnabled();
}

bool PanelView::Checked(const QString &objectName) const
{
    QWidget *widget = Widget(objectName);
    if (auto *w = qobject_cast<Button *>(widget))
        return w->IsChecked();
    if (auto *w = qobject_cast<Iconbutton *>(widget))
        return w->IsChecked();
    if (auto *w = qobject_cast<ProgramButton *>(widget))
        return w->IsChecked();
    if (auto *w = qobject_cast<QAbstractButton *>(widget))
        return w->isChecked();
    return false;
}

ovra::Mainwindow::Page PanelView::CurrentPage() const
{
    return m_view->CurrentPage();
}

int PanelView::ShownPageIndex() const
{
    return Find<QStackedWidget>(QStringLiteral("stackedWidget"))->currentIndex();
}

bool PanelView::EditorHeld() const
{
    return m_view->IsEditMode();
}

PanelView::Screen PanelView::CurrentScreen() const
{
    return static_cast<Screen>(Find<QStackedWidget>(QStringLiteral("stackedWidget_main"))->currentIndex());
}

bool PanelView::TouchEnabled() const
{
    return Widget(QStringLiteral("stackedWidget_main"))->isEnabled();
}
