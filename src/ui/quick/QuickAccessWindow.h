#pragma once

#include "QuickActions.h"
#include "dialogs/GeneratorPanel.h"

#include <QWidget>

class EmptyState;
class GPMAppCore;
class ItemListModel;
class QStackedWidget;
class QuickBar;
class QuickList;
class QuickLockPage;
class SiteIcons;
class Theme;
class UnlockLogic;
class WindowFrame;

/// The small window above the user's browser: finds an item and fills it into the page, copies from
/// it, and makes passwords. A locked safe is unlocked in it. It goes when the user is done or turns
/// to something else, and stays made while it is hidden, so that it is there at once.
class QuickAccessWindow : public QWidget
{
    Q_OBJECT

public:
    /// What the window works with; all of it outlives the window.
    struct Parts
    {
        GPMAppCore &core;
        const ItemListModel &items;
        SiteIcons &icons;
        UnlockLogic &unlock;
        GeneratorPanel::Parts generator;
    };

    QuickAccessWindow(const Parts &parts, const Theme &theme);
    ~QuickAccessWindow() override;

    /// Fills at once what is wanted, else opens in front of everything; while a dialog is in the
    /// way of all windows the main one is wanted instead.
    void open(const QuickAccessWish &wish);
    /// The page is known now that was not when it was opened; what the user does goes on.
    void takePage(const QString &url);

Q_SIGNALS:
    void mainWindowRequested();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    using Section = QuickAccessWish::Section;

    void layOut(const Theme &theme);
    void connectParts();
    void addShortcuts();
    void place();
    void setSection(Section section);
    void showPage();
    void takeFocus();
    void followSafe();
    void fill(const QString &id);
    void leaveUnlessBusy();

    Parts m_parts;
    QuickActions m_actions;
    QuickAccessWish m_wish;
    WindowFrame *m_frame;
    QuickList *m_list;
    QuickLockPage *m_lock;
    EmptyState *m_noSafe;
    GeneratorPanel *m_generator;
    QWidget *m_generatorPage;
    QStackedWidget *m_pages;
    QuickBar *m_bar;
};
