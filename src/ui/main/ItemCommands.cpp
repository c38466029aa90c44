#include "ItemCommands.h"

#include "GPMAppCore.h"
#include "ItemActions.h"
#include "ItemListPane.h"
#include "ItemMenu.h"
#include "ItemNavigation.h"
#include "ItemPage.h"
#include "ItemPane.h"
#include "SelectionPage.h"
#include "Sidebar.h"

#include <QStackedWidget>
#include <QTimer>
#include <QUrl>

ItemCommands::ItemCommands(GPMAppCore &core, const Theme &theme, const MainParts &parts,
                           ItemNavigation &navigation, QWidget *view)
    : QObject(view)
    , m_core(core)
    , m_theme(theme)
    , m_parts(parts)
    , m_navigation(navigation)
    , m_view(view)
{
    connectParts();
}

void ItemCommands::connectParts()
{
    ItemActions *const actions = m_parts.actions;
    connect(m_parts.sidebar, &Sidebar::itemsDropped, this,
            [this](const ItemCategory &category, const QStringList &ids) {
                // A question inside the drop would hold the drag up.
                QTimer::singleShot(0, this, [this, category, ids] { drop(category, ids); });
            });
    connect(m_parts.sidebar, &Sidebar::restoreAllRequested, actions, &ItemActions::restoreAll);
    connect(m_parts.sidebar, &Sidebar::emptyTrashRequested, actions, &ItemActions::emptyTrash);

    connect(m_parts.list, &ItemListPane::menuRequested, this, &ItemCommands::showMenu);
    connect(m_parts.list, &ItemListPane::activated, actions, &ItemActions::runDefault);
    connect(m_parts.list, &ItemListPane::removeRequested, this, &ItemCommands::remove);
    connect(m_parts.list, &ItemListPane::createRequested, this, &ItemCommands::create);
    connect(m_parts.list, &ItemListPane::restoreAllRequested, actions, &ItemActions::restoreAll);
    connect(m_parts.list, &ItemListPane::emptyTrashRequested, actions, &ItemActions::emptyTrash);

    connect(m_parts.selection, &SelectionPage::favoriteRequested, this, [this](bool favorite) {
        m_parts.actions->setFavorite(m_parts.list->selectedIds(), favorite);
    });
    connect(m_parts.selection, &SelectionPage::removeRequested, this,
            &ItemCommands::removeSelected);
    connect(m_parts.selection, &SelectionPage::restoreRequested, this,
            [this] { m_parts.actions->restore(m_parts.list->selectedIds()); });

    connect(m_parts.selection, &SelectionPage::exportRequested, this,
            [this] { Q_EMIT exportRequested(m_parts.list->selectedIds()); });

    connect(m_parts.pane, &ItemPane::removeRequested, this, &ItemCommands::removeOne);
    connect(m_parts.pane, &ItemPane::restoreRequested, this,
            [this](const QString &id) { m_parts.actions->restore({id}); });
    const ItemPage &page = m_parts.pane->page();
    connect(&page, &ItemPage::defaultActionRequested, this, &ItemCommands::logIn);
    connect(&page, &ItemPage::favoriteToggled, this,
            [this] { m_parts.actions->toggleFavorite(m_parts.pane->shownId()); });
    connect(&page, &ItemPage::copyRequested, actions, &ItemActions::copyText);
    connect(&page, &ItemPage::openRequested, &m_core, [this](const QString &address) {
        Q_EMIT m_core.openAddress(QUrl::fromUserInput(address));
    });
}

void ItemCommands::change(const QString &id)
{
    m_view->window()->activateWindow();
    if (m_parts.pane->isEditing() && m_parts.pane->editedId() == id)
        return;
    if (!m_parts.pane->mayLeave())
        return;
    m_navigation.goTo(id);
    m_navigation.showCurrent();
    edit();
}

void ItemCommands::removeSelected()
{
    remove(m_parts.list->selectedIds());
}

void ItemCommands::remove(const QStringList &ids)
{
    ItemPane &pane = *m_parts.pane;
    const bool editing = pane.isEditing() && ids.contains(pane.editedId());
    if (pane.isEditing() && !editing) {
        // Another item is in the editor: that one is decided about first.
        if (!pane.mayLeave())
            return;
        if (ids.size() == 1)
            m_parts.list->setCurrent(ids.first());
        m_navigation.showCurrent();
    }
    if (!m_parts.actions->remove(ids))
        return;
    if (editing)
        pane.drop();
    m_navigation.showCurrent();
}

void ItemCommands::drop(const ItemCategory &category, const QStringList &ids)
{
    if (category.kind == ItemCategory::Trash)
        remove(ids);
    else
        m_parts.actions->setFavorite(ids, true);
}

void ItemCommands::showMenu(const QPoint &place)
{
    // What is being edited is not to change below the editor.
    if (m_parts.pane->isEditing())
        return;
    auto *menu = new ItemMenu(*m_parts.actions, m_parts.list->selectedIds(), m_theme, m_view);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu, &ItemMenu::editRequested, this, &ItemCommands::edit);
    connect(menu, &ItemMenu::duplicateRequested, this, &ItemCommands::duplicate);
    connect(menu, &ItemMenu::exportRequested, this,
            [this] { Q_EMIT exportRequested(m_parts.list->selectedIds()); });
    connect(menu, &ItemMenu::removeRequested, this, &ItemCommands::removeSelected);
    menu->popup(place);
}

void ItemCommands::duplicate()
{
    const QString id = m_parts.actions->duplicate(m_parts.list->currentId());
    if (id.isEmpty())
        return;
    m_navigation.onSaved(id);
    m_navigation.showCurrent();
    edit();
}

void ItemCommands::create(PMListItem::Type type)
{
    if (!m_parts.pane->mayLeave())
        return;
    m_parts.right->setCurrentWidget(m_parts.pane);
    m_parts.pane->startNew(type);
}

void ItemCommands::createHere()
{
    const ItemCategory &category = m_parts.list->category();
    create(category.kind == ItemCategory::OfType ? category.type : PMListItem::Login);
}

void ItemCommands::edit()
{
    m_navigation.settle();
    m_parts.pane->startEdit();
}

void ItemCommands::save()
{
    if (m_parts.pane->isEditing())
        m_parts.pane->save();
    else if (m_core.hasUnsavedChanges())
        m_core.currentSafe()->saveChangesAsync();
}

void ItemCommands::paste()
{
    m_navigation.settle();
    m_parts.pane->paste();
}

void ItemCommands::logIn()
{
    m_navigation.settle();
    if (!m_parts.pane->isEditing())
        m_parts.actions->runDefault(m_parts.pane->shownId());
}

void ItemCommands::copyUserName()
{
    m_navigation.settle();
    if (!m_parts.pane->isEditing())
        m_parts.actions->copyUserName(m_parts.pane->shownId());
}

void ItemCommands::copySecret()
{
    m_navigation.settle();
    if (!m_parts.pane->isEditing())
        m_parts.actions->copySecret(m_parts.pane->shownId());
}
