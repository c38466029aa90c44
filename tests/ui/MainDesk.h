#pragma once

#include "UiTesting.h"
#include "main/MainView.h"
#include "style/Theme.h"

#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QDateTime>
#include <QLabel>
#include <QLineEdit>
#include <QListView>

#include <algorithm>
#include <memory>

/// A user before the main view with an open safe in it, which follows the locks as in its window.
struct MainDesk
{
    MainDesk()
    {
        if (!test.createSafe())
            qFatal("No safe to test with");
        start();
    }

    /// The view is made, or made anew.
    void start()
    {
        view = std::make_unique<MainView>(test.core, theme, asker.asker(), nullptr,
                                          [this] { return now; });
        followLocks(*view, test);
        view->openSafe(test.core.currentSafe());
        view->resize(1000, 680);
        view->show();
        activate();
    }
    /// The offscreen platform lets a pop-up take the window's place.
    void activate() const
    {
        view->activateWindow();
        if (!QTest::qWaitForWindowActive(view.get(), 30000))
            qFatal("The view got no keyboard");
    }

    template <typename Widget = QLineEdit>
    Widget *field(const char *name) const
    {
        return find<Widget>(*view, name);
    }
    void click(const char *name) const
    {
        auto *button = field<QAbstractButton>(name);
        if (!button || !button->isVisible() || !button->isEnabled())
            qFatal("%s cannot be pressed", name);
        button->click();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        activate();
        QWidget *focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : view.get(), key, modifiers);
    }
    void type(const char *name, const QString &text) const
    {
        if (!field(name))
            qFatal("Nothing is edited");
        field(name)->setText(text);
    }
    void type(const char *name, const char *text) const { type(name, QString::fromUtf8(text)); }
    QString typed(const char *name) const
    {
        return field(name) ? field(name)->text() : QStringLiteral("no editor");
    }
    bool isEditing() const { return field("titleField") != nullptr; }

    QListView *list() const { return field<QListView>("itemList"); }
    void choose(const QString &title) const { chooseRow(*list(), title); }
    void choose(const char *title) const { choose(QLatin1String(title)); }
    void chooseCategory(const char *name) const
    {
        chooseRow(*field<QListView>("categoryList"), QLatin1String(name));
    }
    QString current() const { return list()->currentIndex().data().toString(); }
    QString selected() const
    {
        QModelIndexList rows = list()->selectionModel()->selectedIndexes();
        std::sort(rows.begin(), rows.end());
        QStringList titles;
        for (const QModelIndex &row : qAsConst(rows))
            titles.append(row.data().toString());
        return titles.join(QLatin1Char(' '));
    }
    QString titles() const
    {
        QStringList all;
        for (int row = 0; row < list()->model()->rowCount(); ++row)
            all.append(list()->model()->index(row, 0).data().toString());
        return all.join(QLatin1Char(' '));
    }
    QString shownTitle() const
    {
        const auto *title = field<QLabel>("itemTitle");
        return title->isVisible() ? title->text() : QString();
    }
    void openMenu() const
    {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QCoreApplication::sendEvent(list(), &event);
    }

    GPMSafe &safe() const { return *test.core.currentSafe(); }
    /// A login that is chosen, and edited.
    QString addAndChoose(const char *title)
    {
        const QString id = test.addLogin(title);
        choose(title);
        return id;
    }
    QString addAndEdit(const char *title, const char *userName)
    {
        const QString id = addAndChoose(title);
        click("editButton");
        type("loginField", userName);
        return id;
    }
    void addAll(std::initializer_list<const char *> titles)
    {
        for (const char *title : titles)
            test.addLogin(title);
    }
    /// The safe's one item; null when there are more.
    PMListItem *onlyItem() const
    {
        const auto items = safe().items();
        return items.size() == 1 ? items.front() : nullptr;
    }

    void lock()
    {
        test.core.lockCurrentSafe();
        test.core.settleLocks();
    }
    /// With what was kept by the lock.
    void unlock()
    {
        bool loaded = false;
        QObject receiver;
        QObject::connect(&safe().drafts(), &DraftStore::loaded, &receiver,
                         [&loaded] { loaded = true; });
        test.core.unlockCurrentSafe(testPassword);
        if (!QTest::qWaitFor([&] { return loaded && safe().isUnlocked(); }, 30000))
            qFatal("The safe does not open");
    }

    TestCore test;
    Theme theme;
    TestAsker asker;
    QDateTime now = systemTime();
    std::unique_ptr<MainView> view;

private:
    static void chooseRow(QListView &list, const QString &text)
    {
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            const QModelIndex index = list.model()->index(row, 0);
            if (index.data().toString() == text)
                list.setCurrentIndex(index);
        }
    }
};
