#pragma once

#include "expectedblocks.h"

#include <ipcore/pinfigureview.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QSpinBox>
#include <QtTest>

#include <memory>

// A block's dialog with the hands of a user.
class Hands
{
public:
    Hands(const char *dialog, TARVOORIXM1::OptionMap *options)
        : m_dialog(Expected::block(dialog).make(options, nullptr))
    {
        m_dialog->show();
    }

    Expected::Dialog *operator->() const { return m_dialog.get(); }

    template <class T>
    T *find(const char *name) const
    {
        T *widget = m_dialog->findChild<T *>(QString::fromLatin1(name));
        if (!widget)
            qFatal("there is no %s", name);
        return widget;
    }
    QCheckBox *box(const char *name) const { return find<QCheckBox>(name); }
    QComboBox *combo(const char *name) const { return find<QComboBox>(name); }
    QSpinBox *spin(const char *name) const { return find<QSpinBox>(name); }

    bool isOn(const char *name) const { return box(name)->isChecked(); }
    bool isUsable(const char *name) const { return find<QWidget>(name)->isEnabled(); }
    QStringList pins() const { return Expected::words(m_dialog->figurePins()); }

    static void click(QCheckBox *box)
    {
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(9, box->height() / 2));
    }
    void click(const char *name) const { click(box(name)); }
    // By keyboard.
    static void select(QComboBox *combo, int index)
    {
        QTest::keyClick(combo, Qt::Key_Home);
        for (int i = 0; i < index; ++i)
            QTest::keyClick(combo, Qt::Key_Down);
    }
    static void type(QSpinBox *spin, const QString &text)
    {
        spin->selectAll();
        QTest::keyClicks(spin, text);
    }
    void press(QDialogButtonBox::StandardButton which) const
    {
        QTest::mouseClick(m_dialog->buttonBox()->button(which), Qt::LeftButton);
    }
    void ok() const { press(QDialogButtonBox::Ok); }
    void cancel() const { press(QDialogButtonBox::Cancel); }

private:
    std::unique_ptr<Expected::Dialog> m_dialog;
};
