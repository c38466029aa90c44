#pragma once

#include "Clock.h"
#include "ItemCategory.h"
#include "ItemListModel.h"
#include "dialogs/Question.h"
#include "lock/SecureContent.h"

#include <functional>

class Banner;
class DraftKeeper;
class DraftOffer;
class GPMAppCore;
class HealthDesk;
class ItemActions;
class ItemCommands;
class ItemListPane;
class ItemNavigation;
class ItemPane;
class MoveDesk;
class NarrowLayout;
class NoticeBanner;
class QSplitter;
class QTimer;
class QStackedWidget;
class SafeMenu;
class SelectionPage;
class Sidebar;
class SiteIcons;
class SnackBar;
class Theme;

/// An open safe: its categories, the items of one of them, and one item.
class MainView : public SecureContent
{
    Q_OBJECT

public:
    /// Takes a made password.
    using Place = std::function<void(const QString &password)>;

    /// @param asker puts questions to the user; the default one shows dialogs
    MainView(GPMAppCore &core, const Theme &theme, Asker asker = {}, QWidget *parent = nullptr,
             const Clock &clock = systemTime);

    void openSafe(const std::shared_ptr<GPMSafe> &safe) override;
    void closeSafe() override;
    void takeFocus() override;
    bool mayLeave() override;
    void leaveRoom(const QSize &buttons) override;
    QVariantMap place() const override;
    void goTo(const QVariantMap &place) override;
    QSize minimumSizeHint() const override;
    /// The smallest width that holds the list and an item beside each other.
    int sideBySideWidth() const;
    QByteArray splitterState() const override;
    void restoreSplitter(const QByteArray &state) override;

    /// Opens the editor of a new item, after a question about what is edited now.
    void createItem(PMListItem::Type type);

    /// The name of the order of the items, and that order by its name.
    QString itemOrder() const;
    void setItemOrder(const QString &name);

    /// The items of the open safe; none while it is locked. As long as the view lives.
    const ItemListModel &items() const { return m_items; }
    /// The icons of their sites.
    SiteIcons &siteIcons();

    /// What can be done with the open safe and with all of them.
    SafeMenu &safeMenu() { return *m_safeMenu; }

    /// Whether the first steps with the program are done, and need not be offered.
    void setSetUpDone(bool done);

Q_SIGNALS:
    void lockRequested();
    /// Another safe is to take the place of this one, or a new one.
    void safeChosen(const QString &folder);
    void createSafeRequested();
    void itemOrderChanged();
    void generatorRequested();
    /// The generator is wanted for a field that is edited, as long as the owner lives.
    void fieldGeneratorRequested(QObject *owner, const MainView::Place &place);
    void changePasswordRequested();
    void settingsRequested();
    void helpRequested();
    void setUpRequested();
    void exitRequested();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QVector<QWidget *> banners() const;
    void layOut();
    void connectParts();
    void addShortcuts();
    void connectCloud();
    void showCloud();
    void tellNews(int received, int removed);
    void tellGone(const QString &title);
    void onDayChanged();
    void onMovedToTrash(int count);
    void undo();
    void showShortcuts();

    GPMAppCore &m_core;
    const Theme &m_theme;
    Clock m_clock;
    ItemListModel m_items;
    ItemActions *m_actions;
    Banner *m_banner;
    Sidebar *m_sidebar;
    SafeMenu *m_safeMenu;
    QSplitter *m_splitter;
    ItemListPane *m_list;
    QWidget *m_side; ///< what is shown of the items
    QStackedWidget *m_right;
    ItemPane *m_pane;
    DraftKeeper *m_keeper;
    DraftOffer *m_offer;
    SelectionPage *m_selection;
    SnackBar *m_snack;
    NoticeBanner *m_goneNotice;
    QTimer *m_cloudRunning;
    HealthDesk *m_health;
    MoveDesk *m_moveDesk;
    ItemNavigation *m_navigation;
    ItemCommands *m_commands;
    NarrowLayout *m_narrow;
};
