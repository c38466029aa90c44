#pragma once

#include "MainDesk.h"
#include "PMItemFactory.h"
#include "editor/SafeItemEditor.h"
#include "main/ItemKinds.h"

#include <QPushButton>

/// A user in front of the editor.
struct Editing : MainDesk
{
    QWidget *input(const ItemField &of, const char *suffix = "Field") const
    {
        return field<QWidget>((QByteArray(of.property) + suffix).constData());
    }
    void openNew(PMListItem::Type type)
    {
        // Made from a file, and edited afterwards.
        if (type == PMListItem::Attachment)
            editMade(type, {});
        else
            view->createItem(type);
        showMore();
    }
    void editMade(PMListItem::Type type, const QMap<const char *, QString> &values)
    {
        make(type, values);
        press(Qt::Key_F2);
    }
    void make(PMListItem::Type type, const QMap<const char *, QString> &values)
    {
        auto made = test.core.modelCreateItem(type);
        made->setTitle("Mine"_s);
        for (auto value = values.begin(); value != values.end(); ++value)
            made->setProperty(value.key(), value.value());
        test.core.modelAddItem(std::move(made));
        choose("Mine");
    }
    void showMore()
    {
        if (auto *more = field<QPushButton>("moreFieldsButton"))
            more->click();
    }
    void save() { press(Qt::Key_S, Qt::ControlModifier); }
    SafeItemEditor &editor() const { return *field<SafeItemEditor>("itemEditor"); }
    QString message(const char *property) const
    {
        return field<QLabel>((QByteArray(property) + "Message").constData())->text();
    }
};

inline void replace(QWidget *line, const QString &text)
{
    QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(line, Qt::Key_Delete);
    QTest::keyClicks(line, text);
    // As a click elsewhere does.
    if (QWidget *offers = QApplication::activePopupWidget())
        offers->close();
}
