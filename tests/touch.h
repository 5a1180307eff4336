#pragma once

#include "widgets/iconbutton.h"

#include <QAbstractButton>
#include <QPushButton>
#include <QToolButton>
#include <QtTest>

#include <initializer_list>

// A finger on the buttons of a pad, popup or page, found by their object names.

inline QPushButton *Key(QWidget *parent, const char *name)
{
    return parent->findChild<QPushButton *>(QString::fromLatin1(name));
}

// Taps a button the user can see, in its middle.
inline void Tap(QAbstractButton *button)
{
    QVERIFY2(button != nullptr, "no such button");
    QVERIFY(button->isVisible());
    QTest::mouseClick(button, Qt::LeftButton);
}

inline void Tap(ovra::GlobalElements::Iconbutton *button)
{
    QVERIFY(button != nullptr);
    Tap(button->GetButtonObject());
}

inline void Tap(QWidget *parent, const char *name)
{
    Tap(Key(parent, name));
}

// Taps the named buttons one after another.
inline void Tap(QWidget *parent, std::initializer_list<const char *> names)
{
    for (const char *name : names)
        Tap(Key(parent, name));
}

// Puts the finger on a field, then types the digits on the pad's "pushButton_pad<digit>" keys.
inline void TypeDigits(QWidget *pad, QWidget *field, const QString &digits)
{
    QTest::mouseClick(field, Qt::LeftButton);
    for (const QChar digit : digits)
        Tap(pad->findChild<QPushButton *>(QStringLiteral("pushButton_pad") + digit));
}
