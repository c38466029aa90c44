#include "ItemNavigation.h"

#include "ItemActions.h"
#include "ItemListPane.h"
#include "ItemPane.h"
#include "SelectionPage.h"
#include "Sidebar.h"

#include <QStackedWidget>

namespace {

const int followMs = 40; ///< after a key stroke in the search

} // namespace

ItemNavigation::ItemNavigation(const MainParts &parts, QObject *parent)
    : QObject(parent)
    , m_parts(parts)
{
    m_following.setSingleShot(true);
    m_following.setInterval(followMs);
    connect(&m_following, &QTimer::timeout, this, &ItemNavigation::follow);
    connect(m_parts.sidebar, &Sidebar::categoryChosen, this, &ItemNavigation::onCategoryChosen);
    connect(m_parts.list, &ItemListPane::selectionChosen, this, &ItemNavigation::onSelectionChosen);
    connect(m_parts.list, &ItemListPane::searched, this, &ItemNavigation::onSearched);
    connect(m_parts.pane, &ItemPane::saved, this, &ItemNavigation::onSaved);
    connect(m_parts.pane, &ItemPane::discarded, this, &ItemNavigation::onDiscarded);
    connect(&m_parts.items, &ItemListModel::contentChanged, this,
            &ItemNavigation::onContentChanged);
}

void ItemNavigation::showCategory(const ItemCategory &category)
{
    m_parts.sidebar->setCategory(category);
    m_parts.list->setCategory(category);
    m_parts.list->setCount(m_parts.sidebar->count(category), m_parts.items.rowCount() == 0);
}

void ItemNavigation::showFirst()
{
    m_parts.list->setCurrent(m_parts.list->firstId());
    showCurrent();
}

void ItemNavigation::onCategoryChosen(const ItemCategory &category)
{
    if (!m_parts.pane->mayLeave()) {
        m_parts.sidebar->setCategory(m_parts.list->category());
        return;
    }
    showCategory(category);
    if (m_parts.list->selectedIds().isEmpty())
        m_parts.list->setCurrent(m_parts.list->firstId());
    showCurrent();
}

void ItemNavigation::onSelectionChosen()
{
    ItemPane &pane = *m_parts.pane;
    ItemListPane &list = *m_parts.list;
    if (pane.isEditing()) {
        const QStringList ids = list.selectedIds();
        // A click beside the rows is no wish to leave.
        if (ids.isEmpty() || ids == QStringList{pane.editedId()})
            return;
        if (!pane.mayLeave()) {
            list.setCurrent(pane.editedId());
            return;
        }
        // Saving has selected what was saved.
        if (ids.size() == 1)
            list.setCurrent(ids.first());
    }
    showCurrent();
}

void ItemNavigation::onSearched()
{
    // What is being edited stays; its row may well be hidden.
    if (m_parts.pane->isEditing())
        return;
    if (m_parts.list->selectedIds().isEmpty())
        m_parts.list->setCurrent(m_parts.list->firstId());
    // To make its page takes longer than the list, which is what the next key waits for.
    m_following.start();
}

void ItemNavigation::follow()
{
    const bool onPane = m_parts.right->currentWidget() == m_parts.pane;
    if (!onPane || m_parts.pane->shownId() != m_parts.list->currentId())
        showCurrent();
}

void ItemNavigation::settle()
{
    if (!m_following.isActive())
        return;
    m_following.stop();
    follow();
}

void ItemNavigation::onContentChanged()
{
    ItemListPane &list = *m_parts.list;
    m_parts.sidebar->setCounts(categoryCounts(m_parts.items, list.filter().today()));
    list.setCount(m_parts.sidebar->count(list.category()), m_parts.items.rowCount() == 0);
    if (m_parts.pane->isEditing())
        return;
    if (m_parts.right->currentWidget() == m_parts.selection ||
        m_parts.pane->shownId() != list.currentId())
        showCurrent();
}

void ItemNavigation::onDiscarded()
{
    showCurrent();
    m_parts.list->takeFocus();
}

void ItemNavigation::showCurrent()
{
    m_following.stop();
    const QVector<PMListItem *> items = m_parts.actions->items(m_parts.list->selectedIds());
    const bool many = items.size() > 1;
    m_parts.pane->showItem(items.size() == 1 ? items.first() : nullptr);
    if (many)
        m_parts.selection->setItems(items);
    m_parts.right->setCurrentWidget(many ? static_cast<QWidget *>(m_parts.selection)
                                         : m_parts.pane);
}

void ItemNavigation::onSaved(const QString &id)
{
    goTo(id);
    m_parts.list->focusList();
}

void ItemNavigation::goTo(const QString &id)
{
    if (!m_parts.list->contains(id)) {
        m_parts.list->clearSearch();
        if (!m_parts.list->contains(id))
            showCategory({});
    }
    m_parts.list->setCurrent(id);
}

void ItemNavigation::leaveEditor()
{
    if (m_parts.pane->isEditing() && m_parts.pane->mayLeave())
        onDiscarded();
}

QVariantMap ItemNavigation::place() const
{
    const ItemCategory &category = m_parts.list->category();
    return {{QStringLiteral("category"), ItemCategory::all().indexOf(category)},
            {QStringLiteral("item"), m_parts.pane->shownId()}};
}

void ItemNavigation::goToPlace(const QVariantMap &place)
{
    const int row = place.value(QStringLiteral("category"), 0).toInt();
    showCategory(ItemCategory::all().value(row));
    m_parts.list->setCurrent(place.value(QStringLiteral("item")).toString());
    showCurrent();
}
